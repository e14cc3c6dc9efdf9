# A row past FFFFh gets no address: the fill ends there and the window stays hidden.
open OpenForm
closed OpenForm
> click EntryMode
> click NewOrigin
> key NumberAcceptButton FFFE
> click NumberAcceptButton
> key DataAcceptButton C3
> click DataAcceptButton
> key DataAcceptButton 00
> click DataAcceptButton
> key DataAcceptButton 76
> click DataAcceptButton
> click SimulationView
box critical "Compile error. Invalid address in origin FFFEh." ok -> ok
> settle
> show TipsLabel
TipsLabel caption="Preparing for simulation..." enabled=1 visible=1
> show WatchWindowDialog.ExecuteButton
> dump Table1 0 5
Table1 0 "Origin" "8000" "" "" ""
Table1 1 "Origin" "FFFE" "" "" ""
Table1 2 "" "FFFE" "DFB" "C3" "Data Byte."
Table1 3 "" "FFFF" "DFB" "00" "Data Byte."
Table1 4 "" "" "DFB" "76" "Data Byte."

# With that row gone the window is filled and shown.
> cell Table1 4 2
> click DeleteEdit
> click SimulationView
> settle
open WatchWindowDialog
> dump WatchWindowDialog.MemoryTable 65534 65536
WatchWindowDialog.MemoryTable 65534 "FFFD" "00"
WatchWindowDialog.MemoryTable 65535 "FFFE" "C3"
WatchWindowDialog.MemoryTable 65536 "FFFF" "00"

# A jump at FFFEh reaches beyond the memory: the address is shown, the rest of the row is not.
> key WatchWindowDialog.AcceptButton FFFE
> click WatchWindowDialog.AcceptButton
> dump WatchWindowDialog.InstructionTable 1
WatchWindowDialog.InstructionTable 1 "" "FFFE" "" ""
> dump WatchWindowDialog.RegisterTable 13 13
WatchWindowDialog.RegisterTable 13 "PC" "FFFE"
> click WatchWindowDialog.ExecuteButton
> dump WatchWindowDialog.InstructionTable 1
WatchWindowDialog.InstructionTable 1 "" "FFFE" "" ""

# A NOP at FFFFh goes on at 0000h.
> key WatchWindowDialog.AcceptButton FFFF
> click WatchWindowDialog.AcceptButton
> dump WatchWindowDialog.InstructionTable 1
WatchWindowDialog.InstructionTable 1 "" "FFFF" "NOP" "00"
> click WatchWindowDialog.ExecuteButton
> dump WatchWindowDialog.InstructionTable 1
WatchWindowDialog.InstructionTable 1 "" "0000" "NOP" "00"
