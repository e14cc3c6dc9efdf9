== simulator
# A row past FFFFh gets no address: the fill ends there and the window stays hidden.
> click EntryMode ; click NewOrigin ; key NumberAcceptButton FFFE ; enter ; key DataAcceptButton C3
> enter ; enter ; key DataAcceptButton 76 ; enter ; click SimulationView ; settle ; changes
box critical "Compile error. Invalid address in origin FFFEh." ok -> ok
session: Selection=4 PanelState=29 CurrentRow=4 LastLine=5 FileChanged=1 AddressError=-1
    MessageResult="1" | LastAddressList 0="7FFF" | OriginList 1="FFFE" | StringTable rows=33
Table1 rows=33 (1 in at 1) | 1 "Origin" "FFFE" | 2 - "FFFE" "DFB" "C3" default
Table1 3 - "FFFF" "DFB" "00" default | 4 - - "DFB" "76" default
Table1 colors 1,0..4=E0E0E0 2,2=own 4,2=cursor
caption: EntryMode="Program &Mode" TipsLabel="Preparing for simulation..." | shown: DataBox
hidden: InstructionBox | focus: DataAcceptButton | default: DataAcceptButton
# With that row gone the window is filled and shown. A jump at FFFEh reaches beyond the memory: the
# address is shown, the rest of the row is not.
> cell Table1 4 2 ; click DeleteEdit ; click SimulationView ; settle
open WatchWindowDialog
> key WatchWindowDialog.AcceptButton FFFE ; click WatchWindowDialog.AcceptButton
> click WatchWindowDialog.ExecuteButton ; changes
session: Selection=2 CurrentRow=2 AddressError=0 SelectionAnchor=4 | LastAddressList 1="FFFF"
Table1 1 "" "" | 2 "Origin" - "" "" "" | 3 - "FFFE" - "C3" | 4 - "FFFF" - "00"
WatchWindowDialog.InstructionTable rows=2 | 0 "Label" "Addr." "Mnemonics" "Opcode" | 1 - "FFFE"
WatchWindowDialog.InterruptTable rows=8 | 0 "Interrupts" "Value" | 1 "TRAP" "1" | 2 "RST 7.5" "1"
WatchWindowDialog.InterruptTable 3 "RST 6.5" "1" | 4 "RST 5.5" "1" | 5 "INTR" "1" | 6 "INTA'" "1"
WatchWindowDialog.InterruptTable 7 - "1" | WatchWindowDialog.MemoryTable rows=65537
WatchWindowDialog.MemoryTable 0 "Address" "Value" | 1..65534 "0000".."FFFD" "00" | 65535 "FFFE" "C3"
WatchWindowDialog.MemoryTable 65536 "FFFF" "00" | WatchWindowDialog.PortTable rows=257
WatchWindowDialog.PortTable 0 "Address" "Value" | 1..256 "00".."FF" "00"
WatchWindowDialog.RegisterTable rows=20 | 0 "Registers" "Value" | 1 "A" "00" | 2 "B" "00"
WatchWindowDialog.RegisterTable 3 "C" "00" | 4 "BC" "0000" | 5 "D" "00" | 6 "E" "00" | 7 "DE" "0000"
WatchWindowDialog.RegisterTable 8 "H" "00" | 9 "L" "00" | 10 "HL" "0000" | 11 "M(0000)" "00"
WatchWindowDialog.RegisterTable 12 "SP" "FF00" | 13 "PC" "FFFE" | 14 "Zero" "0" | 15 "Sign" "0"
WatchWindowDialog.RegisterTable 16 "Parity" "0" | 17 "Carry" "0" | 18 "Aux. Carry" "0"
Table1 colors 1,0..4=own 2,0..1=E0E0E0 2,2=E0E0E0/cursor 2,3..4=E0E0E0 4,2=own
WatchWindowDialog.InterruptTable colors 1,0=00FF00 2..5,0=0000FF
caption: WatchWindowDialog.AddrLbl="FFFE"
    WatchWindowDialog.StepNoteLabel="Enter a starting address and press OK."
text: WatchWindowDialog.PortAddrList="00" WatchWindowDialog.ValueList="00"
focus: WatchWindowDialog.AcceptButton
# A NOP at FFFFh goes on at 0000h.
> key WatchWindowDialog.AcceptButton FFFF ; click WatchWindowDialog.AcceptButton
> click WatchWindowDialog.ExecuteButton ; changes
WatchWindowDialog.InstructionTable 1 - "0000" "NOP" "00"
WatchWindowDialog.RegisterTable 13 - "0000"
caption: WatchWindowDialog.AddrLbl="FFFF" WatchWindowDialog.StepNoteLabel=""
> close WatchWindowDialog ; click EntryMode ; answer no ; click NewFile
closed WatchWindowDialog
box question "Save changes to Pgm1.baf?" yesnocancel -> no
# Two turns and a halt. The window opens a moment after the click; the tip stays. Nothing is there
# to step before a starting address is given.
> row "INR B" "INR B" "DCR B" "JNZ loop" HLT ; click PlaceLabelTool ; cell Table1 3 0
> click ExistingPlaceOption ; click PlaceAcceptButton ; click PlaceDoneButton ; click SimulationView
> tick 9 ; close WatchWindowDialog ; tick 1 ; click WatchWindowDialog.ExecuteButton ; changes
refused WatchWindowDialog hidden
open WatchWindowDialog
session: Selection=6 PanelState=1 CurrentRow=6 SelectionAnchor=0 ClickedRow=3 SelectedInstruction=79
    CurrentOpcode=118 MessageResult="7" | LastAddressList count=1 (1 out at 0) 0="8006"
OriginList count=1 | StringTable rows=32 (1 out at 4) 4="loop" | Labels 0 "loop" "8002" "3" "1" "1"
Table1 rows=32 (1 out at 1) | 1 "" "8000" "INR  B" "04" default | 2 - "8001" "INR  B" "04"
Table1 3 "loop" "8002" "DCR  B" "05" | 4 - "8003" "JNZ  loop" "C2   02   80" default
Table1 5 - "8006" "HLT" "76" default | WatchWindowDialog.InstructionTable 1 - "" "" ""
WatchWindowDialog.MemoryTable 32769..32770 - "04" | 32771 - "05" | 32772 - "C2" | 32773 - "02"
WatchWindowDialog.MemoryTable 32774 - "80" | 32775 - "76" | 65535 - "00"
Table1 colors 1,0..4=own 6,2=cursor
caption: EntryMode="Data &Mode" WatchWindowDialog.AddrLbl="0000"
    WatchWindowDialog.StepNoteLabel="Enter a starting address and press OK." | shown: InstructionBox
hidden: DataBox
# The loop, step by step; PC shows the next instruction.
> key WatchWindowDialog.AcceptButton 8000 ; click WatchWindowDialog.AcceptButton
> click WatchWindowDialog.ExecuteButton ; click WatchWindowDialog.ExecuteButton
> click WatchWindowDialog.ExecuteButton ; click WatchWindowDialog.ExecuteButton ; changes
WatchWindowDialog.InstructionTable 1 - "8002" "DCR  B" "05"
WatchWindowDialog.RegisterTable 2 - "01" | 4 - "0100" | 13 - "8002"
caption: WatchWindowDialog.AddrLbl="8000" WatchWindowDialog.StepNoteLabel=""
> click WatchWindowDialog.ExecuteButton ; click WatchWindowDialog.ExecuteButton ; changes
WatchWindowDialog.InstructionTable 1 - "8006" "HLT" "76" | WatchWindowDialog.RegisterTable 2 - "00"
WatchWindowDialog.RegisterTable 4 - "0000" | 13 - "8006" | 14 - "1" | 16 - "1"
# The halt is told once, and nothing moves after it, a new starting address included.
> click WatchWindowDialog.ExecuteButton ; click WatchWindowDialog.ExecuteButton
box information "Program execution halted." ok -> ok
> key WatchWindowDialog.AcceptButton 8002 ; click WatchWindowDialog.AcceptButton
> click WatchWindowDialog.ExecuteButton ; changes
session: MessageResult="1" | WatchWindowDialog.InstructionTable 1 - "8002" "DCR  B" "05"
WatchWindowDialog.RegisterTable 13 - "8002" | caption: WatchWindowDialog.AddrLbl="8002"
> close WatchWindowDialog ; answer no ; click NewFile
closed WatchWindowDialog
box question "Save changes to Pgm1.baf?" yesnocancel -> no
# An invalid opcode warns whenever it is shown, and runs as NOP.
> row "IN p" CMA "OUT q" "MVI A,m" SIM EI "MVI A,n" SIM RIM DI ; click EntryMode
> key DataAcceptButton 08 ; enter ; key DataAcceptButton F5 ; enter ; click EqtOption
open RenumberDialog
> click RenumberDialog.VariablesOption ; cell RenumberDialog.VariableTable 1 0
> key RenumberDialog.XXAcceptButton 0 ; enter ; cell RenumberDialog.VariableTable 2 0
> key RenumberDialog.XXAcceptButton 6 ; enter ; cell RenumberDialog.VariableTable 3 0
> key RenumberDialog.XXAcceptButton 1d ; enter ; cell RenumberDialog.VariableTable 4 0
> key RenumberDialog.XXAcceptButton 0a ; enter ; click RenumberDialog.DoneButton
closed RenumberDialog
> click SimulationView ; settle
open WatchWindowDialog
# A forced value comes in at one port and goes out, complemented, at the other.
> pick WatchWindowDialog.PortAddrList 0 ; pick WatchWindowDialog.ValueList 60
> click WatchWindowDialog.ForceButton ; key WatchWindowDialog.AcceptButton 8000
> click WatchWindowDialog.AcceptButton ; click WatchWindowDialog.ExecuteButton
> click WatchWindowDialog.ExecuteButton ; click WatchWindowDialog.ExecuteButton ; changes
session: Cursor=13 PanelState=29 LastLine=11 SelectedInstruction=72 CurrentOpcode=243
    MessageResult="7" | LastAddressList 0="800F" | StringTable 1="p" 3="q" 4="m" 7="n"
Labels count=0 | Variables 0 "p" "00" | 1 "q" "06" | 2 "m" "1D" | 3 "n" "0A"
Table1 1 - - "IN   p" "DB   00" | 2 - "8002" "CMA" "2F" | 3 "" "8003" "OUT   q" "D3   06"
Table1 4 - "8005" "MVI  A,   m" "3E   1D" | 5 - "8007" "SIM" "30" | 6 - "8008" "EI" "FB" default
Table1 7 - "8009" "MVI  A,   n" "3E   0A" default | 8 - "800B" "SIM" "30" default
Table1 9 - "800C" "RIM" "20" default | 10 - "800D" "DI" "F3" default
Table1 11 - "800E" "DFB" "08" default | 12 - "800F" "DFB" "F5" default
WatchWindowDialog.InstructionTable 1 - "8005" "MVI  A,  1Dh" "3E   1D"
WatchWindowDialog.MemoryTable 32769 - "DB" | 32770 - "00" | 32771 - "2F" | 32772 - "D3"
WatchWindowDialog.MemoryTable 32773 - "06" | 32774 - "3E" | 32775 - "1D" | 32776 - "30"
WatchWindowDialog.MemoryTable 32777 - "FB" | 32778 - "3E" | 32779 - "0A" | 32780 - "30"
WatchWindowDialog.MemoryTable 32781 - "20" | 32782 - "F3" | 32783 - "08" | 32784 - "F5"
WatchWindowDialog.PortTable 1 - "3C" | 7 - "C3" | WatchWindowDialog.RegisterTable 1 - "C3"
WatchWindowDialog.RegisterTable 13 - "8005" | 14 - "0" | 16 - "0"
caption: EntryMode="Program &Mode" WatchWindowDialog.AddrLbl="8000"
text: WatchWindowDialog.ValueList="3C" | shown: DataBox | hidden: InstructionBox
# Interrupt masks and lines are seen and change nothing else.
> click WatchWindowDialog.ExecuteButton ; click WatchWindowDialog.ExecuteButton
> click WatchWindowDialog.ExecuteButton ; click WatchWindowDialog.ExecuteButton
> click WatchWindowDialog.ExecuteButton ; click WatchWindowDialog.ExecuteButton
> click WatchWindowDialog.ExecuteButton
box information "This is an invalid instruction. However, the processor will execute this instruction as a NOP instruction." ok -> ok
> press WatchWindowDialog.IButton 1 ; press WatchWindowDialog.IButton 2
> release WatchWindowDialog.IButton 1 ; release WatchWindowDialog.IButton 2
> click WatchWindowDialog.IButton 5 ; click WatchWindowDialog.IButton 1
> click WatchWindowDialog.IButton 5 ; changes
session: MessageResult="1" | WatchWindowDialog.InstructionTable 1 - "800E" "-" "08"
WatchWindowDialog.InterruptTable 2 - "0" | WatchWindowDialog.RegisterTable 1 - "0A" | 13 - "800E"
WatchWindowDialog.InterruptTable colors 2,0=00FF00 4,0=00FF00
# The invalid one, and a step that fails: the text 0A is no decimal number to push. The keypad and
# the keys of its OK button.
> click WatchWindowDialog.ExecuteButton ; click WatchWindowDialog.ExecuteButton
> click WatchWindowDialog.NUM 15 ; click WatchWindowDialog.NUM 5
> key WatchWindowDialog.AcceptButton "gaF" ; changes
WatchWindowDialog.InstructionTable 1 - "800F" "PUSH PSW" "F5"
WatchWindowDialog.RegisterTable 13 - "800F" | caption: WatchWindowDialog.AddrLbl="F5AF"
    WatchWindowDialog.StepNoteLabel="This instruction could not be carried out."
