# With no labels at all only a new one can be placed.
open OpenForm
closed OpenForm
> click PlaceLabelTool
> state
PanelState 16
CurrentRow 1
LastLine 1
Rows 32
FileOrigin 1
FileChanged 0
EntryPending 0
SelectionTop 1
SelectionBottom 1
PortOpen 0
AddressError 0
FileName "Pgm1.baf"
EntryMode "Data &Mode"
WriteModeLabel "Overwrite"
TipsLabel "Select Row, Enter Label and Click 'Place'; or Click 'Cancel'."
Title "Brelvanor Quilla - Pgm1.baf"
MessageResult ""
Boxes PlaceBox
> show ExistingPlaceOption
ExistingPlaceOption checked=0 enabled=0 visible=1
> show PlaceCombo
PlaceCombo text="" index=-1 count=0 enabled=0 visible=1
> show PlaceAcceptButton
PlaceAcceptButton caption="Place" enabled=0 visible=1
> click PlaceDoneButton
# Accepting needs both a picked row and a good name, in either order.
> click INST 37
> type LabelText loop
> enter
> click INST 49
> type LabelText sub
> enter
> click INST 15
> type XXText count
> enter
> click INST 79
> click PlaceLabelTool
> show ExistingPlaceOption
ExistingPlaceOption checked=0 enabled=1 visible=1
> show PlaceCombo
PlaceCombo text="loop" index=0 count=2 enabled=0 visible=1
> type PlaceText 1a
> show PlaceAcceptButton
PlaceAcceptButton caption="Place" enabled=0 visible=1
> cell Table1 5 3
> show PlaceAcceptButton
PlaceAcceptButton caption="Place" enabled=0 visible=1
> clear PlaceText
> type PlaceText ab
> show PlaceAcceptButton
PlaceAcceptButton caption="Place" enabled=1 visible=1
> type PlaceText C
> show PlaceAcceptButton
PlaceAcceptButton caption="Place" enabled=0 visible=1
> clear PlaceText
> show PlaceAcceptButton
PlaceAcceptButton caption="Place" enabled=0 visible=1
> type PlaceText abcdefgh
> show PlaceText
PlaceText text="abcdef" enabled=1 visible=1
# Another row can be picked, an origin not.
> cell Table1 4 1
> colors Table1
Table1 0 0 back=E0E0E0 fore=-
Table1 0 1 back=E0E0E0 fore=-
Table1 0 2 back=E0E0E0 fore=-
Table1 0 3 back=E0E0E0 fore=-
Table1 0 4 back=E0E0E0 fore=-
Table1 4 0 back=00FF00 fore=-
Table1 5 2 back=cursor fore=cursor
> cell Table1 0 0
> cell Table1 0 2
> colors Table1
Table1 0 0 back=E0E0E0 fore=-
Table1 0 1 back=E0E0E0 fore=-
Table1 0 2 back=E0E0E0 fore=-
Table1 0 3 back=E0E0E0 fore=-
Table1 0 4 back=E0E0E0 fore=-
Table1 4 0 back=00FF00 fore=-
Table1 5 2 back=cursor fore=cursor
> show PlaceAcceptButton
PlaceAcceptButton caption="Place" enabled=1 visible=1
> enter
> state
PanelState 16
CurrentRow 5
LastLine 4
Rows 32
FileOrigin 1
FileChanged 1
EntryPending 0
SelectionTop 5
SelectionBottom 5
PortOpen 0
AddressError 0
FileName "Pgm1.baf"
EntryMode "Data &Mode"
WriteModeLabel "Overwrite"
TipsLabel "Select Row, Enter Label and Click 'Place'; or Click 'Cancel'."
Title "Brelvanor Quilla - Pgm1.baf"
MessageResult ""
Boxes PlaceBox
> colors Table1
Table1 0 0 back=E0E0E0 fore=-
Table1 0 1 back=E0E0E0 fore=-
Table1 0 2 back=E0E0E0 fore=-
Table1 0 3 back=E0E0E0 fore=-
Table1 0 4 back=E0E0E0 fore=-
Table1 5 2 back=cursor fore=cursor
> dump Table1
Table1 0 "Origin" "8000" "" "" ""
Table1 1 "" "" "JMP  loop" "C3   XX   XX" "Jump to address pointed by 'loop'."
Table1 2 "" "" "CALL  sub" "CD   XX   XX" "Call sub-routine pointed by 'sub'."
Table1 3 "" "" "ADI   count" "C6   XX" "Add the equivalent of 'count' to content of Accumulator."
Table1 4 "abcdef" "" "HLT" "76" "Halt program execution."
> list LabelCombo
LabelCombo 0 "loop"
LabelCombo 1 "sub"
LabelCombo 2 "abcdef"
> list LabelPlacedList
LabelPlacedList 0 "0"
LabelPlacedList 1 "0"
LabelPlacedList 2 "1"
> list LabelUsedList
LabelUsedList 0 "1"
LabelUsedList 1 "1"
LabelUsedList 2 "0"
> list LabelLineList
LabelLineList 0 "0"
LabelLineList 1 "0"
LabelLineList 2 "4"
> list LabelEqtList
LabelEqtList 0 "XXXX"
LabelEqtList 1 "XXXX"
LabelEqtList 2 "XXXX"
# A name that is taken, by a variable or a label, is refused; the row must be picked again.
> cell Table1 3 0
> type PlaceText count
> enter
box critical "String already used as Label or Variable. Please enter another string or use existing string." ok -> ok
> show PlaceText
PlaceText text="" enabled=1 visible=1
> show PlaceAcceptButton
PlaceAcceptButton caption="Place" enabled=0 visible=1
> colors Table1
Table1 0 0 back=E0E0E0 fore=-
Table1 0 1 back=E0E0E0 fore=-
Table1 0 2 back=E0E0E0 fore=-
Table1 0 3 back=E0E0E0 fore=-
Table1 0 4 back=E0E0E0 fore=-
Table1 5 2 back=cursor fore=cursor
> type PlaceText sub
> cell Table1 3 0
> enter
box critical "String already used as Label or Variable. Please enter another string or use existing string." ok -> ok
> dump Table1 3 3
Table1 3 "" "" "ADI   count" "C6   XX" "Add the equivalent of 'count' to content of Accumulator."
# A known label: the list is live, and accepting needs a row alone.
> click ExistingPlaceOption
> show PlaceText
PlaceText text="" enabled=0 visible=1
> show PlaceCombo
PlaceCombo text="loop" index=0 count=3 enabled=1 visible=1
> show PlaceAcceptButton
PlaceAcceptButton caption="Place" enabled=0 visible=1
> pick PlaceCombo 1
> cell Table1 2 4
> show PlaceAcceptButton
PlaceAcceptButton caption="Place" enabled=1 visible=1
> enter
> dump Table1 1 4
Table1 1 "" "" "JMP  loop" "C3   XX   XX" "Jump to address pointed by 'loop'."
Table1 2 "sub" "" "CALL  sub" "CD   XX   XX" "Call sub-routine pointed by 'sub'."
Table1 3 "" "" "ADI   count" "C6   XX" "Add the equivalent of 'count' to content of Accumulator."
Table1 4 "abcdef" "" "HLT" "76" "Halt program execution."
# Changing the mind with a row picked: back to a new name the button waits for the next key.
> cell Table1 1 0
> click ExistingPlaceOption
> show PlaceAcceptButton
PlaceAcceptButton caption="Place" enabled=1 visible=1
> click NewPlaceOption
> show PlaceAcceptButton
PlaceAcceptButton caption="Place" enabled=0 visible=1
> type PlaceText x
> show PlaceAcceptButton
PlaceAcceptButton caption="Place" enabled=1 visible=1
> clear PlaceText
> click ExistingPlaceOption
> enter
> dump Table1 1 4
Table1 1 "loop" "" "JMP  loop" "C3   XX   XX" "Jump to address pointed by 'loop'."
Table1 2 "sub" "" "CALL  sub" "CD   XX   XX" "Call sub-routine pointed by 'sub'."
Table1 3 "" "" "ADI   count" "C6   XX" "Add the equivalent of 'count' to content of Accumulator."
Table1 4 "abcdef" "" "HLT" "76" "Halt program execution."
# A known label that stands elsewhere: No leaves both rows as they were, Yes moves it.
> cell Table1 6 0
> click ExistingPlaceOption
> answer no
> enter
box question "The string 'loop' is already placed in line # 1. Do you want to reposition it to line # 6?" yesno -> no
> dump Table1 1 6
Table1 1 "loop" "" "JMP  loop" "C3   XX   XX" "Jump to address pointed by 'loop'."
Table1 2 "sub" "" "CALL  sub" "CD   XX   XX" "Call sub-routine pointed by 'sub'."
Table1 3 "" "" "ADI   count" "C6   XX" "Add the equivalent of 'count' to content of Accumulator."
Table1 4 "abcdef" "" "HLT" "76" "Halt program execution."
> cell Table1 6 0
> click ExistingPlaceOption
> answer yes
> enter
box question "The string 'loop' is already placed in line # 1. Do you want to reposition it to line # 6?" yesno -> yes
> dump Table1 1 6
Table1 1 "" "" "JMP  loop" "C3   XX   XX" "Jump to address pointed by 'loop'."
Table1 2 "sub" "" "CALL  sub" "CD   XX   XX" "Call sub-routine pointed by 'sub'."
Table1 3 "" "" "ADI   count" "C6   XX" "Add the equivalent of 'count' to content of Accumulator."
Table1 4 "abcdef" "" "HLT" "76" "Halt program execution."
Table1 6 "loop" "" "" "" ""
> list LabelLineList
LabelLineList 0 "6"
LabelLineList 1 "2"
LabelLineList 2 "4"
# An occupied cell: No leaves it, Yes puts the new label over the old, which stays in the lists.
> cell Table1 2 0
> type PlaceText new
> answer no
> enter
box question "A label is already present in the selected cell. Do you want to replace the existing label?" yesno -> no
> dump Table1 2 2
Table1 2 "sub" "" "CALL  sub" "CD   XX   XX" "Call sub-routine pointed by 'sub'."
> list LabelCombo
LabelCombo 0 "loop"
LabelCombo 1 "sub"
LabelCombo 2 "abcdef"
> cell Table1 2 0
> type PlaceText new
> answer yes
> enter
box question "A label is already present in the selected cell. Do you want to replace the existing label?" yesno -> yes
> dump Table1 2 2
Table1 2 "new" "" "CALL  sub" "CD   XX   XX" "Call sub-routine pointed by 'sub'."
> list LabelCombo
LabelCombo 0 "loop"
LabelCombo 1 "sub"
LabelCombo 2 "abcdef"
LabelCombo 3 "new"
> list LabelPlacedList
LabelPlacedList 0 "1"
LabelPlacedList 1 "0"
LabelPlacedList 2 "1"
LabelPlacedList 3 "1"
> list LabelUsedList
LabelUsedList 0 "1"
LabelUsedList 1 "1"
LabelUsedList 2 "0"
LabelUsedList 3 "0"
# A refusal follows the question about the occupied cell.
> cell Table1 2 0
> type PlaceText loop
> answer yes
> enter
box question "A label is already present in the selected cell. Do you want to replace the existing label?" yesno -> yes
box critical "String already used as Label or Variable. Please enter another string or use existing string." ok -> ok
> dump Table1 2 2
Table1 2 "new" "" "CALL  sub" "CD   XX   XX" "Call sub-routine pointed by 'sub'."
# A label over another: two questions, the cell first. A No to either leaves both rows.
> cell Table1 2 0
> click ExistingPlaceOption
> answer yes
> answer no
> enter
box question "A label is already present in the selected cell. Do you want to replace the existing label?" yesno -> yes
box question "The string 'loop' is already placed in line # 6. Do you want to reposition it to line # 2?" yesno -> no
> cell Table1 2 0
> click ExistingPlaceOption
> answer no
> enter
box question "A label is already present in the selected cell. Do you want to replace the existing label?" yesno -> no
> dump Table1 1 6
Table1 1 "" "" "JMP  loop" "C3   XX   XX" "Jump to address pointed by 'loop'."
Table1 2 "new" "" "CALL  sub" "CD   XX   XX" "Call sub-routine pointed by 'sub'."
Table1 3 "" "" "ADI   count" "C6   XX" "Add the equivalent of 'count' to content of Accumulator."
Table1 4 "abcdef" "" "HLT" "76" "Halt program execution."
Table1 6 "loop" "" "" "" ""
> cell Table1 2 0
> click ExistingPlaceOption
> answer yes
> answer yes
> enter
box question "A label is already present in the selected cell. Do you want to replace the existing label?" yesno -> yes
box question "The string 'loop' is already placed in line # 6. Do you want to reposition it to line # 2?" yesno -> yes
> dump Table1 1 6
Table1 1 "" "" "JMP  loop" "C3   XX   XX" "Jump to address pointed by 'loop'."
Table1 2 "loop" "" "CALL  sub" "CD   XX   XX" "Call sub-routine pointed by 'sub'."
Table1 3 "" "" "ADI   count" "C6   XX" "Add the equivalent of 'count' to content of Accumulator."
Table1 4 "abcdef" "" "HLT" "76" "Halt program execution."
> state
PanelState 16
CurrentRow 5
LastLine 4
Rows 32
FileOrigin 1
FileChanged 1
EntryPending 0
SelectionTop 5
SelectionBottom 5
PortOpen 0
AddressError 0
FileName "Pgm1.baf"
EntryMode "Data &Mode"
WriteModeLabel "Overwrite"
TipsLabel "Select Row, Enter Label and Click 'Place'; or Click 'Cancel'."
Title "Brelvanor Quilla - Pgm1.baf"
MessageResult "6"
Boxes PlaceBox
# Done takes the mark off; so does Esc, which also works before a row is picked.
> cell Table1 8 0
> click PlaceDoneButton
> colors Table1
Table1 0 0 back=E0E0E0 fore=-
Table1 0 1 back=E0E0E0 fore=-
Table1 0 2 back=E0E0E0 fore=-
Table1 0 3 back=E0E0E0 fore=-
Table1 0 4 back=E0E0E0 fore=-
Table1 5 2 back=cursor fore=cursor
> state
PanelState 1
CurrentRow 5
LastLine 4
Rows 32
FileOrigin 1
FileChanged 1
EntryPending 0
SelectionTop 5
SelectionBottom 5
PortOpen 0
AddressError 0
FileName "Pgm1.baf"
EntryMode "Data &Mode"
WriteModeLabel "Overwrite"
TipsLabel "Program Mode."
Title "Brelvanor Quilla - Pgm1.baf"
MessageResult "6"
Boxes InstructionBox
> click PlaceLabelTool
> cell Table1 9 0
> escape
> colors Table1
Table1 0 0 back=E0E0E0 fore=-
Table1 0 1 back=E0E0E0 fore=-
Table1 0 2 back=E0E0E0 fore=-
Table1 0 3 back=E0E0E0 fore=-
Table1 0 4 back=E0E0E0 fore=-
Table1 5 2 back=cursor fore=cursor
> click PlaceLabelTool
> escape
> show InstructionBox
InstructionBox enabled=1 visible=1
# Placing counts as a change even when nothing was placed; opening the tool alone does not.
> path placed.baf
> click SaveFile
dialog save "Save As" "Brelvanor Assembler Files (*.baf)|*.baf" -> "placed.baf"
> click PlaceLabelTool
> click PlaceDoneButton
> click OpenFile
dialog open "Open" "Brelvanor Assembler Files (*.baf)|*.baf" -> cancel
> click PlaceLabelTool
> cell Table1 2 0
> type PlaceText y
> answer no
> enter
box question "A label is already present in the selected cell. Do you want to replace the existing label?" yesno -> no
> escape
> click OpenFile
box question "Save changes to placed.baf?" yesnocancel -> cancel
# In data mode the tool ends in data mode.
> click EntryMode
> click PlaceLabelTool
> cell Table1 7 0
> type PlaceText last
> enter
> click PlaceDoneButton
> show DataBox
DataBox enabled=1 visible=1
> click EntryMode
# A row that was picked once and is gone: the tool does not end until another row is picked.
> click PlaceLabelTool
> cell Table1 31 0
> escape
> drag Table1 20 2 29 2
> click DeleteEdit
> click PlaceLabelTool
> escape
> show PlaceBox
PlaceBox enabled=1 visible=1
> click PlaceDoneButton
> state
PanelState 16
CurrentRow 5
LastLine 4
Rows 22
FileOrigin 3
FileChanged 1
EntryPending 0
SelectionTop 5
SelectionBottom 5
PortOpen 0
AddressError 0
FileName "placed.baf"
EntryMode "Data &Mode"
WriteModeLabel "Overwrite"
TipsLabel "Select Row, Enter Label and Click 'Place'; or Click 'Cancel'."
Title "Brelvanor Quilla - placed.baf"
MessageResult "2"
Boxes -
> escape
> cell Table1 5 0
> escape
> show InstructionBox
InstructionBox enabled=1 visible=1
