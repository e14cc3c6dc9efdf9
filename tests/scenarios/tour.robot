# A program that adds two bytes, stores the sum and stops in a loop, from the first key to the
# file. Worked out by hand, at 8000:
#   start  3E 05      MVI A, first
#          06 07      MVI B, second
#          80         ADD B
#          32 50 80   STA sum
#   stop   C3 08 80   JMP stop
# Eleven bytes, 0Bh: the record is ":0B" "8000" "00", the bytes, and the checksum.
# picture 01-new-file
> changes
# picture 02-register
> click INST 1 ; changes
session: PanelState=14 FileChanged=1 EntryPending=1 SelectedInstruction=1 CurrentOpcode=6
Table1 1 - - "MVI" | caption: TipsLabel="Select Register or Memory." | shown: RegisterBox
hidden: InstructionBox | disabled: EditMenu/* FileMenu/* REG 8..9 ToolsMenu/* | focus: RegisterBox
# picture 03-variable
> click REG 7 ; changes
session: PanelState=15 CurrentOpcode=62 | Table1 1 - - "MVI  A," "3E"
caption: TipsLabel="Enter 8-bit number and click 'Accept'." | shown: XXBox
hidden: RegisterBox XXDoneButton XXFindButton XXReplaceButton
disabled: ExistingXXOption XXAcceptButton XXCombo | checked: NewXXOption | focus: XXText
default: XXAcceptButton
# picture 04-label
> type XXText first ; enter ; row "MVI B,second" "ADD B" "STA sum" ; click INST 37
> type LabelText stop ; changes
session: Cursor=5 PanelState=4 LastLine=4 SelectedInstruction=37 CurrentOpcode=195
StringTable 1="first" 2="second" 4="sum" | Labels 0 "sum" "XXXX" "0" "0" "1"
Variables 0 "first" "XX" | 1 "second" "XX" | Table1 1 - - "MVI  A,   first" "3E   XX" default
Table1 2 - - "MVI  B,   second" "06   XX" default | 3 - - "ADD  B" "80" default
Table1 4 - - "STA  sum" "32   XX   XX" default | 5 - - "JMP" "C3"
caption: TipsLabel="Enter Label and click 'Accept'." | text: LabelCombo="sum" LabelText="stop"
shown: LabelBox | hidden: XXBox | disabled: LabelCombo | checked: NewLabelOption | focus: LabelText
default: LabelAcceptButton
# The label stands on the jump itself.
# picture 05-place-label
> enter ; click PlaceLabelTool ; cell Table1 5 0 ; click ExistingPlaceOption
> pick PlaceCombo 1 ; changes
session: Selection=6 PanelState=17 CurrentRow=6 LastLine=5 EntryPending=0 ClickedRow=5
PlaceCombo 0="sum" 1="stop" | StringTable 5="stop" | Labels 1 "stop" "XXXX" "0" "0" "1"
Table1 5 - - "JMP  stop" "C3   XX   XX" default | colors 5,0=00FF00 5,2=own 6,2=cursor
caption: TipsLabel="Select Row, Enter Label and Click 'Place'; or Click 'Cancel'."
text: PlaceCombo="stop" | shown: PlaceBox | hidden: LabelBox | disabled: PlaceText
checked: ExistingPlaceOption | focus: PlaceCombo | default: PlaceAcceptButton
# The numbers behind the names.
# picture 06-equivalents
> enter ; click PlaceDoneButton ; click EqtOption ; cell RenumberDialog.LabelTable 1 0
open RenumberDialog
> key RenumberDialog.EqtAcceptButton 8050 ; changes
session: PanelState=1 | Labels 1 - - "5" "1" | Table1 5 "stop" | RenumberDialog.LabelTable rows=3
RenumberDialog.LabelTable 0 "Label" "Current" "New" | 1 "sum" "XXXX" "XXXX" | 2 "stop" "XXXX" "XXXX"
RenumberDialog.VariableTable rows=3 | 0 "Label" "Current" "New" | 1 "first" "XX" "XX"
RenumberDialog.VariableTable 2 "second" "XX" "XX" | Table1 colors 5,0=own
caption: TipsLabel="Program Mode." RenumberDialog.EqtLabel="8050" RenumberDialog.LabelLabel="sum"
shown: InstructionBox | hidden: PlaceBox RenumberDialog.VariableFrame
enabled: EditMenu/*-PasteEdit FileMenu/* ToolsMenu/* | checked: RenumberDialog.LabelsOption
focus: RenumberDialog.EqtAcceptButton | default: RenumberDialog.EqtAcceptButton
> enter ; click RenumberDialog.VariablesOption ; cell RenumberDialog.VariableTable 1 0
> key RenumberDialog.XXAcceptButton 05 ; enter ; cell RenumberDialog.VariableTable 2 0
> key RenumberDialog.XXAcceptButton 07 ; enter ; click RenumberDialog.DoneButton
closed RenumberDialog
# picture 07-assembled
> path adder.hex ; click AssembleFile ; settle ; changes
box information "Unused strings have been deleted." ok -> ok
dialog save "Save to Hex file" "Hex Files(*.hex)|*.hex" -> "adder.hex"
session: HexPath="adder.hex" MessageResult="1"
HexList 0=":0B8000003E05060780325080C3088058" 1=":00000001FF" | LastAddressList 0="800A"
Labels 0 - "8050" | 1 - "8008" | Variables 0 - "05" | 1 - "07" | Table1 1 - "8000" - "3E   05"
Table1 2 - "8002" - "06   07" | 3 - "8004" | 4 - "8005" - "32   50   80"
Table1 5 - "8008" - "C3   08   80" | TempTable rows=32 | 0 "8000" - - "Origin" | 1 "3E" "05"
TempTable 2 "06" "07" | 3 "80" | 4 "32" "50" "80" | 5 "C3" "08" "80"
# The places that a label could be replaced in, one of them selected.
# picture 08-replace
> click ReplaceLabel ; cell Table1 5 2 ; changes
session: PanelState=24 SelectionAnchor=5 | ReplaceCombo 0="sum" 1="stop"
Table1 colors 4,2=0000FF/FFFFFF 5,0=0000FF/FFFFFF 5,2=00FF00/000000
caption: TipsLabel="Select Labels from table, Enter Label and Click 'Replace'; or Click 'Cancel'."
text: ReplaceCombo="sum" | shown: ReplaceBox | hidden: InstructionBox
disabled: EditMenu/* FileMenu/* ReplaceCombo ToolsMenu/* | checked: NewReplaceOption
# The program in the simulator, three instructions on.
# picture 09-simulator
> escape ; click SimulationView ; settle ; key WatchWindowDialog.AcceptButton 8000
open WatchWindowDialog
> click WatchWindowDialog.AcceptButton ; click WatchWindowDialog.ExecuteButton
> click WatchWindowDialog.ExecuteButton ; click WatchWindowDialog.ExecuteButton ; changes
session: PanelState=1 | WatchWindowDialog.InstructionTable rows=2
WatchWindowDialog.InstructionTable 0 "Label" "Addr." "Mnemonics" "Opcode"
WatchWindowDialog.InstructionTable 1 - "8005" "STA   8050h" "32   50   80"
WatchWindowDialog.InterruptTable rows=8 | 0 "Interrupts" "Value" | 1 "TRAP" "1" | 2 "RST 7.5" "1"
WatchWindowDialog.InterruptTable 3 "RST 6.5" "1" | 4 "RST 5.5" "1" | 5 "INTR" "1" | 6 "INTA'" "1"
WatchWindowDialog.InterruptTable 7 - "1" | WatchWindowDialog.MemoryTable rows=65537
WatchWindowDialog.MemoryTable 0 "Address" "Value" | 1..32768 "0000".."7FFF" "00" | 32769 "8000" "3E"
WatchWindowDialog.MemoryTable 32770..32772 "8001".."8003" "05".."07" | 32773 "8004" "80"
WatchWindowDialog.MemoryTable 32774 "8005" "32" | 32775 "8006" "50" | 32776 "8007" "80"
WatchWindowDialog.MemoryTable 32777 "8008" "C3" | 32778 "8009" "08" | 32779 "800A" "80"
WatchWindowDialog.MemoryTable 32780..65536 "800B".."FFFF" "00"
WatchWindowDialog.PortTable rows=257 | 0 "Address" "Value" | 1..256 "00".."FF" "00"
WatchWindowDialog.RegisterTable rows=20 | 0 "Registers" "Value" | 1 "A" "0C" | 2 "B" "07"
WatchWindowDialog.RegisterTable 3 "C" "00" | 4 "BC" "0700" | 5 "D" "00" | 6 "E" "00" | 7 "DE" "0000"
WatchWindowDialog.RegisterTable 8 "H" "00" | 9 "L" "00" | 10 "HL" "0000" | 11 "M(0000)" "00"
WatchWindowDialog.RegisterTable 12 "SP" "FF00" | 13 "PC" "8005" | 14 "Zero" "0" | 15 "Sign" "0"
WatchWindowDialog.RegisterTable 16 "Parity" "1" | 17 "Carry" "0" | 18 "Aux. Carry" "0"
Table1 colors 4,2=own 5,0=own 5,2=own
WatchWindowDialog.InterruptTable colors 1,0=00FF00 2..5,0=0000FF
caption: TipsLabel="Preparing for simulation..." WatchWindowDialog.AddrLbl="8000"
text: WatchWindowDialog.PortAddrList="00" WatchWindowDialog.ValueList="00" | shown: InstructionBox
hidden: ReplaceBox | enabled: EditMenu/*-PasteEdit FileMenu/* ToolsMenu/*
focus: WatchWindowDialog.AcceptButton
> close WatchWindowDialog
closed WatchWindowDialog
# The bytes of the file back in a table.
# picture 10-disassembler
> answer no ; path adder.hex ; click DisassembleFile ; click DataDialog.DataType 1
box question "Save changes to Pgm1.baf?" yesnocancel -> no
dialog open "Open Hex file" "Hex Files(*.hex)|*.hex" -> "adder.hex"
open DataDialog
> drag DataDialog.DataTable 1 0 11 0 ; changes
session: HexTitle="adder.hex" MessageResult="7" | DataDialog.DataTable rows=12
DataDialog.DataTable 0 "Address" "Data" "Category" | 1 "8000" "3E" "Mnemonic"
DataDialog.DataTable 2..4 "8001".."8003" "05".."07" "Mnemonic" | 5 "8004" "80" "Mnemonic"
DataDialog.DataTable 6 "8005" "32" "Mnemonic" | 7 "8006" "50" "Mnemonic" | 8 "8007" "80" "Mnemonic"
DataDialog.DataTable 9 "8008" "C3" "Mnemonic" | 10 "8009" "08" "Mnemonic"
DataDialog.DataTable 11 "800A" "80" "Mnemonic"
caption: DataDialog="Disassemble Dialog - adder.hex"
    TipsLabel="Select the mnemonics && data bytes and click 'Done', or click 'Cancel'."
    DataDialog.DataTypeLabel="Mnemonic" | checked: DataDialog.DataType 1
> click DataDialog.DoneButton ; settle ; changes
closed DataDialog
session: LastLine=6 FileOrigin=4 NextLabelNumber=2 NextVariableNumber=2 | LabelCombo 0="a0" 1="a1"
LabelLineList count=0 | LabelPlacedList count=0 | LabelUsedList count=0
StringTable rows=16 (16 out at 1) 1="v0" 2="v1" 4="a0" 5="a1" | Variables 0 "v0" | 1 "v1"
Table1 rows=16 (16 out at 1) | 1 - "8000" "MVI  A,  v0" "3E   05" default
Table1 2 - "8002" "MVI  B,   v1" "06   07" default | 3 - "8004" "ADD  B " "80" default
Table1 4 - "8005" "STA   a0" "32   50   80" default | 5 "a1" "8008" "JMP  a1" "C3   08   80" default
caption: TipsLabel="Disassembling completed successfully."
