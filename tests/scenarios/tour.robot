# A program that adds two bytes, stores the sum and stops in a loop, from the first key to the
# file. Worked out by hand, at 8000:
#   start  3E 05      MVI A, first
#          06 07      MVI B, second
#          80         ADD B
#          32 50 80   STA sum
#   stop   C3 08 80   JMP stop
# Eleven bytes, 0Bh: the record is ":0B" "8000" "00", the bytes, and the checksum.
# picture 01-new-file
> hover ProgrammingPanel
# picture 02-label
> row "MVI A,first" "MVI B,second" "ADD B" "STA sum" ; click INST 37 ; type LabelText stop
> hover ProgrammingPanel
# The label stands on the jump itself.
# picture 03-place-label
> enter ; click PlaceLabelTool ; cell Table1 5 0 ; click ExistingPlaceOption
> pick PlaceCombo 1 ; hover ProgrammingPanel
# The numbers behind the names.
# picture 04-equivalents
> enter ; click PlaceDoneButton ; click EqtOption ; cell RenumberDialog.LabelTable 1 0
open RenumberDialog
> key RenumberDialog.EqtAcceptButton 8050 ; hover RenumberDialog
> enter ; click RenumberDialog.VariablesOption ; cell RenumberDialog.VariableTable 1 0
> key RenumberDialog.XXAcceptButton 05 ; enter ; cell RenumberDialog.VariableTable 2 0
> key RenumberDialog.XXAcceptButton 07 ; enter ; click RenumberDialog.DoneButton
closed RenumberDialog
# picture 05-assembled
> path adder.hex ; click AssembleFile ; settle ; changes ; hover ProgrammingPanel
box information "Unused strings have been deleted." ok -> ok
dialog save "Save to Hex file" "Hex Files(*.hex)|*.hex" -> "adder.hex"
session: Cursor=6 LastLine=5 FileChanged=1 ClickedRow=5 SelectedInstruction=37 CurrentOpcode=195
    HexPath="adder.hex" MessageResult="1"
HexList 0=":0B8000003E05060780325080C3088058" 1=":00000001FF" | LastAddressList 0="800A"
StringTable 1="first" 2="second" 4="sum" 5="stop" | Labels 0 "sum" "8050" "0" "0" "1"
Labels 1 "stop" "8008" "5" "1" "1" | Variables 0 "first" "05" | 1 "second" "07"
Table1 1 - "8000" "MVI  A,   first" "3E   05" default
Table1 2 - "8002" "MVI  B,   second" "06   07" default | 3 - "8004" "ADD  B" "80" default
Table1 4 - "8005" "STA  sum" "32   50   80" default
Table1 5 "stop" "8008" "JMP  stop" "C3   08   80" default | TempTable rows=32
TempTable 0 "8000" - - "Origin" | 1 "3E" "05" | 2 "06" "07" | 3 "80" | 4 "32" "50" "80"
TempTable 5 "C3" "08" "80" | caption: TipsLabel="Program Mode."
# The places that a label could be replaced in, one of them selected.
# picture 06-replace
> click ReplaceLabel ; cell Table1 5 2 ; hover ProgrammingPanel
# The program in the simulator, three instructions on.
# picture 07-simulator
> escape ; click SimulationView ; settle ; key WatchWindowDialog.AcceptButton 8000
open WatchWindowDialog
> click WatchWindowDialog.AcceptButton ; click WatchWindowDialog.ExecuteButton
> click WatchWindowDialog.ExecuteButton ; click WatchWindowDialog.ExecuteButton
> dump WatchWindowDialog.InstructionTable 1 ; hover WatchWindowDialog ; close WatchWindowDialog
WatchWindowDialog.InstructionTable 1 "" "8005" "STA   8050h" "32   50   80"
closed WatchWindowDialog
# The bytes of the file back in a table.
# picture 08-disassembler
> answer no ; path adder.hex ; click DisassembleFile ; click DataDialog.DataType 1
box question "Save changes to Pgm1.baf?" yesnocancel -> no
dialog open "Open Hex file" "Hex Files(*.hex)|*.hex" -> "adder.hex"
open DataDialog
> drag DataDialog.DataTable 1 0 11 0 ; hover DataDialog
> click DataDialog.DoneButton ; settle ; changes
closed DataDialog
session: LastLine=6 FileOrigin=4 SelectionAnchor=5 HexTitle="adder.hex" MessageResult="7"
    NextLabelNumber=2 NextVariableNumber=2 | LabelCombo 0="a0" 1="a1" | LabelLineList count=0
LabelPlacedList count=0 | LabelUsedList count=0
StringTable rows=16 (16 out at 1) 1="v0" 2="v1" 4="a0" 5="a1" | Variables 0 "v0" | 1 "v1"
Table1 rows=16 (16 out at 1) | 1 - "8000" "MVI  A,  v0" "3E   05" default
Table1 2 - "8002" "MVI  B,   v1" "06   07" default | 3 - "8004" "ADD  B " "80" default
Table1 4 - "8005" "STA   a0" "32   50   80" default | 5 "a1" "8008" "JMP  a1" "C3   08   80" default
caption: TipsLabel="Disassembling completed successfully."
