# Two digits and Enter make a data row; digits shift through, none at all make 00, and the file is
# not reported as changed.
open OpenForm
closed OpenForm
> click EntryMode
> show EntryMode
EntryMode caption="Program &Mode" enabled=1 visible=1
> show DataLabel
DataLabel caption="00" enabled=1 visible=1
> key DataAcceptButton 3Fg
> show DataLabel
DataLabel caption="3F" enabled=1 visible=1
> enter
> show DataLabel
DataLabel caption="00" enabled=1 visible=1
> key DataAcceptButton aBc
> click DataNum 1
> show DataLabel
DataLabel caption="C1" enabled=1 visible=1
> click DataAcceptButton
> enter
> dump Table1 1
Table1 1 "" "" "DFB" "3F" "Data Byte."
Table1 2 "" "" "DFB" "C1" "Data Byte."
Table1 3 "" "" "DFB" "00" "Data Byte."
> state
PanelState 29
CurrentRow 4
LastLine 1
Rows 32
FileOrigin 1
FileChanged 0
EntryPending 0
SelectionTop 4
SelectionBottom 4
PortOpen 0
AddressError 0
FileName "Pgm1.baf"
EntryMode "Program &Mode"
WriteModeLabel "Overwrite"
TipsLabel "Data Mode."
Title "Brelvanor Quilla - Pgm1.baf"
MessageResult ""
Boxes DataBox
> click NewFile
# Among instructions: overwriting one keeps the operand string of its row, which counts no more.
> click INST 15
> type XXText n
> enter
> cell Table1 1 2
> click EntryMode
> key DataAcceptButton 7
> enter
> dump Table1
Table1 0 "Origin" "8000" "" "" ""
Table1 1 "" "" "DFB" "07" "Data Byte."
> dump StringTable
StringTable 1 "n"
> click EntryMode
> click DeleteUnusedLabels
box information "Unused strings have been deleted." ok -> ok
> list XXCombo
XXCombo empty
# A click on its opcode goes there and changes the mode, either way; on NOP it does nothing.
> click INST 78
> cell Table1 1 3
> state
PanelState 29
CurrentRow 1
LastLine 2
Rows 32
FileOrigin 1
FileChanged 1
EntryPending 0
SelectionTop 1
SelectionBottom 1
PortOpen 0
AddressError 0
FileName "Pgm1.baf"
EntryMode "Program &Mode"
WriteModeLabel "Overwrite"
TipsLabel "Data Mode."
Title "Brelvanor Quilla - Pgm1.baf"
MessageResult "1"
Boxes DataBox
> cell Table1 2 3
> cell Table1 1 3
> show TipsLabel
TipsLabel caption="Program Mode." enabled=1 visible=1
> cell Table1 2 3
> show TipsLabel
TipsLabel caption="Program Mode." enabled=1 visible=1
> show InstructionBox
InstructionBox enabled=1 visible=1
# Comments of data rows are comments like others; the default is theirs.
> click CommentsTool
> cell Table1 1 4
> clear CommentsTxt
> type CommentsTxt seven
> click CommentNextButton
> click CommentCancelButton
> dump Table1 1 1
Table1 1 "" "" "DFB" "07" "seven"
> click CommentsTool
> cell Table1 1 4
> click DefaultCommentButton
> click CommentDoneButton
> dump Table1 1 1
Table1 1 "" "" "DFB" "07" "Data Byte."
