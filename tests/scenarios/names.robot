== spelling
# 0 to 9 and a to z, a letter first, at least one character and no more than six.
> click INST 37 ; changes
session: PanelState=4 FileChanged=1 EntryPending=1 SelectedInstruction=37 CurrentOpcode=195
Table1 1 - - "JMP" "C3"
caption: TipsLabel="Enter Label and click 'Accept'." | shown: LabelBox | hidden: InstructionBox
disabled: EditMenu/* ExistingLabelOption FileMenu/* LabelAcceptButton LabelCombo ToolsMenu/*
checked: NewLabelOption | focus: LabelText | default: LabelAcceptButton
> type LabelText 1 ; click LabelAcceptButton ; type LabelText a ; click LabelAcceptButton
refused LabelAcceptButton disabled
refused LabelAcceptButton disabled
> clear LabelText ; type LabelText A ; click LabelAcceptButton ; clear LabelText
refused LabelAcceptButton disabled
> type LabelText a ; changes
text: LabelText="a" | enabled: LabelAcceptButton
> type LabelText _ ; enter ; type LabelText 1 ; enter ; clear LabelText ; enter
refused LabelAcceptButton disabled
refused LabelAcceptButton disabled
refused LabelAcceptButton disabled
> type LabelText "z\xC3\xA9" ; enter ; clear LabelText ; type LabelText "{a" ; enter
refused LabelAcceptButton disabled
refused LabelAcceptButton disabled
> clear LabelText ; type LabelText abcdefg ; enter ; changes
session: Cursor=2 PanelState=1 EntryPending=0
LabelCombo 0="abcdef" | LabelEqtList 0="XXXX" | LabelLineList 0="0" | LabelPlacedList 0="0"
LabelUsedList 0="1" | StringTable 1="abcdef"
Table1 1 - - "JMP  abcdef" "C3   XX   XX" "Jump to address pointed by 'abcdef'."
caption: TipsLabel="Program Mode." | shown: InstructionBox | hidden: LabelBox
enabled: CopyEdit CutEdit DeleteEdit FileMenu/* FindEdit PlaceLabelTool ReplaceEdit ToolsMenu/*
> click INST 15 ; type XXText 9 ; enter ; clear XXText ; type XXText a` ; enter ; clear XXText
refused XXAcceptButton disabled
refused XXAcceptButton disabled
> type XXText z9z9z9z9 ; enter ; changes
session: Cursor=3 LastLine=2 SelectedInstruction=15 CurrentOpcode=198
StringTable 2="z9z9z9" | XXCombo 0="z9z9z9" | XXEqtList 0="XX"
Table1 2 - - "ADI   z9z9z9" "C6   XX" "Add the equivalent of 'z9z9z9' to content of Accumulator."
# Taken, as a label or as a variable: told in the words of the box, the text is emptied, the box
# stays; another name does it.
> click INST 49 ; type LabelText abcdef ; enter ; changes
box critical "String already used as Label or Variable. Please enter another label." ok -> ok
session: PanelState=4 EntryPending=1 SelectedInstruction=49 CurrentOpcode=205 MessageResult="1"
Table1 3 - - "CALL" "CD"
caption: TipsLabel="Enter Label and click 'Accept'." | text: LabelCombo="abcdef" LabelText=""
shown: LabelBox | hidden: InstructionBox | enabled: ExistingLabelOption
disabled: EditMenu/* FileMenu/* LabelAcceptButton ToolsMenu/*
> type LabelText z9z9z9 ; enter ; type LabelText xx ; enter ; click INST 47 ; type XXText xx
box critical "String already used as Label or Variable. Please enter another label." ok -> ok
> enter ; changes
box critical "String already present as Label or Variable. Please enter another string." ok -> ok
session: Cursor=4 PanelState=2 LastLine=3 SelectedInstruction=47 CurrentOpcode=219
LabelCombo 1="xx" | LabelEqtList 1="XXXX" | LabelLineList 1="0" | LabelPlacedList 1="0"
LabelUsedList 1="1" | StringTable 3="xx"
Table1 3 - - "CALL  xx" "CD   XX   XX" "Call sub-routine pointed by 'xx'." | 4 - - "IN" "DB"
caption: TipsLabel="Enter 8-bit number and click 'Accept'." | text: XXCombo="z9z9z9" | shown: XXBox
hidden: LabelBox XXDoneButton XXFindButton XXReplaceButton | disabled: XXAcceptButton XXCombo
checked: NewXXOption | focus: XXText | default: XXAcceptButton
> type XXText z9z9z9 ; click XXAcceptButton ; type XXText x ; enter ; changes
box critical "String already present as Label or Variable. Please enter another string." ok -> ok
session: Cursor=5 PanelState=1 LastLine=4 EntryPending=0
StringTable 4="x" | XXCombo 1="x" | XXEqtList 1="XX"
Table1 4 - - "IN   x" "DB   XX"
    "Receive content from port address pointed by 'x' and store in Accumulator."
caption: TipsLabel="Program Mode." | shown: InstructionBox | hidden: XXBox
enabled: CopyEdit CutEdit DeleteEdit FileMenu/* FindEdit PlaceLabelTool ReplaceEdit ToolsMenu/*
# Known names: the first one is offered each time; the choice makes the other input idle.
> click INST 37 ; type LabelText q ; click ExistingLabelOption ; changes
session: PanelState=4 EntryPending=1 SelectedInstruction=37 CurrentOpcode=195
Table1 5 - - "JMP" "C3"
caption: TipsLabel="Enter Label and click 'Accept'." | shown: LabelBox | hidden: InstructionBox
enabled: LabelAcceptButton LabelCombo | disabled: EditMenu/* FileMenu/* LabelText ToolsMenu/*
checked: ExistingLabelOption | unchecked: NewLabelOption | focus: LabelCombo
default: LabelAcceptButton
> type LabelText r ; pick LabelCombo 1 ; click NewLabelOption ; changes
refused LabelText disabled
text: LabelCombo="xx" | enabled: LabelText | disabled: LabelAcceptButton LabelCombo
checked: NewLabelOption | unchecked: ExistingLabelOption | focus: LabelText
> click ExistingLabelOption ; changes
text: LabelCombo="abcdef" | enabled: LabelAcceptButton LabelCombo | disabled: LabelText
checked: ExistingLabelOption | unchecked: NewLabelOption | focus: LabelCombo
> pick LabelCombo 1 ; enter ; click INST 38 ; changes
session: Cursor=6 LastLine=5 SelectedInstruction=38 CurrentOpcode=226
StringTable 5="xx"
Table1 5 - - "JMP  xx" "C3   XX   XX" "Jump to address pointed by 'xx'." | 6 - - "JPO" "E2"
enabled: LabelText | disabled: LabelAcceptButton LabelCombo | checked: NewLabelOption
unchecked: ExistingLabelOption | focus: LabelText
> escape ; click INST 48 ; type XXText q ; click ExistingXXOption ; pick XXCombo 1
> click NewXXOption ; changes
session: PanelState=2 SelectedInstruction=48 CurrentOpcode=211
Table1 6 - - "OUT" "D3"
caption: TipsLabel="Enter 8-bit number and click 'Accept'." | text: XXCombo="x" | shown: XXBox
hidden: LabelBox | focus: XXText | default: XXAcceptButton
> click ExistingXXOption ; pick XXCombo 1 ; enter ; changes
session: Cursor=7 PanelState=1 EntryPending=0
StringTable 6="x"
Table1 6 - - "OUT   x" "D3   XX" "Send content of Accumulator to port address pointed by 'x'."
caption: TipsLabel="Program Mode." | shown: InstructionBox | hidden: XXBox
enabled: CopyEdit CutEdit DeleteEdit FileMenu/* FindEdit PlaceLabelTool ReplaceEdit ToolsMenu/*
# A name whose number is known gives its bytes at once.
> click PlaceLabelTool ; cell Table1 4 0 ; click ExistingPlaceOption ; pick PlaceCombo 1 ; enter
> escape ; click AssignAddress ; settle ; click EqtOption ; click RenumberDialog.VariablesOption
open RenumberDialog
> cell RenumberDialog.VariableTable 2 0 ; key RenumberDialog.XXAcceptButton 0f ; enter
> click RenumberDialog.DoneButton ; cell Table1 7 2 ; row "JPO xx" "CPI x" ; changes
closed RenumberDialog
session: Cursor=9 LastLine=8 SelectionAnchor=7 ClickedRow=4 SelectedInstruction=36 CurrentOpcode=254
LabelEqtList 1="8008" | LabelLineList 1="4" | LabelPlacedList 1="1" | LastAddressList 0="800E"
StringTable 7="xx" 8="x" | XXEqtList 1="0F"
Table1 1 - "8000" | 2 - "8003" | 3 - "8005" - "CD   08   80" | 4 "xx" "8008" - "DB   0F"
Table1 5 - "800A" - "C3   08   80" | 6 - "800D" - "D3   0F"
Table1 7 - - "JPO  xx" "E2   08   80" "Jump on odd parity, to address pointed by 'xx'."
Table1 8 - - "CPI   x" "FE   0F" "Compare the equivalent of 'x' with content of Accumulator."
# Overwritten rows leave their names behind until they are cleared away; the others keep their
# order. A label counts as used by a row of three bytes, as placed on any row but an origin; a
# variable as used by a row of two bytes. The box comes in any case.
> cell Table1 1 2 ; row NOP ; cell Table1 2 2 ; row "MOV B,C" ; click DeleteUnusedLabels ; changes
box information "Unused strings have been deleted." ok -> ok
session: Cursor=3 SelectionAnchor=2 SelectedInstruction=0 CurrentOpcode=65 SavedCells(1)="8003"
    SavedCells(2)="ADI   z9z9z9" SavedCells(3)="C6   XX"
    SavedCells(4)="Add the equivalent of 'z9z9z9' to content of Accumulator." SavedCells(5)="z9z9z9"
LabelCombo count=1 (1 out at 0) | LabelEqtList count=1 (1 out at 0)
LabelLineList count=1 (1 out at 0) | LabelPlacedList count=1 (1 out at 0) | LabelUsedList count=1
StringTable 1..2="" | XXCombo count=1 (1 out at 0) | XXEqtList count=1 (1 out at 0)
Table1 1 - "" "NOP" "00" "No Operation."
Table1 2 - "" "MOV  B,  C" "41" "Move content of C-register into B-register."
> click DeleteUnusedLabels ; changes
box information "Unused strings have been deleted." ok -> ok
== placement
# With no labels at all only a new one can be placed.
> click PlaceLabelTool ; changes
session: PanelState=16
caption: TipsLabel="Select Row, Enter Label and Click 'Place'; or Click 'Cancel'." | shown: PlaceBox
hidden: InstructionBox
disabled: EditMenu/* ExistingPlaceOption FileMenu/* PlaceAcceptButton PlaceCombo ToolsMenu/*
checked: NewPlaceOption | focus: PlaceText
# Accepting needs both a picked row and a good name, in either order; it is the default button then.
> click PlaceDoneButton ; row "JMP loop" "CALL sub" "ADI count" HLT ; click PlaceLabelTool
> type PlaceText 1a ; cell Table1 5 3 ; changes
session: Selection=5 PanelState=17 CurrentRow=5 LastLine=4 FileChanged=1 ClickedRow=5
    SelectedInstruction=79 CurrentOpcode=118
LabelCombo 0="loop" 1="sub" | LabelEqtList 0..1="XXXX" | LabelLineList 0..1="0"
LabelPlacedList 0..1="0" | LabelUsedList 0..1="1" | PlaceCombo 0="loop" 1="sub"
StringTable 1="loop" 2="sub" 3="count" | XXCombo 0="count" | XXEqtList 0="XX"
Table1 1 - - "JMP  loop" "C3   XX   XX" "Jump to address pointed by 'loop'."
Table1 2 - - "CALL  sub" "CD   XX   XX" "Call sub-routine pointed by 'sub'."
Table1 3 - - "ADI   count" "C6   XX" "Add the equivalent of 'count' to content of Accumulator."
Table1 4 - - "HLT" "76" "Halt program execution."
Table1 colors 1,2=own 5,0=00FF00 5,2=cursor
text: PlaceCombo="loop" PlaceText="1a" | enabled: ExistingPlaceOption
> clear PlaceText ; type PlaceText ab ; changes
text: PlaceText="ab" | enabled: PlaceAcceptButton | default: PlaceAcceptButton
> type PlaceText C ; clear PlaceText ; changes
text: PlaceText="" | disabled: PlaceAcceptButton
> type PlaceText abcdefgh ; changes
text: PlaceText="abcdef" | enabled: PlaceAcceptButton
# Another row can be picked, an origin not.
> cell Table1 4 1 ; cell Table1 0 0 ; cell Table1 0 2 ; changes
session: SelectionAnchor=1 ClickedRow=4
Table1 colors 4,0=00FF00 5,0=own
> enter ; changes
session: PanelState=16
LabelCombo 2="abcdef" | LabelEqtList 2="XXXX" | LabelLineList 2="4" | LabelPlacedList 2="1"
LabelUsedList 2="0" | PlaceCombo 2="abcdef"
Table1 4 "abcdef"
Table1 colors 4,0=own
text: PlaceText="" | disabled: PlaceAcceptButton
# A name that is taken, by a variable or a label, is refused; the row must be picked again.
> cell Table1 3 0 ; type PlaceText count ; enter ; type PlaceText sub ; cell Table1 3 0 ; enter
box critical "String already used as Label or Variable. Please enter another string or use existing string." ok -> ok
box critical "String already used as Label or Variable. Please enter another string or use existing string." ok -> ok
> changes
session: ClickedRow=3 MessageResult="1"
# A known label: the list is live, and accepting needs a row alone.
> click ExistingPlaceOption ; changes
enabled: PlaceCombo | disabled: PlaceText | checked: ExistingPlaceOption | unchecked: NewPlaceOption
focus: PlaceCombo
> pick PlaceCombo 1 ; cell Table1 2 4 ; changes
session: PanelState=17 ClickedRow=2
Table1 colors 2,0=00FF00
text: PlaceCombo="sub" | enabled: PlaceAcceptButton
> enter ; changes
session: PanelState=16
LabelLineList 1="2" | LabelPlacedList 1="1"
Table1 2 "sub"
Table1 colors 2,0=own
text: PlaceCombo="loop" | enabled: PlaceText | disabled: PlaceAcceptButton PlaceCombo
checked: NewPlaceOption | unchecked: ExistingPlaceOption | focus: PlaceText
# Changing the mind with a row picked: back to a new name the button waits for the next key.
> cell Table1 1 0 ; click ExistingPlaceOption ; changes
session: PanelState=17 ClickedRow=1
Table1 colors 1,0=00FF00
enabled: PlaceAcceptButton PlaceCombo | disabled: PlaceText | checked: ExistingPlaceOption
unchecked: NewPlaceOption | focus: PlaceCombo
> click NewPlaceOption ; changes
enabled: PlaceText | disabled: PlaceAcceptButton PlaceCombo | checked: NewPlaceOption
unchecked: ExistingPlaceOption | focus: PlaceText
> type PlaceText x ; clear PlaceText ; click ExistingPlaceOption ; enter ; changes
session: PanelState=16
LabelLineList 0="1" | LabelPlacedList 0="1"
Table1 1 "loop"
Table1 colors 1,0=own
# A known label that stands elsewhere: No leaves both rows as they were, Yes moves it.
> cell Table1 6 0 ; click ExistingPlaceOption ; answer no ; enter ; changes
box question "The string 'loop' is already placed in line # 1. Do you want to reposition it to line # 6?" yesno -> no
session: ClickedRow=6 MessageResult="7"
> cell Table1 6 0 ; click ExistingPlaceOption ; answer yes ; enter ; changes
box question "The string 'loop' is already placed in line # 1. Do you want to reposition it to line # 6?" yesno -> yes
session: MessageResult="6"
LabelLineList 0="6"
Table1 1 "" | 6 "loop"
# An occupied cell: No leaves it, Yes puts the new label over the old, which stays in the lists.
> cell Table1 2 0 ; type PlaceText new ; answer no ; enter ; changes
box question "A label is already present in the selected cell. Do you want to replace the existing label?" yesno -> no
session: ClickedRow=2 MessageResult="7"
> cell Table1 2 0 ; type PlaceText new ; answer yes ; enter ; changes
box question "A label is already present in the selected cell. Do you want to replace the existing label?" yesno -> yes
session: MessageResult="6"
LabelCombo 3="new" | LabelEqtList 3="XXXX" | LabelLineList 1="0" 3="2"
LabelPlacedList count=4 (1 in at 1) 1="0" | LabelUsedList 3="0" | PlaceCombo 3="new"
Table1 2 "new"
# A refusal follows the question about the occupied cell.
> cell Table1 2 0 ; type PlaceText loop ; answer yes ; enter ; changes
box question "A label is already present in the selected cell. Do you want to replace the existing label?" yesno -> yes
box critical "String already used as Label or Variable. Please enter another string or use existing string." ok -> ok
session: MessageResult="1"
# A label over another: two questions, the cell first. A No to either leaves both rows.
> cell Table1 2 0 ; click ExistingPlaceOption ; answer yes ; answer no ; enter ; cell Table1 2 0
box question "A label is already present in the selected cell. Do you want to replace the existing label?" yesno -> yes
box question "The string 'loop' is already placed in line # 6. Do you want to reposition it to line # 2?" yesno -> no
> click ExistingPlaceOption ; answer no ; enter ; changes
box question "A label is already present in the selected cell. Do you want to replace the existing label?" yesno -> no
session: MessageResult="7"
> cell Table1 2 0 ; click ExistingPlaceOption ; answer yes ; answer yes ; enter ; changes
box question "A label is already present in the selected cell. Do you want to replace the existing label?" yesno -> yes
box question "The string 'loop' is already placed in line # 6. Do you want to reposition it to line # 2?" yesno -> yes
session: MessageResult="6"
LabelLineList 0="2" 3="0" | LabelPlacedList 3="0"
Table1 2 "loop" | 6 ""
# Done takes the mark off. Placing counts as a change even when nothing was placed, opening not.
> cell Table1 8 0 ; click PlaceDoneButton ; path placed.baf ; click SaveFile ; changes
dialog save "Save As" "Brelvanor Assembler Files (*.baf)|*.baf" -> "placed.baf"
session: PanelState=1 FileOrigin=3 FileChanged=0 ClickedRow=8 FileName="placed.baf"
    ProjectPath="placed.baf"
caption: ProgrammingPanel="Brelvanor Quilla - placed.baf" TipsLabel="File Saved."
shown: InstructionBox | hidden: PlaceBox
enabled: CopyEdit CutEdit DeleteEdit FileMenu/* FindEdit PlaceLabelTool ReplaceEdit ToolsMenu/*
> click PlaceLabelTool ; cell Table1 9 0 ; escape ; changes
session: ClickedRow=9
caption: TipsLabel="Program Mode."
> click PlaceLabelTool ; cell Table1 2 0 ; type PlaceText y ; answer no ; enter ; escape ; changes
box question "A label is already present in the selected cell. Do you want to replace the existing label?" yesno -> no
session: FileChanged=1 ClickedRow=2 MessageResult="7"
# In data mode the tool ends in data mode.
> click EntryMode ; click PlaceLabelTool ; cell Table1 7 0 ; type PlaceText last ; enter
> click PlaceDoneButton ; changes
session: PanelState=29 ClickedRow=7
LabelCombo 4="last" | LabelEqtList 4="XXXX" | LabelLineList 4="7" | LabelPlacedList 4="1"
LabelUsedList 4="0"
Table1 7 "last"
caption: EntryMode="Program &Mode" TipsLabel="Data Mode." | shown: DataBox | hidden: InstructionBox
focus: DataAcceptButton | default: DataAcceptButton
# A row that was picked once and is gone: the tool does not end until another row is picked.
> click EntryMode ; click PlaceLabelTool ; cell Table1 31 0 ; escape ; drag Table1 20 2 29 2
> click DeleteEdit ; click PlaceLabelTool ; escape ; changes
session: PanelState=16 SelectionAnchor=20 ClickedRow=31
PlaceCombo 4="last" | StringTable rows=22
Table1 rows=22
caption: EntryMode="Data &Mode"
    TipsLabel="Select Row, Enter Label and Click 'Place'; or Click 'Cancel'." | shown: PlaceBox
hidden: DataBox | disabled: EditMenu/* FileMenu/* ToolsMenu/* | focus: PlaceText
> escape ; cell Table1 5 0 ; escape ; changes
session: PanelState=1 ClickedRow=5
caption: TipsLabel="Program Mode." | shown: InstructionBox | hidden: PlaceBox
enabled: CopyEdit CutEdit DeleteEdit FileMenu/* FindEdit PlaceLabelTool ReplaceEdit ToolsMenu/*
