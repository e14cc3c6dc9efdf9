# Nothing to find or to replace: no labels, and labels that are neither placed nor used.
open OpenForm
closed OpenForm
> click FindLabel
box information "No labels used in the program." ok -> ok
> show InstructionBox
InstructionBox enabled=1 visible=1
> show FindBox
FindBox enabled=1 visible=0
> click ReplaceLabel
box information "No labels used in the program." ok -> ok
> show TipsLabel
TipsLabel caption="Program Mode." enabled=1 visible=1
> click INST 37
> type LabelText old
> enter
> cell Table1 1 2
> click DeleteEdit
> list LabelCombo
LabelCombo 0 "old"
> click FindLabel
box information "No labels used in the program." ok -> ok
> click ReplaceLabel
box information "No labels used in the program." ok -> ok
# A program where labels are placed, used, both, and neither; the first row is used up by a variable.
> click INST 1
> click REG 7
> type XXText count
> enter
> click INST 49
> type LabelText sub
> enter
> click INST 37
> type LabelText loop
> enter
> click INST 39
> click ExistingLabelOption
> pick LabelCombo 2
> enter
> click INST 58
> click PlaceLabelTool
> cell Table1 3 0
> click ExistingPlaceOption
> pick PlaceCombo 2
> enter
> cell Table1 5 0
> type PlaceText end
> enter
> click PlaceDoneButton
> click NewOrigin
> key NumberAcceptButton 9000
> enter
> dump Table1
Table1 0 "Origin" "8000" "" "" ""
Table1 1 "" "" "MVI  A,   count" "3E   XX" "Move the equivalent of 'count' into Accumulator."
Table1 2 "" "" "CALL  sub" "CD   XX   XX" "Call sub-routine pointed by 'sub'."
Table1 3 "loop" "" "JMP  loop" "C3   XX   XX" "Jump to address pointed by 'loop'."
Table1 4 "" "" "JNZ  loop" "C2   XX   XX" "Jump on no zero, to address pointed by 'loop'."
Table1 5 "end" "" "RET" "C9" "Return."
Table1 6 "Origin" "9000" "" "" ""
> list LabelCombo
LabelCombo 0 "old"
LabelCombo 1 "sub"
LabelCombo 2 "loop"
LabelCombo 3 "end"
> click FindLabel
> state
PanelState 22
CurrentRow 7
LastLine 9
Rows 32
FileOrigin 1
FileChanged 1
EntryPending 0
SelectionTop 7
SelectionBottom 7
PortOpen 0
AddressError 0
FileName "Pgm1.baf"
EntryMode "Data &Mode"
WriteModeLabel "Overwrite"
TipsLabel "Select a Label from list and Click 'Find', or Click 'Done' to close."
Title "Brelvanor Quilla - Pgm1.baf"
MessageResult "1"
Boxes FindBox
> show FindCombo
FindCombo text="old" index=0 count=4 enabled=1 visible=1
> enter
box information "The label 'old' is not used in the program." ok -> ok
> click FindButton
box information "The label 'old' is not used in the program." ok -> ok
> pick FindCombo 1
> click FindButton
box information "The label 'sub' is used 1 time in the program." ok -> ok
> show TipsLabel
TipsLabel caption="Completed searching for label." enabled=1 visible=1
> colors Table1
Table1 0 0 back=E0E0E0 fore=-
Table1 0 1 back=E0E0E0 fore=-
Table1 0 2 back=E0E0E0 fore=-
Table1 0 3 back=E0E0E0 fore=-
Table1 0 4 back=E0E0E0 fore=-
Table1 2 2 back=FF0000 fore=FFFFFF
Table1 6 0 back=E0E0E0 fore=-
Table1 6 1 back=E0E0E0 fore=-
Table1 6 2 back=E0E0E0 fore=-
Table1 6 3 back=E0E0E0 fore=-
Table1 6 4 back=E0E0E0 fore=-
Table1 7 2 back=cursor fore=cursor
> pick FindCombo 2
> click FindButton
box information "The label 'loop' is used 3 times in the program." ok -> ok
> colors Table1
Table1 0 0 back=E0E0E0 fore=-
Table1 0 1 back=E0E0E0 fore=-
Table1 0 2 back=E0E0E0 fore=-
Table1 0 3 back=E0E0E0 fore=-
Table1 0 4 back=E0E0E0 fore=-
Table1 3 0 back=FF0000 fore=FFFFFF
Table1 3 2 back=FF0000 fore=FFFFFF
Table1 4 2 back=FF0000 fore=FFFFFF
Table1 6 0 back=E0E0E0 fore=-
Table1 6 1 back=E0E0E0 fore=-
Table1 6 2 back=E0E0E0 fore=-
Table1 6 3 back=E0E0E0 fore=-
Table1 6 4 back=E0E0E0 fore=-
Table1 7 2 back=cursor fore=cursor
> pick FindCombo 3
> enter
box information "The label 'end' is used 1 time in the program." ok -> ok
> colors Table1
Table1 0 0 back=E0E0E0 fore=-
Table1 0 1 back=E0E0E0 fore=-
Table1 0 2 back=E0E0E0 fore=-
Table1 0 3 back=E0E0E0 fore=-
Table1 0 4 back=E0E0E0 fore=-
Table1 5 0 back=FF0000 fore=FFFFFF
Table1 6 0 back=E0E0E0 fore=-
Table1 6 1 back=E0E0E0 fore=-
Table1 6 2 back=E0E0E0 fore=-
Table1 6 3 back=E0E0E0 fore=-
Table1 6 4 back=E0E0E0 fore=-
Table1 7 2 back=cursor fore=cursor
# Done takes the marks off the cells that were painted, Esc too.
> click FindDoneButton
> colors Table1
Table1 0 0 back=E0E0E0 fore=-
Table1 0 1 back=E0E0E0 fore=-
Table1 0 2 back=E0E0E0 fore=-
Table1 0 3 back=E0E0E0 fore=-
Table1 0 4 back=E0E0E0 fore=-
Table1 6 0 back=E0E0E0 fore=-
Table1 6 1 back=E0E0E0 fore=-
Table1 6 2 back=E0E0E0 fore=-
Table1 6 3 back=E0E0E0 fore=-
Table1 6 4 back=E0E0E0 fore=-
Table1 7 2 back=cursor fore=cursor
> state
PanelState 1
CurrentRow 7
LastLine 9
Rows 32
FileOrigin 1
FileChanged 1
EntryPending 0
SelectionTop 7
SelectionBottom 7
PortOpen 0
AddressError 0
FileName "Pgm1.baf"
EntryMode "Data &Mode"
WriteModeLabel "Overwrite"
TipsLabel "Program Mode."
Title "Brelvanor Quilla - Pgm1.baf"
MessageResult "1"
Boxes InstructionBox
> click FindLabel
> show FindCombo
FindCombo text="old" index=0 count=4 enabled=1 visible=1
> pick FindCombo 2
> enter
box information "The label 'loop' is used 3 times in the program." ok -> ok
> escape
> colors Table1
Table1 0 0 back=E0E0E0 fore=-
Table1 0 1 back=E0E0E0 fore=-
Table1 0 2 back=E0E0E0 fore=-
Table1 0 3 back=E0E0E0 fore=-
Table1 0 4 back=E0E0E0 fore=-
Table1 6 0 back=E0E0E0 fore=-
Table1 6 1 back=E0E0E0 fore=-
Table1 6 2 back=E0E0E0 fore=-
Table1 6 3 back=E0E0E0 fore=-
Table1 6 4 back=E0E0E0 fore=-
Table1 7 2 back=cursor fore=cursor
# The name of a variable that a label shares: its rows count. Esc leaves the rows of variables marked.
> click ReplaceLabel
> cell Table1 2 2
> type ReplaceText count
> enter
> click ReplaceDoneButton
> dump Table1 1 2
Table1 1 "" "" "MVI  A,   count" "3E   XX" "Move the equivalent of 'count' into Accumulator."
Table1 2 "" "" "CALL  count" "CD   XX   XX" "Call sub-routine pointed by 'count'."
> click FindLabel
> show FindCombo
FindCombo text="old" index=0 count=5 enabled=1 visible=1
> pick FindCombo 4
> enter
box information "The label 'count' is used 2 times in the program." ok -> ok
> escape
> colors Table1
Table1 0 0 back=E0E0E0 fore=-
Table1 0 1 back=E0E0E0 fore=-
Table1 0 2 back=E0E0E0 fore=-
Table1 0 3 back=E0E0E0 fore=-
Table1 0 4 back=E0E0E0 fore=-
Table1 1 2 back=FF0000 fore=FFFFFF
Table1 6 0 back=E0E0E0 fore=-
Table1 6 1 back=E0E0E0 fore=-
Table1 6 2 back=E0E0E0 fore=-
Table1 6 3 back=E0E0E0 fore=-
Table1 6 4 back=E0E0E0 fore=-
Table1 7 2 back=cursor fore=cursor
> click FindVariable
> enter
box information "The variable 'count' is used 2 times in the program." ok -> ok
> colors Table1
Table1 0 0 back=E0E0E0 fore=-
Table1 0 1 back=E0E0E0 fore=-
Table1 0 2 back=E0E0E0 fore=-
Table1 0 3 back=E0E0E0 fore=-
Table1 0 4 back=E0E0E0 fore=-
Table1 1 2 back=FF0000 fore=FFFFFF
Table1 2 2 back=FF0000 fore=FFFFFF
Table1 6 0 back=E0E0E0 fore=-
Table1 6 1 back=E0E0E0 fore=-
Table1 6 2 back=E0E0E0 fore=-
Table1 6 3 back=E0E0E0 fore=-
Table1 6 4 back=E0E0E0 fore=-
Table1 7 2 back=cursor fore=cursor
> click XXDoneButton
> colors Table1
Table1 0 0 back=E0E0E0 fore=-
Table1 0 1 back=E0E0E0 fore=-
Table1 0 2 back=E0E0E0 fore=-
Table1 0 3 back=E0E0E0 fore=-
Table1 0 4 back=E0E0E0 fore=-
Table1 6 0 back=E0E0E0 fore=-
Table1 6 1 back=E0E0E0 fore=-
Table1 6 2 back=E0E0E0 fore=-
Table1 6 3 back=E0E0E0 fore=-
Table1 6 4 back=E0E0E0 fore=-
Table1 7 2 back=cursor fore=cursor
# In data mode the tool ends in data mode, also where there is nothing to find.
> click EntryMode
> click FindLabel
> click FindDoneButton
> show DataBox
DataBox enabled=1 visible=1
> answer no
> click NewFile
box question "Save changes to Pgm1.baf?" yesnocancel -> no
> click EntryMode
> click FindLabel
box information "No labels used in the program." ok -> ok
> show DataBox
DataBox enabled=1 visible=1
