# Without variables both commands tell so and come back.
open OpenForm
closed OpenForm
> click FindVariable
box information "No variables used in program." ok -> ok
> click ReplaceVariable
box information "No variables used in program." ok -> ok
> state
PanelState 1
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
TipsLabel "Program Mode."
Title "Brelvanor Quilla - Pgm1.baf"
MessageResult "1"
Boxes InstructionBox
# Variables, one of them not in use, and a label.
> click INST 1
> click REG 7
> type XXText count
> enter
> click INST 15
> click ExistingXXOption
> enter
> click INST 48
> type XXText port
> enter
> click INST 37
> type LabelText loop
> enter
> click INST 27
> type XXText mask
> enter
> cell Table1 5 2
> click DeleteEdit
> click EqtOption
open RenumberDialog
> click RenumberDialog.VariablesOption
> cell RenumberDialog.VariableTable 1 0
> key RenumberDialog.XXAcceptButton 05
> enter
> click RenumberDialog.DoneButton
closed RenumberDialog
> dump Table1
Table1 0 "Origin" "8000" "" "" ""
Table1 1 "" "" "MVI  A,   count" "3E   05" "Move the equivalent of 'count' into Accumulator."
Table1 2 "" "" "ADI   count" "C6   05" "Add the equivalent of 'count' to content of Accumulator."
Table1 3 "" "" "OUT   port" "D3   XX" "Send content of Accumulator to port address pointed by 'port'."
Table1 4 "" "" "JMP  loop" "C3   XX   XX" "Jump to address pointed by 'loop'."
> list XXCombo
XXCombo 0 "count"
XXCombo 1 "port"
XXCombo 2 "mask"
# The find box: only the list is live.
> click FindVariable
> state
PanelState 32
CurrentRow 5
LastLine 5
Rows 31
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
TipsLabel "Select a Variable from list and Click 'Find', or Click 'Done' to close."
Title "Brelvanor Quilla - Pgm1.baf"
MessageResult "1"
Boxes XXBox
> show NewXXOption
NewXXOption checked=1 enabled=0 visible=1
> show ExistingXXOption
ExistingXXOption checked=0 enabled=0 visible=1
> show XXText
XXText text="mask" enabled=0 visible=1
> show XXCombo
XXCombo text="count" index=0 count=3 enabled=1 visible=1
> show XXAcceptButton
XXAcceptButton caption="Accept" enabled=1 visible=0
> show XXReplaceButton
XXReplaceButton caption="&Replace" enabled=1 visible=0
> show XXFindButton
XXFindButton caption="&Find" enabled=1 visible=1
> enter
box information "The variable 'count' is used 2 times in the program." ok -> ok
> show TipsLabel
TipsLabel caption="Completed searching for 'count'." enabled=1 visible=1
> colors Table1
Table1 0 0 back=E0E0E0 fore=-
Table1 0 1 back=E0E0E0 fore=-
Table1 0 2 back=E0E0E0 fore=-
Table1 0 3 back=E0E0E0 fore=-
Table1 0 4 back=E0E0E0 fore=-
Table1 1 2 back=FF0000 fore=FFFFFF
Table1 2 2 back=FF0000 fore=FFFFFF
Table1 5 2 back=cursor fore=cursor
> pick XXCombo 1
> click XXFindButton
box information "The variable 'port' is used 1 time in the program." ok -> ok
> colors Table1
Table1 0 0 back=E0E0E0 fore=-
Table1 0 1 back=E0E0E0 fore=-
Table1 0 2 back=E0E0E0 fore=-
Table1 0 3 back=E0E0E0 fore=-
Table1 0 4 back=E0E0E0 fore=-
Table1 3 2 back=FF0000 fore=FFFFFF
Table1 5 2 back=cursor fore=cursor
> pick XXCombo 2
> click XXFindButton
box information "The variable 'mask' is not used in the program." ok -> ok
> colors Table1
Table1 0 0 back=E0E0E0 fore=-
Table1 0 1 back=E0E0E0 fore=-
Table1 0 2 back=E0E0E0 fore=-
Table1 0 3 back=E0E0E0 fore=-
Table1 0 4 back=E0E0E0 fore=-
Table1 5 2 back=cursor fore=cursor
# Done takes the marks off; so does Esc.
> click XXDoneButton
> state
PanelState 1
CurrentRow 5
LastLine 5
Rows 31
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
MessageResult "1"
Boxes InstructionBox
> click FindVariable
> enter
box information "The variable 'count' is used 2 times in the program." ok -> ok
> escape
> colors Table1
Table1 0 0 back=E0E0E0 fore=-
Table1 0 1 back=E0E0E0 fore=-
Table1 0 2 back=E0E0E0 fore=-
Table1 0 3 back=E0E0E0 fore=-
Table1 0 4 back=E0E0E0 fore=-
Table1 5 2 back=cursor fore=cursor
# The replace box: candidates are the operands of two-byte rows. A good name alone enables Replace.
> click ReplaceVariable
> state
PanelState 33
CurrentRow 5
LastLine 5
Rows 31
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
TipsLabel ""
Title "Brelvanor Quilla - Pgm1.baf"
MessageResult "1"
Boxes XXBox
> show NewXXOption
NewXXOption checked=1 enabled=1 visible=1
> show XXCombo
XXCombo text="count" index=0 count=3 enabled=0 visible=1
> show XXFindButton
XXFindButton caption="&Find" enabled=1 visible=0
> show XXReplaceButton
XXReplaceButton caption="&Replace" enabled=0 visible=1
> colors Table1
Table1 0 0 back=E0E0E0 fore=-
Table1 0 1 back=E0E0E0 fore=-
Table1 0 2 back=E0E0E0 fore=-
Table1 0 3 back=E0E0E0 fore=-
Table1 0 4 back=E0E0E0 fore=-
Table1 1 2 back=0000FF fore=FFFFFF
Table1 2 2 back=0000FF fore=FFFFFF
Table1 3 2 back=0000FF fore=FFFFFF
Table1 5 2 back=cursor fore=cursor
> type XXText 9x
> show XXReplaceButton
XXReplaceButton caption="&Replace" enabled=0 visible=1
> clear XXText
> type XXText total
> show XXReplaceButton
XXReplaceButton caption="&Replace" enabled=1 visible=1
# Clicks select; the operand of a label can be selected first, a label not.
> cell Table1 4 2
> colors Table1
Table1 0 0 back=E0E0E0 fore=-
Table1 0 1 back=E0E0E0 fore=-
Table1 0 2 back=E0E0E0 fore=-
Table1 0 3 back=E0E0E0 fore=-
Table1 0 4 back=E0E0E0 fore=-
Table1 1 2 back=0000FF fore=FFFFFF
Table1 2 2 back=0000FF fore=FFFFFF
Table1 3 2 back=0000FF fore=FFFFFF
Table1 4 2 back=00FF00 fore=000000
Table1 5 2 back=cursor fore=cursor
> state
PanelState 34
CurrentRow 5
LastLine 5
Rows 31
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
TipsLabel ""
Title "Brelvanor Quilla - Pgm1.baf"
MessageResult "1"
Boxes XXBox
> cell Table1 4 2
> cell Table1 1 2
> cell Table1 1 0
> cell Table1 2 2
> cell Table1 2 2
> cell Table1 0 0
> colors Table1
Table1 0 0 back=E0E0E0 fore=-
Table1 0 1 back=E0E0E0 fore=-
Table1 0 2 back=E0E0E0 fore=-
Table1 0 3 back=E0E0E0 fore=-
Table1 0 4 back=E0E0E0 fore=-
Table1 1 2 back=00FF00 fore=000000
Table1 2 2 back=0000FF fore=FFFFFF
Table1 3 2 back=0000FF fore=FFFFFF
Table1 4 2 back=0000FF fore=FFFFFF
Table1 5 2 back=cursor fore=cursor
# A new name: it is listed without an equivalent.
> enter
> dump Table1
Table1 0 "Origin" "8000" "" "" ""
Table1 1 "" "" "MVI  A,   total" "3E   XX" "Move the equivalent of 'total' into Accumulator."
Table1 2 "" "" "ADI   count" "C6   05" "Add the equivalent of 'count' to content of Accumulator."
Table1 3 "" "" "OUT   port" "D3   XX" "Send content of Accumulator to port address pointed by 'port'."
Table1 4 "" "" "JMP  loop" "C3   XX   XX" "Jump to address pointed by 'loop'."
> dump StringTable
StringTable 1 "total"
StringTable 2 "count"
StringTable 3 "port"
StringTable 4 "loop"
> list XXCombo
XXCombo 0 "count"
XXCombo 1 "port"
XXCombo 2 "mask"
XXCombo 3 "total"
> list XXEqtList
XXEqtList 0 "05"
XXEqtList 1 "XX"
XXEqtList 2 "XX"
XXEqtList 3 "XX"
> state
PanelState 33
CurrentRow 5
LastLine 5
Rows 31
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
TipsLabel ""
Title "Brelvanor Quilla - Pgm1.baf"
MessageResult "1"
Boxes XXBox
> colors Table1
Table1 0 0 back=E0E0E0 fore=-
Table1 0 1 back=E0E0E0 fore=-
Table1 0 2 back=E0E0E0 fore=-
Table1 0 3 back=E0E0E0 fore=-
Table1 0 4 back=E0E0E0 fore=-
Table1 1 2 back=0000FF fore=FFFFFF
Table1 2 2 back=0000FF fore=FFFFFF
Table1 3 2 back=0000FF fore=FFFFFF
Table1 4 2 back=0000FF fore=FFFFFF
Table1 5 2 back=cursor fore=cursor
# A name that is a variable already is refused, that of a label is not.
> cell Table1 3 2
> type XXText count
> enter
box critical "String already present as Label or Variable. Please enter another label." ok -> ok
> show XXText
XXText text="" enabled=1 visible=1
> colors Table1
Table1 0 0 back=E0E0E0 fore=-
Table1 0 1 back=E0E0E0 fore=-
Table1 0 2 back=E0E0E0 fore=-
Table1 0 3 back=E0E0E0 fore=-
Table1 0 4 back=E0E0E0 fore=-
Table1 1 2 back=0000FF fore=FFFFFF
Table1 2 2 back=0000FF fore=FFFFFF
Table1 3 2 back=00FF00 fore=000000
Table1 4 2 back=0000FF fore=FFFFFF
Table1 5 2 back=cursor fore=cursor
> type XXText loop
> enter
> dump Table1 3 3
Table1 3 "" "" "OUT   loop" "D3   XX" "Send content of Accumulator to port address pointed by 'loop'."
> list XXCombo
XXCombo 0 "count"
XXCombo 1 "port"
XXCombo 2 "mask"
XXCombo 3 "total"
XXCombo 4 "loop"
# A known name brings its equivalent along.
> cell Table1 3 2
> click ExistingXXOption
> show XXReplaceButton
XXReplaceButton caption="&Replace" enabled=1 visible=1
> show XXText
XXText text="" enabled=0 visible=1
> enter
> dump Table1 3 3
Table1 3 "" "" "OUT   count" "D3   05" "Send content of Accumulator to port address pointed by 'count'."
# Back to a new name, Replace waits for it.
> click ExistingXXOption
> click NewXXOption
> show XXReplaceButton
XXReplaceButton caption="&Replace" enabled=0 visible=1
> show XXAcceptButton
XXAcceptButton caption="Accept" enabled=0 visible=0
# A label's operand that is selected becomes a variable's. Nothing selected still lists the name.
> cell Table1 4 2
> type XXText low
> enter
> dump Table1 4 4
Table1 4 "" "" "JMP  low" "C3   XX" "Jump to address pointed by 'low'."
> type XXText idle
> enter
> list XXCombo
XXCombo 0 "count"
XXCombo 1 "port"
XXCombo 2 "mask"
XXCombo 3 "total"
XXCombo 4 "loop"
XXCombo 5 "low"
XXCombo 6 "idle"
> list XXEqtList
XXEqtList 0 "05"
XXEqtList 1 "XX"
XXEqtList 2 "XX"
XXEqtList 3 "XX"
XXEqtList 4 "XX"
XXEqtList 5 "XX"
XXEqtList 6 "XX"
> escape
> colors Table1
Table1 0 0 back=E0E0E0 fore=-
Table1 0 1 back=E0E0E0 fore=-
Table1 0 2 back=E0E0E0 fore=-
Table1 0 3 back=E0E0E0 fore=-
Table1 0 4 back=E0E0E0 fore=-
Table1 5 2 back=cursor fore=cursor
# Opening it alone changes nothing, replacing does.
> path vars.baf
> click SaveFile
dialog save "Save As" "Brelvanor Assembler Files (*.baf)|*.baf" -> "vars.baf"
> click ReplaceVariable
> click XXDoneButton
> click OpenFile
dialog open "Open" "Brelvanor Assembler Files (*.baf)|*.baf" -> cancel
> click ReplaceVariable
> click ExistingXXOption
> enter
> click XXDoneButton
> click OpenFile
box question "Save changes to vars.baf?" yesnocancel -> cancel
# With no row in use left there is nothing to replace; the list can be searched still.
> drag Table1 1 2 4 2
> click DeleteEdit
> click ReplaceVariable
box information "No variables used in program." ok -> ok
> show XXBox
XXBox enabled=1 visible=0
> click FindVariable
> enter
box information "The variable 'count' is not used in the program." ok -> ok
> click XXDoneButton
# In data mode the tools end in data mode.
> click EntryMode
> click ReplaceVariable
box information "No variables used in program." ok -> ok
> click FindVariable
> click XXDoneButton
> show DataBox
DataBox enabled=1 visible=1
