# Reading: a cancel, no such file, a file without an end record (twice: its channel is closed), a
# sum of bytes that reads as a decimal number, and the question about unsaved changes.
> nopath ; click DisassembleFile ; show TipsLabel ; path none.hex ; click DisassembleFile
dialog open "Open Hex file" "Hex Files(*.hex)|*.hex" -> cancel
TipsLabel caption="New File." enabled=1 visible=1
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
> row HLT ; answer cancel ; click DisassembleFile ; answer yes ; click DisassembleFile
box question "Save changes to Pgm1.baf?" yesnocancel -> cancel
box question "Save changes to Pgm1.baf?" yesnocancel -> yes
dialog save "Save As" "Brelvanor Assembler Files (*.baf)|*.baf" -> cancel
# The dialog begins with a record of another type. Nothing but Cancel and the marks can be used, and
# a choice touches no rows. Cancel leaves the program as it is.
> answer no ; path image.hex ; click DisassembleFile ; dump DataDialog.DataTable 0 6
box question "Save changes to Pgm1.baf?" yesnocancel -> no
dialog open "Open Hex file" "Hex Files(*.hex)|*.hex" -> "image.hex"
open DataDialog
DataDialog.DataTable 0 "Address" "Data" "Category"
DataDialog.DataTable 1 "0000" "00" "Unwanted"
DataDialog.DataTable 2 "0001" "00" "Unwanted"
DataDialog.DataTable 3 "0FFD" "3E" "Unwanted"
DataDialog.DataTable 4 "0FFE" "12" "Unwanted"
DataDialog.DataTable 5 "0FFF" "18" "Unwanted"
DataDialog.DataTable 6 "1000" "C3" "Unwanted"
> show TipsLabel ; show DataDialog.Label5 ; show DataDialog.DataTypeLabel
TipsLabel caption="Select the mnemonics && data bytes and click 'Done', or click 'Cancel'." enabled=1 visible=1
DataDialog.Label5 caption="Data Type:" enabled=1 visible=1
DataDialog.DataTypeLabel caption="Unwanted" enabled=1 visible=1
> show DataDialog.DataType 2 ; click OpenFile ; escape ; enter ; drag DataDialog.DataTable 3 0 7 2
DataDialog.DataType 2 checked=1 enabled=1 visible=1
refused OpenFile modal
> click DataDialog.DoneButton ; click DataDialog.CancelButton ; show TipsLabel
refused DataDialog.DoneButton disabled
closed DataDialog
TipsLabel caption="Program Mode." enabled=1 visible=1
# Marking upwards, downwards, a single row, and up to the heading. Done stays enabled. In data mode,
# and closed before the check: nothing has happened.
> click EntryMode ; path image.hex ; answer no ; click DisassembleFile
box question "Save changes to Pgm1.baf?" yesnocancel -> no
dialog open "Open Hex file" "Hex Files(*.hex)|*.hex" -> "image.hex"
open DataDialog
> click DataDialog.DataType 1 ; drag DataDialog.DataTable 9 2 3 0 ; show DataDialog.DataTypeLabel
DataDialog.DataTypeLabel caption="Mnemonic" enabled=1 visible=1
> click DataDialog.DataType 0 ; drag DataDialog.DataTable 5 1 6 1 ; cell DataDialog.DataTable 8 0
> dump DataDialog.DataTable 2 10
DataDialog.DataTable 2 "0001" "00" "Unwanted"
DataDialog.DataTable 3 "0FFD" "3E" "Mnemonic"
DataDialog.DataTable 4 "0FFE" "12" "Mnemonic"
DataDialog.DataTable 5 "0FFF" "18" "Data Byte"
DataDialog.DataTable 6 "1000" "C3" "Data Byte"
DataDialog.DataTable 7 "1001" "FD" "Mnemonic"
DataDialog.DataTable 8 "1002" "0F" "Data Byte"
DataDialog.DataTable 9 "1003" "C2" "Mnemonic"
DataDialog.DataTable 10 "1004" "FD" "Unwanted"
> click DataDialog.DataType 2 ; drag DataDialog.DataTable 12 0 0 0 ; dump DataDialog.DataTable 0 1
DataDialog.DataTable 0 "Address" "Data" "Category"
DataDialog.DataTable 1 "0000" "00" "Unwanted"
> click DataDialog.DoneButton ; click DataDialog.CancelButton ; show TipsLabel ; settle ; changes
closed DataDialog
TipsLabel caption="Data Mode." enabled=1 visible=1
session: Cursor=2 PanelState=29 FileChanged=1 SelectedInstruction=79 CurrentOpcode=118
    HexPath="image.hex" HexTitle="image.hex" MessageResult="7"
HexList 0=":020000040000FA" 1=":100FFD003E1218C3FD0FC2FD0F3E12210410320028" 2=":03100D002008D0E8"
    3=":05200000DEE60F763E54" 4=":00000001FF" | Table1 1 - - "HLT" "76" default
caption: EntryMode="Program &Mode" TipsLabel="Data Mode." | shown: DataBox | hidden: InstructionBox
focus: DataAcceptButton | default: DataAcceptButton
# An undefined opcode; then operands that are not there, unwanted, or data. The dialog stays, and so
# do the origins of the checks that failed, until it opens again.
> click EntryMode ; path image.hex ; answer no ; click DisassembleFile ; click DataDialog.DataType 1
box question "Save changes to Pgm1.baf?" yesnocancel -> no
dialog open "Open Hex file" "Hex Files(*.hex)|*.hex" -> "image.hex"
open DataDialog
> drag DataDialog.DataTable 3 0 26 0 ; click DataDialog.DoneButton ; settle ; show TipsLabel
box critical "Invalid Hex Value in address 100E. Please check data table." ok -> ok
TipsLabel caption="Checking Data . . ." enabled=1 visible=1
> click DataDialog.DataType 2 ; cell DataDialog.DataTable 20 0 ; click DataDialog.DoneButton ; settle
box critical "Data missing for instruction in Address 2004. Please check data table." ok -> ok
> cell DataDialog.DataTable 8 0 ; click DataDialog.DoneButton ; settle
box critical "Data missing for instruction in Address 1000. Please check data table." ok -> ok
> click DataDialog.DataType 0 ; cell DataDialog.DataTable 4 0 ; click DataDialog.DoneButton ; settle
box critical "Data missing for instruction in Address 0FFD. Please check data table." ok -> ok
> list DataDialog.OriginList ; close DataDialog
DataDialog.OriginList 0 "0FFD0"
DataDialog.OriginList 1 "0FFD0"
DataDialog.OriginList 2 "100F10"
DataDialog.OriginList 3 "200014"
DataDialog.OriginList 4 "0FFD0"
DataDialog.OriginList 5 "0FFD0"
closed DataDialog
> path image.hex ; answer no ; click DisassembleFile ; list DataDialog.OriginList
box question "Save changes to Pgm1.baf?" yesnocancel -> no
dialog open "Open Hex file" "Hex Files(*.hex)|*.hex" -> "image.hex"
open DataDialog
DataDialog.OriginList empty
# The whole way: two jumps share a label, equal bytes do not share a variable, a label in the middle
# of an instruction is not placed, an undefined opcode is one that the check lets pass.
> click DataDialog.DataType 1 ; drag DataDialog.DataTable 3 0 25 0
> click DataDialog.DataType 2 ; cell DataDialog.DataTable 20 0
> click DataDialog.DataType 0 ; cell DataDialog.DataTable 22 0 ; cell DataDialog.DataTable 26 0
> click DataDialog.DoneButton ; tick 10 ; show TipsLabel ; tick 10 ; show TipsLabel ; dump Table1 0 1
TipsLabel caption="Copying Opcodes . . ." enabled=1 visible=1
TipsLabel caption=" Disassembling Opcodes . . ." enabled=1 visible=1
Table1 0 "Origin" "0FFD" "" "" ""
Table1 1 "" "" "" "3E   12" ""
> tick 10 ; show TipsLabel ; dump Table1 0 1 ; tick 10 ; changes
TipsLabel caption="Adding Comments . . ." enabled=1 visible=1
Table1 0 "Origin" "0FFD" "" "" ""
Table1 1 "a0" "0FFD" "MVI  A,  v0" "3E   12" ""
closed DataDialog
session: Selection=1 PanelState=1 CurrentRow=1 LastLine=19 FileOrigin=4 NextLabelNumber=3
    NextVariableNumber=3 | LabelCombo 0="a0" 1="a1" 2="a2" | LabelEqtList 0="0FFD" 1="1004" 2="2000"
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
caption: EntryMode="Data &Mode" TipsLabel="Disassembling completed successfully."
shown: InstructionBox | hidden: DataBox
# The origins of a failed check are laid out again: one falls on a row with an instruction.
> answer no ; path image.hex ; click DisassembleFile ; click DataDialog.DataType 1
box question "Save changes to Pgm1.baf?" yesnocancel -> no
dialog open "Open Hex file" "Hex Files(*.hex)|*.hex" -> "image.hex"
open DataDialog
> drag DataDialog.DataTable 3 0 4 0 ; drag DataDialog.DataTable 25 0 26 0 ; click DataDialog.DoneButton
> settle ; drag DataDialog.DataTable 5 0 13 0 ; click DataDialog.DataType 0
box critical "Data missing for instruction in Address 2004. Please check data table." ok -> ok
> cell DataDialog.DataTable 26 0 ; click DataDialog.DoneButton ; tick 10 ; list DataDialog.OriginList
DataDialog.OriginList 0 "0FFD0"
DataDialog.OriginList 1 "20034"
DataDialog.OriginList 2 "0FFD0"
DataDialog.OriginList 3 "20038"
> settle ; dump Table1 3 9
box critical "Address overlap in origins 2003h and 2003h." ok -> ok
closed DataDialog
Table1 3 "" "1000" "JMP  a0" "C3   FD   0F" "Jump to address pointed by 'a0'."
Table1 4 "Origin" "2003" "" "C2   FD   0F" "Jump on no zero, to address pointed by ''."
Table1 5 "" "2003" "MVI  A,  v1" "3E   12" "Move the equivalent of 'v1' into Accumulator."
Table1 8 "Origin" "2003" "" "" ""
Table1 9 "" "2003" "HLT" "76" "Halt program execution."
# Addresses beyond FFFF, in a file of quoted and plain items: a first mark at 10001 ends the check
# without a word, operands do not follow at another address, and the program is too long.
> answer no ; path top.hex ; click DisassembleFile ; dump DataDialog.DataTable
box question "Save changes to Pgm1.baf?" yesnocancel -> no
dialog open "Open Hex file" "Hex Files(*.hex)|*.hex" -> "top.hex"
open DataDialog
DataDialog.DataTable 0 "Address" "Data" "Category"
DataDialog.DataTable 1 "FFFF" "00" "Unwanted"
DataDialog.DataTable 2 "10000" "3A" "Unwanted"
DataDialog.DataTable 3 "10001" "C9" "Unwanted"
DataDialog.DataTable 4 "1000" "C3" "Unwanted"
DataDialog.DataTable 5 "1001" "76" "Unwanted"
DataDialog.DataTable 6 "1002" "ae" "Unwanted"
> click DataDialog.DataType 1 ; cell DataDialog.DataTable 3 0 ; click DataDialog.DoneButton ; settle
> cell DataDialog.DataTable 2 0 ; click DataDialog.DoneButton ; settle ; list DataDialog.OriginList
box critical "Data missing for instruction in Address 10000. Please check data table." ok -> ok
DataDialog.OriginList 0 "100000"
> close DataDialog ; answer no ; path top.hex ; click DisassembleFile ; click DataDialog.DataType 1
closed DataDialog
box question "Save changes to Pgm1.baf?" yesnocancel -> no
dialog open "Open Hex file" "Hex Files(*.hex)|*.hex" -> "top.hex"
open DataDialog
> drag DataDialog.DataTable 1 0 6 0 ; click DataDialog.DataType 0 ; cell DataDialog.DataTable 2 0
> click DataDialog.DoneButton ; settle ; dump Table1 ; list LabelEqtList
box critical "Compile error. Invalid address in origin FFFFh." ok -> ok
closed DataDialog
Table1 0 "Origin" "FFFF" "" "" ""
Table1 1 "" "FFFF" "NOP" "00" "No Operation."
Table1 2 "" "" "DFB" "3A" "Data Byte."
Table1 3 "" "" "RET" "C9" "Return."
Table1 6 "Origin" "1000" "" "" ""
Table1 7 "" "" "JMP  a0" "C3   76   ae" "Jump to address pointed by 'a0'."
LabelEqtList 0 "ae76"
# A smaller program than the one before: the cursor stays inside the table.
> answer no ; click NewFile ; cell Table1 31 2
box question "Save changes to Pgm1.baf?" yesnocancel -> no
> path top.hex ; click DisassembleFile ; click DataDialog.DataType 1 ; cell DataDialog.DataTable 1 0
dialog open "Open Hex file" "Hex Files(*.hex)|*.hex" -> "top.hex"
open DataDialog
> click DataDialog.DoneButton ; settle ; changes
closed DataDialog
session: Selection=11 CurrentRow=11 LastLine=2 SelectionAnchor=31 HexPath="top.hex"
    HexTitle="top.hex" NextLabelNumber=0 NextVariableNumber=0
HexList count=4 (1 out at 0) 0=":03FFFF00003AC9FC" 1=":02100000C376B5" 2=":01100200ae3F"
LabelCombo count=0 | LabelEqtList count=0 | LastAddressList count=1 (2 out at 0) 0="FFFF"
OriginList count=1 (2 out at 0) 0="FFFF" | StringTable rows=12 (17 out at 1) | Variables count=0
Table1 rows=12 (17 out at 0) | 0 "Origin" "FFFF" "" "" "" | 1 - "FFFF" "NOP" "00"
Table1 colors 0,0..4=E0E0E0
# A file without bytes has nothing to check, and marks that were taken back leave no program.
> answer no ; path empty.hex ; click DisassembleFile ; changes ; click DataDialog.DataType 1
box question "Save changes to Pgm1.baf?" yesnocancel -> no
dialog open "Open Hex file" "Hex Files(*.hex)|*.hex" -> "empty.hex"
open DataDialog
session: HexPath="empty.hex" HexTitle="empty.hex" | HexList count=1 (3 out at 0)
DataDialog.DataTable rows=1 | 0 "Address" "Data" "Category"
caption: DataDialog="Disassemble Dialog - empty.hex"
    TipsLabel="Select the mnemonics && data bytes and click 'Done', or click 'Cancel'."
    DataDialog.DataTypeLabel="Unwanted" | disabled: DataDialog.DoneButton
checked: DataDialog.DataType 2
> cell DataDialog.DataTable 0 0 ; click DataDialog.DoneButton ; settle ; dump DataDialog.DataTable
DataDialog.DataTable 0 "Address" "Data" "Category"
> close DataDialog ; answer no ; path top.hex ; click DisassembleFile ; click DataDialog.DataType 1
closed DataDialog
box question "Save changes to Pgm1.baf?" yesnocancel -> no
dialog open "Open Hex file" "Hex Files(*.hex)|*.hex" -> "top.hex"
open DataDialog
> cell DataDialog.DataTable 1 0 ; click DataDialog.DataType 2 ; cell DataDialog.DataTable 1 0
> click DataDialog.DoneButton ; settle ; show TipsLabel ; close DataDialog ; changes
TipsLabel caption=" Disassembling Opcodes . . ." enabled=1 visible=1
closed DataDialog
session: CurrentRow=7 LastLine=-2 HexPath="top.hex" HexTitle="top.hex"
HexList count=4 (3 in at 0) 0=":03FFFF00003AC9FC" 1=":02100000C376B5" 2=":01100200ae3F"
LastAddressList count=0 | OriginList 0="" | StringTable rows=8 | Table1 rows=8 (4 out at 0)
caption: TipsLabel=" Disassembling Opcodes . . ."
