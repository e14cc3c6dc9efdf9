# A program that adds two bytes, stores the sum and stops in a loop, from the first key to the
# file. Worked out by hand, at 8000:
#   start  3E 05      MVI A, first
#          06 07      MVI B, second
#          80         ADD B
#          32 50 80   STA sum
#   stop   C3 08 80   JMP stop
# Eleven bytes, 0Bh: the record is ":0B" "8000" "00", the bytes, and the checksum.
# picture 01-new-file
open OpenForm
closed OpenForm
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
> click INST 1
# picture 02-register
> state
PanelState 14
CurrentRow 1
LastLine 1
Rows 32
FileOrigin 1
FileChanged 1
EntryPending 1
SelectionTop 1
SelectionBottom 1
PortOpen 0
AddressError 0
FileName "Pgm1.baf"
EntryMode "Data &Mode"
WriteModeLabel "Overwrite"
TipsLabel "Select Register or Memory."
Title "Brelvanor Quilla - Pgm1.baf"
MessageResult ""
Boxes RegisterBox
> click REG 7
# picture 03-variable
> state
PanelState 15
CurrentRow 1
LastLine 1
Rows 32
FileOrigin 1
FileChanged 1
EntryPending 1
SelectionTop 1
SelectionBottom 1
PortOpen 0
AddressError 0
FileName "Pgm1.baf"
EntryMode "Data &Mode"
WriteModeLabel "Overwrite"
TipsLabel "Enter 8-bit number and click 'Accept'."
Title "Brelvanor Quilla - Pgm1.baf"
MessageResult ""
Boxes XXBox
> type XXText first
> enter
> click INST 1
> click REG 0
> type XXText second
> enter
> click INST 10
> click REG 0
> click INST 6
> type LabelText sum
> enter
> click INST 37
# picture 04-label
> type LabelText stop
> state
PanelState 4
CurrentRow 5
LastLine 4
Rows 32
FileOrigin 1
FileChanged 1
EntryPending 1
SelectionTop 5
SelectionBottom 5
PortOpen 0
AddressError 0
FileName "Pgm1.baf"
EntryMode "Data &Mode"
WriteModeLabel "Overwrite"
TipsLabel "Enter Label and click 'Accept'."
Title "Brelvanor Quilla - Pgm1.baf"
MessageResult ""
Boxes LabelBox
> enter
# The label stands on the jump itself.
> click PlaceLabelTool
> cell Table1 5 0
> click ExistingPlaceOption
> pick PlaceCombo 1
# picture 05-place-label
> state
PanelState 17
CurrentRow 6
LastLine 5
Rows 32
FileOrigin 1
FileChanged 1
EntryPending 0
SelectionTop 6
SelectionBottom 6
PortOpen 0
AddressError 0
FileName "Pgm1.baf"
EntryMode "Data &Mode"
WriteModeLabel "Overwrite"
TipsLabel "Select Row, Enter Label and Click 'Place'; or Click 'Cancel'."
Title "Brelvanor Quilla - Pgm1.baf"
MessageResult ""
Boxes PlaceBox
> enter
> click PlaceDoneButton
# The numbers behind the names.
> click EqtOption
open RenumberDialog
> cell RenumberDialog.LabelTable 1 0
> key RenumberDialog.EqtAcceptButton 8050
# picture 06-equivalents
> state
PanelState 1
CurrentRow 6
LastLine 5
Rows 32
FileOrigin 1
FileChanged 1
EntryPending 0
SelectionTop 6
SelectionBottom 6
PortOpen 0
AddressError 0
FileName "Pgm1.baf"
EntryMode "Data &Mode"
WriteModeLabel "Overwrite"
TipsLabel "Program Mode."
Title "Brelvanor Quilla - Pgm1.baf"
MessageResult ""
Boxes InstructionBox
> enter
> click RenumberDialog.VariablesOption
> cell RenumberDialog.VariableTable 1 0
> key RenumberDialog.XXAcceptButton 05
> enter
> cell RenumberDialog.VariableTable 2 0
> key RenumberDialog.XXAcceptButton 07
> enter
> click RenumberDialog.DoneButton
closed RenumberDialog
> path adder.hex
> click AssembleFile
box information "Unused strings have been deleted." ok -> ok
dialog save "Save to Hex file" "Hex Files(*.hex)|*.hex" -> "adder.hex"
> settle
# picture 07-assembled
> state
PanelState 1
CurrentRow 6
LastLine 5
Rows 32
FileOrigin 1
FileChanged 1
EntryPending 0
SelectionTop 6
SelectionBottom 6
PortOpen 0
AddressError 0
FileName "Pgm1.baf"
EntryMode "Data &Mode"
WriteModeLabel "Overwrite"
TipsLabel "Program Mode."
Title "Brelvanor Quilla - Pgm1.baf"
MessageResult "1"
Boxes InstructionBox
> dump Table1 0 5
Table1 0 "Origin" "8000" "" "" ""
Table1 1 "" "8000" "MVI  A,   first" "3E   05" "Move the equivalent of 'first' into Accumulator."
Table1 2 "" "8002" "MVI  B,   second" "06   07" "Move the equivalent of 'second' into B-register."
Table1 3 "" "8004" "ADD  B" "80" "Add content of B-register to content of Accumulator."
Table1 4 "" "8005" "STA  sum" "32   50   80" "Store content of Accumulator in address pointed by 'sum'."
Table1 5 "stop" "8008" "JMP  stop" "C3   08   80" "Jump to address pointed by 'stop'."
> list HexList
HexList 0 ":0B8000003E05060780325080C3088058"
HexList 1 ":00000001FF"
# The places that a label could be replaced in, one of them selected.
> click ReplaceLabel
> cell Table1 5 2
# picture 08-replace
> state
PanelState 24
CurrentRow 6
LastLine 5
Rows 32
FileOrigin 1
FileChanged 1
EntryPending 0
SelectionTop 6
SelectionBottom 6
PortOpen 0
AddressError 0
FileName "Pgm1.baf"
EntryMode "Data &Mode"
WriteModeLabel "Overwrite"
TipsLabel "Select Labels from table, Enter Label and Click 'Replace'; or Click 'Cancel'."
Title "Brelvanor Quilla - Pgm1.baf"
MessageResult "1"
Boxes ReplaceBox
> escape
# The program in the simulator, three instructions on.
> click SimulationView
> settle
open WatchWindowDialog
> key WatchWindowDialog.AcceptButton 8000
> click WatchWindowDialog.AcceptButton
> click WatchWindowDialog.ExecuteButton
> click WatchWindowDialog.ExecuteButton
> click WatchWindowDialog.ExecuteButton
# picture 09-simulator
> state
PanelState 1
CurrentRow 6
LastLine 5
Rows 32
FileOrigin 1
FileChanged 1
EntryPending 0
SelectionTop 6
SelectionBottom 6
PortOpen 0
AddressError 0
FileName "Pgm1.baf"
EntryMode "Data &Mode"
WriteModeLabel "Overwrite"
TipsLabel "Preparing for simulation..."
Title "Brelvanor Quilla - Pgm1.baf"
MessageResult "1"
Boxes InstructionBox
> dump WatchWindowDialog.RegisterTable 1 2
WatchWindowDialog.RegisterTable 1 "A" "0C"
WatchWindowDialog.RegisterTable 2 "B" "07"
> dump WatchWindowDialog.InstructionTable 1
WatchWindowDialog.InstructionTable 1 "" "8005" "STA   8050h" "32   50   80"
> close WatchWindowDialog
closed WatchWindowDialog
