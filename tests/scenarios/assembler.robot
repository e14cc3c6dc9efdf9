== assembler
# No byte in any row but the first: nothing to assemble.
> click AssembleFile ; changes
box critical "No data available for assembling." ok -> ok
session: MessageResult="1" | caption: TipsLabel="Assembling aborted."
# A label that is used but placed nowhere; then a variable without a number. Unused names go first.
> row "LDA far" "ANI mask" "ADI gone" ; cell Table1 3 2 ; row NOP ; click AssembleFile
box information "Unused strings have been deleted." ok -> ok
box critical "One or more strings do not have an equivalent assigned." ok -> ok
> click PlaceLabelTool ; cell Table1 3 0 ; click ExistingPlaceOption ; enter ; escape
> click AssembleFile ; changes
box information "Unused strings have been deleted." ok -> ok
box critical "One or more strings do not have an equivalent assigned." ok -> ok
session: Cursor=4 LastLine=3 FileChanged=1 SelectionAnchor=3 ClickedRow=3 SelectedInstruction=78
    SavedCells(2)="ADI   gone" SavedCells(3)="C6   XX"
    SavedCells(4)="Add the equivalent of 'gone' to content of Accumulator." SavedCells(5)="gone"
LastAddressList 0="8005" | StringTable 1="far" 2="mask" | Labels 0 "far" "8005" "3" "1" "1"
Variables 0 "mask" "XX" | Table1 1 - "8000" "LDA  far" "3A   05   80" default
Table1 2 - "8003" "ANI   mask" "E6   XX" default | 3 "far" "8005" "NOP" "00" default
# 16 bytes make one full record and no rest: 10+80+00+00 + C9 = 159, of which the low byte is 59,
# 100-59 = A7. 17 make a second one at 8010: 01+80+10+00 + 76 = 107, F9.
> answer no ; click NewFile ; row NOP NOP NOP NOP NOP NOP NOP NOP NOP NOP NOP NOP NOP NOP NOP RET
box question "Save changes to Pgm1.baf?" yesnocancel -> no
> click AssembleFile ; list HexList
box information "Unused strings have been deleted." ok -> ok
dialog save "Save to Hex file" "Hex Files(*.hex)|*.hex" -> cancel
HexList 0 ":10800000000000000000000000000000000000C9A7"
HexList 1 ":00000001FF"
> row HLT ; click AssembleFile ; list HexList
box information "Unused strings have been deleted." ok -> ok
dialog save "Save to Hex file" "Hex Files(*.hex)|*.hex" -> cancel
HexList 0 ":10800000000000000000000000000000000000C9A7"
HexList 1 ":0180100076F9"
HexList 2 ":00000001FF"
# Blocks stand in order of the rows, each with records of its own; one without bytes has none. Below
# 0100 address and type share four digits, from 1000 up they have six: 01+FF+00+76 = 176, 8A.
# 01+00+00+C9 = CA, 36. 01+10+00+00+C9 = DA, 26. A folder that is not there: told, nothing lost.
> answer no ; click NewFile ; cell Table1 0 0 ; key NumberAcceptButton 00ff ; enter ; row HLT
box question "Save changes to Pgm1.baf?" yesnocancel -> no
> click NewOrigin ; key NumberAcceptButton 2000 ; enter ; click NewOrigin ; key NumberAcceptButton 0
> enter ; row RET ; click NewOrigin ; key NumberAcceptButton 1000 ; enter ; row RET
> path missing/out.hex ; click AssembleFile ; list HexList
box information "Unused strings have been deleted." ok -> ok
dialog save "Save to Hex file" "Hex Files(*.hex)|*.hex" -> "missing/out.hex"
box critical "Unable to save file." ok -> ok
HexList 0 ":01FF00768A"
HexList 1 ":010000C936"
HexList 2 ":01100000C926"
HexList 3 ":00000001FF"
# A folder in place of a file; then the next try works. The panel is ready each time.
> click EntryMode ; path . ; click AssembleFile ; click EntryMode ; path "out \xC3\xA9.hex"
box information "Unused strings have been deleted." ok -> ok
dialog save "Save to Hex file" "Hex Files(*.hex)|*.hex" -> "."
box critical "Unable to save file." ok -> ok
> click AssembleFile ; show TipsLabel ; dump TempTable
box information "Unused strings have been deleted." ok -> ok
dialog save "Save to Hex file" "Hex Files(*.hex)|*.hex" -> "out \xC3\xA9.hex"
TipsLabel caption="Program Mode." enabled=1 visible=1
TempTable 0 "00FF" "" "" "Origin"
TempTable 1 "76" "" "" ""
TempTable 2 "2000" "" "" "Origin"
TempTable 3 "0000" "" "" "Origin"
TempTable 4 "C9" "" "" ""
TempTable 5 "1000" "" "" "Origin"
TempTable 6 "C9" "" "" ""
