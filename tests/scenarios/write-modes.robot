# Overwrite: the cursor walks onto the next line, whose content the next instruction replaces.
open OpenForm
closed OpenForm
> click INST 78
> click INST 79
> click INST 76
> cell Table1 1 2
> click INST 73
> click INST 72
> dump Table1 1
Table1 1 "" "" "EI" "FB" "Enable interrupts."
Table1 2 "" "" "DI" "F3" "Disable interrupts."
Table1 3 "" "" "STC" "37" "Set carry flag."
> state
PanelState 1
CurrentRow 3
LastLine 3
Rows 32
FileOrigin 1
FileChanged 1
EntryPending 0
SelectionTop 3
SelectionBottom 3
PortOpen 0
AddressError 0
FileName "Pgm1.baf"
EntryMode "Data &Mode"
WriteModeLabel "Overwrite"
TipsLabel "Program Mode."
Title "Brelvanor Quilla - Pgm1.baf"
MessageResult ""
Boxes InstructionBox
# Insert: a blank line opens at the cursor, then one under each line that is finished, and one
# wherever a mnemonic is clicked.
> click WriteMode
> dump Table1 1
Table1 1 "" "" "EI" "FB" "Enable interrupts."
Table1 2 "" "" "DI" "F3" "Disable interrupts."
Table1 4 "" "" "STC" "37" "Set carry flag."
> click INST 31
> click INST 32
> cell Table1 1 2
> click EntryMode
> key DataAcceptButton 0a
> enter
> click EntryMode
> dump Table1 1
Table1 1 "" "" "DFB" "0A" "Data Byte."
Table1 3 "" "" "EI" "FB" "Enable interrupts."
Table1 4 "" "" "DI" "F3" "Disable interrupts."
Table1 5 "" "" "RLC" "07" "Rotate Accumulator content left."
Table1 6 "" "" "RRC" "0F" "Rotate Accumulator content right."
Table1 8 "" "" "STC" "37" "Set carry flag."
> state
PanelState 1
CurrentRow 2
LastLine 8
Rows 37
FileOrigin 1
FileChanged 1
EntryPending 0
SelectionTop 2
SelectionBottom 2
PortOpen 0
AddressError 0
FileName "Pgm1.baf"
EntryMode "Data &Mode"
WriteModeLabel "Insert"
TipsLabel "Program Mode."
Title "Brelvanor Quilla - Pgm1.baf"
MessageResult ""
Boxes InstructionBox
# Going back moves nothing; within a task only the label changes.
> click WriteModeLabel
> click INST 0
> click WriteModeLabel
> show WriteModeLabel
WriteModeLabel caption="Insert" enabled=1 visible=1
> key RegisterBox bc
> click WriteModeLabel
> show WriteModeLabel
WriteModeLabel caption="Overwrite" enabled=1 visible=1
> dump Table1 1
Table1 1 "" "" "DFB" "0A" "Data Byte."
Table1 2 "" "" "MOV  B,  C" "41" "Move content of C-register into B-register."
Table1 4 "" "" "EI" "FB" "Enable interrupts."
Table1 5 "" "" "DI" "F3" "Disable interrupts."
Table1 6 "" "" "RLC" "07" "Rotate Accumulator content left."
Table1 7 "" "" "RRC" "0F" "Rotate Accumulator content right."
Table1 9 "" "" "STC" "37" "Set carry flag."
# The line above an origin: an origin is never stepped on, in either mode.
> click NewFile
box question "Save changes to Pgm1.baf?" yesnocancel -> cancel
> answer no
> click NewFile
box question "Save changes to Pgm1.baf?" yesnocancel -> no
> click INST 78
> click NewOrigin
> key NumberAcceptButton 9000
> enter
> cell Table1 1 2
> click INST 79
> dump Table1
Table1 0 "Origin" "8000" "" "" ""
Table1 1 "" "" "HLT" "76" "Halt program execution."
Table1 3 "Origin" "9000" "" "" ""
> cell Table1 3 2
> click INST 9
> dump Table1
Table1 0 "Origin" "8000" "" "" ""
Table1 1 "" "" "HLT" "76" "Halt program execution."
Table1 3 "" "" "XCHG" "EB" "Exchange content of DE & HL-register pairs."
Table1 5 "Origin" "9000" "" "" ""
