# A delay loop, entered with a label and a variable: three turns, then a halt.
open OpenForm
closed OpenForm
> click INST 1
> click REG 0
> type XXText count
> click XXAcceptButton
> click INST 20
> click REG 0
> click INST 39
> type LabelText loop
> click LabelAcceptButton
> click INST 79
> click PlaceLabelTool
> cell Table1 2 0
> click ExistingPlaceOption
> click PlaceAcceptButton
> click PlaceDoneButton
> click EqtOption
open RenumberDialog
> click RenumberDialog.VariablesOption
> cell RenumberDialog.VariableTable 1 0
> key RenumberDialog.XXAcceptButton 3
> click RenumberDialog.XXAcceptButton
> click RenumberDialog.DoneButton
closed RenumberDialog

# The window opens a moment after the click; the tip stays.
> click SimulationView
> tick 9
> show WatchWindowDialog.ExecuteButton
> show TipsLabel
TipsLabel caption="Program Mode." enabled=1 visible=1
> tick 1
open WatchWindowDialog
> show TipsLabel
TipsLabel caption="Preparing for simulation..." enabled=1 visible=1
> show WatchWindowDialog.ExecuteButton
WatchWindowDialog.ExecuteButton caption="&Execute" enabled=1 visible=1
> dump WatchWindowDialog.MemoryTable 32768 32776
WatchWindowDialog.MemoryTable 32768 "7FFF" "00"
WatchWindowDialog.MemoryTable 32769 "8000" "06"
WatchWindowDialog.MemoryTable 32770 "8001" "03"
WatchWindowDialog.MemoryTable 32771 "8002" "05"
WatchWindowDialog.MemoryTable 32772 "8003" "C2"
WatchWindowDialog.MemoryTable 32773 "8004" "02"
WatchWindowDialog.MemoryTable 32774 "8005" "80"
WatchWindowDialog.MemoryTable 32775 "8006" "76"
WatchWindowDialog.MemoryTable 32776 "8007" "00"
> dump WatchWindowDialog.RegisterTable 1 19
WatchWindowDialog.RegisterTable 1 "A" "00"
WatchWindowDialog.RegisterTable 2 "B" "00"
WatchWindowDialog.RegisterTable 3 "C" "00"
WatchWindowDialog.RegisterTable 4 "BC" "0000"
WatchWindowDialog.RegisterTable 5 "D" "00"
WatchWindowDialog.RegisterTable 6 "E" "00"
WatchWindowDialog.RegisterTable 7 "DE" "0000"
WatchWindowDialog.RegisterTable 8 "H" "00"
WatchWindowDialog.RegisterTable 9 "L" "00"
WatchWindowDialog.RegisterTable 10 "HL" "0000"
WatchWindowDialog.RegisterTable 11 "M(0000)" "00"
WatchWindowDialog.RegisterTable 12 "SP" "FF00"
WatchWindowDialog.RegisterTable 13 "PC" "0000"
WatchWindowDialog.RegisterTable 14 "Zero" "0"
WatchWindowDialog.RegisterTable 15 "Sign" "0"
WatchWindowDialog.RegisterTable 16 "Parity" "0"
WatchWindowDialog.RegisterTable 17 "Carry" "0"
WatchWindowDialog.RegisterTable 18 "Aux. Carry" "0"
> colors WatchWindowDialog.InterruptTable
WatchWindowDialog.InterruptTable 1 0 back=00FF00 fore=-
WatchWindowDialog.InterruptTable 2 0 back=0000FF fore=-
WatchWindowDialog.InterruptTable 3 0 back=0000FF fore=-
WatchWindowDialog.InterruptTable 4 0 back=0000FF fore=-
WatchWindowDialog.InterruptTable 5 0 back=0000FF fore=-
> show WatchWindowDialog.AddrLbl
WatchWindowDialog.AddrLbl caption="0000" enabled=1 visible=1

# Nothing is there to step before a starting address is given.
> click WatchWindowDialog.ExecuteButton
> dump WatchWindowDialog.InstructionTable 1
> dump WatchWindowDialog.RegisterTable 13 13
WatchWindowDialog.RegisterTable 13 "PC" "0000"

# The loop, step by step; PC shows the next instruction.
> key WatchWindowDialog.AcceptButton 8000
> click WatchWindowDialog.AcceptButton
> dump WatchWindowDialog.InstructionTable 1
WatchWindowDialog.InstructionTable 1 "" "8000" "MVI  B,   03h" "06   03"
> click WatchWindowDialog.ExecuteButton
> dump WatchWindowDialog.InstructionTable 1
WatchWindowDialog.InstructionTable 1 "" "8002" "DCR  B" "05"
> dump WatchWindowDialog.RegisterTable 2 2
WatchWindowDialog.RegisterTable 2 "B" "03"
> dump WatchWindowDialog.RegisterTable 14 18
WatchWindowDialog.RegisterTable 14 "Zero" "0"
WatchWindowDialog.RegisterTable 15 "Sign" "0"
WatchWindowDialog.RegisterTable 16 "Parity" "0"
WatchWindowDialog.RegisterTable 17 "Carry" "0"
WatchWindowDialog.RegisterTable 18 "Aux. Carry" "0"
> click WatchWindowDialog.ExecuteButton
> dump WatchWindowDialog.InstructionTable 1
WatchWindowDialog.InstructionTable 1 "" "8003" "JNZ  8002h" "C2   02   80"
> dump WatchWindowDialog.RegisterTable 2 2
WatchWindowDialog.RegisterTable 2 "B" "02"
> dump WatchWindowDialog.RegisterTable 14 18
WatchWindowDialog.RegisterTable 14 "Zero" "0"
WatchWindowDialog.RegisterTable 15 "Sign" "0"
WatchWindowDialog.RegisterTable 16 "Parity" "0"
WatchWindowDialog.RegisterTable 17 "Carry" "0"
WatchWindowDialog.RegisterTable 18 "Aux. Carry" "0"
> click WatchWindowDialog.ExecuteButton
> dump WatchWindowDialog.InstructionTable 1
WatchWindowDialog.InstructionTable 1 "" "8002" "DCR  B" "05"
> dump WatchWindowDialog.RegisterTable 2 2
WatchWindowDialog.RegisterTable 2 "B" "02"
> dump WatchWindowDialog.RegisterTable 14 18
WatchWindowDialog.RegisterTable 14 "Zero" "0"
WatchWindowDialog.RegisterTable 15 "Sign" "0"
WatchWindowDialog.RegisterTable 16 "Parity" "0"
WatchWindowDialog.RegisterTable 17 "Carry" "0"
WatchWindowDialog.RegisterTable 18 "Aux. Carry" "0"
> click WatchWindowDialog.ExecuteButton
> dump WatchWindowDialog.InstructionTable 1
WatchWindowDialog.InstructionTable 1 "" "8003" "JNZ  8002h" "C2   02   80"
> click WatchWindowDialog.ExecuteButton
> dump WatchWindowDialog.InstructionTable 1
WatchWindowDialog.InstructionTable 1 "" "8002" "DCR  B" "05"
> click WatchWindowDialog.ExecuteButton
> dump WatchWindowDialog.InstructionTable 1
WatchWindowDialog.InstructionTable 1 "" "8003" "JNZ  8002h" "C2   02   80"
> click WatchWindowDialog.ExecuteButton
> dump WatchWindowDialog.InstructionTable 1
WatchWindowDialog.InstructionTable 1 "" "8006" "HLT" "76"
> dump WatchWindowDialog.RegisterTable 2 2
WatchWindowDialog.RegisterTable 2 "B" "00"
> dump WatchWindowDialog.RegisterTable 14 18
WatchWindowDialog.RegisterTable 14 "Zero" "1"
WatchWindowDialog.RegisterTable 15 "Sign" "0"
WatchWindowDialog.RegisterTable 16 "Parity" "1"
WatchWindowDialog.RegisterTable 17 "Carry" "0"
WatchWindowDialog.RegisterTable 18 "Aux. Carry" "0"

# The halt is told once, and nothing moves after it, a new starting address included.
> click WatchWindowDialog.ExecuteButton
box information "Program execution halted." ok -> ok
> dump WatchWindowDialog.InstructionTable 1
WatchWindowDialog.InstructionTable 1 "" "8006" "HLT" "76"
> click WatchWindowDialog.ExecuteButton
> dump WatchWindowDialog.InstructionTable 1
WatchWindowDialog.InstructionTable 1 "" "8006" "HLT" "76"
> dump WatchWindowDialog.RegisterTable 13 13
WatchWindowDialog.RegisterTable 13 "PC" "8006"
> key WatchWindowDialog.AcceptButton 8002
> click WatchWindowDialog.AcceptButton
> dump WatchWindowDialog.InstructionTable 1
WatchWindowDialog.InstructionTable 1 "" "8002" "DCR  B" "05"
> click WatchWindowDialog.ExecuteButton
> dump WatchWindowDialog.InstructionTable 1
WatchWindowDialog.InstructionTable 1 "" "8002" "DCR  B" "05"

# Chosen again while it is open, the window keeps all but the cells of the program.
> click SimulationView
> settle
> dump WatchWindowDialog.InstructionTable 1
WatchWindowDialog.InstructionTable 1 "" "8002" "DCR  B" "05"
> click WatchWindowDialog.ExecuteButton
> dump WatchWindowDialog.InstructionTable 1
WatchWindowDialog.InstructionTable 1 "" "8002" "DCR  B" "05"
> dump WatchWindowDialog.RegisterTable 2 2
WatchWindowDialog.RegisterTable 2 "B" "00"

# Closed and opened again it starts afresh.
> close WatchWindowDialog
closed WatchWindowDialog
> dump WatchWindowDialog.RegisterTable 2 2
> click SimulationView
> settle
open WatchWindowDialog
> dump WatchWindowDialog.RegisterTable 2 2
WatchWindowDialog.RegisterTable 2 "B" "00"
> dump WatchWindowDialog.RegisterTable 13 13
WatchWindowDialog.RegisterTable 13 "PC" "0000"
> dump WatchWindowDialog.InstructionTable 1
> key WatchWindowDialog.AcceptButton 8002
> click WatchWindowDialog.AcceptButton
> click WatchWindowDialog.ExecuteButton
> dump WatchWindowDialog.InstructionTable 1
WatchWindowDialog.InstructionTable 1 "" "8003" "JNZ  8002h" "C2   02   80"
> dump WatchWindowDialog.RegisterTable 2 2
WatchWindowDialog.RegisterTable 2 "B" "FF"
