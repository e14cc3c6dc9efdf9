== ready
# On a new table only the Mnemonics column answers a click: it moves the cursor, on row 0 to row 1.
> cell Table1 3 0 ; cell Table1 3 1 ; cell Table1 3 3 ; cell Table1 3 4 ; cell Table1 0 1
> cell Table1 0 3 ; cell Table1 0 4 ; changes
> cell Table1 5 2 ; changes
session: Cursor=5 SelectionAnchor=5
> cell Table1 0 2 ; changes
session: Cursor=1 SelectionAnchor=1
# A press on row 0 counts as one on row 1, so a drag from there to row 1 is a plain click.
> cell Table1 4 2 ; drag Table1 0 2 1 2 ; changes
> drag Table1 0 2 4 2 ; changes
session: SelectionBottom=4
# A drag upward selects as one downward does, up to row 0, and moves nothing.
> drag Table1 5 2 3 2 ; changes
session: SelectionTop=3 SelectionBottom=5 SelectionAnchor=5
> drag Table1 2 2 0 2 ; changes
session: SelectionTop=0 SelectionBottom=2 SelectionAnchor=2
# The column of the press decides: let go over another column it selects, begun there it does not.
> drag Table1 3 2 6 4 ; changes
session: SelectionTop=3 SelectionBottom=6 SelectionAnchor=3
> drag Table1 8 1 9 2 ; changes
# An Opcode cell starts its instruction afresh; Esc gives the row back, comment and all.
> row NOP "MOV A,B" RNC "RST 3" ; click EntryMode ; key DataAcceptButton 3F
> click DataAcceptButton ; click EntryMode ; cell Table1 2 3 ; changes
session: Cursor=2 PanelState=9 LastLine=5 FileChanged=1 EntryPending=1 CurrentOpcode=64
    SavedCells(2)="MOV  A,  B" SavedCells(3)="78"
    SavedCells(4)="Move content of B-register into Accumulator."
Table1 1 - - "NOP" "00" "No Operation." | 2 - - "MOV" | 3 - - "RNC" "D0" "Return on no carry."
Table1 4 - - "RST 3" "DF" "Restart#3 (Call sub-routine at address 0018H)."
Table1 5 - - "DFB" "3F" "Data Byte."
caption: TipsLabel="Select Register or Memory (Destination)." | shown: RegisterBox
hidden: InstructionBox | disabled: EditMenu/* FileMenu/* REG 8..9 ToolsMenu/* | focus: RegisterBox
> escape ; changes
session: PanelState=1 EntryPending=0
Table1 2 - - "MOV  A,  B" "78" "Move content of B-register into Accumulator."
caption: TipsLabel="Program Mode." | shown: InstructionBox | hidden: RegisterBox
enabled: CopyEdit CutEdit DeleteEdit FileMenu/* FindEdit PlaceLabelTool ReplaceEdit ToolsMenu/*
# The first restart number is taken as it was entered; a NOP cannot be entered again; RNC becomes
# HLT.
> cell Table1 4 3 ; key NumberFocusButton 5 ; cell Table1 1 3 ; cell Table1 3 3 ; changes
session: Cursor=4 SelectedInstruction=79 CurrentOpcode=118 SavedCells(2)="RNC" SavedCells(3)="D0"
    SavedCells(4)="Return on no carry."
Table1 3 - - "HLT" "76" "Halt program execution."
Table1 4 - - "RST 5" "EF" "Restart#5 (Call sub-routine at address 0028H)."
# On a data byte the cursor goes there and the entry mode changes; and back.
> cell Table1 5 3 ; changes
session: Cursor=5 PanelState=29
caption: EntryMode="Program &Mode" TipsLabel="Data Mode." | shown: DataBox | hidden: InstructionBox
focus: DataAcceptButton | default: DataAcceptButton
> cell Table1 5 3 ; changes
session: PanelState=1
caption: EntryMode="Data &Mode" TipsLabel="Program Mode." | shown: InstructionBox | hidden: DataBox
# In data mode an Opcode cell starts its instruction too; register keys end in state 1, but the
# mode is data mode still, as the end of the next task shows. Selecting works there as well.
> cell Table1 5 3 ; cell Table1 1 3 ; cell Table1 2 3 ; click REG 7 ; click REG 1 ; changes
session: Cursor=3 SelectedInstruction=0 CurrentOpcode=121 SavedCells(2)="MOV  A,  B"
    SavedCells(3)="78" SavedCells(4)="Move content of B-register into Accumulator."
Table1 2 - - "MOV  A,  C" "79" "Move content of C-register into Accumulator."
caption: EntryMode="Program &Mode"
> cell Table1 0 0 ; escape ; cell Table1 4 2 ; drag Table1 3 2 2 2 ; changes
session: PanelState=29 CurrentRow=4 SelectionTop=2
Table1 colors 3,2=own 4,2=cursor
caption: TipsLabel="Data Mode." | shown: DataBox | hidden: InstructionBox
# An instruction with a string ends in data mode with its old row still kept: Esc puts it on the
# row of the cursor.
> click EntryMode ; cell Table1 6 2 ; row "JMP go" ; click EntryMode ; cell Table1 6 3
> type LabelText stay ; click LabelAcceptButton ; changes
session: Cursor=7 LastLine=6 EntryPending=1 SelectionAnchor=6 SelectedInstruction=37
    CurrentOpcode=195 SavedCells(2)="JMP  go" SavedCells(3)="C3   XX   XX"
    SavedCells(4)="Jump to address pointed by 'go'." SavedCells(5)="go"
LabelCombo 0="go" 1="stay" | LabelEqtList 0..1="XXXX" | LabelLineList 0..1="0"
LabelPlacedList 0..1="0" | LabelUsedList 0="0" 1="1" | StringTable 6="stay"
Table1 6 - - "JMP  stay" "C3   XX   XX" "Jump to address pointed by 'stay'."
> escape ; click EntryMode ; changes
session: PanelState=1 LastLine=7 EntryPending=0
StringTable 7="go"
Table1 7 - - "JMP  go" "C3   XX   XX" "Jump to address pointed by 'go'."
caption: EntryMode="Data &Mode" TipsLabel="Program Mode." | shown: InstructionBox | hidden: DataBox
# A label in the first column answers no click, an origin opens its editor.
> click PlaceLabelTool ; cell Table1 2 2 ; type PlaceText here ; click PlaceAcceptButton
> click PlaceDoneButton ; cell Table1 2 0 ; cell Table1 0 0 ; key NumberAcceptButton 1c0de
> changes
session: PanelState=25 SelectionAnchor=2
LabelCombo 2="here" | LabelEqtList 2="XXXX" | LabelLineList 2="2" | LabelPlacedList 2="1"
LabelUsedList 0="1" 2="0"
Table1 2 "here"
caption: DataTypeLabel="Address" NumberLabel="C0DE"
    TipsLabel="Enter starting address of the Origin and Click Accept', or press 'Esc' to quit."
shown: NumberBox | hidden: InstructionBox | disabled: EditMenu/* FileMenu/* ToolsMenu/*
focus: NumberAcceptButton | default: NumberAcceptButton
> enter ; changes
session: PanelState=1
OriginList 0="C0DE"
Table1 0 - "C0DE"
caption: TipsLabel="Program Mode." | shown: InstructionBox | hidden: NumberBox
enabled: CopyEdit CutEdit DeleteEdit FileMenu/* FindEdit PlaceLabelTool ReplaceEdit ToolsMenu/*
# Clicks do nothing while another task is open; the press of a drag selects nothing either.
> click INST 10 ; drag Table1 2 2 8 2 ; cell Table1 0 0 ; cell Table1 2 3 ; cell Table1 9 2
> changes
session: PanelState=3 EntryPending=1 SelectionAnchor=9 SelectedInstruction=10 CurrentOpcode=128
StringTable 7=""
Table1 7 - - "ADD" "" ""
caption: TipsLabel="Select Register or Memory." | shown: RegisterBox | hidden: InstructionBox
disabled: EditMenu/* FileMenu/* ToolsMenu/* | focus: RegisterBox
> escape ; click NewOrigin ; cell Table1 4 2 ; cell Table1 2 3 ; escape ; changes
session: PanelState=1 EntryPending=0 SelectionAnchor=4
StringTable 7="go"
Table1 7 - - "JMP  go" "C3   XX   XX" "Jump to address pointed by 'go'."
caption: TipsLabel="Program Mode." | shown: InstructionBox | hidden: RegisterBox
enabled: CopyEdit CutEdit DeleteEdit FileMenu/* FindEdit PlaceLabelTool ReplaceEdit ToolsMenu/*
# A filled cell below the lines in use counts from the time it is visited.
> click CommentsTool ; cell Table1 20 4 ; type CommentsTxt far ; click CommentDoneButton
> cell Table1 25 4 ; changes
session: ClickedRow=20
Table1 20 - - - - "far"
> cell Table1 20 4 ; changes
session: LastLine=20
== deleting labels
# Only the first column counts; the label's number is forgotten, and the lists are tidied at the
# end. An origin can be emptied too, its grey stays.
> row "JMP loop" HLT ; click PlaceLabelTool ; cell Table1 2 0 ; click ExistingPlaceOption ; enter
> cell Table1 1 0 ; type PlaceText here ; enter ; escape ; click NewOrigin
> key NumberAcceptButton 9000 ; enter ; click AssignAddress ; settle ; click DeleteLabels
> cell Table1 2 2 ; cell Table1 2 0 ; cell Table1 4 0 ; changes
session: PanelState=31 LastLine=6 FileChanged=1 SelectionAnchor=2 ClickedRow=1
    SelectedInstruction=79 CurrentOpcode=118
LabelCombo 0="loop" 1="here" | LabelEqtList 0="XXXX" 1="8000" | LabelLineList 0="2" 1="1"
LabelPlacedList 0..1="1" | LabelUsedList 0="1" 1="0" | LastAddressList 0="8003" 1="8FFF"
OriginList 1="9000" | StringTable rows=33 (1 in at 1) 1="loop"
Table1 rows=33 (1 in at 1)
Table1 1 "here" "8000" "JMP  loop" "C3   03   80" "Jump to address pointed by 'loop'."
Table1 2 - "8003" "HLT" "76" "Halt program execution." | 3 "Origin" "9000"
Table1 colors 1,2=cursor 2,2=own 3,0..4=E0E0E0
caption: TipsLabel="Press 'Esc' to quit deleting labels." | hidden: InstructionBox
disabled: EditMenu/* FileMenu/* ToolsMenu/*
> cell Table1 3 0 ; escape ; changes
session: PanelState=1
LabelLineList 0="0" | LabelPlacedList 0="0" | OriginList count=1
Table1 3 ""
caption: TipsLabel="Program Mode." | shown: InstructionBox
enabled: CopyEdit CutEdit DeleteEdit FileMenu/* FindEdit PlaceLabelTool ReplaceEdit ToolsMenu/*
# With the first origin gone as well a new one takes the first row.
> click DeleteLabels ; cell Table1 0 0 ; escape ; changes
OriginList count=0
Table1 0 ""
> click NewOrigin ; key NumberAcceptButton 7000 ; enter ; changes
session: LastLine=1
OriginList 0="7000"
Table1 0 "Origin" "7000"
