# In Overwrite mode a click only moves the cursor; on the last row and on an origin it opens a line.
open OpenForm
closed OpenForm
> click NewOrigin
> key NumberAcceptButton 9000
> enter
> click INST 58
> click INST 79
> dump Table1
Table1 0 "Origin" "8000" "" "" ""
Table1 1 "Origin" "9000" "" "" ""
Table1 2 "" "" "RET" "C9" "Return."
Table1 3 "" "" "HLT" "76" "Halt program execution."
> state
PanelState 1
CurrentRow 4
LastLine 5
Rows 33
FileOrigin 1
FileChanged 1
EntryPending 0
SelectionTop 4
SelectionBottom 4
PortOpen 0
AddressError 0
FileName "Pgm1.baf"
EntryMode "Data &Mode"
WriteModeLabel "Overwrite"
TipsLabel "Program Mode."
Title "Brelvanor Quilla - Pgm1.baf"
MessageResult ""
Boxes InstructionBox
> cell Table1 1 2
> dump Table1
Table1 0 "Origin" "8000" "" "" ""
Table1 2 "Origin" "9000" "" "" ""
Table1 3 "" "" "RET" "C9" "Return."
Table1 4 "" "" "HLT" "76" "Halt program execution."
> colors Table1
Table1 0 0 back=E0E0E0 fore=-
Table1 0 1 back=E0E0E0 fore=-
Table1 0 2 back=E0E0E0 fore=-
Table1 0 3 back=E0E0E0 fore=-
Table1 0 4 back=E0E0E0 fore=-
Table1 1 2 back=cursor fore=cursor
Table1 2 0 back=E0E0E0 fore=-
Table1 2 1 back=E0E0E0 fore=-
Table1 2 2 back=E0E0E0 fore=-
Table1 2 3 back=E0E0E0 fore=-
Table1 2 4 back=E0E0E0 fore=-
> cell Table1 33 2
> state
PanelState 1
CurrentRow 33
LastLine 7
Rows 43
FileOrigin 1
FileChanged 1
EntryPending 0
SelectionTop 33
SelectionBottom 33
PortOpen 0
AddressError 0
FileName "Pgm1.baf"
EntryMode "Data &Mode"
WriteModeLabel "Overwrite"
TipsLabel "Program Mode."
Title "Brelvanor Quilla - Pgm1.baf"
MessageResult ""
Boxes InstructionBox
# Going over to Insert opens a line at the cursor, going back moves nothing.
> click WriteMode
> show WriteModeLabel
WriteModeLabel caption="Insert" enabled=1 visible=1
> state
PanelState 1
CurrentRow 33
LastLine 8
Rows 44
FileOrigin 1
FileChanged 1
EntryPending 0
SelectionTop 33
SelectionBottom 33
PortOpen 0
AddressError 0
FileName "Pgm1.baf"
EntryMode "Data &Mode"
WriteModeLabel "Insert"
TipsLabel "Program Mode."
Title "Brelvanor Quilla - Pgm1.baf"
MessageResult ""
Boxes InstructionBox
> click WriteMode
> show WriteModeLabel
WriteModeLabel caption="Overwrite" enabled=1 visible=1
> cell Table1 4 2
> click WriteModeLabel
> dump Table1
Table1 0 "Origin" "8000" "" "" ""
Table1 2 "Origin" "9000" "" "" ""
Table1 3 "" "" "RET" "C9" "Return."
Table1 5 "" "" "HLT" "76" "Halt program execution."
> state
PanelState 1
CurrentRow 4
LastLine 9
Rows 45
FileOrigin 1
FileChanged 1
EntryPending 0
SelectionTop 4
SelectionBottom 4
PortOpen 0
AddressError 0
FileName "Pgm1.baf"
EntryMode "Data &Mode"
WriteModeLabel "Insert"
TipsLabel "Program Mode."
Title "Brelvanor Quilla - Pgm1.baf"
MessageResult ""
Boxes InstructionBox
# In Insert mode every click on a mnemonic opens a line there, except on row 0.
> cell Table1 3 2
> cell Table1 6 2
> dump Table1
Table1 0 "Origin" "8000" "" "" ""
Table1 2 "Origin" "9000" "" "" ""
Table1 4 "" "" "RET" "C9" "Return."
Table1 7 "" "" "HLT" "76" "Halt program execution."
> cell Table1 0 2
> state
PanelState 1
CurrentRow 1
LastLine 11
Rows 47
FileOrigin 1
FileChanged 1
EntryPending 0
SelectionTop 1
SelectionBottom 1
PortOpen 0
AddressError 0
FileName "Pgm1.baf"
EntryMode "Data &Mode"
WriteModeLabel "Insert"
TipsLabel "Program Mode."
Title "Brelvanor Quilla - Pgm1.baf"
MessageResult ""
Boxes InstructionBox
# A finished instruction opens the next line.
> cell Table1 3 2
> click INST 74
> click INST 75
> dump Table1
Table1 0 "Origin" "8000" "" "" ""
Table1 2 "Origin" "9000" "" "" ""
Table1 3 "" "" "RIM" "20" "Reset interrupt mask."
Table1 4 "" "" "SIM" "30" "Set interrupt mask."
Table1 7 "" "" "RET" "C9" "Return."
Table1 10 "" "" "HLT" "76" "Halt program execution."
# An origin in Insert mode, and a drag, which opens none.
> cell Table1 2 2
> drag Table1 3 2 6 2
> dump Table1 0 5
Table1 0 "Origin" "8000" "" "" ""
Table1 3 "Origin" "9000" "" "" ""
Table1 4 "" "" "RIM" "20" "Reset interrupt mask."
Table1 5 "" "" "SIM" "30" "Set interrupt mask."
> state
PanelState 1
CurrentRow 2
LastLine 15
Rows 51
FileOrigin 1
FileChanged 1
EntryPending 0
SelectionTop 3
SelectionBottom 6
PortOpen 0
AddressError 0
FileName "Pgm1.baf"
EntryMode "Data &Mode"
WriteModeLabel "Insert"
TipsLabel "Program Mode."
Title "Brelvanor Quilla - Pgm1.baf"
MessageResult ""
Boxes InstructionBox
# While another task is open only the mode changes.
> click INST 10
> click WriteModeLabel
> show WriteModeLabel
WriteModeLabel caption="Overwrite" enabled=1 visible=1
> click WriteMode
> show WriteModeLabel
WriteModeLabel caption="Insert" enabled=1 visible=1
> state
PanelState 3
CurrentRow 2
LastLine 15
Rows 51
FileOrigin 1
FileChanged 1
EntryPending 1
SelectionTop 3
SelectionBottom 6
PortOpen 0
AddressError 0
FileName "Pgm1.baf"
EntryMode "Data &Mode"
WriteModeLabel "Insert"
TipsLabel "Select Register or Memory."
Title "Brelvanor Quilla - Pgm1.baf"
MessageResult ""
Boxes RegisterBox
> escape
> click WriteMode
# In data mode the line opens at once, too.
> click EntryMode
> cell Table1 9 2
> click WriteMode
> dump Table1
Table1 0 "Origin" "8000" "" "" ""
Table1 3 "Origin" "9000" "" "" ""
Table1 4 "" "" "RIM" "20" "Reset interrupt mask."
Table1 5 "" "" "SIM" "30" "Set interrupt mask."
Table1 8 "" "" "RET" "C9" "Return."
Table1 12 "" "" "HLT" "76" "Halt program execution."
> state
PanelState 29
CurrentRow 9
LastLine 16
Rows 52
FileOrigin 1
FileChanged 1
EntryPending 0
SelectionTop 9
SelectionBottom 9
PortOpen 0
AddressError 0
FileName "Pgm1.baf"
EntryMode "Program &Mode"
WriteModeLabel "Insert"
TipsLabel "Data Mode."
Title "Brelvanor Quilla - Pgm1.baf"
MessageResult ""
Boxes DataBox
> key DataAcceptButton ab
> enter
> dump Table1 8 12
Table1 8 "" "" "RET" "C9" "Return."
Table1 9 "" "" "DFB" "AB" "Data Byte."
# A new file is in Overwrite mode again.
> answer no
> click NewFile
box question "Save changes to Pgm1.baf?" yesnocancel -> no
> show WriteModeLabel
WriteModeLabel caption="Overwrite" enabled=1 visible=1
