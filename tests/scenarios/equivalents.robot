# A program without strings has nothing to number, and the file does not count as changed.
open OpenForm
closed OpenForm
> click EqtOption
box information "No strings available." ok -> ok
> click OpenFile
dialog open "Open" "Brelvanor Assembler Files (*.baf)|*.baf" -> cancel
# With variables alone the dialog opens on their page. Enter accepts, digits come by key or mouse.
> click INST 1
> click REG 7
> type XXText count
> enter
> click INST 47
> type XXText port
> enter
> path eqt.baf
> click SaveFile
dialog save "Save As" "Brelvanor Assembler Files (*.baf)|*.baf" -> "eqt.baf"
> click EqtOption
open RenumberDialog
> show RenumberDialog.LabelsOption
RenumberDialog.LabelsOption checked=0 enabled=0 visible=1
> show RenumberDialog.VariablesOption
RenumberDialog.VariablesOption checked=1 enabled=1 visible=1
> show RenumberDialog.LabelFrame
RenumberDialog.LabelFrame enabled=1 visible=0
> show RenumberDialog.VariableFrame
RenumberDialog.VariableFrame enabled=1 visible=1
> show RenumberDialog.XXBox
RenumberDialog.XXBox enabled=1 visible=0
> click RenumberDialog.NUM 1
refused RenumberDialog.NUM hidden
> dump RenumberDialog.VariableTable
RenumberDialog.VariableTable 0 "Label" "Current" "New"
RenumberDialog.VariableTable 1 "count" "XX" "XX"
RenumberDialog.VariableTable 2 "port" "XX" "XX"
# Only a click on a name opens the box, and not the heading row's.
> cell RenumberDialog.VariableTable 1 1
> cell RenumberDialog.VariableTable 1 2
> cell RenumberDialog.VariableTable 0 0
> show RenumberDialog.XXBox
RenumberDialog.XXBox enabled=1 visible=0
> cell RenumberDialog.VariableTable 2 0
> show RenumberDialog.VariableLabel
RenumberDialog.VariableLabel caption="port" enabled=1 visible=1
> show RenumberDialog.XXLabel
RenumberDialog.XXLabel caption="00" enabled=1 visible=1
> show RenumberDialog.XXAcceptButton
RenumberDialog.XXAcceptButton caption="Accept" enabled=1 visible=1
> click RenumberDialog.NUM 15
> show RenumberDialog.XXLabel
RenumberDialog.XXLabel caption="0F" enabled=1 visible=1
> key RenumberDialog.XXAcceptButton 12aG.b
> show RenumberDialog.XXLabel
RenumberDialog.XXLabel caption="AB" enabled=1 visible=1
> enter
> show RenumberDialog.XXBox
RenumberDialog.XXBox enabled=1 visible=0
> show RenumberDialog.XXAcceptButton
RenumberDialog.XXAcceptButton caption="Accept" enabled=0 visible=0
> enter
refused RenumberDialog.XXAcceptButton disabled
> click RenumberDialog.NUM 1
refused RenumberDialog.NUM hidden
> dump RenumberDialog.VariableTable
RenumberDialog.VariableTable 0 "Label" "Current" "New"
RenumberDialog.VariableTable 1 "count" "XX" "XX"
RenumberDialog.VariableTable 2 "port" "XX" "AB"
# The edit starts from zero each time.
> cell RenumberDialog.VariableTable 2 0
> show RenumberDialog.XXLabel
RenumberDialog.XXLabel caption="00" enabled=1 visible=1
# The edits stay in the dialog's tables; the frame drops them, and the file counts as changed.
> dump Table1 1 2
Table1 1 "" "" "MVI  A,   count" "3E   XX" "Move the equivalent of 'count' into Accumulator."
Table1 2 "" "" "IN   port" "DB   XX" "Receive content from port address pointed by 'port' and store in Accumulator."
> list XXEqtList
XXEqtList 0 "XX"
XXEqtList 1 "XX"
> close RenumberDialog
closed RenumberDialog
> dump Table1 1 2
Table1 1 "" "" "MVI  A,   count" "3E   XX" "Move the equivalent of 'count' into Accumulator."
Table1 2 "" "" "IN   port" "DB   XX" "Receive content from port address pointed by 'port' and store in Accumulator."
> list XXEqtList
XXEqtList 0 "XX"
XXEqtList 1 "XX"
> state
PanelState 1
CurrentRow 3
LastLine 2
Rows 32
FileOrigin 3
FileChanged 1
EntryPending 0
SelectionTop 3
SelectionBottom 3
PortOpen 0
AddressError 0
FileName "eqt.baf"
EntryMode "Data &Mode"
WriteModeLabel "Overwrite"
TipsLabel "File Saved."
Title "Brelvanor Quilla - eqt.baf"
MessageResult "1"
Boxes InstructionBox
> click EqtOption
open RenumberDialog
> dump RenumberDialog.VariableTable
RenumberDialog.VariableTable 0 "Label" "Current" "New"
RenumberDialog.VariableTable 1 "count" "XX" "XX"
RenumberDialog.VariableTable 2 "port" "XX" "XX"
> show RenumberDialog.XXBox
RenumberDialog.XXBox enabled=1 visible=0
> cell RenumberDialog.VariableTable 1 0
> key RenumberDialog.XXAcceptButton 0f
> enter
> click RenumberDialog.DoneButton
closed RenumberDialog
> dump Table1 1 2
Table1 1 "" "" "MVI  A,   count" "3E   0F" "Move the equivalent of 'count' into Accumulator."
Table1 2 "" "" "IN   port" "DB   XX" "Receive content from port address pointed by 'port' and store in Accumulator."
> list XXEqtList
XXEqtList 0 "0F"
XXEqtList 1 "XX"
# Both kinds: labels first, and a page change keeps what is open on the other page.
> click INST 37
> type LabelText loop
> enter
> click INST 49
> type LabelText sub
> enter
> click INST 2
> click REG 4
> click ExistingLabelOption
> enter
> click INST 28
> click ExistingXXOption
> enter
> dump Table1 3 6
Table1 3 "" "" "JMP  loop" "C3   XX   XX" "Jump to address pointed by 'loop'."
Table1 4 "" "" "CALL  sub" "CD   XX   XX" "Call sub-routine pointed by 'sub'."
Table1 5 "" "" "LXI  H,  loop" "21   XX   XX" "Load the equivalent of 'loop' into HL-register pair."
Table1 6 "" "" "XRI   count" "EE   0F" "XOR the equivalent of 'count' with content of Accumulator."
> click EqtOption
open RenumberDialog
> show RenumberDialog.LabelsOption
RenumberDialog.LabelsOption checked=1 enabled=1 visible=1
> show RenumberDialog.LabelFrame
RenumberDialog.LabelFrame enabled=1 visible=1
> show RenumberDialog.VariableFrame
RenumberDialog.VariableFrame enabled=1 visible=0
> dump RenumberDialog.LabelTable
RenumberDialog.LabelTable 0 "Label" "Current" "New"
RenumberDialog.LabelTable 1 "loop" "XXXX" "XXXX"
RenumberDialog.LabelTable 2 "sub" "XXXX" "XXXX"
> cell RenumberDialog.VariableTable 1 0
refused RenumberDialog.VariableTable hidden
> cell RenumberDialog.LabelTable 1 0
> key RenumberDialog.EqtAcceptButton 12345
> show RenumberDialog.EqtLabel
RenumberDialog.EqtLabel caption="2345" enabled=1 visible=1
> click RenumberDialog.VariablesOption
> show RenumberDialog.LabelsOption
RenumberDialog.LabelsOption checked=0 enabled=1 visible=1
> show RenumberDialog.VariablesOption
RenumberDialog.VariablesOption checked=1 enabled=1 visible=1
> show RenumberDialog.NUM 3
RenumberDialog.NUM 3 caption="3" enabled=1 visible=0
> cell RenumberDialog.VariableTable 2 0
> click RenumberDialog.NUM 7
> click RenumberDialog.NUM 8
> show RenumberDialog.XXLabel
RenumberDialog.XXLabel caption="78" enabled=1 visible=1
> click RenumberDialog.LabelsOption
> show RenumberDialog.EqtLabel
RenumberDialog.EqtLabel caption="2345" enabled=1 visible=1
> click RenumberDialog.NUM 10
> show RenumberDialog.EqtLabel
RenumberDialog.EqtLabel caption="345A" enabled=1 visible=1
> click RenumberDialog.EqtAcceptButton
> click RenumberDialog.VariablesOption
> show RenumberDialog.XXLabel
RenumberDialog.XXLabel caption="78" enabled=1 visible=1
> click RenumberDialog.XXAcceptButton
> dump RenumberDialog.LabelTable
RenumberDialog.LabelTable 0 "Label" "Current" "New"
RenumberDialog.LabelTable 1 "loop" "XXXX" "345A"
RenumberDialog.LabelTable 2 "sub" "XXXX" "XXXX"
> dump RenumberDialog.VariableTable
RenumberDialog.VariableTable 0 "Label" "Current" "New"
RenumberDialog.VariableTable 1 "count" "0F" "0F"
RenumberDialog.VariableTable 2 "port" "XX" "78"
# The number goes to the row that is current when it is accepted.
> click RenumberDialog.LabelsOption
> cell RenumberDialog.LabelTable 1 0
> key RenumberDialog.EqtAcceptButton 8010
> cell RenumberDialog.LabelTable 2 1
> show RenumberDialog.LabelLabel
RenumberDialog.LabelLabel caption="loop" enabled=1 visible=1
> enter
> dump RenumberDialog.LabelTable
RenumberDialog.LabelTable 0 "Label" "Current" "New"
RenumberDialog.LabelTable 1 "loop" "XXXX" "345A"
RenumberDialog.LabelTable 2 "sub" "XXXX" "8010"
# The panel waits behind the dialog, which Esc does not close. Done rewrites all rows of a string.
> click INST 78
refused INST modal
> cell Table1 1 2
refused Table1 modal
> close ProgrammingPanel
refused ProgrammingPanel modal
> escape
> click RenumberDialog.DoneButton
closed RenumberDialog
> dump Table1 1 6
Table1 1 "" "" "MVI  A,   count" "3E   0F" "Move the equivalent of 'count' into Accumulator."
Table1 2 "" "" "IN   port" "DB   78" "Receive content from port address pointed by 'port' and store in Accumulator."
Table1 3 "" "" "JMP  loop" "C3   5A   34" "Jump to address pointed by 'loop'."
Table1 4 "" "" "CALL  sub" "CD   10   80" "Call sub-routine pointed by 'sub'."
Table1 5 "" "" "LXI  H,  loop" "21   5A   34" "Load the equivalent of 'loop' into HL-register pair."
Table1 6 "" "" "XRI   count" "EE   0F" "XOR the equivalent of 'count' with content of Accumulator."
> list LabelEqtList
LabelEqtList 0 "345A"
LabelEqtList 1 "8010"
> list XXEqtList
XXEqtList 0 "0F"
XXEqtList 1 "78"
# Strings that did not change keep rows that differ from them.
> click EntryMode
> cell Table1 3 2
> key DataAcceptButton 99
> enter
> click EntryMode
> click EqtOption
open RenumberDialog
> click RenumberDialog.DoneButton
closed RenumberDialog
> dump Table1 3 3
Table1 3 "" "" "DFB" "99" "Data Byte."
> click EqtOption
open RenumberDialog
> cell RenumberDialog.LabelTable 1 0
> key RenumberDialog.EqtAcceptButton 00c0
> enter
> click RenumberDialog.DoneButton
closed RenumberDialog
> dump Table1 3 5
Table1 3 "" "" "DFB" "99   C0   00" "Data Byte."
Table1 4 "" "" "CALL  sub" "CD   10   80" "Call sub-routine pointed by 'sub'."
Table1 5 "" "" "LXI  H,  loop" "21   C0   00" "Load the equivalent of 'loop' into HL-register pair."
# A label that stands on a row gets its address over the number that was typed.
> click PlaceLabelTool
> cell Table1 5 0
> click ExistingPlaceOption
> enter
> click PlaceDoneButton
> click AssignAddress
> settle
> list LabelEqtList
LabelEqtList 0 "800A"
LabelEqtList 1 "8010"
> dump Table1 3 5
Table1 3 "" "8004" "DFB" "99   0A   80" "Data Byte."
Table1 4 "" "8007" "CALL  sub" "CD   10   80" "Call sub-routine pointed by 'sub'."
Table1 5 "loop" "800A" "LXI  H,  loop" "21   0A   80" "Load the equivalent of 'loop' into HL-register pair."
# Timers do not wait: addresses assigned behind the dialog give way to what its table holds.
> click EqtOption
open RenumberDialog
> cell RenumberDialog.LabelTable 1 0
> key RenumberDialog.EqtAcceptButton 1122
> enter
> click RenumberDialog.DoneButton
closed RenumberDialog
> click AssignAddress
> click EqtOption
open RenumberDialog
> dump RenumberDialog.LabelTable
RenumberDialog.LabelTable 0 "Label" "Current" "New"
RenumberDialog.LabelTable 1 "loop" "1122" "1122"
RenumberDialog.LabelTable 2 "sub" "8010" "8010"
> settle
> dump RenumberDialog.LabelTable
RenumberDialog.LabelTable 0 "Label" "Current" "New"
RenumberDialog.LabelTable 1 "loop" "1122" "1122"
RenumberDialog.LabelTable 2 "sub" "8010" "8010"
> list LabelEqtList
LabelEqtList 0 "800A"
LabelEqtList 1 "8010"
> dump Table1 5 5
Table1 5 "loop" "800A" "LXI  H,  loop" "21   0A   80" "Load the equivalent of 'loop' into HL-register pair."
> click RenumberDialog.DoneButton
closed RenumberDialog
> list LabelEqtList
LabelEqtList 0 "1122"
LabelEqtList 1 "8010"
> dump Table1 5 5
Table1 5 "loop" "800A" "LXI  H,  loop" "21   22   11" "Load the equivalent of 'loop' into HL-register pair."
