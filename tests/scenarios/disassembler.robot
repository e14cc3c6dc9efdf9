# Reading: a cancel, no such file, a file without an end record (twice: its channel is closed), and
# a sum of bytes that reads as a decimal number.
> nopath ; click DisassembleFile ; path none.hex ; click DisassembleFile
dialog open "Open Hex file" "Hex Files(*.hex)|*.hex" -> cancel
dialog open "Open Hex file" "Hex Files(*.hex)|*.hex" -> "none.hex"
box critical "Unable to open none.hex." ok -> ok
> path latin.baf ; click DisassembleFile ; path latin.baf ; click DisassembleFile
dialog open "Open Hex file" "Hex Files(*.hex)|*.hex" -> "latin.baf"
box critical "Unable to open latin.baf." ok -> ok
dialog open "Open Hex file" "Hex Files(*.hex)|*.hex" -> "latin.baf"
box critical "Unable to open latin.baf." ok -> ok
> path sum.hex ; click DisassembleFile ; show TipsLabel
dialog open "Open Hex file" "Hex Files(*.hex)|*.hex" -> "sum.hex"
box critical "Check Sum error in sum.hex." ok -> ok
TipsLabel caption="Reading Hex file . . ." enabled=1 visible=1
# In data mode. The dialog begins with a record of another type. Nothing but Cancel and the marks can
# be used, and a choice touches no rows.
> click EntryMode ; path image.hex ; click DisassembleFile ; click OpenFile ; escape ; enter
dialog open "Open Hex file" "Hex Files(*.hex)|*.hex" -> "image.hex"
open DataDialog
refused OpenFile modal
> drag DataDialog.DataTable 3 0 7 2 ; click DataDialog.DoneButton
refused DataDialog.DoneButton disabled
# Marking upwards, downwards, a single row, and up to the heading. Done stays enabled. Closed before
# the check, nothing has happened.
> click DataDialog.DataType 1 ; drag DataDialog.DataTable 9 2 3 0 ; click DataDialog.DataType 0
> drag DataDialog.DataTable 5 1 6 1 ; cell DataDialog.DataTable 8 0 ; changes
session: PanelState=29 HexPath="image.hex" HexTitle="image.hex" MessageResult="1"
HexList 0=":020000040000FA" 1=":100FFD003E1218C3FD0FC2FD0F3E12210410320028" 2=":03100D002008D0E8"
    3=":05200000DEE60F763E54" 4=":00000001FF" | DataDialog.DataTable rows=27
DataDialog.DataTable 0 "Address" "Data" "Category" | 1..2 "0000".."0001" "00" "Unwanted"
DataDialog.DataTable 3 "0FFD" "3E" "Mnemonic" | 4 "0FFE" "12" "Mnemonic" | 5 "0FFF" "18" "Data Byte"
DataDialog.DataTable 6 "1000" "C3" "Data Byte" | 7 "1001" "FD" "Mnemonic"
DataDialog.DataTable 8 "1002" "0F" "Data Byte" | 9 "1003" "C2" "Mnemonic"
DataDialog.DataTable 10 "1004" "FD" "Unwanted" | 11 "1005" "0F" "Unwanted"
DataDialog.DataTable 12 "1006" "3E" "Unwanted" | 13 "1007" "12" "Unwanted"
DataDialog.DataTable 14 "1008" "21" "Unwanted" | 15 "1009" "04" "Unwanted"
DataDialog.DataTable 16 "100A" "10" "Unwanted" | 17 "100B" "32" "Unwanted"
DataDialog.DataTable 18 "100C" "00" "Unwanted" | 19 "100D" "20" "Unwanted"
DataDialog.DataTable 20 "100E" "08" "Unwanted" | 21 "100F" "D0" "Unwanted"
DataDialog.DataTable 22 "2000" "DE" "Unwanted" | 23 "2001" "E6" "Unwanted"
DataDialog.DataTable 24 "2002" "0F" "Unwanted" | 25 "2003" "76" "Unwanted"
DataDialog.DataTable 26 "2004" "3E" "Unwanted"
caption: DataDialog="Disassemble Dialog - image.hex" EntryMode="Program &Mode"
    TipsLabel="Select the mnemonics && data bytes and click 'Done', or click 'Cancel'."
    DataDialog.DataTypeLabel="Data Byte" | shown: DataBox | hidden: InstructionBox
checked: DataDialog.DataType 0 | focus: DataAcceptButton | default: DataAcceptButton
> click DataDialog.DataType 2 ; drag DataDialog.DataTable 12 0 0 0 ; click DataDialog.DoneButton
> click DataDialog.CancelButton ; settle ; changes
closed DataDialog
caption: TipsLabel="Data Mode."
# An undefined opcode; then operands that are not there, unwanted, or data. The dialog stays, and so
# do the origins of the checks that failed, until it opens again.
> path image.hex ; click DisassembleFile ; click DataDialog.DataType 1
dialog open "Open Hex file" "Hex Files(*.hex)|*.hex" -> "image.hex"
open DataDialog
> drag DataDialog.DataTable 3 0 26 0 ; click DataDialog.DoneButton ; settle ; show TipsLabel
box critical "Invalid Hex Value in address 100E. Please check data table." ok -> ok
TipsLabel caption="Checking Data . . ." enabled=1 visible=1
> click DataDialog.DataType 2 ; cell DataDialog.DataTable 20 0 ; click DataDialog.DoneButton
> settle
box critical "Data missing for instruction in Address 2004. Please check data table." ok -> ok
> cell DataDialog.DataTable 8 0 ; click DataDialog.DoneButton ; settle
box critical "Data missing for instruction in Address 1000. Please check data table." ok -> ok
> click DataDialog.DataType 0 ; cell DataDialog.DataTable 4 0 ; click DataDialog.DoneButton ; settle
box critical "Data missing for instruction in Address 0FFD. Please check data table." ok -> ok
> changes ; close DataDialog
DataDialog.OriginList 0..1="0FFD0" 2="100F10" 3="200014" 4..5="0FFD0"
DataDialog.DataTable 4 - - "Data Byte" | 5..6 - - "Mnemonic" | 8 - - "Unwanted"
DataDialog.DataTable 10..19 - - "Mnemonic" | 21..26 - - "Mnemonic"
caption: TipsLabel="Checking Data . . ."
closed DataDialog
> path image.hex ; click DisassembleFile ; list DataDialog.OriginList
dialog open "Open Hex file" "Hex Files(*.hex)|*.hex" -> "image.hex"
open DataDialog
DataDialog.OriginList empty
# The whole way: two jumps share a label, equal bytes do not share a variable, a label in the middle
# of an instruction is not placed, an undefined opcode is one that the check lets pass.
> click DataDialog.DataType 1 ; drag DataDialog.DataTable 3 0 25 0 ; click DataDialog.DataType 2
> cell DataDialog.DataTable 20 0 ; click DataDialog.DataType 0 ; cell DataDialog.DataTable 22 0
> cell DataDialog.DataTable 26 0 ; click DataDialog.DoneButton ; tick 10 ; show TipsLabel ; tick 10
TipsLabel caption="Copying Opcodes . . ." enabled=1 visible=1
> show TipsLabel
TipsLabel caption=" Disassembling Opcodes . . ." enabled=1 visible=1
> tick 10 ; show TipsLabel ; tick 10 ; changes
TipsLabel caption="Adding Comments . . ." enabled=1 visible=1
closed DataDialog
session: LastLine=19 FileOrigin=4 FileChanged=1 NextLabelNumber=3 NextVariableNumber=3
LabelCombo 0="a0" 1="a1" 2="a2" | LabelEqtList 0="0FFD" 1="1004" 2="2000"
LastAddressList 0="100D" 1="100F" 2="2004"
OriginList count=3 (2 in at 0) 0="0FFD" 1="100F" 2="2000"
StringTable rows=29 (3 out at 1) 1="v0" 3..4="a0" 5="v1" 6="a1" 7="a2" 16="v2"
Variables 0 "v0" "12" | 1 "v1" "12" | 2 "v2" "0F" | Table1 rows=29 (3 out at 0) | 0 "Origin" "0FFD"
Table1 1 "a0" "0FFD" "MVI  A,  v0" "3E   12" default | 2 - "0FFF" "-" "18"
Table1 3 - "1000" "JMP  a0" "C3   FD   0F" default | 4 - "1003" "JNZ  a0" "C2   FD   0F" default
Table1 5 - "1006" "MVI  A,  v1" "3E   12" default | 6 - "1008" "LXI  H,  a1" "21   04   10" default
Table1 7 - "100B" "STA   a2" "32   00   20" default | 10 "Origin" "100F"
Table1 11 - "100F" "RNC " "D0" default | 14 "Origin" "2000" | 15 "a2" "2000" "DFB" "DE" default
Table1 16 - "2001" "ANI  v2" "E6   0F" default | 17 - "2003" "HLT" "76" default
Table1 18 - "2004" "DFB" "3E" default
Table1 colors 0,0..4=E0E0E0 1,2=cursor 10,0..4=E0E0E0 14,0..4=E0E0E0
caption: TipsLabel="Disassembling completed successfully."
# Addresses beyond FFFF, in a file of quoted and plain items: operands do not follow at another
# address, and the program is too long.
> answer no ; path top.hex ; click DisassembleFile ; click DataDialog.DataType 1
box question "Save changes to Pgm1.baf?" yesnocancel -> no
dialog open "Open Hex file" "Hex Files(*.hex)|*.hex" -> "top.hex"
open DataDialog
> cell DataDialog.DataTable 2 0 ; click DataDialog.DoneButton ; settle
box critical "Data missing for instruction in Address 10000. Please check data table." ok -> ok
> drag DataDialog.DataTable 1 0 6 0 ; click DataDialog.DataType 0 ; cell DataDialog.DataTable 2 0
> click DataDialog.DoneButton ; settle
box critical "Compile error. Invalid address in origin FFFFh." ok -> ok
closed DataDialog
> changes
session: Selection=2 CurrentRow=2 LastLine=8 AddressError=-1 HexPath="top.hex" HexTitle="top.hex"
    NextLabelNumber=1 NextVariableNumber=0
HexList count=4 (1 out at 0) 0=":03FFFF00003AC9FC" 1=":02100000C376B5" 2=":01100200ae3F"
LabelCombo count=1 | LabelEqtList count=1 (2 out at 0) 0="ae76" | LastAddressList count=0
OriginList count=1 (2 out at 0) 0="FFFF" | StringTable rows=18 (11 out at 1) 5="" 7="a0"
Variables count=0 | Table1 rows=18 (11 out at 0) | 0 "Origin" "FFFF" "" "" ""
Table1 1 - "FFFF" "NOP" "00" default | 2 - - "DFB" "3A" default | 3 "" "" "RET" "C9" default
Table1 4 "" "" "" "" "" | 5 - "" "" "" "" | 6 "Origin" "1000" "" "" ""
Table1 7 - "" "JMP  a0" "C3   76   ae" | colors 0,0..4=E0E0E0 2,2=cursor 3,0..4=own 6,0..4=E0E0E0
# Unsaved changes are asked for: a cancel and a save that fails leave all as it was.
> answer cancel ; click DisassembleFile ; answer yes ; click DisassembleFile ; changes
box question "Save changes to Pgm1.baf?" yesnocancel -> cancel
box question "Save changes to Pgm1.baf?" yesnocancel -> yes
box critical "Unable to save file." ok -> ok
OriginList 1="1000" | caption: TipsLabel="Data Mode."
