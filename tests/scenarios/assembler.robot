== assembler
# No byte in any row but the first: nothing to assemble.
> click AssembleFile ; changes
box critical "No data available for assembling." ok -> ok
session: MessageResult="1" | caption: TipsLabel="Assembling aborted."
# A label that is used but placed nowhere; then a variable without a number. Unused names go first.
> row "LDA far" "ANI mask" "ADI gone" ; cell Table1 3 2 ; row NOP ; click AssembleFile ; changes
box information "Unused strings have been deleted." ok -> ok
box critical "One or more strings do not have an equivalent assigned." ok -> ok
session: Cursor=4 LastLine=3 FileChanged=1 SelectionAnchor=3 SelectedInstruction=78
    SavedCells(2)="ADI   gone" SavedCells(3)="C6   XX"
    SavedCells(4)="Add the equivalent of 'gone' to content of Accumulator." SavedCells(5)="gone"
LastAddressList 0="8005" | StringTable 1="far" 2="mask" | Labels 0 "far" "XXXX" "0" "0" "1"
Variables 0 "mask" "XX" | Table1 1 - "8000" "LDA  far" "3A   XX   XX" default
Table1 2 - "8003" "ANI   mask" "E6   XX" default | 3 - "8005" "NOP" "00" default
> click PlaceLabelTool ; cell Table1 3 0 ; click ExistingPlaceOption ; enter ; escape
> click AssembleFile ; changes
box information "Unused strings have been deleted." ok -> ok
box critical "One or more strings do not have an equivalent assigned." ok -> ok
session: ClickedRow=3 | Labels 0 - "8005" "3" "1" | Table1 1 - - - "3A   05   80" | 3 "far"
# An address beyond FFFF ends it with the words of the address assignment.
> cell Table1 0 0 ; key NumberAcceptButton fffd ; enter ; click AssembleFile ; changes
box critical "Compile error. Invalid address in origin FFFDh." ok -> ok
session: Cursor=2 AddressError=-1 ClickedRow=0 | LastAddressList count=0 | OriginList 0="FFFD"
Table1 0..1 - "FFFD" | caption: TipsLabel="Assigning addresses . . ."
# 16 bytes make one full record and no rest: 10+80+00+00 + 00+01+..+0F = 90+78 = 108, of which the
# low byte is 08, 100-08 = F8. 17 make a second one at 8010: 01+80+10+00 + 10 = A1, 100-A1 = 5F.
> answer no ; click NewFile ; click EntryMode ; enter ; key DataAcceptButton 1 ; enter
box question "Save changes to Pgm1.baf?" yesnocancel -> no
> key DataAcceptButton 2 ; enter ; key DataAcceptButton 3 ; enter ; key DataAcceptButton 4 ; enter
> key DataAcceptButton 5 ; enter ; key DataAcceptButton 6 ; enter ; key DataAcceptButton 7 ; enter
> key DataAcceptButton 8 ; enter ; key DataAcceptButton 9 ; enter ; key DataAcceptButton a ; enter
> key DataAcceptButton b ; enter ; key DataAcceptButton c ; enter ; key DataAcceptButton d ; enter
> key DataAcceptButton e ; enter ; key DataAcceptButton f ; enter ; click AssembleFile
box information "Unused strings have been deleted." ok -> ok
dialog save "Save to Hex file" "Hex Files(*.hex)|*.hex" -> cancel
> list HexList
HexList 0 ":10800000000102030405060708090A0B0C0D0E0FF8"
HexList 1 ":00000001FF"
> key DataAcceptButton 10 ; enter ; click AssembleFile ; list HexList
box information "Unused strings have been deleted." ok -> ok
dialog save "Save to Hex file" "Hex Files(*.hex)|*.hex" -> cancel
HexList 0 ":10800000000102030405060708090A0B0C0D0E0FF8"
HexList 1 ":01801000105F"
HexList 2 ":00000001FF"
# Blocks stand in order of the rows, each with records of its own; one without bytes has none.
# 9000 holds 76: 01+90+00+00 + 76 = 107, F9. 2000 is empty. 1FFE: 01+1F+FE+00 + C9 = 1E7, 19.
> answer no ; click NewFile ; row NOP ; cell Table1 1 2 ; row HLT ; cell Table1 0 0
> key NumberAcceptButton 9000 ; enter ; click NewOrigin ; key NumberAcceptButton 2000 ; enter
> click NewOrigin ; key NumberAcceptButton 1FFE ; enter ; row RET ; click AssembleFile
box information "Unused strings have been deleted." ok -> ok
dialog save "Save to Hex file" "Hex Files(*.hex)|*.hex" -> cancel
> list HexList ; dump TempTable
HexList 0 ":0190000076F9"
HexList 1 ":011FFE00C919"
HexList 2 ":00000001FF"
TempTable 0 "9000" "" "" "Origin"
TempTable 1 "76" "" "" ""
TempTable 2 "2000" "" "" "Origin"
TempTable 3 "1FFE" "" "" "Origin"
TempTable 4 "C9" "" "" ""
# Below 0100 address and type share four digits: 01+FF+00+7F = 17F, 81; from 1000 up they have six.
# 03+40+00+01+02+03 = 49, B7. 01+0F+00+76 = 86, 7A. 01+00+00+C9 = CA, 36. 01+10+00+00+C9 = DA, 26.
> cell Table1 0 0 ; key NumberAcceptButton 00ff ; enter ; click NewOrigin
> key NumberAcceptButton 40 ; enter ; click EntryMode ; key DataAcceptButton 1 ; enter
> key DataAcceptButton 2 ; enter ; key DataAcceptButton 3 ; enter ; click EntryMode
> click NewOrigin ; key NumberAcceptButton f ; enter ; row HLT ; click NewOrigin
> key NumberAcceptButton 0 ; enter ; row RET ; click NewOrigin ; key NumberAcceptButton 1000
> enter ; row RET ; click AssembleFile ; list HexList
box information "Unused strings have been deleted." ok -> ok
dialog save "Save to Hex file" "Hex Files(*.hex)|*.hex" -> cancel
HexList 0 ":034000010203B7"
HexList 1 ":010F00767A"
HexList 2 ":010000C936"
HexList 3 ":01100000C926"
HexList 4 ":011FFE00C919"
HexList 5 ":00000001FF"
# A folder that is not there, and a folder in place of a file: told, nothing lost, and the next try
# works. The panel is ready each time.
> path missing/out.hex ; click AssembleFile ; click EntryMode ; path . ; click AssembleFile
box information "Unused strings have been deleted." ok -> ok
dialog save "Save to Hex file" "Hex Files(*.hex)|*.hex" -> "missing/out.hex"
box critical "Unable to save file." ok -> ok
box information "Unused strings have been deleted." ok -> ok
dialog save "Save to Hex file" "Hex Files(*.hex)|*.hex" -> "."
box critical "Unable to save file." ok -> ok
> changes
session: Selection=1 PanelState=29 CurrentRow=1 LastLine=32 AddressError=0 SelectionAnchor=1
    SelectedInstruction=58 CurrentOpcode=201 SavedCells(2)="" SavedCells(3)="" SavedCells(4)=""
    SavedCells(5)="" HexPath="."
HexList 0=":034000010203B7" 1=":010F00767A" 2=":010000C936" 3=":01100000C926" 4=":011FFE00C919"
    5=":00000001FF" | LastAddressList 0="00FE" 1="0042" 2="000F" 3="0000" 4="1000" 5="1FFF" 6="1FFE"
OriginList count=7 (6 in at 0) 0="00FF" 1="0040" 2="000F" 3="0000" 4="1000" 5="2000" 6="1FFE"
StringTable rows=45 (13 in at 1) 14..15="" | Labels count=0 | Variables count=0
Table1 rows=45 (13 in at 0) | 0 "Origin" "00FF" | 2 "Origin" "0040"
Table1 3..5 - "0040".."0042" "DFB" "01".."03" default | 6 "Origin" "000F"
Table1 7 - "000F" "HLT" "76" default | 8 "Origin" "0000" | 9 - "0000" "RET" "C9" default
Table1 10 "Origin" "1000" | 11 - "1000" "RET" "C9" default | 13 - "2000"
Table1 14 "Origin" "1FFE" "" "" "" | 15 - "1FFE" "RET" "C9" | 16 "" "" "" "" "" | TempTable rows=45
TempTable 0 "00FF" - - "Origin" | 2 "0040" - - "Origin" | 3..5 "01".."03" | 6 "000F" - - "Origin"
TempTable 7 "76" | 8 "0000" - - "Origin" | 9 "C9" | 10 "1000" - - "Origin" | 11 "C9"
TempTable 13 "2000" - - "Origin" | 14 "1FFE" - - "Origin" | 15 "C9"
Table1 colors 0,0..4=E0E0E0 1,2=cursor 2,0..4=E0E0E0 6,0..4=E0E0E0 8,0..4=E0E0E0 10,0..4=E0E0E0
    14,0..4=E0E0E0 15,2=own | caption: EntryMode="Program &Mode" TipsLabel="Data Mode."
shown: DataBox | hidden: InstructionBox | focus: DataAcceptButton | default: DataAcceptButton
> click EntryMode ; path "out \xC3\xA9.hex" ; click AssembleFile ; changes
box information "Unused strings have been deleted." ok -> ok
dialog save "Save to Hex file" "Hex Files(*.hex)|*.hex" -> "out \xC3\xA9.hex"
session: PanelState=1 HexPath="out \xC3\xA9.hex"
caption: EntryMode="Data &Mode" TipsLabel="Program Mode." | shown: InstructionBox | hidden: DataBox
# A cell of no known length, which only a changed file holds, gives no bytes and is as long as the
# one before it, and the last row is neither addressed nor assembled: LXI 8000, the odd cell 8003,
# NOP 8006, MVI 8007. 06+80+00+00 + 21+34+12 + 00 + 3E+0F = 13A, C6.
> path last_row.baf ; answer no ; click OpenFile ; click AssembleFile ; changes
box question "Save changes to Pgm1.baf?" yesnocancel -> no
dialog open "Open" "Brelvanor Assembler Files (*.baf)|*.baf" -> "last_row.baf"
box information "Unused strings have been deleted." ok -> ok
dialog save "Save to Hex file" "Hex Files(*.hex)|*.hex" -> cancel
session: LastLine=1 FileOrigin=2 FileChanged=0 SelectionAnchor=0 FileName="last_row.baf"
    ProjectPath="last_row.baf" | HexList count=2 (4 out at 0) 0=":06800000213412003E0FC6"
LastAddressList count=1 (6 out at 0) 0="8008" | OriginList count=1 (6 out at 0) 0="8000"
StringTable rows=12 (33 out at 1) 1="x" 4="y" | Labels 0 "x" "1234" "0" "0" "1"
Variables 0 "y" "0F" | Table1 rows=12 (33 out at 0) | 0 "Origin" "8000"
Table1 1 - "8000" "LXI  H,  x" "21   34   12" | 2 - "8003" "ODD" "1234" | 3 - "8006" "NOP" "00"
Table1 4 - "8007" "MVI  A,   y" "3E   0F" | 11 - - "HLT" "76" "the end"
TempTable rows=12 (33 out at 0) | 0 "8000" - - "Origin" | 1 "21" "34" "12" | 3 "00" | 4 "3E" "0F"
TempTable 11 "76" | Table1 colors 0,0..4=E0E0E0 1,2=cursor
caption: ProgrammingPanel="Brelvanor Quilla - last_row.baf"
