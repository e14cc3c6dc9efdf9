# Keys that do not fit are disabled, and as key presses they do nothing: pairs.
open OpenForm
closed OpenForm
> click INST 14
> show RegisterLabel
RegisterLabel caption="" enabled=1 visible=1
> key RegisterBox acelmpxz1
> click REG 1
refused REG disabled
> click REG 7
refused REG disabled
> click REG 9
refused REG disabled
> dump Table1 1
Table1 1 "" "" "DAD" "" ""
> key RegisterBox S
> click INST 68
> key RegisterBox acelms
> click REG 8
refused REG disabled
> key RegisterBox P
> click INST 3
> key RegisterBox hsp
> click REG 4
refused REG disabled
> click REG 2
> click INST 2
> click REG 9
refused REG disabled
> key RegisterBox cs
> escape
# Single registers; there is no MOV M, M, but M may be moved elsewhere.
> click INST 10
> key RegisterBox sp
> click REG 8
refused REG disabled
> key RegisterBox a
> click INST 0
> click REG 9
refused REG disabled
> key RegisterBox mm
> click REG 6
refused REG disabled
> show REG 7
REG 7 caption="A" enabled=1 visible=1
> key RegisterBox L
> click INST 0
> click REG 7
> show REG 6
REG 6 caption="M" enabled=1 visible=1
> click REG 6
> dump Table1
Table1 0 "Origin" "8000" "" "" ""
Table1 1 "" "" "DAD  SP" "39" "Add content of stack pointer to content of HL-register pair."
Table1 2 "" "" "PUSH  PSW" "F5" "Store content of Accumulator and flag register in top of stack."
Table1 3 "" "" "LDAX  D" "1A" "Load Accumulator with content in address pointed by DE-register pair."
Table1 4 "" "" "ADD  A" "87" "Add content of Accumulator to content of Accumulator."
Table1 5 "" "" "MOV  M,  L" "75" "Move content of L-register into address pointed by HL-register pair."
Table1 6 "" "" "MOV  A,  M" "7E" "Move content of address pointed by HL-register pair into Accumulator."
# The number of RST: only the keys 0 to 7, no accepting.
> click INST 67
> show DataTypeLabel
DataTypeLabel caption="Number" enabled=1 visible=1
> show NumberLabel
NumberLabel caption="" enabled=1 visible=1
> click NUM 8
refused NUM disabled
> click NumberAcceptButton
refused NumberAcceptButton disabled
> key NumberAcceptButton 3
refused NumberAcceptButton disabled
> key NumberFocusButton 89afx
> hover NUM 5
> show NumberLabel
NumberLabel caption="5" enabled=1 visible=1
> enter
refused LabelAcceptButton disabled
> click NUM 5
> show NumberBox
NumberBox enabled=1 visible=0
# Hints: the name and its operand forms, until the pointer is elsewhere.
> hover INST 9
> show InstructionLabel 0
InstructionLabel 0 caption="XCHG" enabled=1 visible=1
> show InstructionLabel 1
InstructionLabel 1 caption=" " enabled=1 visible=1
> hover Table1 0 0
> show InstructionLabel 0
InstructionLabel 0 caption="" enabled=1 visible=1
> show InstructionLabel 1
InstructionLabel 1 caption="" enabled=1 visible=1
> hover INST 79
> show InstructionLabel 0
InstructionLabel 0 caption="HLT" enabled=1 visible=1
> hover ProgrammingPanel
> show InstructionLabel 0
InstructionLabel 0 caption="" enabled=1 visible=1
> click INST 20
> hover REG 6
> show RegisterLabel
RegisterLabel caption="M" enabled=1 visible=1
> hover ProgrammingPanel
> show RegisterLabel
RegisterLabel caption="" enabled=1 visible=1
> click REG 3
# Esc gives back what the row held, at every stage of an entry, but never its label.
> click PlaceLabelTool
> cell Table1 1 0
> type PlaceText here
> enter
> escape
> click INST 37
> type LabelText here
> enter
box critical "String already used as Label or Variable. Please enter another label." ok -> ok
> click ExistingLabelOption
> enter
> dump Table1 10 10
> cell Table1 10 2
> click INST 0
> key RegisterBox b
> dump Table1 10 10
Table1 10 "" "" "MOV  B," "" ""
> escape
> dump Table1 10 10
> dump StringTable
StringTable 9 "here"
> click INST 1
> click REG 0
> state
PanelState 15
CurrentRow 10
LastLine 8
Rows 32
FileOrigin 1
FileChanged 1
EntryPending 1
SelectionTop 10
SelectionBottom 10
PortOpen 0
AddressError 0
FileName "Pgm1.baf"
EntryMode "Data &Mode"
WriteModeLabel "Overwrite"
TipsLabel "Enter 8-bit number and click 'Accept'."
Title "Brelvanor Quilla - Pgm1.baf"
MessageResult "1"
Boxes XXBox
> escape
> dump Table1 10 10
> state
PanelState 1
CurrentRow 10
LastLine 8
Rows 32
FileOrigin 1
FileChanged 1
EntryPending 0
SelectionTop 10
SelectionBottom 10
PortOpen 0
AddressError 0
FileName "Pgm1.baf"
EntryMode "Data &Mode"
WriteModeLabel "Overwrite"
TipsLabel "Program Mode."
Title "Brelvanor Quilla - Pgm1.baf"
MessageResult "1"
Boxes InstructionBox
