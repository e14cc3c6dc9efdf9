# A program with a label, a variable, a data byte and two blocks.
open OpenForm
closed OpenForm
> click INST 1
> click REG 7
> type XXText count
> enter
> click INST 37
> type LabelText loop
> enter
> click INST 79
> click PlaceLabelTool
> cell Table1 3 2
> type PlaceText here
> enter
> click PlaceDoneButton
> click NewOrigin
> key NumberAcceptButton 9000
> enter
> dump Table1
Table1 0 "Origin" "8000" "" "" ""
Table1 1 "" "" "MVI  A,   count" "3E   XX" "Move the equivalent of 'count' into Accumulator."
Table1 2 "" "" "JMP  loop" "C3   XX   XX" "Jump to address pointed by 'loop'."
Table1 3 "here" "" "HLT" "76" "Halt program execution."
Table1 4 "Origin" "9000" "" "" ""
# Comments: each row that is clicked, in whatever column, is marked in the comment column.
> click CommentsTool
> state
PanelState 19
CurrentRow 5
LastLine 7
Rows 33
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
TipsLabel "Select Row, Enter Comments and Click 'Done', or Click 'Cancel'."
Title "Brelvanor Quilla - Pgm1.baf"
MessageResult ""
Boxes CommentsBox
> show CommentsTxt
CommentsTxt text="Halt program execution." enabled=1 visible=1
> cell Table1 1 0
> colors Table1
Table1 0 0 back=E0E0E0 fore=-
Table1 0 1 back=E0E0E0 fore=-
Table1 0 2 back=E0E0E0 fore=-
Table1 0 3 back=E0E0E0 fore=-
Table1 0 4 back=E0E0E0 fore=-
Table1 1 4 back=C0FFC0 fore=-
Table1 4 0 back=E0E0E0 fore=-
Table1 4 1 back=E0E0E0 fore=-
Table1 4 2 back=E0E0E0 fore=-
Table1 4 3 back=E0E0E0 fore=-
Table1 4 4 back=E0E0E0 fore=-
Table1 5 2 back=cursor fore=cursor
> show CommentsTxt
CommentsTxt text="Move the equivalent of 'count' into Accumulator." enabled=1 visible=1
> type CommentsTxt "!&"
> cell Table1 0 2
> colors Table1
Table1 0 0 back=E0E0E0 fore=-
Table1 0 1 back=E0E0E0 fore=-
Table1 0 2 back=E0E0E0 fore=-
Table1 0 3 back=E0E0E0 fore=-
Table1 0 4 back=C0FFC0 fore=-
Table1 4 0 back=E0E0E0 fore=-
Table1 4 1 back=E0E0E0 fore=-
Table1 4 2 back=E0E0E0 fore=-
Table1 4 3 back=E0E0E0 fore=-
Table1 4 4 back=E0E0E0 fore=-
Table1 5 2 back=cursor fore=cursor
> show DefaultCommentButton
DefaultCommentButton caption="&Default Comment" enabled=0 visible=1
> type CommentsTxt start
# Esc leaves the text as typed and the origin grey.
> escape
> dump Table1
Table1 0 "Origin" "8000" "" "" "start"
Table1 1 "" "" "MVI  A,   count" "3E   XX" "Move the equivalent of 'count' into Accumulator.!"
Table1 2 "" "" "JMP  loop" "C3   XX   XX" "Jump to address pointed by 'loop'."
Table1 3 "here" "" "HLT" "76" "Halt program execution."
Table1 4 "Origin" "9000" "" "" ""
> colors Table1
Table1 0 0 back=E0E0E0 fore=-
Table1 0 1 back=E0E0E0 fore=-
Table1 0 2 back=E0E0E0 fore=-
Table1 0 3 back=E0E0E0 fore=-
Table1 0 4 back=E0E0E0 fore=-
Table1 4 0 back=E0E0E0 fore=-
Table1 4 1 back=E0E0E0 fore=-
Table1 4 2 back=E0E0E0 fore=-
Table1 4 3 back=E0E0E0 fore=-
Table1 4 4 back=E0E0E0 fore=-
Table1 5 2 back=cursor fore=cursor
# Esc with a plain row marked: the cell that is current goes back.
> click CommentsTool
> cell Table1 2 4
> type CommentsTxt ?
> escape
> dump Table1 2 2
Table1 2 "" "" "JMP  loop" "C3   XX   XX" "Jump to address pointed by 'loop'.?"
> colors Table1
Table1 0 0 back=E0E0E0 fore=-
Table1 0 1 back=E0E0E0 fore=-
Table1 0 2 back=E0E0E0 fore=-
Table1 0 3 back=E0E0E0 fore=-
Table1 0 4 back=E0E0E0 fore=-
Table1 4 0 back=E0E0E0 fore=-
Table1 4 1 back=E0E0E0 fore=-
Table1 4 2 back=E0E0E0 fore=-
Table1 4 3 back=E0E0E0 fore=-
Table1 4 4 back=E0E0E0 fore=-
Table1 5 2 back=cursor fore=cursor
> click CommentsTool
> escape
> show InstructionBox
InstructionBox enabled=1 visible=1
# Deleting labels: only the first column counts; the file counts as changed from the start.
> click DeleteLabels
> state
PanelState 31
CurrentRow 5
LastLine 7
Rows 33
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
TipsLabel "Press 'Esc' to quit deleting labels."
Title "Brelvanor Quilla - Pgm1.baf"
MessageResult ""
Boxes -
> cell Table1 3 2
> cell Table1 3 1
> dump Table1 3 3
Table1 3 "here" "" "HLT" "76" "Halt program execution."
> cell Table1 3 0
> cell Table1 2 0
> dump Table1 2 3
Table1 2 "" "" "JMP  loop" "C3   XX   XX" "Jump to address pointed by 'loop'.?"
Table1 3 "" "" "HLT" "76" "Halt program execution."
> list LabelEqtList
LabelEqtList 0 "XXXX"
LabelEqtList 1 "XXXX"
# The lists are tidied when the state ends; an origin can be emptied too, its grey stays.
> list LabelPlacedList
LabelPlacedList 0 "0"
LabelPlacedList 1 "1"
> cell Table1 4 0
> escape
> list LabelPlacedList
LabelPlacedList 0 "0"
LabelPlacedList 1 "0"
> list OriginList
OriginList 0 "8000"
> dump Table1 4 4
Table1 4 "" "9000" "" "" ""
> colors Table1
Table1 0 0 back=E0E0E0 fore=-
Table1 0 1 back=E0E0E0 fore=-
Table1 0 2 back=E0E0E0 fore=-
Table1 0 3 back=E0E0E0 fore=-
Table1 0 4 back=E0E0E0 fore=-
Table1 4 0 back=E0E0E0 fore=-
Table1 4 1 back=E0E0E0 fore=-
Table1 4 2 back=E0E0E0 fore=-
Table1 4 3 back=E0E0E0 fore=-
Table1 4 4 back=E0E0E0 fore=-
Table1 5 2 back=cursor fore=cursor
# With the first origin gone as well a new one takes the first row.
> click DeleteLabels
> cell Table1 0 0
> escape
> list OriginList
OriginList empty
> click NewOrigin
> key NumberAcceptButton 7000
> enter
> list OriginList
OriginList 0 "7000"
> dump Table1 0 1
Table1 0 "Origin" "7000" "" "" "start"
Table1 1 "" "" "MVI  A,   count" "3E   XX" "Move the equivalent of 'count' into Accumulator.!"
> state
PanelState 1
CurrentRow 1
LastLine 1
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
TipsLabel "Program Mode."
Title "Brelvanor Quilla - Pgm1.baf"
MessageResult ""
Boxes InstructionBox
# Finding ignores clicks; Esc takes the marks off.
> click FindLabel
> pick FindCombo 0
> click FindButton
box information "The label 'loop' is used 1 time in the program." ok -> ok
> cell Table1 2 2
> cell Table1 0 0
> colors Table1
Table1 0 0 back=E0E0E0 fore=-
Table1 0 1 back=E0E0E0 fore=-
Table1 0 2 back=E0E0E0 fore=-
Table1 0 3 back=E0E0E0 fore=-
Table1 0 4 back=E0E0E0 fore=-
Table1 2 2 back=FF0000 fore=FFFFFF
Table1 4 0 back=E0E0E0 fore=-
Table1 4 1 back=E0E0E0 fore=-
Table1 4 2 back=E0E0E0 fore=-
Table1 4 3 back=E0E0E0 fore=-
Table1 4 4 back=E0E0E0 fore=-
> state
PanelState 22
CurrentRow 1
LastLine 2
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
TipsLabel "Completed searching for label."
Title "Brelvanor Quilla - Pgm1.baf"
MessageResult "1"
Boxes FindBox
> escape
> colors Table1
Table1 0 0 back=E0E0E0 fore=-
Table1 0 1 back=E0E0E0 fore=-
Table1 0 2 back=E0E0E0 fore=-
Table1 0 3 back=E0E0E0 fore=-
Table1 0 4 back=E0E0E0 fore=-
Table1 1 2 back=cursor fore=cursor
Table1 4 0 back=E0E0E0 fore=-
Table1 4 1 back=E0E0E0 fore=-
Table1 4 2 back=E0E0E0 fore=-
Table1 4 3 back=E0E0E0 fore=-
Table1 4 4 back=E0E0E0 fore=-
> click FindVariable
> click XXFindButton
box information "The variable 'count' is used 1 time in the program." ok -> ok
> cell Table1 1 2
> cell Table1 1 3
> colors Table1
Table1 0 0 back=E0E0E0 fore=-
Table1 0 1 back=E0E0E0 fore=-
Table1 0 2 back=E0E0E0 fore=-
Table1 0 3 back=E0E0E0 fore=-
Table1 0 4 back=E0E0E0 fore=-
Table1 1 2 back=FF0000 fore=FFFFFF
Table1 4 0 back=E0E0E0 fore=-
Table1 4 1 back=E0E0E0 fore=-
Table1 4 2 back=E0E0E0 fore=-
Table1 4 3 back=E0E0E0 fore=-
Table1 4 4 back=E0E0E0 fore=-
> escape
> colors Table1
Table1 0 0 back=E0E0E0 fore=-
Table1 0 1 back=E0E0E0 fore=-
Table1 0 2 back=E0E0E0 fore=-
Table1 0 3 back=E0E0E0 fore=-
Table1 0 4 back=E0E0E0 fore=-
Table1 1 2 back=cursor fore=cursor
Table1 4 0 back=E0E0E0 fore=-
Table1 4 1 back=E0E0E0 fore=-
Table1 4 2 back=E0E0E0 fore=-
Table1 4 3 back=E0E0E0 fore=-
Table1 4 4 back=E0E0E0 fore=-
# Nothing is open: Esc moves nothing.
> state
PanelState 1
CurrentRow 1
LastLine 2
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
TipsLabel "Program Mode."
Title "Brelvanor Quilla - Pgm1.baf"
MessageResult "1"
Boxes InstructionBox
> escape
> state
PanelState 1
CurrentRow 1
LastLine 2
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
TipsLabel "Program Mode."
Title "Brelvanor Quilla - Pgm1.baf"
MessageResult "1"
Boxes InstructionBox
# In data mode every task comes back to data mode.
> click EntryMode
> click FindVariable
> escape
> show DataBox
DataBox enabled=1 visible=1
> click DeleteLabels
> escape
> show DataBox
DataBox enabled=1 visible=1
> click NewOrigin
> escape
> click CommentsTool
> escape
> state
PanelState 29
CurrentRow 1
LastLine 2
Rows 33
FileOrigin 1
FileChanged 1
EntryPending 0
SelectionTop 1
SelectionBottom 1
PortOpen 0
AddressError 0
FileName "Pgm1.baf"
EntryMode "Program &Mode"
WriteModeLabel "Overwrite"
TipsLabel "Data Mode."
Title "Brelvanor Quilla - Pgm1.baf"
MessageResult "1"
Boxes DataBox
