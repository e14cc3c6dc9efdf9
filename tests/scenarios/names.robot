== spelling
# 0 to 9 and a to z, a letter first, at least one character and no more than six.
> click INST 37 ; enter ; type LabelText 1 ; enter ; type LabelText a ; enter ; clear LabelText
refused LabelAcceptButton disabled
refused LabelAcceptButton disabled
refused LabelAcceptButton disabled
> type LabelText A ; enter ; clear LabelText ; type LabelText a0_ ; enter ; clear LabelText
refused LabelAcceptButton disabled
refused LabelAcceptButton disabled
> type LabelText "z\xC3\xA9" ; enter ; clear LabelText ; type LabelText "{a" ; enter
refused LabelAcceptButton disabled
refused LabelAcceptButton disabled
> clear LabelText ; type LabelText abcdefg ; enter ; click INST 15 ; type XXText 9 ; enter
refused XXAcceptButton disabled
> clear XXText ; type XXText a` ; enter ; clear XXText ; type XXText z9z9z9z9 ; enter ; changes
refused XXAcceptButton disabled
session: Cursor=3 LastLine=2 FileChanged=1 SelectedInstruction=15 CurrentOpcode=198
StringTable 1="abcdef" 2="z9z9z9" | Labels 0 "abcdef" "XXXX" "0" "0" "1" | Variables 0 "z9z9z9" "XX"
Table1 1 - - "JMP  abcdef" "C3   XX   XX" default | 2 - - "ADI   z9z9z9" "C6   XX" default
caption: TipsLabel="Program Mode."
# Taken, as a label or as a variable: told in the words of the box, the text is emptied, the box
# stays; another name does it.
> click INST 49 ; type LabelText abcdef ; enter
box critical "String already used as Label or Variable. Please enter another label." ok -> ok
> type LabelText z9z9z9 ; enter ; type LabelText xx ; enter ; click INST 47 ; type XXText xx
box critical "String already used as Label or Variable. Please enter another label." ok -> ok
> enter ; changes
box critical "String already present as Label or Variable. Please enter another string." ok -> ok
session: Cursor=4 PanelState=2 LastLine=3 EntryPending=1 SelectedInstruction=47 CurrentOpcode=219
    MessageResult="1" | StringTable 3="xx" | Labels 1 "xx" "XXXX" "0" "0" "1"
Table1 3 - - "CALL  xx" "CD   XX   XX" default | 4 - - "IN" "DB"
caption: TipsLabel="Enter 8-bit number and click 'Accept'." | text: XXCombo="z9z9z9" | shown: XXBox
hidden: InstructionBox XXDoneButton XXFindButton XXReplaceButton
disabled: EditMenu/* FileMenu/* ToolsMenu/* XXAcceptButton XXCombo | checked: NewXXOption
focus: XXText | default: XXAcceptButton
> type XXText z9z9z9 ; click XXAcceptButton ; type XXText x ; enter
box critical "String already present as Label or Variable. Please enter another string." ok -> ok
# Known names: the first one is offered each time; the choice makes the other input idle.
> click INST 37 ; type LabelText q ; click ExistingLabelOption ; type LabelText r
refused LabelText disabled
> pick LabelCombo 1 ; click NewLabelOption ; click ExistingLabelOption ; pick LabelCombo 1 ; enter
> click INST 38 ; escape ; click INST 48 ; type XXText q ; click ExistingXXOption ; pick XXCombo 1
> click NewXXOption ; changes
session: Cursor=6 LastLine=5 SelectedInstruction=48 CurrentOpcode=211 | StringTable 4="x" 5="xx"
Variables 1 "x" "XX" | Table1 4 - - "IN   x" "DB   XX" default
Table1 5 - - "JMP  xx" "C3   XX   XX" default | 6 - - "OUT" "D3" | text: XXCombo="x"
> click ExistingXXOption ; pick XXCombo 1 ; enter
# Overwritten rows leave their names behind until they are cleared away; the others keep their
# order. A label counts as used by a row of three bytes, as placed on any row but an origin; a
# variable as used by a row of two bytes. The box comes in any case.
> cell Table1 1 2 ; row NOP ; cell Table1 2 2 ; row "MOV B,C" ; click DeleteUnusedLabels ; changes
box information "Unused strings have been deleted." ok -> ok
session: Cursor=3 PanelState=1 EntryPending=0 SelectionAnchor=2 SelectedInstruction=0
    CurrentOpcode=65 SavedCells(2)="ADI   z9z9z9" SavedCells(3)="C6   XX"
    SavedCells(4)="Add the equivalent of 'z9z9z9' to content of Accumulator." SavedCells(5)="z9z9z9"
StringTable 1..2="" 6="x" | Labels count=1 (1 out at 0) | Variables count=1 (1 out at 0)
Table1 1 - - "NOP" "00" | 2 - - "MOV  B,  C" "41" | 6 - - "OUT   x" "D3   XX" default
caption: TipsLabel="Program Mode." | shown: InstructionBox | hidden: XXBox
enabled: EditMenu/*-PasteEdit FileMenu/* ToolsMenu/*
== placement
# Accepting needs both a picked row and a good name, in either order; it is the default button then.
> row "JMP loop" "CALL sub" "ADI count" HLT ; click PlaceLabelTool ; type PlaceText 1a
> cell Table1 5 3 ; clear PlaceText ; type PlaceText ab ; type PlaceText C ; clear PlaceText
> type PlaceText abcdefgh ; cell Table1 4 1 ; cell Table1 0 0 ; enter ; changes
session: Cursor=5 PanelState=16 LastLine=4 FileChanged=1 ClickedRow=4 SelectedInstruction=79
    CurrentOpcode=118 | PlaceCombo 0="loop" 1="sub" 2="abcdef"
StringTable 1="loop" 2="sub" 3="count" | Labels 0 "loop" "XXXX" "0" "0" "1"
Labels 1 "sub" "XXXX" "0" "0" "1" | 2 "abcdef" "XXXX" "4" "1" "0" | Variables 0 "count" "XX"
Table1 1 - - "JMP  loop" "C3   XX   XX" default | 2 - - "CALL  sub" "CD   XX   XX" default
Table1 3 - - "ADI   count" "C6   XX" default | 4 "abcdef" - "HLT" "76" default
caption: TipsLabel="Select Row, Enter Label and Click 'Place'; or Click 'Cancel'."
text: PlaceCombo="loop" | shown: PlaceBox | hidden: InstructionBox
disabled: EditMenu/* FileMenu/* PlaceAcceptButton PlaceCombo ToolsMenu/* | checked: NewPlaceOption
focus: PlaceText | default: PlaceAcceptButton
# A name that is taken, by a variable or a label, is refused; the row must be picked again.
> cell Table1 3 0 ; type PlaceText count ; enter ; type PlaceText sub ; cell Table1 3 0 ; enter
box critical "String already used as Label or Variable. Please enter another string or use existing string." ok -> ok
box critical "String already used as Label or Variable. Please enter another string or use existing string." ok -> ok
> changes
session: ClickedRow=3 MessageResult="1"
# Another row can be picked, an origin not. A known label: the list is live, and accepting needs a
# row alone.
> click ExistingPlaceOption ; pick PlaceCombo 1 ; cell Table1 2 4 ; enter ; changes
session: ClickedRow=2 | Labels 1 - - "2" "1" | Table1 2 "sub"
# A known label that stands elsewhere: No leaves both rows as they were, Yes moves it.
> cell Table1 6 0 ; click ExistingPlaceOption ; answer no ; enter ; cell Table1 6 0
> click ExistingPlaceOption ; answer yes ; enter ; changes
box question "A label is already present in the selected cell. Do you want to replace the existing label?" yesno -> no
session: ClickedRow=6 MessageResult="7" | Labels 0 - - "6" "1" | Table1 6 "loop"
# An occupied cell: No leaves it, Yes puts the new label over the old, which stays in the lists.
> cell Table1 2 0 ; type PlaceText new ; answer no ; enter ; cell Table1 2 0 ; type PlaceText new
box question "A label is already present in the selected cell. Do you want to replace the existing label?" yesno -> yes
> answer yes ; enter ; changes
box question "A label is already present in the selected cell. Do you want to replace the existing label?" yesno -> no
session: ClickedRow=2 | PlaceCombo 3="new" | Labels 1 - - "0" "0" | 3 "new" "XXXX" "2" "1" "0"
Table1 2 "new"
# A row that was picked once and is gone: the tool does not end until another row is picked.
> click EntryMode ; click PlaceLabelTool ; cell Table1 31 0 ; escape ; drag Table1 20 2 29 2
refused EntryMode disabled
refused PlaceLabelTool disabled
> click DeleteEdit ; click PlaceLabelTool ; escape ; changes
session: SelectionAnchor=20 ClickedRow=31 | StringTable rows=22 | Table1 rows=22
