# The table keeps ten rows ahead of the cursor: it begins to grow with row 22, and reaches 33 rows
# with row 23.
open OpenForm
closed OpenForm
> click INST 78
> click INST 78
> click INST 78
> click INST 78
> click INST 78
> click INST 78
> click INST 78
> click INST 78
> click INST 78
> click INST 78
> click INST 78
> click INST 78
> click INST 78
> click INST 78
> click INST 78
> click INST 78
> click INST 78
> click INST 78
> click INST 78
> click INST 78
> click INST 78
> state
PanelState 1
CurrentRow 22
LastLine 21
Rows 32
FileOrigin 1
FileChanged 1
EntryPending 0
SelectionTop 22
SelectionBottom 22
PortOpen 0
AddressError 0
FileName "Pgm1.baf"
EntryMode "Data &Mode"
WriteModeLabel "Overwrite"
TipsLabel "Program Mode."
Title "Brelvanor Quilla - Pgm1.baf"
MessageResult ""
Boxes InstructionBox
> click INST 79
> state
PanelState 1
CurrentRow 23
LastLine 22
Rows 33
FileOrigin 1
FileChanged 1
EntryPending 0
SelectionTop 23
SelectionBottom 23
PortOpen 0
AddressError 0
FileName "Pgm1.baf"
EntryMode "Data &Mode"
WriteModeLabel "Overwrite"
TipsLabel "Program Mode."
Title "Brelvanor Quilla - Pgm1.baf"
MessageResult ""
Boxes InstructionBox
> cell Table1 32 4
> cell Table1 33 4
refused Table1 outside
# In data mode it grows as well: the cursor goes to row 27 and the table to 37 rows.
> click EntryMode
> enter
> enter
> enter
> enter
> cell Table1 36 4
> cell Table1 37 4
refused Table1 outside
# A click on the last mnemonic opens a line there, in either mode, and the table grows around it.
> cell Table1 36 2
> state
PanelState 29
CurrentRow 36
LastLine 24
Rows 46
FileOrigin 1
FileChanged 1
EntryPending 0
SelectionTop 36
SelectionBottom 36
PortOpen 0
AddressError 0
FileName "Pgm1.baf"
EntryMode "Program &Mode"
WriteModeLabel "Overwrite"
TipsLabel "Data Mode."
Title "Brelvanor Quilla - Pgm1.baf"
MessageResult ""
Boxes DataBox
> click WriteMode
# A table of 12 rows that is filled to its last one: the ten rows ahead come with the first move of
# the cursor beyond the last line that was visited.
> answer no
> path last_row.baf
> click OpenFile
box question "Save changes to Pgm1.baf?" yesnocancel -> no
dialog open "Open" "Brelvanor Assembler Files (*.baf)|*.baf" -> "last_row.baf"
> state
PanelState 1
CurrentRow 1
LastLine 1
Rows 12
FileOrigin 2
FileChanged 0
EntryPending 0
SelectionTop 1
SelectionBottom 1
PortOpen 0
AddressError 0
FileName "last_row.baf"
EntryMode "Data &Mode"
WriteModeLabel "Overwrite"
TipsLabel "File Opened."
Title "Brelvanor Quilla - last_row.baf"
MessageResult "7"
Boxes InstructionBox
> cell Table1 11 2
> state
PanelState 1
CurrentRow 11
LastLine 12
Rows 13
FileOrigin 2
FileChanged 0
EntryPending 0
SelectionTop 11
SelectionBottom 11
PortOpen 0
AddressError 0
FileName "last_row.baf"
EntryMode "Data &Mode"
WriteModeLabel "Overwrite"
TipsLabel "File Opened."
Title "Brelvanor Quilla - last_row.baf"
MessageResult "7"
Boxes InstructionBox
> dump Table1 10
Table1 12 "" "" "HLT" "76" "the end"
> click INST 78
> state
PanelState 1
CurrentRow 12
LastLine 12
Rows 32
FileOrigin 2
FileChanged 1
EntryPending 0
SelectionTop 12
SelectionBottom 12
PortOpen 0
AddressError 0
FileName "last_row.baf"
EntryMode "Data &Mode"
WriteModeLabel "Overwrite"
TipsLabel "Program Mode."
Title "Brelvanor Quilla - last_row.baf"
MessageResult "7"
Boxes InstructionBox
