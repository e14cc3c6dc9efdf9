# A program that adds two bytes, stores the sum and stops in a loop, from the first key to the
# file. Worked out by hand, at 8000:
#   start  3E 05      MVI A, first
#          06 07      MVI B, second
#          80         ADD B
#          32 50 80   STA sum
#   stop   C3 08 80   JMP stop
# Eleven bytes, 0Bh: the record is ":0B" "8000" "00", the bytes, and the checksum.
> hover ProgrammingPanel
> row "MVI A,first" "MVI B,second" "ADD B" "STA sum" ; click INST 37 ; type LabelText stop
> hover ProgrammingPanel
# The label stands on the jump itself.
> enter ; click PlaceLabelTool ; cell Table1 5 0 ; click ExistingPlaceOption
> pick PlaceCombo 1 ; hover ProgrammingPanel
# The numbers behind the names.
> enter ; click PlaceDoneButton ; click EqtOption ; cell RenumberDialog.LabelTable 1 0
open RenumberDialog
> key RenumberDialog.EqtAcceptButton 8050 ; hover RenumberDialog
> enter ; click RenumberDialog.VariablesOption ; cell RenumberDialog.VariableTable 1 0
> key RenumberDialog.XXAcceptButton 05 ; enter ; cell RenumberDialog.VariableTable 2 0
> key RenumberDialog.XXAcceptButton 07 ; enter ; click RenumberDialog.DoneButton
closed RenumberDialog
> path adder.hex ; click AssembleFile ; settle ; list HexList ; hover ProgrammingPanel
box information "Unused strings have been deleted." ok -> ok
dialog save "Save to Hex file" "Hex Files(*.hex)|*.hex" -> "adder.hex"
HexList 0 ":0B8000003E05060780325080C3088058"
HexList 1 ":00000001FF"
# The places that a label could be replaced in, one of them selected.
> click ReplaceLabel ; cell Table1 5 2 ; hover ProgrammingPanel
# The program in the simulator, three instructions on.
> escape ; click SimulationView ; settle ; key WatchWindowDialog.AcceptButton 8000
open WatchWindowDialog
> click WatchWindowDialog.AcceptButton ; click WatchWindowDialog.ExecuteButton
> click WatchWindowDialog.ExecuteButton ; click WatchWindowDialog.ExecuteButton
> dump WatchWindowDialog.InstructionTable 1 ; hover WatchWindowDialog ; close WatchWindowDialog
WatchWindowDialog.InstructionTable 1 "" "8005" "STA   8050h" "32   50   80"
closed WatchWindowDialog
# The bytes of the file back in a table.
> answer no ; path adder.hex ; click DisassembleFile ; click DataDialog.DataType 1
box question "Save changes to Pgm1.baf?" yesnocancel -> no
dialog open "Open Hex file" "Hex Files(*.hex)|*.hex" -> "adder.hex"
open DataDialog
> drag DataDialog.DataTable 1 0 11 0 ; hover DataDialog
> click DataDialog.DoneButton ; settle ; dump Table1 1 5
closed DataDialog
Table1 1 "" "8000" "MVI  A,  v0" "3E   05" "Move the equivalent of 'v0' into Accumulator."
Table1 2 "" "8002" "MVI  B,   v1" "06   07" "Move the equivalent of 'v1' into B-register."
Table1 3 "" "8004" "ADD  B " "80" "Add content of B-register to content of Accumulator."
Table1 4 "" "8005" "STA   a0" "32   50   80" "Store content of Accumulator in address pointed by 'a0'."
Table1 5 "a1" "8008" "JMP  a1" "C3   08   80" "Jump to address pointed by 'a1'."
