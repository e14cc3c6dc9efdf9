# A program with a variable, two placed labels, their uses, and two blocks.
open OpenForm
closed OpenForm
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
> pick LabelCombo 1
> enter
> click INST 58
> click NewOrigin
> key NumberAcceptButton 9000
> enter
> click INST 37
> click ExistingLabelOption
> enter
> click PlaceLabelTool
> cell Table1 3 0
> click ExistingPlaceOption
> pick PlaceCombo 1
> enter
> cell Table1 7 0
> click ExistingPlaceOption
> pick PlaceCombo 0
> enter
> cell Table1 5 0
> type PlaceText end
> enter
> click PlaceDoneButton
> click AssignAddress
> settle
> dump Table1
Table1 0 "Origin" "8000" "" "" ""
Table1 1 "" "8000" "MVI  A,   count" "3E   XX" "Move the equivalent of 'count' into Accumulator."
Table1 2 "" "8002" "CALL  sub" "CD   00   90" "Call sub-routine pointed by 'sub'."
Table1 3 "loop" "8005" "JMP  loop" "C3   05   80" "Jump to address pointed by 'loop'."
Table1 4 "" "8008" "JNZ  loop" "C2   05   80" "Jump on no zero, to address pointed by 'loop'."
Table1 5 "end" "800B" "RET" "C9" "Return."
Table1 6 "Origin" "9000" "" "" ""
Table1 7 "sub" "9000" "JMP  sub" "C3   00   90" "Jump to address pointed by 'sub'."
# The candidates are red; nothing is selected, and a good name alone does not enable Replace.
> click ReplaceLabel
> state
PanelState 23
CurrentRow 1
LastLine 9
Rows 33
FileOrigin 1
FileChanged 1
EntryPending 0
SelectionTop 1
SelectionBottom 1
PortOpen 0
AddressError 0
FileName "Pgm1.baf"
EntryMode "Data &Mode"
WriteModeLabel "Overwrite"
TipsLabel "Select Labels from table, Enter Label and Click 'Replace'; or Click 'Cancel'."
Title "Brelvanor Quilla - Pgm1.baf"
MessageResult ""
Boxes ReplaceBox
> show ReplaceCombo
ReplaceCombo text="sub" index=0 count=3 enabled=0 visible=1
> show NewReplaceOption
NewReplaceOption checked=1 enabled=1 visible=1
> show ReplaceText
ReplaceText text="" enabled=1 visible=1
> colors Table1
Table1 0 0 back=E0E0E0 fore=-
Table1 0 1 back=E0E0E0 fore=-
Table1 0 2 back=E0E0E0 fore=-
Table1 0 3 back=E0E0E0 fore=-
Table1 0 4 back=E0E0E0 fore=-
Table1 1 2 back=cursor fore=cursor
Table1 2 2 back=0000FF fore=FFFFFF
Table1 3 0 back=0000FF fore=FFFFFF
Table1 3 2 back=0000FF fore=FFFFFF
Table1 4 2 back=0000FF fore=FFFFFF
Table1 5 0 back=0000FF fore=FFFFFF
Table1 6 0 back=E0E0E0 fore=-
Table1 6 1 back=E0E0E0 fore=-
Table1 6 2 back=E0E0E0 fore=-
Table1 6 3 back=E0E0E0 fore=-
Table1 6 4 back=E0E0E0 fore=-
Table1 7 0 back=0000FF fore=FFFFFF
Table1 7 2 back=0000FF fore=FFFFFF
> type ReplaceText new
> show ReplaceAcceptButton
ReplaceAcceptButton caption="Replace" enabled=0 visible=1
> clear ReplaceText
# An origin is no cell to select in either state; any other click goes on to the next state.
> cell Table1 0 0
> cell Table1 6 2
> show TipsLabel
TipsLabel caption="Select Labels from table, Enter Label and Click 'Replace'; or Click 'Cancel'." enabled=1 visible=1
> cell Table1 1 4
> state
PanelState 24
CurrentRow 1
LastLine 9
Rows 33
FileOrigin 1
FileChanged 1
EntryPending 0
SelectionTop 1
SelectionBottom 1
PortOpen 0
AddressError 0
FileName "Pgm1.baf"
EntryMode "Data &Mode"
WriteModeLabel "Overwrite"
TipsLabel "Select Labels from table, Enter Label and Click 'Replace'; or Click 'Cancel'."
Title "Brelvanor Quilla - Pgm1.baf"
MessageResult ""
Boxes ReplaceBox
> colors Table1
Table1 0 0 back=E0E0E0 fore=-
Table1 0 1 back=E0E0E0 fore=-
Table1 0 2 back=E0E0E0 fore=-
Table1 0 3 back=E0E0E0 fore=-
Table1 0 4 back=E0E0E0 fore=-
Table1 1 2 back=cursor fore=cursor
Table1 2 2 back=0000FF fore=FFFFFF
Table1 3 0 back=0000FF fore=FFFFFF
Table1 3 2 back=0000FF fore=FFFFFF
Table1 4 2 back=0000FF fore=FFFFFF
Table1 5 0 back=0000FF fore=FFFFFF
Table1 6 0 back=E0E0E0 fore=-
Table1 6 1 back=E0E0E0 fore=-
Table1 6 2 back=E0E0E0 fore=-
Table1 6 3 back=E0E0E0 fore=-
Table1 6 4 back=E0E0E0 fore=-
Table1 7 0 back=0000FF fore=FFFFFF
Table1 7 2 back=0000FF fore=FFFFFF
> cell Table1 6 0
# Cells toggle. Of the labels only the one that is selected last stays so, the operands all do.
> cell Table1 2 2
> cell Table1 3 2
> cell Table1 3 0
> cell Table1 7 2
> cell Table1 2 2
> cell Table1 5 0
> cell Table1 1 2
> cell Table1 7 1
> colors Table1
Table1 0 0 back=E0E0E0 fore=-
Table1 0 1 back=E0E0E0 fore=-
Table1 0 2 back=E0E0E0 fore=-
Table1 0 3 back=E0E0E0 fore=-
Table1 0 4 back=E0E0E0 fore=-
Table1 1 2 back=cursor fore=cursor
Table1 2 2 back=0000FF fore=FFFFFF
Table1 3 0 back=0000FF fore=FFFFFF
Table1 3 2 back=00FF00 fore=000000
Table1 4 2 back=0000FF fore=FFFFFF
Table1 5 0 back=00FF00 fore=000000
Table1 6 0 back=E0E0E0 fore=-
Table1 6 1 back=E0E0E0 fore=-
Table1 6 2 back=E0E0E0 fore=-
Table1 6 3 back=E0E0E0 fore=-
Table1 6 4 back=E0E0E0 fore=-
Table1 7 0 back=0000FF fore=FFFFFF
Table1 7 2 back=00FF00 fore=000000
# A new name: the spelling decides. The first selected label takes it, and all selected operands.
> show ReplaceAcceptButton
ReplaceAcceptButton caption="Replace" enabled=0 visible=1
> type ReplaceText 1st
> show ReplaceAcceptButton
ReplaceAcceptButton caption="Replace" enabled=0 visible=1
> clear ReplaceText
> type ReplaceText Big
> show ReplaceAcceptButton
ReplaceAcceptButton caption="Replace" enabled=0 visible=1
> clear ReplaceText
> type ReplaceText newlabel
> show ReplaceText
ReplaceText text="newlab" enabled=1 visible=1
> enter
> dump Table1
Table1 0 "Origin" "8000" "" "" ""
Table1 1 "" "8000" "MVI  A,   count" "3E   XX" "Move the equivalent of 'count' into Accumulator."
Table1 2 "" "8002" "CALL  sub" "CD   00   90" "Call sub-routine pointed by 'sub'."
Table1 3 "loop" "8005" "JMP  newlab" "C3   XX   XX" "Jump to address pointed by 'newlab'."
Table1 4 "" "8008" "JNZ  loop" "C2   05   80" "Jump on no zero, to address pointed by 'loop'."
Table1 5 "newlab" "800B" "RET" "C9" "Return."
Table1 6 "Origin" "9000" "" "" ""
Table1 7 "sub" "9000" "JMP  newlab" "C3   XX   XX" "Jump to address pointed by 'newlab'."
> dump StringTable
StringTable 1 "count"
StringTable 2 "sub"
StringTable 3 "newlab"
StringTable 4 "loop"
StringTable 7 "newlab"
> list LabelCombo
LabelCombo 0 "sub"
LabelCombo 1 "loop"
LabelCombo 2 "end"
LabelCombo 3 "newlab"
> list LabelEqtList
LabelEqtList 0 "9000"
LabelEqtList 1 "8005"
LabelEqtList 2 "800B"
LabelEqtList 3 "XXXX"
> list LabelPlacedList
LabelPlacedList 0 "1"
LabelPlacedList 1 "1"
LabelPlacedList 2 "0"
LabelPlacedList 3 "1"
> list LabelUsedList
LabelUsedList 0 "1"
LabelUsedList 1 "1"
LabelUsedList 2 "0"
LabelUsedList 3 "1"
> list LabelLineList
LabelLineList 0 "7"
LabelLineList 1 "3"
LabelLineList 2 "0"
LabelLineList 3 "5"
> state
PanelState 23
CurrentRow 1
LastLine 9
Rows 33
FileOrigin 1
FileChanged 1
EntryPending 0
SelectionTop 1
SelectionBottom 1
PortOpen 0
AddressError 0
FileName "Pgm1.baf"
EntryMode "Data &Mode"
WriteModeLabel "Overwrite"
TipsLabel "Select Labels from table, Enter Label and Click 'Replace'; or Click 'Cancel'."
Title "Brelvanor Quilla - Pgm1.baf"
MessageResult ""
Boxes ReplaceBox
> colors Table1
Table1 0 0 back=E0E0E0 fore=-
Table1 0 1 back=E0E0E0 fore=-
Table1 0 2 back=E0E0E0 fore=-
Table1 0 3 back=E0E0E0 fore=-
Table1 0 4 back=E0E0E0 fore=-
Table1 1 2 back=cursor fore=cursor
Table1 2 2 back=0000FF fore=FFFFFF
Table1 3 0 back=0000FF fore=FFFFFF
Table1 3 2 back=0000FF fore=FFFFFF
Table1 4 2 back=0000FF fore=FFFFFF
Table1 5 0 back=0000FF fore=FFFFFF
Table1 6 0 back=E0E0E0 fore=-
Table1 6 1 back=E0E0E0 fore=-
Table1 6 2 back=E0E0E0 fore=-
Table1 6 3 back=E0E0E0 fore=-
Table1 6 4 back=E0E0E0 fore=-
Table1 7 0 back=0000FF fore=FFFFFF
Table1 7 2 back=0000FF fore=FFFFFF
> show ReplaceText
ReplaceText text="" enabled=1 visible=1
# Esc takes all marks off.
> cell Table1 3 2
> escape
> colors Table1
Table1 0 0 back=E0E0E0 fore=-
Table1 0 1 back=E0E0E0 fore=-
Table1 0 2 back=E0E0E0 fore=-
Table1 0 3 back=E0E0E0 fore=-
Table1 0 4 back=E0E0E0 fore=-
Table1 1 2 back=cursor fore=cursor
Table1 6 0 back=E0E0E0 fore=-
Table1 6 1 back=E0E0E0 fore=-
Table1 6 2 back=E0E0E0 fore=-
Table1 6 3 back=E0E0E0 fore=-
Table1 6 4 back=E0E0E0 fore=-
# The name in the box of the place tool is the one that is tested.
> click PlaceLabelTool
> type PlaceText loop
> escape
> click ReplaceLabel
> cell Table1 2 2
> type ReplaceText fresh
> enter
box critical "The string 'fresh' already exists. Please enter another string." ok -> ok
> show ReplaceText
ReplaceText text="" enabled=1 visible=1
> colors Table1
Table1 0 0 back=E0E0E0 fore=-
Table1 0 1 back=E0E0E0 fore=-
Table1 0 2 back=E0E0E0 fore=-
Table1 0 3 back=E0E0E0 fore=-
Table1 0 4 back=E0E0E0 fore=-
Table1 1 2 back=cursor fore=cursor
Table1 2 2 back=00FF00 fore=000000
Table1 3 0 back=0000FF fore=FFFFFF
Table1 3 2 back=0000FF fore=FFFFFF
Table1 4 2 back=0000FF fore=FFFFFF
Table1 5 0 back=0000FF fore=FFFFFF
Table1 6 0 back=E0E0E0 fore=-
Table1 6 1 back=E0E0E0 fore=-
Table1 6 2 back=E0E0E0 fore=-
Table1 6 3 back=E0E0E0 fore=-
Table1 6 4 back=E0E0E0 fore=-
Table1 7 0 back=0000FF fore=FFFFFF
Table1 7 2 back=0000FF fore=FFFFFF
> dump Table1 2 2
Table1 2 "" "8002" "CALL  sub" "CD   00   90" "Call sub-routine pointed by 'sub'."
> state
PanelState 24
CurrentRow 1
LastLine 9
Rows 33
FileOrigin 1
FileChanged 1
EntryPending 0
SelectionTop 1
SelectionBottom 1
PortOpen 0
AddressError 0
FileName "Pgm1.baf"
EntryMode "Data &Mode"
WriteModeLabel "Overwrite"
TipsLabel "Select Labels from table, Enter Label and Click 'Replace'; or Click 'Cancel'."
Title "Brelvanor Quilla - Pgm1.baf"
MessageResult "1"
Boxes ReplaceBox
> click ReplaceDoneButton
> click PlaceLabelTool
> type PlaceText count
> click PlaceDoneButton
> click ReplaceLabel
> cell Table1 2 2
> type ReplaceText fresh
> enter
box critical "The string 'fresh' already exists. Please enter another string." ok -> ok
> escape
> click PlaceLabelTool
> escape
# A known label: the list is live at once, with nothing selected too.
> path replace.baf
> click SaveFile
dialog save "Save As" "Brelvanor Assembler Files (*.baf)|*.baf" -> "replace.baf"
> click ReplaceLabel
> click ExistingReplaceOption
> show ReplaceText
ReplaceText text="" enabled=0 visible=1
> show ReplaceCombo
ReplaceCombo text="sub" index=0 count=4 enabled=1 visible=1
> show ReplaceAcceptButton
ReplaceAcceptButton caption="Replace" enabled=1 visible=1
> enter
> state
PanelState 23
CurrentRow 1
LastLine 9
Rows 33
FileOrigin 3
FileChanged 1
EntryPending 0
SelectionTop 1
SelectionBottom 1
PortOpen 0
AddressError 0
FileName "replace.baf"
EntryMode "Data &Mode"
WriteModeLabel "Overwrite"
TipsLabel "Select Labels from table, Enter Label and Click 'Replace'; or Click 'Cancel'."
Title "Brelvanor Quilla - replace.baf"
MessageResult "1"
Boxes ReplaceBox
> colors Table1
Table1 0 0 back=E0E0E0 fore=-
Table1 0 1 back=E0E0E0 fore=-
Table1 0 2 back=E0E0E0 fore=-
Table1 0 3 back=E0E0E0 fore=-
Table1 0 4 back=E0E0E0 fore=-
Table1 1 2 back=cursor fore=cursor
Table1 2 2 back=0000FF fore=FFFFFF
Table1 3 0 back=0000FF fore=FFFFFF
Table1 3 2 back=0000FF fore=FFFFFF
Table1 4 2 back=0000FF fore=FFFFFF
Table1 5 0 back=0000FF fore=FFFFFF
Table1 6 0 back=E0E0E0 fore=-
Table1 6 1 back=E0E0E0 fore=-
Table1 6 2 back=E0E0E0 fore=-
Table1 6 3 back=E0E0E0 fore=-
Table1 6 4 back=E0E0E0 fore=-
Table1 7 0 back=0000FF fore=FFFFFF
Table1 7 2 back=0000FF fore=FFFFFF
# An operand takes the known name and keeps its bytes.
> cell Table1 4 2
> click ExistingReplaceOption
> pick ReplaceCombo 0
> enter
> dump Table1 2 7
Table1 2 "" "" "CALL  sub" "CD   00   90" "Call sub-routine pointed by 'sub'."
Table1 3 "loop" "" "JMP  newlab" "C3   XX   XX" "Jump to address pointed by 'newlab'."
Table1 4 "" "" "JNZ  sub" "C2   05   80" "Jump on no zero, to address pointed by 'sub'."
Table1 5 "newlab" "" "RET" "C9" "Return."
Table1 6 "Origin" "9000" "" "" ""
Table1 7 "sub" "" "JMP  newlab" "C3   XX   XX" "Jump to address pointed by 'newlab'."
> dump StringTable
StringTable 1 "count"
StringTable 2 "sub"
StringTable 3 "newlab"
StringTable 4 "sub"
StringTable 7 "newlab"
# A label placed elsewhere is asked for. No: it stays, the operand still gets the name.
> cell Table1 3 0
> cell Table1 4 2
> click ExistingReplaceOption
> pick ReplaceCombo 3
> answer no
> enter
box question "The label 'newlab' is already placed in line # 5. Do you want to reposition it to line # 3?" yesno -> no
> dump Table1 2 7
Table1 2 "" "" "CALL  sub" "CD   00   90" "Call sub-routine pointed by 'sub'."
Table1 3 "loop" "" "JMP  newlab" "C3   XX   XX" "Jump to address pointed by 'newlab'."
Table1 4 "" "" "JNZ  newlab" "C2   05   80" "Jump on no zero, to address pointed by 'newlab'."
Table1 5 "newlab" "" "RET" "C9" "Return."
Table1 6 "Origin" "9000" "" "" ""
Table1 7 "sub" "" "JMP  newlab" "C3   XX   XX" "Jump to address pointed by 'newlab'."
# Yes: it moves, and its old cell is empty.
> cell Table1 3 0
> click ExistingReplaceOption
> pick ReplaceCombo 0
> answer yes
> enter
box question "The label 'sub' is already placed in line # 7. Do you want to reposition it to line # 3?" yesno -> yes
> dump Table1 2 7
Table1 2 "" "" "CALL  sub" "CD   00   90" "Call sub-routine pointed by 'sub'."
Table1 3 "sub" "" "JMP  newlab" "C3   XX   XX" "Jump to address pointed by 'newlab'."
Table1 4 "" "" "JNZ  newlab" "C2   05   80" "Jump on no zero, to address pointed by 'newlab'."
Table1 5 "newlab" "" "RET" "C9" "Return."
Table1 6 "Origin" "9000" "" "" ""
Table1 7 "" "" "JMP  newlab" "C3   XX   XX" "Jump to address pointed by 'newlab'."
> list LabelLineList
LabelLineList 0 "3"
LabelLineList 1 "0"
LabelLineList 2 "0"
LabelLineList 3 "5"
> list LabelPlacedList
LabelPlacedList 0 "1"
LabelPlacedList 1 "0"
LabelPlacedList 2 "0"
LabelPlacedList 3 "1"
# A label put where it stands asks nothing; one that is placed nowhere neither.
> cell Table1 3 0
> click ExistingReplaceOption
> pick ReplaceCombo 0
> enter
> dump Table1 3 3
Table1 3 "sub" "" "JMP  newlab" "C3   XX   XX" "Jump to address pointed by 'newlab'."
> cell Table1 3 0
> click ExistingReplaceOption
> pick ReplaceCombo 1
> enter
> dump Table1 2 7
Table1 2 "" "" "CALL  sub" "CD   00   90" "Call sub-routine pointed by 'sub'."
Table1 3 "loop" "" "JMP  newlab" "C3   XX   XX" "Jump to address pointed by 'newlab'."
Table1 4 "" "" "JNZ  newlab" "C2   05   80" "Jump on no zero, to address pointed by 'newlab'."
Table1 5 "newlab" "" "RET" "C9" "Return."
Table1 6 "Origin" "9000" "" "" ""
Table1 7 "" "" "JMP  newlab" "C3   XX   XX" "Jump to address pointed by 'newlab'."
> list LabelLineList
LabelLineList 0 "0"
LabelLineList 1 "3"
LabelLineList 2 "0"
LabelLineList 3 "5"
# A second label takes the selection from the first, which keeps its name.
> cell Table1 3 0
> cell Table1 5 0
> colors Table1
Table1 0 0 back=E0E0E0 fore=-
Table1 0 1 back=E0E0E0 fore=-
Table1 0 2 back=E0E0E0 fore=-
Table1 0 3 back=E0E0E0 fore=-
Table1 0 4 back=E0E0E0 fore=-
Table1 1 2 back=cursor fore=cursor
Table1 2 2 back=0000FF fore=FFFFFF
Table1 3 0 back=0000FF fore=FFFFFF
Table1 3 2 back=0000FF fore=FFFFFF
Table1 4 2 back=0000FF fore=FFFFFF
Table1 5 0 back=00FF00 fore=000000
Table1 6 0 back=E0E0E0 fore=-
Table1 6 1 back=E0E0E0 fore=-
Table1 6 2 back=E0E0E0 fore=-
Table1 6 3 back=E0E0E0 fore=-
Table1 6 4 back=E0E0E0 fore=-
Table1 7 2 back=0000FF fore=FFFFFF
> type ReplaceText one
> enter
> dump Table1 2 7
Table1 2 "" "" "CALL  sub" "CD   00   90" "Call sub-routine pointed by 'sub'."
Table1 3 "loop" "" "JMP  newlab" "C3   XX   XX" "Jump to address pointed by 'newlab'."
Table1 4 "" "" "JNZ  newlab" "C2   05   80" "Jump on no zero, to address pointed by 'newlab'."
Table1 5 "one" "" "RET" "C9" "Return."
Table1 6 "Origin" "9000" "" "" ""
Table1 7 "" "" "JMP  newlab" "C3   XX   XX" "Jump to address pointed by 'newlab'."
# The operand of a variable can be selected as well, and becomes a label's.
> cell Table1 1 2
> colors Table1
Table1 0 0 back=E0E0E0 fore=-
Table1 0 1 back=E0E0E0 fore=-
Table1 0 2 back=E0E0E0 fore=-
Table1 0 3 back=E0E0E0 fore=-
Table1 0 4 back=E0E0E0 fore=-
Table1 1 2 back=00FF00 fore=000000
Table1 2 2 back=0000FF fore=FFFFFF
Table1 3 0 back=0000FF fore=FFFFFF
Table1 3 2 back=0000FF fore=FFFFFF
Table1 4 2 back=0000FF fore=FFFFFF
Table1 5 0 back=0000FF fore=FFFFFF
Table1 6 0 back=E0E0E0 fore=-
Table1 6 1 back=E0E0E0 fore=-
Table1 6 2 back=E0E0E0 fore=-
Table1 6 3 back=E0E0E0 fore=-
Table1 6 4 back=E0E0E0 fore=-
Table1 7 2 back=0000FF fore=FFFFFF
> type ReplaceText addr
> enter
> dump Table1 1 1
Table1 1 "" "" "MVI  A,   addr" "3E   XX   XX" "Move the equivalent of 'addr' into Accumulator."
> click ReplaceDoneButton
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
# Selected for a known label, it stays selected; Esc leaves it so, Done does not.
> click INST 15
> click ExistingXXOption
> enter
> dump Table1 1 1
Table1 1 "" "" "ADI   count" "C6   XX" "Add the equivalent of 'count' to content of Accumulator."
> click ReplaceLabel
> cell Table1 1 2
> click ExistingReplaceOption
> enter
> dump Table1 1 1
Table1 1 "" "" "ADI   sub" "C6   XX" "Add the equivalent of 'sub' to content of Accumulator."
> colors Table1
Table1 0 0 back=E0E0E0 fore=-
Table1 0 1 back=E0E0E0 fore=-
Table1 0 2 back=E0E0E0 fore=-
Table1 0 3 back=E0E0E0 fore=-
Table1 0 4 back=E0E0E0 fore=-
Table1 1 2 back=00FF00 fore=000000
Table1 2 2 back=0000FF fore=FFFFFF
Table1 3 0 back=0000FF fore=FFFFFF
Table1 3 2 back=0000FF fore=FFFFFF
Table1 4 2 back=0000FF fore=FFFFFF
Table1 5 0 back=0000FF fore=FFFFFF
Table1 6 0 back=E0E0E0 fore=-
Table1 6 1 back=E0E0E0 fore=-
Table1 6 2 back=E0E0E0 fore=-
Table1 6 3 back=E0E0E0 fore=-
Table1 6 4 back=E0E0E0 fore=-
Table1 7 2 back=0000FF fore=FFFFFF
> escape
> colors Table1
Table1 0 0 back=E0E0E0 fore=-
Table1 0 1 back=E0E0E0 fore=-
Table1 0 2 back=E0E0E0 fore=-
Table1 0 3 back=E0E0E0 fore=-
Table1 0 4 back=E0E0E0 fore=-
Table1 1 2 back=00FF00 fore=000000
Table1 2 2 back=cursor fore=cursor
Table1 6 0 back=E0E0E0 fore=-
Table1 6 1 back=E0E0E0 fore=-
Table1 6 2 back=E0E0E0 fore=-
Table1 6 3 back=E0E0E0 fore=-
Table1 6 4 back=E0E0E0 fore=-
> click ReplaceLabel
> click ReplaceDoneButton
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
# In data mode the tool ends in data mode.
> click EntryMode
> click ReplaceLabel
> click ReplaceDoneButton
> show DataBox
DataBox enabled=1 visible=1
# The option of a new name offers Replace at once: without a text the label's name becomes empty.
# It counts as placed where the first cell is empty, and stands in more than one row.
> answer no
> click NewFile
box question "Save changes to replace.baf?" yesnocancel -> no
> click INST 37
> type LabelText loop
> enter
> click INST 79
> click PlaceLabelTool
> cell Table1 2 0
> type PlaceText end
> enter
> click PlaceDoneButton
> click ReplaceLabel
> cell Table1 2 0
> click NewReplaceOption
> show ReplaceAcceptButton
ReplaceAcceptButton caption="Replace" enabled=1 visible=1
> click ReplaceAcceptButton
> dump Table1
Table1 0 "Origin" "8000" "" "" ""
Table1 1 "" "" "JMP  loop" "C3   XX   XX" "Jump to address pointed by 'loop'."
Table1 2 "" "" "HLT" "76" "Halt program execution."
> list LabelCombo
LabelCombo 0 "loop"
LabelCombo 1 "end"
LabelCombo 2 ""
> list LabelPlacedList
LabelPlacedList 0 "0"
LabelPlacedList 1 "0"
LabelPlacedList 2 "1"
> list LabelLineList
LabelLineList 0 "0"
LabelLineList 1 "0"
LabelLineList 2 "1"
> list LabelUsedList
LabelUsedList 0 "1"
LabelUsedList 1 "0"
LabelUsedList 2 "0"
> cell Table1 1 2
> type ReplaceText x
> clear ReplaceText
> show ReplaceAcceptButton
ReplaceAcceptButton caption="Replace" enabled=0 visible=1
> click NewReplaceOption
> click ReplaceAcceptButton
box critical "The string '' already exists. Please enter another string." ok -> ok
> click ReplaceDoneButton
> click DeleteUnusedLabels
box information "Unused strings have been deleted." ok -> ok
> list LabelCombo
LabelCombo 0 "loop"
LabelCombo 1 ""
> click AssignAddress
> settle
box critical "Compile error. There is more than one instance of the label '' in the Label field." ok -> ok
