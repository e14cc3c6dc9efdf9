# Four programs of data rows, each in a block of its own.
open OpenForm
closed OpenForm
> click EntryMode

# 2000: a subroutine that saves BC and PSW. LXI SP; LXI B; CALL; HLT. PUSH B, PUSH PSW, LXI B, POP PSW, POP B, RET.
> click NewOrigin
> key NumberAcceptButton 2000
> click NumberAcceptButton
> key DataAcceptButton 31
> click DataAcceptButton
> key DataAcceptButton 00
> click DataAcceptButton
> key DataAcceptButton 30
> click DataAcceptButton
> key DataAcceptButton 01
> click DataAcceptButton
> key DataAcceptButton 34
> click DataAcceptButton
> key DataAcceptButton 12
> click DataAcceptButton
> key DataAcceptButton CD
> click DataAcceptButton
> key DataAcceptButton 0A
> click DataAcceptButton
> key DataAcceptButton 20
> click DataAcceptButton
> key DataAcceptButton 76
> click DataAcceptButton
> key DataAcceptButton C5
> click DataAcceptButton
> key DataAcceptButton F5
> click DataAcceptButton
> key DataAcceptButton 01
> click DataAcceptButton
> key DataAcceptButton 00
> click DataAcceptButton
> key DataAcceptButton 00
> click DataAcceptButton
> key DataAcceptButton F1
> click DataAcceptButton
> key DataAcceptButton C1
> click DataAcceptButton
> key DataAcceptButton C9
> click DataAcceptButton

# 2100: a block move. LXI H; LXI D; MVI C; MOV A,M, STAX D, INX H, INX D, DCR C, JNZ; HLT; three bytes.
> click NewOrigin
> key NumberAcceptButton 2100
> click NumberAcceptButton
> key DataAcceptButton 21
> click DataAcceptButton
> key DataAcceptButton 12
> click DataAcceptButton
> key DataAcceptButton 21
> click DataAcceptButton
> key DataAcceptButton 11
> click DataAcceptButton
> key DataAcceptButton 00
> click DataAcceptButton
> key DataAcceptButton 40
> click DataAcceptButton
> key DataAcceptButton 0E
> click DataAcceptButton
> key DataAcceptButton 03
> click DataAcceptButton
> key DataAcceptButton 7E
> click DataAcceptButton
> key DataAcceptButton 12
> click DataAcceptButton
> key DataAcceptButton 23
> click DataAcceptButton
> key DataAcceptButton 13
> click DataAcceptButton
> key DataAcceptButton 0D
> click DataAcceptButton
> key DataAcceptButton C2
> click DataAcceptButton
> key DataAcceptButton 08
> click DataAcceptButton
> key DataAcceptButton 21
> click DataAcceptButton
> key DataAcceptButton 76
> click DataAcceptButton
> key DataAcceptButton 00
> click DataAcceptButton
> key DataAcceptButton 5A
> click DataAcceptButton
> key DataAcceptButton 0F
> click DataAcceptButton
> key DataAcceptButton A5
> click DataAcceptButton

# 2200: 9AF7h + 6709h with carry into HL. LXI H; LXI D; MOV A,L, ADD E, MOV L,A, MOV A,H, ADC D, MOV H,A; HLT.
> click NewOrigin
> key NumberAcceptButton 2200
> click NumberAcceptButton
> key DataAcceptButton 21
> click DataAcceptButton
> key DataAcceptButton F7
> click DataAcceptButton
> key DataAcceptButton 9A
> click DataAcceptButton
> key DataAcceptButton 11
> click DataAcceptButton
> key DataAcceptButton 09
> click DataAcceptButton
> key DataAcceptButton 67
> click DataAcceptButton
> key DataAcceptButton 7D
> click DataAcceptButton
> key DataAcceptButton 83
> click DataAcceptButton
> key DataAcceptButton 6F
> click DataAcceptButton
> key DataAcceptButton 7C
> click DataAcceptButton
> key DataAcceptButton 8A
> click DataAcceptButton
> key DataAcceptButton 67
> click DataAcceptButton
> key DataAcceptButton 76
> click DataAcceptButton

# 2300: what comes in at port 05 goes out at 06, complemented. IN, CMA, OUT, JMP.
> click NewOrigin
> key NumberAcceptButton 2300
> click NumberAcceptButton
> key DataAcceptButton DB
> click DataAcceptButton
> key DataAcceptButton 05
> click DataAcceptButton
> key DataAcceptButton 2F
> click DataAcceptButton
> key DataAcceptButton D3
> click DataAcceptButton
> key DataAcceptButton 06
> click DataAcceptButton
> key DataAcceptButton C3
> click DataAcceptButton
> key DataAcceptButton 00
> click DataAcceptButton
> key DataAcceptButton 23
> click DataAcceptButton
> click SimulationView
> settle
open WatchWindowDialog

# The subroutine: the return address lies low byte first, BC high byte first.
> key WatchWindowDialog.AcceptButton 2000
> click WatchWindowDialog.AcceptButton
> click WatchWindowDialog.ExecuteButton
> click WatchWindowDialog.ExecuteButton
> click WatchWindowDialog.ExecuteButton
> dump WatchWindowDialog.InstructionTable 1
WatchWindowDialog.InstructionTable 1 "" "200A" "PUSH B" "C5"
> dump WatchWindowDialog.RegisterTable 12 13
WatchWindowDialog.RegisterTable 12 "SP" "2FFE"
WatchWindowDialog.RegisterTable 13 "PC" "200A"
> dump WatchWindowDialog.MemoryTable 12285 12288
WatchWindowDialog.MemoryTable 12285 "2FFC" "00"
WatchWindowDialog.MemoryTable 12286 "2FFD" "00"
WatchWindowDialog.MemoryTable 12287 "2FFE" "09"
WatchWindowDialog.MemoryTable 12288 "2FFF" "20"
> click WatchWindowDialog.ExecuteButton
> dump WatchWindowDialog.InstructionTable 1
WatchWindowDialog.InstructionTable 1 "" "200B" "PUSH PSW" "F5"
> dump WatchWindowDialog.MemoryTable 12285 12288
WatchWindowDialog.MemoryTable 12285 "2FFC" "12"
WatchWindowDialog.MemoryTable 12286 "2FFD" "34"
WatchWindowDialog.MemoryTable 12287 "2FFE" "09"
WatchWindowDialog.MemoryTable 12288 "2FFF" "20"
> dump WatchWindowDialog.RegisterTable 12 12
WatchWindowDialog.RegisterTable 12 "SP" "2FFC"
> click WatchWindowDialog.ExecuteButton
> dump WatchWindowDialog.InstructionTable 1
WatchWindowDialog.InstructionTable 1 "" "200C" "LXI  B,  0000h" "01   00   00"
> dump WatchWindowDialog.MemoryTable 12283 12288
WatchWindowDialog.MemoryTable 12283 "2FFA" "00"
WatchWindowDialog.MemoryTable 12284 "2FFB" "02"
WatchWindowDialog.MemoryTable 12285 "2FFC" "12"
WatchWindowDialog.MemoryTable 12286 "2FFD" "34"
WatchWindowDialog.MemoryTable 12287 "2FFE" "09"
WatchWindowDialog.MemoryTable 12288 "2FFF" "20"
> click WatchWindowDialog.ExecuteButton
> dump WatchWindowDialog.InstructionTable 1
WatchWindowDialog.InstructionTable 1 "" "200F" "POP PSW" "F1"
> dump WatchWindowDialog.RegisterTable 2 4
WatchWindowDialog.RegisterTable 2 "B" "00"
WatchWindowDialog.RegisterTable 3 "C" "00"
WatchWindowDialog.RegisterTable 4 "BC" "0000"
> click WatchWindowDialog.ExecuteButton
> click WatchWindowDialog.ExecuteButton
> dump WatchWindowDialog.InstructionTable 1
WatchWindowDialog.InstructionTable 1 "" "2011" "RET" "C9"
> dump WatchWindowDialog.RegisterTable 1 4
WatchWindowDialog.RegisterTable 1 "A" "00"
WatchWindowDialog.RegisterTable 2 "B" "12"
WatchWindowDialog.RegisterTable 3 "C" "34"
WatchWindowDialog.RegisterTable 4 "BC" "1234"
> dump WatchWindowDialog.RegisterTable 12 12
WatchWindowDialog.RegisterTable 12 "SP" "2FFE"
> click WatchWindowDialog.ExecuteButton
> dump WatchWindowDialog.InstructionTable 1
WatchWindowDialog.InstructionTable 1 "" "2009" "HLT" "76"
> dump WatchWindowDialog.RegisterTable 12 13
WatchWindowDialog.RegisterTable 12 "SP" "3000"
WatchWindowDialog.RegisterTable 13 "PC" "2009"
> click WatchWindowDialog.ExecuteButton
box information "Program execution halted." ok -> ok
> dump WatchWindowDialog.InstructionTable 1
WatchWindowDialog.InstructionTable 1 "" "2009" "HLT" "76"

# The block move.
> close WatchWindowDialog
closed WatchWindowDialog
> click SimulationView
> settle
open WatchWindowDialog
> key WatchWindowDialog.AcceptButton 2100
> click WatchWindowDialog.AcceptButton
> click WatchWindowDialog.ExecuteButton
> click WatchWindowDialog.ExecuteButton
> click WatchWindowDialog.ExecuteButton
> click WatchWindowDialog.ExecuteButton
> click WatchWindowDialog.ExecuteButton
> click WatchWindowDialog.ExecuteButton
> click WatchWindowDialog.ExecuteButton
> click WatchWindowDialog.ExecuteButton
> click WatchWindowDialog.ExecuteButton
> click WatchWindowDialog.ExecuteButton
> click WatchWindowDialog.ExecuteButton
> click WatchWindowDialog.ExecuteButton
> click WatchWindowDialog.ExecuteButton
> click WatchWindowDialog.ExecuteButton
> click WatchWindowDialog.ExecuteButton
> click WatchWindowDialog.ExecuteButton
> click WatchWindowDialog.ExecuteButton
> click WatchWindowDialog.ExecuteButton
> click WatchWindowDialog.ExecuteButton
> click WatchWindowDialog.ExecuteButton
> click WatchWindowDialog.ExecuteButton
> dump WatchWindowDialog.InstructionTable 1
WatchWindowDialog.InstructionTable 1 "" "2110" "HLT" "76"
> dump WatchWindowDialog.RegisterTable 3 3
WatchWindowDialog.RegisterTable 3 "C" "00"
> dump WatchWindowDialog.RegisterTable 7 7
WatchWindowDialog.RegisterTable 7 "DE" "4003"
> dump WatchWindowDialog.RegisterTable 10 11
WatchWindowDialog.RegisterTable 10 "HL" "2115"
WatchWindowDialog.RegisterTable 11 "M(2115)" "00"
> dump WatchWindowDialog.MemoryTable 16385 16388
WatchWindowDialog.MemoryTable 16385 "4000" "5A"
WatchWindowDialog.MemoryTable 16386 "4001" "0F"
WatchWindowDialog.MemoryTable 16387 "4002" "A5"
WatchWindowDialog.MemoryTable 16388 "4003" "00"
> click WatchWindowDialog.ExecuteButton
box information "Program execution halted." ok -> ok

# The sum is 0200h, with a carry out.
> close WatchWindowDialog
closed WatchWindowDialog
> click SimulationView
> settle
open WatchWindowDialog
> key WatchWindowDialog.AcceptButton 2200
> click WatchWindowDialog.AcceptButton
> click WatchWindowDialog.ExecuteButton
> click WatchWindowDialog.ExecuteButton
> click WatchWindowDialog.ExecuteButton
> click WatchWindowDialog.ExecuteButton
> dump WatchWindowDialog.InstructionTable 1
WatchWindowDialog.InstructionTable 1 "" "2208" "MOV  L, A" "6F"
> dump WatchWindowDialog.RegisterTable 1 1
WatchWindowDialog.RegisterTable 1 "A" "00"
> dump WatchWindowDialog.RegisterTable 14 18
WatchWindowDialog.RegisterTable 14 "Zero" "1"
WatchWindowDialog.RegisterTable 15 "Sign" "0"
WatchWindowDialog.RegisterTable 16 "Parity" "1"
WatchWindowDialog.RegisterTable 17 "Carry" "1"
WatchWindowDialog.RegisterTable 18 "Aux. Carry" "1"
> click WatchWindowDialog.ExecuteButton
> click WatchWindowDialog.ExecuteButton
> click WatchWindowDialog.ExecuteButton
> click WatchWindowDialog.ExecuteButton
> dump WatchWindowDialog.InstructionTable 1
WatchWindowDialog.InstructionTable 1 "" "220C" "HLT" "76"
> dump WatchWindowDialog.RegisterTable 10 10
WatchWindowDialog.RegisterTable 10 "HL" "0200"
> dump WatchWindowDialog.RegisterTable 14 18
WatchWindowDialog.RegisterTable 14 "Zero" "0"
WatchWindowDialog.RegisterTable 15 "Sign" "0"
WatchWindowDialog.RegisterTable 16 "Parity" "0"
WatchWindowDialog.RegisterTable 17 "Carry" "1"
WatchWindowDialog.RegisterTable 18 "Aux. Carry" "1"
> click WatchWindowDialog.ExecuteButton
box information "Program execution halted." ok -> ok

# The echo: a forced value comes in and goes out.
> close WatchWindowDialog
closed WatchWindowDialog
> click SimulationView
> settle
open WatchWindowDialog
> pick WatchWindowDialog.PortAddrList 5
> pick WatchWindowDialog.ValueList 60
> click WatchWindowDialog.ForceButton
> key WatchWindowDialog.AcceptButton 2300
> click WatchWindowDialog.AcceptButton
> click WatchWindowDialog.ExecuteButton
> dump WatchWindowDialog.InstructionTable 1
WatchWindowDialog.InstructionTable 1 "" "2302" "CMA" "2F"
> dump WatchWindowDialog.RegisterTable 1 1
WatchWindowDialog.RegisterTable 1 "A" "3C"
> click WatchWindowDialog.ExecuteButton
> click WatchWindowDialog.ExecuteButton
> click WatchWindowDialog.ExecuteButton
> dump WatchWindowDialog.InstructionTable 1
WatchWindowDialog.InstructionTable 1 "" "2300" "IN  05h" "DB   05"
> dump WatchWindowDialog.PortTable 6 7
WatchWindowDialog.PortTable 6 "05" "3C"
WatchWindowDialog.PortTable 7 "06" "C3"

# The next round takes what is forced in between.
> pick WatchWindowDialog.ValueList 255
> click WatchWindowDialog.ForceButton
> click WatchWindowDialog.ExecuteButton
> click WatchWindowDialog.ExecuteButton
> click WatchWindowDialog.ExecuteButton
> dump WatchWindowDialog.InstructionTable 1
WatchWindowDialog.InstructionTable 1 "" "2305" "JMP  2300h" "C3   00   23"
> dump WatchWindowDialog.PortTable 6 7
WatchWindowDialog.PortTable 6 "05" "FF"
WatchWindowDialog.PortTable 7 "06" "00"
> dump WatchWindowDialog.PortTable 255
WatchWindowDialog.PortTable 255 "FE" "00"
WatchWindowDialog.PortTable 256 "FF" "00"
