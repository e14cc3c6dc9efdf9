== spelling
# 0 to 9 and a to z, a letter first, at least one character and no more than six.
> click INST 37 ; changes
session: PanelState=4 FileChanged=1 EntryPending=1 SelectedInstruction=37 CurrentOpcode=195
Table1 1 - - "JMP" "C3" | caption: TipsLabel="Enter Label and click 'Accept'." | shown: LabelBox
hidden: InstructionBox
disabled: EditMenu/* ExistingLabelOption FileMenu/* LabelAcceptButton LabelCombo ToolsMenu/*
checked: NewLabelOption | focus: LabelText | default: LabelAcceptButton
> type LabelText 1 ; click LabelAcceptButton ; type LabelText a ; click LabelAcceptButton
refused LabelAcceptButton disabled
refused LabelAcceptButton disabled
> clear LabelText ; type LabelText A ; click LabelAcceptButton ; clear LabelText ; type LabelText a
refused LabelAcceptButton disabled
> changes
text: LabelText="a" | enabled: LabelAcceptButton
> type LabelText 0 ; changes ; type LabelText _ ; enter ; type LabelText 1 ; enter
text: LabelText="a0"
refused LabelAcceptButton disabled
refused LabelAcceptButton disabled
> clear LabelText ; enter ; type LabelText "z\xC3\xA9" ; enter ; clear LabelText
refused LabelAcceptButton disabled
refused LabelAcceptButton disabled
> type LabelText "{a" ; enter ; clear LabelText ; type LabelText abcdefg ; enter ; changes
refused LabelAcceptButton disabled
session: Cursor=2 PanelState=1 EntryPending=0 | StringTable 1="abcdef"
Labels 0 "abcdef" "XXXX" "0" "0" "1" | Table1 1 - - "JMP  abcdef" "C3   XX   XX" default
caption: TipsLabel="Program Mode." | shown: InstructionBox | hidden: LabelBox
enabled: EditMenu/*-PasteEdit FileMenu/* ToolsMenu/*
> click INST 15 ; type XXText 9 ; enter ; clear XXText ; type XXText a` ; enter ; clear XXText
refused XXAcceptButton disabled
refused XXAcceptButton disabled
> type XXText z9z9z9z9 ; enter ; changes
session: Cursor=3 LastLine=2 SelectedInstruction=15 CurrentOpcode=198 | StringTable 2="z9z9z9"
Variables 0 "z9z9z9" "XX" | Table1 2 - - "ADI   z9z9z9" "C6   XX" default
# Taken, as a label or as a variable: told in the words of the box, the text is emptied, the box
# stays; another name does it.
> click INST 49 ; type LabelText abcdef ; enter ; changes
box critical "String already used as Label or Variable. Please enter another label." ok -> ok
session: PanelState=4 EntryPending=1 SelectedInstruction=49 CurrentOpcode=205 MessageResult="1"
Table1 3 - - "CALL" "CD" | caption: TipsLabel="Enter Label and click 'Accept'."
text: LabelCombo="abcdef" LabelText="" | shown: LabelBox | hidden: InstructionBox
enabled: ExistingLabelOption | disabled: EditMenu/* FileMenu/* LabelAcceptButton ToolsMenu/*
> type LabelText z9z9z9 ; enter ; type LabelText xx ; enter ; click INST 47 ; type XXText xx
box critical "String already used as Label or Variable. Please enter another label." ok -> ok
> enter ; changes
box critical "String already present as Label or Variable. Please enter another string." ok -> ok
session: Cursor=4 PanelState=2 LastLine=3 SelectedInstruction=47 CurrentOpcode=219
StringTable 3="xx" | Labels 1 "xx" "XXXX" "0" "0" "1"
Table1 3 - - "CALL  xx" "CD   XX   XX" default | 4 - - "IN" "DB"
caption: TipsLabel="Enter 8-bit number and click 'Accept'." | text: XXCombo="z9z9z9" | shown: XXBox
hidden: LabelBox XXDoneButton XXFindButton XXReplaceButton | disabled: XXAcceptButton XXCombo
checked: NewXXOption | focus: XXText | default: XXAcceptButton
> type XXText z9z9z9 ; click XXAcceptButton ; type XXText x ; enter
box critical "String already present as Label or Variable. Please enter another string." ok -> ok
# Known names: the first one is offered each time; the choice makes the other input idle.
> click INST 37 ; type LabelText q ; click ExistingLabelOption ; changes
session: Cursor=5 PanelState=4 LastLine=4 SelectedInstruction=37 CurrentOpcode=195
StringTable 4="x" | Variables 1 "x" "XX" | Table1 4 - - "IN   x" "DB   XX" default
Table1 5 - - "JMP" "C3" | caption: TipsLabel="Enter Label and click 'Accept'." | shown: LabelBox
hidden: XXBox | enabled: LabelAcceptButton LabelCombo | disabled: LabelText
checked: ExistingLabelOption | unchecked: NewLabelOption | focus: LabelCombo
default: LabelAcceptButton
> type LabelText r ; pick LabelCombo 1 ; click NewLabelOption ; click ExistingLabelOption
refused LabelText disabled
> pick LabelCombo 1 ; enter ; click INST 38 ; changes
session: Cursor=6 LastLine=5 SelectedInstruction=38 CurrentOpcode=226 | StringTable 5="xx"
Table1 5 - - "JMP  xx" "C3   XX   XX" default | 6 - - "JPO" "E2" | enabled: LabelText
disabled: LabelAcceptButton LabelCombo | checked: NewLabelOption | unchecked: ExistingLabelOption
focus: LabelText
> escape ; click INST 48 ; type XXText q ; click ExistingXXOption ; pick XXCombo 1
> click NewXXOption ; changes
session: PanelState=2 SelectedInstruction=48 CurrentOpcode=211 | Table1 6 - - "OUT" "D3"
caption: TipsLabel="Enter 8-bit number and click 'Accept'." | text: XXCombo="x" | shown: XXBox
hidden: LabelBox | focus: XXText | default: XXAcceptButton
> click ExistingXXOption ; pick XXCombo 1 ; enter
# A name whose number is known gives its bytes at once.
> click PlaceLabelTool ; cell Table1 4 0 ; click ExistingPlaceOption ; pick PlaceCombo 1 ; enter
> escape ; click AssignAddress ; settle ; click EqtOption ; click RenumberDialog.VariablesOption
open RenumberDialog
> cell RenumberDialog.VariableTable 2 0 ; key RenumberDialog.XXAcceptButton 0f ; enter
> click RenumberDialog.DoneButton ; cell Table1 7 2 ; row "JPO xx" "CPI x" ; changes
closed RenumberDialog
session: Cursor=9 PanelState=1 LastLine=8 EntryPending=0 SelectionAnchor=7 ClickedRow=4
    SelectedInstruction=36 CurrentOpcode=254 | LastAddressList 0="800E"
StringTable 6="x" 7="xx" 8="x" | Labels 1 - "8008" "4" "1" | Variables 1 - "0F" | Table1 1 - "8000"
Table1 2 - "8003" | 3 - "8005" - "CD   08   80" | 4 "xx" "8008" - "DB   0F"
Table1 5 - "800A" - "C3   08   80" | 6 - "800D" "OUT   x" "D3   0F" default
Table1 7 - - "JPO  xx" "E2   08   80" default | 8 - - "CPI   x" "FE   0F" default
caption: TipsLabel="Program Mode." | shown: InstructionBox | hidden: XXBox
enabled: EditMenu/*-PasteEdit FileMenu/* ToolsMenu/*
# Overwritten rows leave their names behind until they are cleared away; the others keep their
# order. A label counts as used by a row of three bytes, as placed on any row but an origin; a
# variable as used by a row of two bytes. The box comes in any case.
> cell Table1 1 2 ; row NOP ; cell Table1 2 2 ; row "MOV B,C" ; click DeleteUnusedLabels ; changes
box information "Unused strings have been deleted." ok -> ok
session: Cursor=3 SelectionAnchor=2 SelectedInstruction=0 CurrentOpcode=65 SavedCells(1)="8003"
    SavedCells(2)="ADI   z9z9z9" SavedCells(3)="C6   XX"
    SavedCells(4)="Add the equivalent of 'z9z9z9' to content of Accumulator." SavedCells(5)="z9z9z9"
StringTable 1..2="" | Labels count=1 (1 out at 0) | Variables count=1 (1 out at 0)
Table1 1 - "" "NOP" "00" | 2 - "" "MOV  B,  C" "41"
== placement
# Accepting needs both a picked row and a good name, in either order; it is the default button then.
> row "JMP loop" "CALL sub" "ADI count" HLT ; click PlaceLabelTool ; type PlaceText 1a
> cell Table1 5 3 ; changes
session: Selection=5 PanelState=17 CurrentRow=5 LastLine=4 FileChanged=1 ClickedRow=5
    SelectedInstruction=79 CurrentOpcode=118 | PlaceCombo 0="loop" 1="sub"
StringTable 1="loop" 2="sub" 3="count" | Labels 0 "loop" "XXXX" "0" "0" "1"
Labels 1 "sub" "XXXX" "0" "0" "1" | Variables 0 "count" "XX"
Table1 1 - - "JMP  loop" "C3   XX   XX" default | 2 - - "CALL  sub" "CD   XX   XX" default
Table1 3 - - "ADI   count" "C6   XX" default | 4 - - "HLT" "76" default
Table1 colors 1,2=own 5,0=00FF00 5,2=cursor
caption: TipsLabel="Select Row, Enter Label and Click 'Place'; or Click 'Cancel'."
text: PlaceCombo="loop" PlaceText="1a" | shown: PlaceBox | hidden: InstructionBox
disabled: EditMenu/* FileMenu/* PlaceAcceptButton PlaceCombo ToolsMenu/* | checked: NewPlaceOption
focus: PlaceText
> clear PlaceText ; type PlaceText ab ; changes
text: PlaceText="ab" | enabled: PlaceAcceptButton | default: PlaceAcceptButton
> type PlaceText C ; clear PlaceText ; type PlaceText abcdefgh ; cell Table1 4 1 ; cell Table1 0 0
> enter ; changes
session: PanelState=16 ClickedRow=4 | PlaceCombo 2="abcdef" | Labels 2 "abcdef" "XXXX" "4" "1" "0"
Table1 4 "abcdef" | colors 5,0=own | text: PlaceText="" | disabled: PlaceAcceptButton
# A name that is taken, by a variable or a label, is refused; the row must be picked again.
> cell Table1 3 0 ; type PlaceText count ; enter ; type PlaceText sub ; cell Table1 3 0 ; enter
box critical "String already used as Label or Variable. Please enter another string or use existing string." ok -> ok
box critical "String already used as Label or Variable. Please enter another string or use existing string." ok -> ok
> changes
session: ClickedRow=3 MessageResult="1"
# Another row can be picked, an origin not. A known label: the list is live, and accepting needs a row alone.
> click ExistingPlaceOption ; changes
enabled: PlaceCombo | disabled: PlaceText | checked: ExistingPlaceOption | unchecked: NewPlaceOption
focus: PlaceCombo
> pick PlaceCombo 1 ; cell Table1 2 4 ; enter ; changes
session: ClickedRow=2 | Labels 1 - - "2" "1" | Table1 2 "sub" | enabled: PlaceText
disabled: PlaceCombo | checked: NewPlaceOption | unchecked: ExistingPlaceOption | focus: PlaceText
# Back to a new name with a row picked, the button waits for the next key.
> cell Table1 1 0 ; click ExistingPlaceOption ; click NewPlaceOption ; changes
session: PanelState=17 ClickedRow=1 | Table1 colors 1,0=00FF00
> type PlaceText x ; clear PlaceText ; click ExistingPlaceOption ; enter ; changes
session: PanelState=16 | Labels 0 - - "1" "1" | Table1 1 "loop" | colors 1,0=own
# A known label that stands elsewhere: No leaves both rows as they were, Yes moves it.
> cell Table1 6 0 ; click ExistingPlaceOption ; answer no ; enter ; cell Table1 6 0
box question "The string 'loop' is already placed in line # 1. Do you want to reposition it to line # 6?" yesno -> no
> click ExistingPlaceOption ; answer yes ; enter ; changes
box question "The string 'loop' is already placed in line # 1. Do you want to reposition it to line # 6?" yesno -> yes
session: ClickedRow=6 MessageResult="6" | Labels 0 - - "6" | Table1 1 "" | 6 "loop"
# An occupied cell: No leaves it, Yes puts the new label over the old, which stays in the lists.
> cell Table1 2 0 ; type PlaceText new ; answer no ; enter ; cell Table1 2 0 ; type PlaceText new
box question "A label is already present in the selected cell. Do you want to replace the existing label?" yesno -> no
> answer yes ; enter ; changes
box question "A label is already present in the selected cell. Do you want to replace the existing label?" yesno -> yes
session: ClickedRow=2 | PlaceCombo 3="new" | Labels 1 - - "0" "0" | 3 "new" "XXXX" "2" "1" "0"
Table1 2 "new"
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
session: MessageResult="6" | Labels 0 - - "2" | 3 - - "0" "0" | Table1 2 "loop" | 6 ""
# A row that was picked once and is gone: the tool does not end until another row is picked.
> click EntryMode ; click PlaceLabelTool ; cell Table1 31 0 ; escape ; drag Table1 20 2 29 2
refused EntryMode disabled
refused PlaceLabelTool disabled
> click DeleteEdit ; click PlaceLabelTool ; escape ; changes
session: SelectionAnchor=20 ClickedRow=31 | StringTable rows=22 | Table1 rows=22
# Placing counts as a change even when nothing was placed.
> cell Table1 5 0 ; click PlaceDoneButton ; path a.baf ; click SaveFile ; click PlaceLabelTool
dialog save "Save As" "Brelvanor Assembler Files (*.baf)|*.baf" -> "a.baf"
> cell Table1 2 0 ; type PlaceText y ; answer no ; enter ; click PlaceDoneButton ; changes
box question "A label is already present in the selected cell. Do you want to replace the existing label?" yesno -> no
session: PanelState=1 FileOrigin=3 ClickedRow=2 FileName="a.baf" ProjectPath="a.baf"
    MessageResult="7"
caption: ProgrammingPanel="Brelvanor Quilla - a.baf" TipsLabel="Program Mode."
shown: InstructionBox | hidden: PlaceBox | enabled: EditMenu/*-PasteEdit FileMenu/* ToolsMenu/*
