# Single cases, each at an address of its own.
open OpenForm
closed OpenForm
> click EntryMode
> click NewOrigin
> key NumberAcceptButton 2000
> click NumberAcceptButton
> key DataAcceptButton 08
> click DataAcceptButton
> key DataAcceptButton 00
> click DataAcceptButton
> click NewOrigin
> key NumberAcceptButton 2010
> click NumberAcceptButton
> key DataAcceptButton 31
> click DataAcceptButton
> key DataAcceptButton 01
> click DataAcceptButton
> key DataAcceptButton 00
> click DataAcceptButton
> key DataAcceptButton 01
> click DataAcceptButton
> key DataAcceptButton 34
> click DataAcceptButton
> key DataAcceptButton 12
> click DataAcceptButton
> key DataAcceptButton C5
> click DataAcceptButton
> key DataAcceptButton C1
> click DataAcceptButton
> click NewOrigin
> key NumberAcceptButton 2020
> click NumberAcceptButton
> key DataAcceptButton 31
> click DataAcceptButton
> key DataAcceptButton FF
> click DataAcceptButton
> key DataAcceptButton FF
> click DataAcceptButton
> key DataAcceptButton C1
> click DataAcceptButton
> click NewOrigin
> key NumberAcceptButton 2030
> click NumberAcceptButton
> key DataAcceptButton CF
> click DataAcceptButton
> click NewOrigin
> key NumberAcceptButton 2040
> click NumberAcceptButton
> key DataAcceptButton 3E
> click DataAcceptButton
> key DataAcceptButton 1E
> click DataAcceptButton
> key DataAcceptButton F5
> click DataAcceptButton
> key DataAcceptButton 3E
> click DataAcceptButton
> key DataAcceptButton 12
> click DataAcceptButton
> key DataAcceptButton F5
> click DataAcceptButton
> click NewOrigin
> key NumberAcceptButton 2050
> click NumberAcceptButton
> key DataAcceptButton 21
> click DataAcceptButton
> key DataAcceptButton 0A
> click DataAcceptButton
> key DataAcceptButton 04
> click DataAcceptButton
> key DataAcceptButton 36
> click DataAcceptButton
> key DataAcceptButton 77
> click DataAcceptButton
> key DataAcceptButton 24
> click DataAcceptButton
> key DataAcceptButton C3
> click DataAcceptButton
> key DataAcceptButton 5A
> click DataAcceptButton
> key DataAcceptButton 20
> click DataAcceptButton
> key DataAcceptButton 00
> click DataAcceptButton
> key DataAcceptButton 7E
> click DataAcceptButton
> click NewOrigin
> key NumberAcceptButton 2070
> click NumberAcceptButton
> key DataAcceptButton 3E
> click DataAcceptButton
> key DataAcceptButton 04
> click DataAcceptButton
> key DataAcceptButton 32
> click DataAcceptButton
> key DataAcceptButton 75
> click DataAcceptButton
> key DataAcceptButton 20
> click DataAcceptButton
> key DataAcceptButton 00
> click DataAcceptButton
> click NewOrigin
> key NumberAcceptButton 2080
> click NumberAcceptButton
> key DataAcceptButton 3E
> click DataAcceptButton
> key DataAcceptButton 1D
> click DataAcceptButton
> key DataAcceptButton 30
> click DataAcceptButton
> key DataAcceptButton FB
> click DataAcceptButton
> key DataAcceptButton 3E
> click DataAcceptButton
> key DataAcceptButton 10
> click DataAcceptButton
> key DataAcceptButton 30
> click DataAcceptButton
> key DataAcceptButton 20
> click DataAcceptButton
> click SimulationView
> settle
open WatchWindowDialog

# An invalid opcode warns whenever it is shown, and runs as NOP.
> key WatchWindowDialog.AcceptButton 2000
> click WatchWindowDialog.AcceptButton
box information "This is an invalid instruction. However, the processor will execute this instruction as a NOP instruction." ok -> ok
> dump WatchWindowDialog.InstructionTable 1
WatchWindowDialog.InstructionTable 1 "" "2000" "-" "08"
> click WatchWindowDialog.ExecuteButton
> dump WatchWindowDialog.InstructionTable 1
WatchWindowDialog.InstructionTable 1 "" "2001" "NOP" "00"
> key WatchWindowDialog.AcceptButton 2000
> click WatchWindowDialog.AcceptButton
box information "This is an invalid instruction. However, the processor will execute this instruction as a NOP instruction." ok -> ok

# PUSH with the stack pointer at 1 writes over the heading, which POP then takes for a byte.
> key WatchWindowDialog.AcceptButton 2010
> click WatchWindowDialog.AcceptButton
> click WatchWindowDialog.ExecuteButton
> click WatchWindowDialog.ExecuteButton
> click WatchWindowDialog.ExecuteButton
> dump WatchWindowDialog.InstructionTable 1
WatchWindowDialog.InstructionTable 1 "" "2017" "POP B" "C1"
> dump WatchWindowDialog.RegisterTable 12 12
WatchWindowDialog.RegisterTable 12 "SP" "FFFF"
> dump WatchWindowDialog.MemoryTable 0 1
WatchWindowDialog.MemoryTable 0 "Address" "12"
WatchWindowDialog.MemoryTable 1 "0000" "34"
> click WatchWindowDialog.ExecuteButton
> dump WatchWindowDialog.InstructionTable 1
WatchWindowDialog.InstructionTable 1 "" "2018" "NOP" "00"
> dump WatchWindowDialog.RegisterTable 2 4
WatchWindowDialog.RegisterTable 2 "B" "12"
WatchWindowDialog.RegisterTable 3 "C" "34"
WatchWindowDialog.RegisterTable 4 "BC" "1234"
> dump WatchWindowDialog.RegisterTable 12 12
WatchWindowDialog.RegisterTable 12 "SP" "0001"

# Elsewhere POP at FFFFh meets the heading and fails, again and again; another address goes on.
> close WatchWindowDialog
closed WatchWindowDialog
> click SimulationView
> settle
open WatchWindowDialog
> key WatchWindowDialog.AcceptButton 2020
> click WatchWindowDialog.AcceptButton
> click WatchWindowDialog.ExecuteButton
> click WatchWindowDialog.ExecuteButton
> dump WatchWindowDialog.InstructionTable 1
WatchWindowDialog.InstructionTable 1 "" "2023" "POP B" "C1"
> dump WatchWindowDialog.RegisterTable 12 12
WatchWindowDialog.RegisterTable 12 "SP" "FFFF"
> click WatchWindowDialog.ExecuteButton
> dump WatchWindowDialog.InstructionTable 1
WatchWindowDialog.InstructionTable 1 "" "2023" "POP B" "C1"
> key WatchWindowDialog.AcceptButton 2030
> click WatchWindowDialog.AcceptButton

# A restart pushes the address three bytes on.
> click WatchWindowDialog.ExecuteButton
> dump WatchWindowDialog.RegisterTable 12 13
WatchWindowDialog.RegisterTable 12 "SP" "FFFD"
WatchWindowDialog.RegisterTable 13 "PC" "0008"

# PUSH PSW takes the text 1E for no number and 12 for twelve.
> key WatchWindowDialog.AcceptButton 2040
> click WatchWindowDialog.AcceptButton
> click WatchWindowDialog.ExecuteButton
> click WatchWindowDialog.ExecuteButton
> dump WatchWindowDialog.InstructionTable 1
WatchWindowDialog.InstructionTable 1 "" "2042" "PUSH PSW" "F5"
> dump WatchWindowDialog.RegisterTable 12 12
WatchWindowDialog.RegisterTable 12 "SP" "FFFD"
> key WatchWindowDialog.AcceptButton 2043
> click WatchWindowDialog.AcceptButton
> click WatchWindowDialog.ExecuteButton
> click WatchWindowDialog.ExecuteButton
> dump WatchWindowDialog.InstructionTable 1
WatchWindowDialog.InstructionTable 1 "" "2046" "NOP" "00"
> dump WatchWindowDialog.RegisterTable 12 12
WatchWindowDialog.RegisterTable 12 "SP" "FFFB"
> dump WatchWindowDialog.MemoryTable 65532 65533
WatchWindowDialog.MemoryTable 65532 "FFFB" "0C"
WatchWindowDialog.MemoryTable 65533 "FFFC" "02"

# H turns to one digit: the title of M shows a short address until the next refresh, which a jump is not.
> close WatchWindowDialog
closed WatchWindowDialog
> click SimulationView
> settle
open WatchWindowDialog
> key WatchWindowDialog.AcceptButton 2050
> click WatchWindowDialog.AcceptButton
> click WatchWindowDialog.ExecuteButton
> click WatchWindowDialog.ExecuteButton
> dump WatchWindowDialog.InstructionTable 1
WatchWindowDialog.InstructionTable 1 "" "2055" "INR  H" "24"
> dump WatchWindowDialog.RegisterTable 8 11
WatchWindowDialog.RegisterTable 8 "H" "04"
WatchWindowDialog.RegisterTable 9 "L" "0A"
WatchWindowDialog.RegisterTable 10 "HL" "040A"
WatchWindowDialog.RegisterTable 11 "M(040A)" "77"
> click WatchWindowDialog.ExecuteButton
> dump WatchWindowDialog.InstructionTable 1
WatchWindowDialog.InstructionTable 1 "" "2056" "JMP  205Ah" "C3   5A   20"
> dump WatchWindowDialog.RegisterTable 8 11
WatchWindowDialog.RegisterTable 8 "H" "05"
WatchWindowDialog.RegisterTable 9 "L" "0A"
WatchWindowDialog.RegisterTable 10 "HL" "050A"
WatchWindowDialog.RegisterTable 11 "M(50A)" "00"
> click WatchWindowDialog.ExecuteButton
> dump WatchWindowDialog.InstructionTable 1
WatchWindowDialog.InstructionTable 1 "" "205A" "MOV  A, M" "7E"
> dump WatchWindowDialog.RegisterTable 10 11
WatchWindowDialog.RegisterTable 10 "HL" "050A"
WatchWindowDialog.RegisterTable 11 "M(50A)" "00"
> click WatchWindowDialog.ExecuteButton
> dump WatchWindowDialog.InstructionTable 1
WatchWindowDialog.InstructionTable 1 "" "205B" "NOP" "00"
> dump WatchWindowDialog.RegisterTable 10 11
WatchWindowDialog.RegisterTable 10 "HL" "050A"
WatchWindowDialog.RegisterTable 11 "M(050A)" "00"

# A program that writes its next instruction; chosen again, the menu entry writes the cell back and no more.
> key WatchWindowDialog.AcceptButton 2070
> click WatchWindowDialog.AcceptButton
> click WatchWindowDialog.ExecuteButton
> click WatchWindowDialog.ExecuteButton
> dump WatchWindowDialog.InstructionTable 1
WatchWindowDialog.InstructionTable 1 "" "2075" "INR  B" "04"
> dump WatchWindowDialog.InstructionTable 1
WatchWindowDialog.InstructionTable 1 "" "2075" "INR  B" "04"
> click SimulationView
> settle
> dump WatchWindowDialog.MemoryTable 8310 8310
WatchWindowDialog.MemoryTable 8310 "2075" "00"
> dump WatchWindowDialog.RegisterTable 1 1
WatchWindowDialog.RegisterTable 1 "A" "04"
> dump WatchWindowDialog.RegisterTable 13 13
WatchWindowDialog.RegisterTable 13 "PC" "2075"
> dump WatchWindowDialog.InstructionTable 1
WatchWindowDialog.InstructionTable 1 "" "2075" "INR  B" "04"
> click WatchWindowDialog.ExecuteButton
> dump WatchWindowDialog.InstructionTable 1
WatchWindowDialog.InstructionTable 1 "" "2076" "NOP" "00"
> dump WatchWindowDialog.RegisterTable 2 2
WatchWindowDialog.RegisterTable 2 "B" "01"

# Interrupt masks and lines are seen and change nothing else.
> key WatchWindowDialog.AcceptButton 2080
> click WatchWindowDialog.AcceptButton
> click WatchWindowDialog.ExecuteButton
> click WatchWindowDialog.ExecuteButton
> dump WatchWindowDialog.InstructionTable 1
WatchWindowDialog.InstructionTable 1 "" "2083" "EI" "FB"
> colors WatchWindowDialog.InterruptTable
WatchWindowDialog.InterruptTable 1 0 back=00FF00 fore=-
WatchWindowDialog.InterruptTable 2 0 back=0000FF fore=-
WatchWindowDialog.InterruptTable 3 0 back=00FF00 fore=-
WatchWindowDialog.InterruptTable 4 0 back=0000FF fore=-
WatchWindowDialog.InterruptTable 5 0 back=0000FF fore=-
> dump WatchWindowDialog.InterruptTable 1 2
WatchWindowDialog.InterruptTable 1 "TRAP" "1"
WatchWindowDialog.InterruptTable 2 "RST 7.5" "0"
> click WatchWindowDialog.ExecuteButton
> dump WatchWindowDialog.InstructionTable 1
WatchWindowDialog.InstructionTable 1 "" "2084" "MVI  A,  10h" "3E   10"
> colors WatchWindowDialog.InterruptTable
WatchWindowDialog.InterruptTable 1 0 back=00FF00 fore=-
WatchWindowDialog.InterruptTable 2 0 back=0000FF fore=-
WatchWindowDialog.InterruptTable 3 0 back=00FF00 fore=-
WatchWindowDialog.InterruptTable 4 0 back=0000FF fore=-
WatchWindowDialog.InterruptTable 5 0 back=00FF00 fore=-
> click WatchWindowDialog.ExecuteButton
> click WatchWindowDialog.ExecuteButton
> dump WatchWindowDialog.InstructionTable 1
WatchWindowDialog.InstructionTable 1 "" "2087" "RIM" "20"
> dump WatchWindowDialog.InterruptTable 1 7
WatchWindowDialog.InterruptTable 1 "TRAP" "1"
WatchWindowDialog.InterruptTable 2 "RST 7.5" "0"
WatchWindowDialog.InterruptTable 3 "RST 6.5" "1"
WatchWindowDialog.InterruptTable 4 "RST 5.5" "1"
WatchWindowDialog.InterruptTable 5 "INTR" "1"
WatchWindowDialog.InterruptTable 6 "INTA'" "1"
WatchWindowDialog.InterruptTable 7 "" "1"
> click WatchWindowDialog.ExecuteButton
> dump WatchWindowDialog.InstructionTable 1
WatchWindowDialog.InstructionTable 1 "" "2088" "NOP" "00"
> dump WatchWindowDialog.RegisterTable 1 1
WatchWindowDialog.RegisterTable 1 "A" "10"
> press WatchWindowDialog.IButton 1
> show WatchWindowDialog.IButton 1
WatchWindowDialog.IButton 1 caption="1" enabled=1 visible=1
> release WatchWindowDialog.IButton 1
> show WatchWindowDialog.IButton 1
WatchWindowDialog.IButton 1 caption="1" enabled=1 visible=1
> click WatchWindowDialog.IButton 1
> show WatchWindowDialog.IButton 1
WatchWindowDialog.IButton 1 caption="0" enabled=1 visible=1
> press WatchWindowDialog.IButton 2
> show WatchWindowDialog.IButton 2
WatchWindowDialog.IButton 2 caption="1" enabled=1 visible=1
> release WatchWindowDialog.IButton 2
> show WatchWindowDialog.IButton 2
WatchWindowDialog.IButton 2 caption="0" enabled=1 visible=1
> dump WatchWindowDialog.InstructionTable 1
WatchWindowDialog.InstructionTable 1 "" "2088" "NOP" "00"

# The keypad and the keys of its OK button.
> close WatchWindowDialog
closed WatchWindowDialog
> click SimulationView
> settle
open WatchWindowDialog
> click WatchWindowDialog.NUM 2
> click WatchWindowDialog.NUM 0
> click WatchWindowDialog.NUM 0
> click WatchWindowDialog.NUM 0
> show WatchWindowDialog.AddrLbl
WatchWindowDialog.AddrLbl caption="2000" enabled=1 visible=1
> click WatchWindowDialog.NUM 5
> show WatchWindowDialog.AddrLbl
WatchWindowDialog.AddrLbl caption="0005" enabled=1 visible=1
> key WatchWindowDialog.AcceptButton "gaF"
> show WatchWindowDialog.AddrLbl
WatchWindowDialog.AddrLbl caption="05AF" enabled=1 visible=1
