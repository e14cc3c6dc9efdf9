# The display of a new origin starts at 0000, shifts left and keeps four digits.
open OpenForm
closed OpenForm
> click INST 78
> click NewOrigin
> show NumberLabel
NumberLabel caption="0000" enabled=1 visible=1
> show DataTypeLabel
DataTypeLabel caption="Address" enabled=1 visible=1
> key NumberAcceptButton 12
> click NUM 3
> click NUM 10
> show NumberLabel
NumberLabel caption="123A" enabled=1 visible=1
> key NumberAcceptButton gz5
> show NumberLabel
NumberLabel caption="23A5" enabled=1 visible=1
> escape
> list OriginList
OriginList 0 "8000"
# One that is taken is refused; the number stands to be corrected, and Esc gives up.
> click NewOrigin
> key NumberAcceptButton 8000
> enter
box critical "Origin Address already used. Enter another address." ok -> ok
> show NumberLabel
NumberLabel caption="8000" enabled=1 visible=1
> state
PanelState 28
CurrentRow 2
LastLine 1
Rows 32
FileOrigin 1
FileChanged 1
EntryPending 0
SelectionTop 2
SelectionBottom 2
PortOpen 0
AddressError 0
FileName "Pgm1.baf"
EntryMode "Data &Mode"
WriteModeLabel "Overwrite"
TipsLabel "Enter starting address of the Origin and Click 'Accept', or press 'Esc' to quit."
Title "Brelvanor Quilla - Pgm1.baf"
MessageResult "1"
Boxes NumberBox
> key NumberAcceptButton 7
> enter
> click NewOrigin
> key NumberAcceptButton 0007
> click NumberAcceptButton
box critical "Origin Address already used. Enter another address." ok -> ok
> escape
> list OriginList
OriginList 0 "8000"
OriginList 1 "0007"
> dump Table1
Table1 0 "Origin" "8000" "" "" ""
Table1 1 "" "" "NOP" "00" "No Operation."
Table1 2 "Origin" "0007" "" "" ""
# Above all others: it cuts the first block in two where the cursor stands, and is listed in order
# of the rows.
> cell Table1 1 2
> click NewOrigin
> key NumberAcceptButton FFF0
> enter
> dump Table1
Table1 0 "Origin" "8000" "" "" ""
Table1 1 "Origin" "FFF0" "" "" ""
Table1 2 "" "" "NOP" "00" "No Operation."
Table1 3 "Origin" "0007" "" "" ""
> list OriginList
OriginList 0 "8000"
OriginList 1 "FFF0"
OriginList 2 "0007"
> state
PanelState 1
CurrentRow 2
LastLine 9
Rows 34
FileOrigin 1
FileChanged 1
EntryPending 0
SelectionTop 2
SelectionBottom 2
PortOpen 0
AddressError 0
FileName "Pgm1.baf"
EntryMode "Data &Mode"
WriteModeLabel "Overwrite"
TipsLabel "Program Mode."
Title "Brelvanor Quilla - Pgm1.baf"
MessageResult "1"
Boxes InstructionBox
> colors Table1
Table1 0 0 back=E0E0E0 fore=-
Table1 0 1 back=E0E0E0 fore=-
Table1 0 2 back=E0E0E0 fore=-
Table1 0 3 back=E0E0E0 fore=-
Table1 0 4 back=E0E0E0 fore=-
Table1 1 0 back=E0E0E0 fore=-
Table1 1 1 back=E0E0E0 fore=-
Table1 1 2 back=E0E0E0 fore=-
Table1 1 3 back=E0E0E0 fore=-
Table1 1 4 back=E0E0E0 fore=-
Table1 2 2 back=cursor fore=cursor
Table1 3 0 back=E0E0E0 fore=-
Table1 3 1 back=E0E0E0 fore=-
Table1 3 2 back=E0E0E0 fore=-
Table1 3 3 back=E0E0E0 fore=-
Table1 3 4 back=E0E0E0 fore=-
# Another address for an origin: any but that of another one, its own as well.
> cell Table1 3 0
> show NumberLabel
NumberLabel caption="0000" enabled=1 visible=1
> show DataTypeLabel
DataTypeLabel caption="Address" enabled=1 visible=1
> key NumberAcceptButton 8000
> enter
box critical "Origin Address already used. Enter another address." ok -> ok
> list OriginList
OriginList 0 "8000"
OriginList 1 "FFF0"
> key NumberAcceptButton 7
> enter
> list OriginList
OriginList 0 "8000"
OriginList 1 "FFF0"
OriginList 2 "0007"
> cell Table1 3 0
> key NumberAcceptButton 0007
> enter
> cell Table1 3 0
> key NumberAcceptButton fff0
> enter
box critical "Origin Address already used. Enter another address." ok -> ok
> list OriginList
OriginList 0 "8000"
OriginList 1 "FFF0"
> escape
> list OriginList
OriginList 0 "8000"
OriginList 1 "FFF0"
OriginList 2 "0007"
> show TipsLabel
TipsLabel caption="Program Mode." enabled=1 visible=1
# In data mode it ends in data mode.
> click EntryMode
> cell Table1 0 0
> key NumberAcceptButton 9abc
> enter
> show TipsLabel
TipsLabel caption="Data Mode." enabled=1 visible=1
> dump Table1 0 0
Table1 0 "Origin" "9ABC" "" "" ""
> click EntryMode
