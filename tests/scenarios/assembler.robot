# No byte in any row but the first: nothing to assemble.
open OpenForm
closed OpenForm
> click AssembleFile
box critical "No data available for assembling." ok -> ok
> show TipsLabel
TipsLabel caption="Assembling aborted." enabled=1 visible=1
> list HexList
HexList empty
# A label that is used but placed nowhere; then a variable without a number. Unused names go first.
> click INST 5
> type LabelText far
> enter
> click INST 27
> type XXText mask
> enter
> click INST 15
> type XXText gone
> enter
> cell Table1 3 2
> click INST 78
> click AssembleFile
box information "Unused strings have been deleted." ok -> ok
box critical "One or more strings do not have an equivalent assigned." ok -> ok
> show TipsLabel
TipsLabel caption="Assembling aborted." enabled=1 visible=1
> list XXCombo
XXCombo 0 "mask"
> click PlaceLabelTool
> cell Table1 3 0
> click ExistingPlaceOption
> enter
> escape
> click AssembleFile
box information "Unused strings have been deleted." ok -> ok
box critical "One or more strings do not have an equivalent assigned." ok -> ok
> show TipsLabel
TipsLabel caption="Assembling aborted." enabled=1 visible=1
> list HexList
HexList empty
# An address beyond FFFF ends it with the words of the address assignment.
> cell Table1 0 0
> key NumberAcceptButton fffd
> enter
> click AssembleFile
box critical "Compile error. Invalid address in origin FFFDh." ok -> ok
> show TipsLabel
TipsLabel caption="Assigning addresses . . ." enabled=1 visible=1
> dump Table1
Table1 0 "Origin" "FFFD" "" "" ""
Table1 1 "" "FFFD" "LDA  far" "3A   05   80" "Load Accumulator with content from address pointed by 'far'."
Table1 2 "" "8003" "ANI   mask" "E6   XX" "AND the equivalent of 'mask' with content of Accumulator."
Table1 3 "far" "8005" "NOP" "00" "No Operation."
# 16 bytes make one full record and no rest: 10+80+00+00 + 00+01+..+0F = 90+78 = 108, of which the
# low byte is 08, 100-08 = F8. 17 make a second one at 8010: 01+80+10+00 + 10 = A1, 100-A1 = 5F.
> answer no
> click NewFile
box question "Save changes to Pgm1.baf?" yesnocancel -> no
> click EntryMode
> enter
> key DataAcceptButton 1
> enter
> key DataAcceptButton 2
> enter
> key DataAcceptButton 3
> enter
> key DataAcceptButton 4
> enter
> key DataAcceptButton 5
> enter
> key DataAcceptButton 6
> enter
> key DataAcceptButton 7
> enter
> key DataAcceptButton 8
> enter
> key DataAcceptButton 9
> enter
> key DataAcceptButton a
> enter
> key DataAcceptButton b
> enter
> key DataAcceptButton c
> enter
> key DataAcceptButton d
> enter
> key DataAcceptButton e
> enter
> key DataAcceptButton f
> enter
> click AssembleFile
box information "Unused strings have been deleted." ok -> ok
dialog save "Save to Hex file" "Hex Files(*.hex)|*.hex" -> cancel
> list HexList
HexList 0 ":10800000000102030405060708090A0B0C0D0E0FF8"
HexList 1 ":00000001FF"
> show TipsLabel
TipsLabel caption="Data Mode." enabled=1 visible=1
> key DataAcceptButton 10
> enter
> click AssembleFile
box information "Unused strings have been deleted." ok -> ok
dialog save "Save to Hex file" "Hex Files(*.hex)|*.hex" -> cancel
> list HexList
HexList 0 ":10800000000102030405060708090A0B0C0D0E0FF8"
HexList 1 ":01801000105F"
HexList 2 ":00000001FF"
# An instruction that straddles the limit is cut: 15 bytes, then 21 00 80 at 800F, 8010 and 8011.
# 10+80+00+00 + 00+01+..+0E + 21 = 90+69+21 = 11A, E6. 02+80+10+00 + 00+80 = 112, EE.
> click EntryMode
> cell Table1 16 2
> click INST 2
> key RegisterBox h
> type LabelText top
> enter
> cell Table1 17 2
> click DeleteEdit
> click PlaceLabelTool
> cell Table1 1 0
> click ExistingPlaceOption
> enter
> escape
> click AssembleFile
box information "Unused strings have been deleted." ok -> ok
dialog save "Save to Hex file" "Hex Files(*.hex)|*.hex" -> cancel
> list HexList
HexList 0 ":10800000000102030405060708090A0B0C0D0E21E6"
HexList 1 ":028010000080EE"
HexList 2 ":00000001FF"
# Blocks stand in order of the rows, each with records of its own; one without bytes has none.
# 9000 holds 76: 01+90+00+00 + 76 = 107, F9. 2000 is empty. 1FFE: 01+1F+FE+00 + C9 = 1E7, 19.
> answer no
> click NewFile
box question "Save changes to Pgm1.baf?" yesnocancel -> no
> click INST 78
> cell Table1 1 2
> click INST 79
> cell Table1 0 0
> key NumberAcceptButton 9000
> enter
> click NewOrigin
> key NumberAcceptButton 2000
> enter
> click NewOrigin
> key NumberAcceptButton 1FFE
> enter
> click INST 58
> click AssembleFile
box information "Unused strings have been deleted." ok -> ok
dialog save "Save to Hex file" "Hex Files(*.hex)|*.hex" -> cancel
> list HexList
HexList 0 ":0190000076F9"
HexList 1 ":011FFE00C919"
HexList 2 ":00000001FF"
> list LastAddressList
LastAddressList 0 "9000"
LastAddressList 1 "1FFF"
LastAddressList 2 "1FFE"
# A record whose bytes sum to a multiple of 256 ends in "100": 01+80+00+00+7F = 100.
> answer no
> click NewFile
box question "Save changes to Pgm1.baf?" yesnocancel -> no
> click EntryMode
> key DataAcceptButton 7F
> enter
> click EntryMode
> click AssembleFile
box information "Unused strings have been deleted." ok -> ok
dialog save "Save to Hex file" "Hex Files(*.hex)|*.hex" -> cancel
> list HexList
HexList 0 ":018000007F100"
HexList 1 ":00000001FF"
# Below 0100 address and type share four digits: 01+FF+00+7F = 17F, 81; from 1000 up they have six.
# 03+40+00+01+02+03 = 49, B7. 01+0F+00+76 = 86, 7A. 01+00+00+C9 = CA, 36. 01+10+00+00+C9 = DA, 26.
> cell Table1 0 0
> key NumberAcceptButton 00ff
> enter
> click NewOrigin
> key NumberAcceptButton 40
> enter
> click EntryMode
> key DataAcceptButton 1
> enter
> key DataAcceptButton 2
> enter
> key DataAcceptButton 3
> enter
> click EntryMode
> click NewOrigin
> key NumberAcceptButton f
> enter
> click INST 79
> click NewOrigin
> key NumberAcceptButton 0
> enter
> click INST 58
> click NewOrigin
> key NumberAcceptButton 1000
> enter
> click INST 58
> click AssembleFile
box information "Unused strings have been deleted." ok -> ok
dialog save "Save to Hex file" "Hex Files(*.hex)|*.hex" -> cancel
> list HexList
HexList 0 ":01FF007F81"
HexList 1 ":034000010203B7"
HexList 2 ":010F00767A"
HexList 3 ":010000C936"
HexList 4 ":01100000C926"
HexList 5 ":00000001FF"
# A folder that is not there, and a folder in place of a file: told, nothing lost, and the next try
# works. The panel is ready each time.
> path missing/out.hex
> click AssembleFile
box information "Unused strings have been deleted." ok -> ok
dialog save "Save to Hex file" "Hex Files(*.hex)|*.hex" -> "missing/out.hex"
box critical "Unable to save file." ok -> ok
> show TipsLabel
TipsLabel caption="Program Mode." enabled=1 visible=1
> list HexList
HexList 0 ":01FF007F81"
HexList 1 ":034000010203B7"
HexList 2 ":010F00767A"
HexList 3 ":010000C936"
HexList 4 ":01100000C926"
HexList 5 ":00000001FF"
> click EntryMode
> path .
> click AssembleFile
box information "Unused strings have been deleted." ok -> ok
dialog save "Save to Hex file" "Hex Files(*.hex)|*.hex" -> "."
box critical "Unable to save file." ok -> ok
> show TipsLabel
TipsLabel caption="Data Mode." enabled=1 visible=1
> click EntryMode
> path "out \xC3\xA9.hex"
> click AssembleFile
box information "Unused strings have been deleted." ok -> ok
dialog save "Save to Hex file" "Hex Files(*.hex)|*.hex" -> "out \xC3\xA9.hex"
> list HexList
HexList 0 ":01FF007F81"
HexList 1 ":034000010203B7"
HexList 2 ":010F00767A"
HexList 3 ":010000C936"
HexList 4 ":01100000C926"
HexList 5 ":00000001FF"
> dump Table1
Table1 0 "Origin" "00FF" "" "" ""
Table1 1 "" "00FF" "DFB" "7F" "Data Byte."
Table1 2 "Origin" "0040" "" "" ""
Table1 3 "" "0040" "DFB" "01" "Data Byte."
Table1 4 "" "0041" "DFB" "02" "Data Byte."
Table1 5 "" "0042" "DFB" "03" "Data Byte."
Table1 6 "Origin" "000F" "" "" ""
Table1 7 "" "000F" "HLT" "76" "Halt program execution."
Table1 8 "Origin" "0000" "" "" ""
Table1 9 "" "0000" "RET" "C9" "Return."
Table1 10 "Origin" "1000" "" "" ""
Table1 11 "" "1000" "RET" "C9" "Return."
> state
PanelState 1
CurrentRow 1
LastLine 17
Rows 36
FileOrigin 1
FileChanged 1
EntryPending 0
SelectionTop 1
SelectionBottom 1
PortOpen 0
AddressError 0
FileName "Pgm1.baf"
EntryMode "Data &Mode"
WriteModeLabel "Overwrite"
TipsLabel "Program Mode."
Title "Brelvanor Quilla - Pgm1.baf"
MessageResult "1"
Boxes InstructionBox
# A cell of no known length, which only a changed file holds, gives no bytes and is as long as the
# one before it, and the last row is neither addressed nor assembled: LXI 8000, the odd cell 8003,
# NOP 8006, MVI 8007. 06+80+00+00 + 21+34+12 + 00 + 3E+0F = 13A, C6.
> answer no
> path last_row.baf
> click OpenFile
box question "Save changes to Pgm1.baf?" yesnocancel -> no
dialog open "Open" "Brelvanor Assembler Files (*.baf)|*.baf" -> "last_row.baf"
> click AssembleFile
box information "Unused strings have been deleted." ok -> ok
dialog save "Save to Hex file" "Hex Files(*.hex)|*.hex" -> cancel
> dump Table1
Table1 0 "Origin" "8000" "" "" ""
Table1 1 "" "8000" "LXI  H,  x" "21   34   12" ""
Table1 2 "" "8003" "ODD" "1234" ""
Table1 3 "" "8006" "NOP" "00" ""
Table1 4 "" "8007" "MVI  A,   y" "3E   0F" ""
Table1 11 "" "" "HLT" "76" "the end"
> list HexList
HexList 0 ":06800000213412003E0FC6"
HexList 1 ":00000001FF"
> list LastAddressList
LastAddressList 0 "8008"
