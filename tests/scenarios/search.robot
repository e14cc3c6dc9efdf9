== finding labels
# Nothing to find or to replace: no labels, and labels that are neither placed nor used.
> click FindLabel ; click ReplaceLabel ; row "JMP old" ; cell Table1 1 2 ; click DeleteEdit
box information "No labels used in the program." ok -> ok
box information "No labels used in the program." ok -> ok
> click FindLabel ; click ReplaceLabel ; changes
box information "No labels used in the program." ok -> ok
box information "No labels used in the program." ok -> ok
session: FileChanged=1 SelectionAnchor=1 SelectedInstruction=37 CurrentOpcode=195 MessageResult="1"
StringTable rows=31 | Labels 0 "old" "XXXX" "0" "0" "0" | Table1 rows=31
caption: TipsLabel="Program Mode."
# A program where labels are placed, used, both, and neither; the first row holds a variable.
> row "MVI A,count" "CALL sub" "JMP loop" "JNZ loop" RET ; click PlaceLabelTool ; cell Table1 3 0
> click ExistingPlaceOption ; pick PlaceCombo 2 ; enter ; cell Table1 5 0 ; type PlaceText end
> enter ; click PlaceDoneButton ; click FindLabel ; enter ; click FindButton ; pick FindCombo 1
box information "The label 'old' is not used in the program." ok -> ok
box information "The label 'old' is not used in the program." ok -> ok
> click FindButton
box information "The label 'sub' is used 1 time in the program." ok -> ok
> pick FindCombo 3 ; click FindButton ; pick FindCombo 2 ; click FindButton ; changes
box information "The label 'end' is used 1 time in the program." ok -> ok
box information "The label 'loop' is used 3 times in the program." ok -> ok
session: Selection=6 PanelState=22 CurrentRow=6 LastLine=5 ClickedRow=5 SelectedInstruction=58
    CurrentOpcode=201 | FindCombo 0="old" 1="sub" 2="loop" 3="end"
StringTable 1="count" 2="sub" 3..4="loop" | Labels 1 "sub" "XXXX" "0" "0" "1"
Labels 2 "loop" "XXXX" "3" "1" "1" | 3 "end" "XXXX" "5" "1" "0" | Variables 0 "count" "XX"
Table1 1 - - "MVI  A,   count" "3E   XX" default | 2 - - "CALL  sub" "CD   XX   XX" default
Table1 3 "loop" - "JMP  loop" "C3   XX   XX" default | 4 - - "JNZ  loop" "C2   XX   XX" default
Table1 5 "end" - "RET" "C9" default
Table1 colors 1,2=own 3,0=FF0000/FFFFFF 3,2=FF0000/FFFFFF 4,2=FF0000/FFFFFF 6,2=cursor
caption: TipsLabel="Completed searching for label." | text: FindCombo="loop" | shown: FindBox
hidden: InstructionBox | disabled: EditMenu/* FileMenu/* ToolsMenu/* | focus: FindCombo
default: FindButton
# Done takes the marks off; the rows of variables count too where they share the name.
> click FindDoneButton ; click ReplaceLabel ; cell Table1 2 2 ; type ReplaceText count ; enter
> click ReplaceDoneButton ; click FindLabel ; pick FindCombo 4 ; enter ; escape ; changes
box information "The label 'count' is used 2 times in the program." ok -> ok
session: PanelState=1 SelectionAnchor=2 | StringTable 2="count" | Labels 1 - - - - "0"
Labels 4 "count" "XXXX" "0" "0" "1" | Table1 2 - - "CALL  count"
Table1 colors 1,2=FF0000/FFFFFF 3,0=own 3,2=own 4,2=own | caption: TipsLabel="Program Mode."
shown: InstructionBox | hidden: FindBox | enabled: EditMenu/*-PasteEdit FileMenu/* ToolsMenu/*
== variables
# Without variables both commands tell so and come back.
> click FindVariable ; click ReplaceVariable ; changes
box information "No variables used in program." ok -> ok
box information "No variables used in program." ok -> ok
session: MessageResult="1" | caption: TipsLabel="Program Mode."
# Variables, one of them not in use, and a label. In the find box only the list is live.
> row "MVI A,count" "ADI count" "OUT port" "JMP loop" "ANI mask" ; cell Table1 5 2
> click DeleteEdit ; click EqtOption ; click RenumberDialog.VariablesOption
open RenumberDialog
> cell RenumberDialog.VariableTable 1 0 ; key RenumberDialog.XXAcceptButton 05 ; enter
> click RenumberDialog.DoneButton ; click FindVariable ; enter ; changes
closed RenumberDialog
box information "The variable 'count' is used 2 times in the program." ok -> ok
session: Selection=5 PanelState=32 CurrentRow=5 LastLine=5 FileChanged=1 SelectionAnchor=5
    SelectedInstruction=27 CurrentOpcode=230
StringTable rows=31 (1 out at 1) 1..2="count" 3="port" 4="loop" | Labels 0 "loop" "XXXX" "0" "0" "1"
Variables 0 "count" "05" | 1 "port" "XX" | 2 "mask" "XX" | Table1 rows=31 (1 out at 1)
Table1 1 - - "MVI  A,   count" "3E   05" default | 2 - - "ADI   count" "C6   05" default
Table1 3 - - "OUT   port" "D3   XX" default | 4 - - "JMP  loop" "C3   XX   XX" default
Table1 colors 1..2,2=FF0000/FFFFFF 5,2=cursor
caption: TipsLabel="Completed searching for 'count'." | text: XXCombo="count" XXText="mask"
shown: XXBox | hidden: InstructionBox XXAcceptButton XXReplaceButton
disabled: EditMenu/* ExistingXXOption FileMenu/* NewXXOption ToolsMenu/* XXText
checked: NewXXOption | focus: XXText | default: XXFindButton
> pick XXCombo 1 ; click XXFindButton ; pick XXCombo 2 ; click XXFindButton ; escape
box information "The variable 'port' is used 1 time in the program." ok -> ok
box information "The variable 'mask' is not used in the program." ok -> ok
# The replace box: candidates are the operands of two-byte rows. Clicks select; the operand of a
# label can be selected first, a label not.
> click ReplaceVariable ; type XXText 9x ; clear XXText ; type XXText total ; cell Table1 4 2
> cell Table1 4 2 ; cell Table1 1 2 ; cell Table1 1 0 ; cell Table1 2 2 ; cell Table1 2 2
> cell Table1 0 0 ; changes
session: PanelState=34 SelectionAnchor=2 | Table1 colors 1,2=00FF00/000000 2..4,2=0000FF/FFFFFF
caption: TipsLabel="" | text: XXText="total" | shown: XXReplaceButton | hidden: XXFindButton
enabled: ExistingXXOption NewXXOption XXText | disabled: XXCombo | default: XXReplaceButton
# A new name: it is listed without an equivalent.
> enter ; changes
session: PanelState=33 | StringTable 1="total" | Variables 3 "total" "XX"
Table1 1 - - "MVI  A,   total" "3E   XX" | colors 1,2=0000FF/FFFFFF | text: XXText=""
disabled: XXReplaceButton
# A name that is a variable already is refused, that of a label is not. A known name brings its
# equivalent along.
> cell Table1 3 2 ; type XXText count ; enter ; type XXText loop ; enter ; cell Table1 3 2
box critical "String already present as Label or Variable. Please enter another label." ok -> ok
> click ExistingXXOption ; enter ; changes
session: SelectionAnchor=3 | StringTable 3="count" | Variables 4 "loop" "XX"
Table1 3 - - "OUT   count" "D3   05"
# With no row in use left there is nothing to replace; the list can be searched still.
> drag Table1 1 2 4 2 ; click DeleteEdit ; click ReplaceVariable ; click FindVariable ; enter
refused DeleteEdit disabled
refused ReplaceVariable disabled
refused FindVariable disabled
refused XXReplaceButton disabled
> click XXDoneButton ; changes
session: PanelState=1 SelectionAnchor=1 | Table1 colors 1..4,2=own
caption: TipsLabel="Program Mode." | shown: InstructionBox | hidden: XXBox
enabled: EditMenu/*-PasteEdit FileMenu/* ToolsMenu/*
== replacing labels
# A program with a variable, two placed labels, their uses, and two blocks. The candidates are red;
# nothing is selected, and a good name alone does not enable Replace.
> row "MVI A,count" "CALL sub" "JMP loop" "JNZ loop" RET ; click NewOrigin
> key NumberAcceptButton 9000 ; enter ; row "JMP sub" ; click PlaceLabelTool ; cell Table1 3 0
> click ExistingPlaceOption ; pick PlaceCombo 1 ; enter ; cell Table1 7 0
> click ExistingPlaceOption ; enter ; cell Table1 5 0 ; type PlaceText end ; enter
> click PlaceDoneButton ; click AssignAddress ; settle ; click ReplaceLabel ; type ReplaceText new
> changes
session: PanelState=23 LastLine=9 FileChanged=1 ClickedRow=5 SelectedInstruction=37
    CurrentOpcode=195 | LastAddressList 0="800B" 1="9002" | OriginList 1="9000"
ReplaceCombo 0="sub" 1="loop" 2="end"
StringTable rows=33 (1 in at 1) 1="count" 2="sub" 3..4="loop" 7="sub"
Labels 0 "sub" "9000" "7" "1" "1" | 1 "loop" "8005" "3" "1" "1" | 2 "end" "800B" "5" "1" "0"
Variables 0 "count" "XX" | Table1 rows=33 (1 in at 1)
Table1 1 - "8000" "MVI  A,   count" "3E   XX" default
Table1 2 - "8002" "CALL  sub" "CD   00   90" default
Table1 3 "loop" "8005" "JMP  loop" "C3   05   80" default
Table1 4 - "8008" "JNZ  loop" "C2   05   80" default | 5 "end" "800B" "RET" "C9" default
Table1 6 "Origin" "9000" | 7 "sub" "9000" "JMP  sub" "C3   00   90" default
Table1 colors 1,2=cursor 2,2=0000FF/FFFFFF 3,0=0000FF/FFFFFF 3,2=0000FF/FFFFFF 4,2=0000FF/FFFFFF
    5,0=0000FF/FFFFFF 6,0..4=E0E0E0 7,0=0000FF/FFFFFF 7,2=0000FF/FFFFFF
caption: TipsLabel="Select Labels from table, Enter Label and Click 'Replace'; or Click 'Cancel'."
text: ReplaceCombo="sub" ReplaceText="new" | shown: ReplaceBox | hidden: InstructionBox
disabled: EditMenu/* FileMenu/* ReplaceCombo ToolsMenu/* | checked: NewReplaceOption
# An origin is no cell to select; any other click goes on to the next state. Cells toggle. Of the
# labels only the one that is selected last stays so, the operands all do.
> clear ReplaceText ; cell Table1 0 0 ; cell Table1 6 2 ; cell Table1 6 0 ; cell Table1 2 2
> cell Table1 3 2 ; cell Table1 3 0 ; cell Table1 7 2 ; cell Table1 2 2 ; cell Table1 5 0
> cell Table1 1 2 ; cell Table1 7 1 ; changes
session: PanelState=24 SelectionAnchor=1
Table1 colors 3,2=00FF00/000000 5,0=00FF00/000000 7,2=00FF00/000000 | text: ReplaceText=""
# A new name: the spelling decides. The first selected label takes it, and all selected operands.
> type ReplaceText 1st ; clear ReplaceText ; type ReplaceText Big ; clear ReplaceText
> type ReplaceText newlabel ; enter ; changes
session: PanelState=23 | ReplaceCombo 3="newlab" | StringTable 3="newlab" 7="newlab"
Labels count=4 (1 in at 2) | 2 "end" "800B" "0" "0" "0" | 3 "newlab" "XXXX" - - "1"
Table1 3 - - "JMP  newlab" "C3   XX   XX" | 5 "newlab" | 7 - - "JMP  newlab" "C3   XX   XX"
Table1 colors 3,2=0000FF/FFFFFF 5,0=0000FF/FFFFFF 7,2=0000FF/FFFFFF | default: ReplaceAcceptButton
# A known label: the list is live at once, with nothing selected too. An operand takes the known
# name and keeps its bytes.
> escape ; click PlaceLabelTool ; escape ; path replace.baf ; click SaveFile ; click ReplaceLabel
dialog save "Save As" "Brelvanor Assembler Files (*.baf)|*.baf" -> "replace.baf"
> click ExistingReplaceOption ; enter ; cell Table1 4 2 ; click ExistingReplaceOption
> pick ReplaceCombo 0 ; enter ; changes
session: FileOrigin=3 SelectionAnchor=4 FileName="replace.baf" ProjectPath="replace.baf"
LabelUsedList count=5 (1 in at 3) 1="0" 3="1" | StringTable 4="sub" | Table1 1..3 - ""
Table1 4 - "" "JNZ  sub" | 5 - "" | 7 - ""
caption: ProgrammingPanel="Brelvanor Quilla - replace.baf" | focus: ReplaceCombo
# A label placed elsewhere is asked for. No: it stays, the operand still gets the name. Yes: it
# moves, and its old cell is empty.
> cell Table1 3 0 ; cell Table1 4 2 ; click ExistingReplaceOption ; pick ReplaceCombo 3 ; answer no
> enter ; cell Table1 3 0 ; click ExistingReplaceOption ; pick ReplaceCombo 0 ; answer yes ; enter
box question "The label 'newlab' is already placed in line # 5. Do you want to reposition it to line # 3?" yesno -> no
box question "The label 'sub' is already placed in line # 7. Do you want to reposition it to line # 3?" yesno -> yes
> changes
session: MessageResult="6" | LabelLineList 0="3" 1="0" | LabelPlacedList 1="0"
StringTable 4="newlab" | Table1 3 "sub" | 4 - - "JNZ  newlab" | 7 "" | colors 7,0=own
# The operand of a variable can be selected as well, and becomes a label's.
> cell Table1 3 0 ; click ExistingReplaceOption ; pick ReplaceCombo 0 ; enter ; cell Table1 1 2
> type ReplaceText addr ; enter ; click ReplaceDoneButton ; changes
session: PanelState=1 SelectionAnchor=1 | LabelCombo 4="addr" | LabelEqtList 4="XXXX"
LabelLineList 4="0" | LabelPlacedList 4="0" | LabelUsedList 5="1" | StringTable 1="addr"
Table1 1 - - "MVI  A,   addr" "3E   XX   XX"
Table1 colors 1..2,2=own 3,0=own 3,2=own 4,2=own 5,0=own 7,2=own
caption: TipsLabel="Program Mode." | shown: InstructionBox | hidden: ReplaceBox
enabled: EditMenu/*-PasteEdit FileMenu/* ToolsMenu/*
# The option of a new name offers Replace at once: without a text the label's name becomes empty.
# It counts as placed where the first cell is empty, and stands in more than one row.
> answer no ; click NewFile ; row "JMP loop" HLT ; click PlaceLabelTool ; cell Table1 2 0
box question "Save changes to replace.baf?" yesnocancel -> no
> type PlaceText end ; enter ; click PlaceDoneButton ; click ReplaceLabel ; cell Table1 2 0
> click NewReplaceOption ; click ReplaceAcceptButton ; cell Table1 1 2 ; type ReplaceText x
> clear ReplaceText ; click NewReplaceOption ; click ReplaceAcceptButton ; click ReplaceDoneButton
box critical "The string '' already exists. Please enter another string." ok -> ok
> click DeleteUnusedLabels ; click AssignAddress ; settle ; list LabelCombo ; dump Table1 1 2
box information "Unused strings have been deleted." ok -> ok
box critical "Compile error. There is more than one instance of the label '' in the Label field." ok -> ok
LabelCombo 0 "loop"
LabelCombo 1 ""
Table1 1 "" "" "JMP  loop" "C3   XX   XX" "Jump to address pointed by 'loop'."
Table1 2 "" "" "HLT" "76" "Halt program execution."
# On the first row, once it is no origin, a label stays selected beside another one: the first of
# the two alone takes the new name, which is listed once for it and an operand.
> answer no ; click NewFile ; click DeleteLabels ; cell Table1 0 0 ; escape ; row "JMP one"
box question "Save changes to Pgm1.baf?" yesnocancel -> no
> click PlaceLabelTool ; cell Table1 0 0 ; type PlaceText zero ; enter ; cell Table1 1 0
> click ExistingPlaceOption ; enter ; escape ; click ReplaceLabel ; cell Table1 0 0
> cell Table1 1 0 ; cell Table1 1 2 ; type ReplaceText both ; enter ; click ReplaceDoneButton
> changes
session: Selection=2 CurrentRow=2 LastLine=1 FileOrigin=1 AddressError=-1 ClickedRow=1
    FileName="Pgm1.baf" MessageResult="7"
LabelCombo count=3 (2 out at 0) 0="one" 1="zero" 2="both"
LabelEqtList count=3 (2 out at 0) 0="XXXX" | LabelLineList count=3 (2 out at 2) 0="1"
LabelPlacedList count=3 | LabelUsedList count=3 (3 out at 2) 0="0" | LastAddressList count=0
OriginList count=0 | StringTable rows=32 (1 out at 1) 1="both" 2..3="" 6="" | Variables count=0
Table1 rows=32 (1 out at 0) | 0 "both" "8000" "" "" "" | 1 "one" - "JMP  both" "C3   XX   XX"
Table1 2 "" - "" "" "" | 3 - - "" "" "" | 4 "" - "" "" "" | 5 "" "" | 6 - - "" "" ""
Table1 colors 0,1..4=E0E0E0 2,2=cursor 5,0..4=own
caption: ProgrammingPanel="Brelvanor Quilla - Pgm1.baf"
