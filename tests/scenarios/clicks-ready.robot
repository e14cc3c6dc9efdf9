# On a new table only the Mnemonics column answers a click.
open OpenForm
closed OpenForm
> cell Table1 3 0
> cell Table1 3 1
> cell Table1 3 3
> cell Table1 3 4
> cell Table1 0 1
> cell Table1 0 3
> cell Table1 0 4
> colors Table1
Table1 0 0 back=E0E0E0 fore=-
Table1 0 1 back=E0E0E0 fore=-
Table1 0 2 back=E0E0E0 fore=-
Table1 0 3 back=E0E0E0 fore=-
Table1 0 4 back=E0E0E0 fore=-
Table1 1 2 back=cursor fore=cursor
# A click on a mnemonic moves the cursor; on row 0 it moves to row 1.
> cell Table1 5 2
> colors Table1
Table1 0 0 back=E0E0E0 fore=-
Table1 0 1 back=E0E0E0 fore=-
Table1 0 2 back=E0E0E0 fore=-
Table1 0 3 back=E0E0E0 fore=-
Table1 0 4 back=E0E0E0 fore=-
Table1 5 2 back=cursor fore=cursor
> cell Table1 0 2
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
TipsLabel "New File."
Title "Brelvanor Quilla - Pgm1.baf"
MessageResult ""
Boxes InstructionBox
# A press on row 0 counts as one on row 1, so a drag from there to row 1 is a plain click.
> cell Table1 4 2
> drag Table1 0 2 1 2
> colors Table1
Table1 0 0 back=E0E0E0 fore=-
Table1 0 1 back=E0E0E0 fore=-
Table1 0 2 back=E0E0E0 fore=-
Table1 0 3 back=E0E0E0 fore=-
Table1 0 4 back=E0E0E0 fore=-
Table1 1 2 back=cursor fore=cursor
> drag Table1 0 2 4 2
> state
PanelState 1
CurrentRow 1
LastLine 1
Rows 32
FileOrigin 1
FileChanged 0
EntryPending 0
SelectionTop 1
SelectionBottom 4
PortOpen 0
AddressError 0
FileName "Pgm1.baf"
EntryMode "Data &Mode"
WriteModeLabel "Overwrite"
TipsLabel "New File."
Title "Brelvanor Quilla - Pgm1.baf"
MessageResult ""
Boxes InstructionBox
# A drag upward selects as one downward does, up to row 0, and moves nothing.
> drag Table1 5 2 3 2
> state
PanelState 1
CurrentRow 1
LastLine 1
Rows 32
FileOrigin 1
FileChanged 0
EntryPending 0
SelectionTop 3
SelectionBottom 5
PortOpen 0
AddressError 0
FileName "Pgm1.baf"
EntryMode "Data &Mode"
WriteModeLabel "Overwrite"
TipsLabel "New File."
Title "Brelvanor Quilla - Pgm1.baf"
MessageResult ""
Boxes InstructionBox
> drag Table1 2 2 0 2
> state
PanelState 1
CurrentRow 1
LastLine 1
Rows 32
FileOrigin 1
FileChanged 0
EntryPending 0
SelectionTop 0
SelectionBottom 2
PortOpen 0
AddressError 0
FileName "Pgm1.baf"
EntryMode "Data &Mode"
WriteModeLabel "Overwrite"
TipsLabel "New File."
Title "Brelvanor Quilla - Pgm1.baf"
MessageResult ""
Boxes InstructionBox
# The column of the press decides: let go over another column it selects, begun there it does not.
> drag Table1 3 2 6 4
> state
PanelState 1
CurrentRow 1
LastLine 1
Rows 32
FileOrigin 1
FileChanged 0
EntryPending 0
SelectionTop 3
SelectionBottom 6
PortOpen 0
AddressError 0
FileName "Pgm1.baf"
EntryMode "Data &Mode"
WriteModeLabel "Overwrite"
TipsLabel "New File."
Title "Brelvanor Quilla - Pgm1.baf"
MessageResult ""
Boxes InstructionBox
> drag Table1 8 1 9 2
> state
PanelState 1
CurrentRow 1
LastLine 1
Rows 32
FileOrigin 1
FileChanged 0
EntryPending 0
SelectionTop 3
SelectionBottom 6
PortOpen 0
AddressError 0
FileName "Pgm1.baf"
EntryMode "Data &Mode"
WriteModeLabel "Overwrite"
TipsLabel "New File."
Title "Brelvanor Quilla - Pgm1.baf"
MessageResult ""
Boxes InstructionBox
# An Opcode cell starts its instruction afresh; Esc gives the row back, comment and all.
> click INST 78
> click INST 0
> click REG 7
> click REG 0
> click INST 64
> click INST 67
> click NUM 3
> click EntryMode
> key DataAcceptButton 3F
> click DataAcceptButton
> click EntryMode
> dump Table1
Table1 0 "Origin" "8000" "" "" ""
Table1 1 "" "" "NOP" "00" "No Operation."
Table1 2 "" "" "MOV  A,  B" "78" "Move content of B-register into Accumulator."
Table1 3 "" "" "RNC" "D0" "Return on no carry."
Table1 4 "" "" "RST 3" "DF" "Restart#3 (Call sub-routine at address 0018H)."
Table1 5 "" "" "DFB" "3F" "Data Byte."
> cell Table1 2 3
> state
PanelState 9
CurrentRow 2
LastLine 5
Rows 32
FileOrigin 1
FileChanged 1
EntryPending 1
SelectionTop 2
SelectionBottom 2
PortOpen 0
AddressError 0
FileName "Pgm1.baf"
EntryMode "Data &Mode"
WriteModeLabel "Overwrite"
TipsLabel "Select Register or Memory (Destination)."
Title "Brelvanor Quilla - Pgm1.baf"
MessageResult ""
Boxes RegisterBox
> dump Table1 2 2
Table1 2 "" "" "MOV" "" ""
> escape
> dump Table1 2 2
Table1 2 "" "" "MOV  A,  B" "78" "Move content of B-register into Accumulator."
> state
PanelState 1
CurrentRow 2
LastLine 5
Rows 32
FileOrigin 1
FileChanged 1
EntryPending 0
SelectionTop 2
SelectionBottom 2
PortOpen 0
AddressError 0
FileName "Pgm1.baf"
EntryMode "Data &Mode"
WriteModeLabel "Overwrite"
TipsLabel "Program Mode."
Title "Brelvanor Quilla - Pgm1.baf"
MessageResult ""
Boxes InstructionBox
# The first restart number is taken as it was entered; a NOP cannot be entered again.
> cell Table1 4 3
> key NumberFocusButton 5
> dump Table1 4 4
Table1 4 "" "" "RST 5" "EF" "Restart#5 (Call sub-routine at address 0028H)."
> cell Table1 1 3
> dump Table1 1 1
Table1 1 "" "" "NOP" "00" "No Operation."
# RNC becomes HLT.
> cell Table1 3 3
> dump Table1 3 3
Table1 3 "" "" "HLT" "76" "Halt program execution."
> colors Table1
Table1 0 0 back=E0E0E0 fore=-
Table1 0 1 back=E0E0E0 fore=-
Table1 0 2 back=E0E0E0 fore=-
Table1 0 3 back=E0E0E0 fore=-
Table1 0 4 back=E0E0E0 fore=-
Table1 4 2 back=cursor fore=cursor
# On a data byte the cursor goes there and the entry mode changes; and back.
> cell Table1 5 3
> state
PanelState 29
CurrentRow 5
LastLine 5
Rows 32
FileOrigin 1
FileChanged 1
EntryPending 0
SelectionTop 5
SelectionBottom 5
PortOpen 0
AddressError 0
FileName "Pgm1.baf"
EntryMode "Program &Mode"
WriteModeLabel "Overwrite"
TipsLabel "Data Mode."
Title "Brelvanor Quilla - Pgm1.baf"
MessageResult ""
Boxes DataBox
> cell Table1 5 3
> show EntryMode
EntryMode caption="Data &Mode" enabled=1 visible=1
> cell Table1 5 3
# In data mode an Opcode cell starts its instruction too; register keys end in state 1.
> cell Table1 1 3
> show DataBox
DataBox enabled=1 visible=1
> cell Table1 2 3
> click REG 7
> click REG 1
> dump Table1 2 2
Table1 2 "" "" "MOV  A,  C" "79" "Move content of C-register into Accumulator."
> state
PanelState 1
CurrentRow 3
LastLine 5
Rows 32
FileOrigin 1
FileChanged 1
EntryPending 0
SelectionTop 3
SelectionBottom 3
PortOpen 0
AddressError 0
FileName "Pgm1.baf"
EntryMode "Program &Mode"
WriteModeLabel "Overwrite"
TipsLabel "Program Mode."
Title "Brelvanor Quilla - Pgm1.baf"
MessageResult ""
Boxes InstructionBox
# The mode is data mode still, as the end of the next task shows. Selecting works there as well.
> cell Table1 0 0
> state
PanelState 25
CurrentRow 3
LastLine 5
Rows 32
FileOrigin 1
FileChanged 1
EntryPending 0
SelectionTop 3
SelectionBottom 3
PortOpen 0
AddressError 0
FileName "Pgm1.baf"
EntryMode "Program &Mode"
WriteModeLabel "Overwrite"
TipsLabel "Enter starting address of the Origin and Click Accept', or press 'Esc' to quit."
Title "Brelvanor Quilla - Pgm1.baf"
MessageResult ""
Boxes NumberBox
> escape
> cell Table1 4 2
> drag Table1 3 2 2 2
> state
PanelState 29
CurrentRow 4
LastLine 5
Rows 32
FileOrigin 1
FileChanged 1
EntryPending 0
SelectionTop 2
SelectionBottom 3
PortOpen 0
AddressError 0
FileName "Pgm1.baf"
EntryMode "Program &Mode"
WriteModeLabel "Overwrite"
TipsLabel "Data Mode."
Title "Brelvanor Quilla - Pgm1.baf"
MessageResult ""
Boxes DataBox
# An instruction with a string ends in data mode with its old row still kept: Esc puts it on the
# row of the cursor.
> click EntryMode
> cell Table1 6 2
> click INST 37
> type LabelText go
> click LabelAcceptButton
> click EntryMode
> cell Table1 6 3
> type LabelText stay
> click LabelAcceptButton
> state
PanelState 29
CurrentRow 7
LastLine 6
Rows 32
FileOrigin 1
FileChanged 1
EntryPending 1
SelectionTop 7
SelectionBottom 7
PortOpen 0
AddressError 0
FileName "Pgm1.baf"
EntryMode "Program &Mode"
WriteModeLabel "Overwrite"
TipsLabel "Data Mode."
Title "Brelvanor Quilla - Pgm1.baf"
MessageResult ""
Boxes DataBox
> escape
> dump Table1 6 7
Table1 6 "" "" "JMP  stay" "C3   XX   XX" "Jump to address pointed by 'stay'."
Table1 7 "" "" "JMP  go" "C3   XX   XX" "Jump to address pointed by 'go'."
> dump StringTable
StringTable 6 "stay"
StringTable 7 "go"
> click EntryMode
# A label in the first column answers no click, an origin opens its editor.
> click PlaceLabelTool
> cell Table1 2 2
> type PlaceText here
> click PlaceAcceptButton
> click PlaceDoneButton
> cell Table1 2 0
> show InstructionBox
InstructionBox enabled=1 visible=1
> cell Table1 0 0
> state
PanelState 25
CurrentRow 7
LastLine 7
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
TipsLabel "Enter starting address of the Origin and Click Accept', or press 'Esc' to quit."
Title "Brelvanor Quilla - Pgm1.baf"
MessageResult ""
Boxes NumberBox
> key NumberAcceptButton 1c0de
> show NumberLabel
NumberLabel caption="C0DE" enabled=1 visible=1
> enter
> list OriginList
OriginList 0 "C0DE"
> dump Table1 0 0
Table1 0 "Origin" "C0DE" "" "" ""
# Clicks do nothing while another task is open; the press of a drag selects nothing either.
> click INST 10
> drag Table1 2 2 8 2
> cell Table1 0 0
> cell Table1 2 3
> cell Table1 9 2
> state
PanelState 3
CurrentRow 7
LastLine 7
Rows 32
FileOrigin 1
FileChanged 1
EntryPending 1
SelectionTop 7
SelectionBottom 7
PortOpen 0
AddressError 0
FileName "Pgm1.baf"
EntryMode "Data &Mode"
WriteModeLabel "Overwrite"
TipsLabel "Select Register or Memory."
Title "Brelvanor Quilla - Pgm1.baf"
MessageResult ""
Boxes RegisterBox
> escape
> click NewOrigin
> cell Table1 4 2
> cell Table1 2 3
> show NumberBox
NumberBox enabled=1 visible=1
> escape
# A filled cell below the lines in use counts from the time it is visited.
> click CommentsTool
> cell Table1 20 4
> type CommentsTxt far
> click CommentDoneButton
> cell Table1 25 4
> state
PanelState 1
CurrentRow 7
LastLine 7
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
MessageResult ""
Boxes InstructionBox
> cell Table1 20 4
> state
PanelState 1
CurrentRow 7
LastLine 20
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
MessageResult ""
Boxes InstructionBox
# The pointer over the table clears the hint of the instruction, not that of the register.
> hover INST 0
> show InstructionLabel 0
InstructionLabel 0 caption="MOV" enabled=1 visible=1
> hover Table1 3 3
> show InstructionLabel 0
InstructionLabel 0 caption="" enabled=1 visible=1
> show InstructionLabel 1
InstructionLabel 1 caption="" enabled=1 visible=1
> click INST 10
> hover REG 7
> hover Table1 3 2
> show RegisterLabel
RegisterLabel caption="A" enabled=1 visible=1
> hover ProgrammingPanel
> show RegisterLabel
RegisterLabel caption="" enabled=1 visible=1
