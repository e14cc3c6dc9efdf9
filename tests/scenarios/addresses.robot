# An untouched program: no addresses but the origin's own, whose block ends one below it.
open OpenForm
closed OpenForm
> click AssignAddress
> show TipsLabel
TipsLabel caption="Assigning Addresses . . ." enabled=1 visible=1
> tick 9
> list LastAddressList
LastAddressList empty
> tick 1
> show TipsLabel
TipsLabel caption="Program Mode." enabled=1 visible=1
> list LastAddressList
LastAddressList 0 "7FFF"
> dump Table1
Table1 0 "Origin" "8000" "" "" ""
# Sizes 1, 2 and 3, a data byte and a row left blank: 8000, 8001, 8003, 8006, 8007. Labels get the
# address of their row: two 8000, five 8006; the one on the blank row none. Low bytes go in first.
> click INST 78
> click INST 15
> type XXText n
> enter
> click INST 37
> type LabelText five
> enter
> click EntryMode
> key DataAcceptButton 5A
> enter
> click EntryMode
> cell Table1 6 2
> click INST 49
> type LabelText two
> enter
> click INST 2
> key RegisterBox b
> type LabelText none
> enter
> click PlaceLabelTool
> cell Table1 1 0
> click ExistingPlaceOption
> pick PlaceCombo 1
> enter
> cell Table1 4 0
> click ExistingPlaceOption
> enter
> cell Table1 5 0
> type PlaceText blank
> enter
> escape
> click AssignAddress
> settle
> dump Table1
Table1 0 "Origin" "8000" "" "" ""
Table1 1 "two" "8000" "NOP" "00" "No Operation."
Table1 2 "" "8001" "ADI   n" "C6   XX" "Add the equivalent of 'n' to content of Accumulator."
Table1 3 "" "8003" "JMP  five" "C3   06   80" "Jump to address pointed by 'five'."
Table1 4 "five" "8006" "DFB" "5A" "Data Byte."
Table1 5 "blank" "" "" "" ""
Table1 6 "" "8007" "CALL  two" "CD   00   80" "Call sub-routine pointed by 'two'."
Table1 7 "" "800A" "LXI  B,  none" "01   XX   XX" "Load the equivalent of 'none' into BC-register pair."
> list LabelCombo
LabelCombo 0 "five"
LabelCombo 1 "two"
LabelCombo 2 "none"
LabelCombo 3 "blank"
> list LabelEqtList
LabelEqtList 0 "8006"
LabelEqtList 1 "8000"
LabelEqtList 2 "XXXX"
LabelEqtList 3 "XXXX"
> list OriginList
OriginList 0 "8000"
> list LastAddressList
LastAddressList 0 "800C"
# Once more gives the same.
> click AssignAddress
> settle
> dump Table1 1 4
Table1 1 "two" "8000" "NOP" "00" "No Operation."
Table1 2 "" "8001" "ADI   n" "C6   XX" "Add the equivalent of 'n' to content of Accumulator."
Table1 3 "" "8003" "JMP  five" "C3   06   80" "Jump to address pointed by 'five'."
Table1 4 "five" "8006" "DFB" "5A" "Data Byte."
> list LastAddressList
LastAddressList 0 "800C"
# Two blocks may touch but not share an address: 8000 to 8003 and an empty block at 8004, whose end
# 8003 counts; then one byte at 8004, at 8003, and inside at 8001. The cursor goes to row 1.
> answer no
> click NewFile
box question "Save changes to Pgm1.baf?" yesnocancel -> no
> click INST 78
> click INST 37
> type LabelText out
> enter
> click NewOrigin
> key NumberAcceptButton 8004
> enter
> click AssignAddress
> settle
box critical "Address overlap in origins 8000h and 8004h." ok -> ok
> list LastAddressList
LastAddressList 0 "8003"
LastAddressList 1 "8003"
> state
PanelState 1
CurrentRow 1
LastLine 6
Rows 33
FileOrigin 1
FileChanged 1
EntryPending 0
SelectionTop 1
SelectionBottom 1
PortOpen 0
AddressError -1
FileName "Pgm1.baf"
EntryMode "Data &Mode"
WriteModeLabel "Overwrite"
TipsLabel "Program Mode."
Title "Brelvanor Quilla - Pgm1.baf"
MessageResult "1"
Boxes InstructionBox
> cell Table1 4 2
> click INST 79
> click AssignAddress
> settle
> list LastAddressList
LastAddressList 0 "8003"
LastAddressList 1 "8004"
> cell Table1 3 0
> key NumberAcceptButton 8003
> enter
> click AssignAddress
> settle
box critical "Address overlap in origins 8000h and 8003h." ok -> ok
> cell Table1 3 0
> key NumberAcceptButton 8001
> enter
> click AssignAddress
> settle
box critical "Address overlap in origins 8000h and 8001h." ok -> ok
> dump Table1
Table1 0 "Origin" "8000" "" "" ""
Table1 1 "" "8000" "NOP" "00" "No Operation."
Table1 2 "" "8001" "JMP  out" "C3   XX   XX" "Jump to address pointed by 'out'."
Table1 3 "Origin" "8001" "" "" ""
Table1 4 "" "8001" "HLT" "76" "Halt program execution."
> list OriginList
OriginList 0 "8000"
OriginList 1 "8001"
> list LastAddressList
LastAddressList 0 "8003"
LastAddressList 1 "8001"
# The last address of an empty block at 0000 is one below it too.
> cell Table1 5 2
> click NewOrigin
> key NumberAcceptButton 0
> enter
> cell Table1 3 0
> key NumberAcceptButton 9000
> enter
> click AssignAddress
> settle
> list LastAddressList
LastAddressList 0 "8003"
LastAddressList 1 "9000"
LastAddressList 2 "FFFFFFFF"
> state
PanelState 1
CurrentRow 1
LastLine 10
Rows 34
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
# Above FFFF: FFFE is the NOP, FFFF begins the JMP, which may reach beyond; the next one may not.
# The cursor is on its row, the addresses stand as far as the row before, and the tip stays.
> answer no
> click NewFile
box question "Save changes to Pgm1.baf?" yesnocancel -> no
> cell Table1 0 0
> key NumberAcceptButton fffe
> enter
> click INST 78
> click INST 37
> type LabelText out
> enter
> click INST 79
> click INST 79
> click AssignAddress
> settle
box critical "Compile error. Invalid address in origin FFFEh." ok -> ok
> state
PanelState 1
CurrentRow 3
LastLine 4
Rows 32
FileOrigin 1
FileChanged 1
EntryPending 0
SelectionTop 3
SelectionBottom 3
PortOpen 0
AddressError -1
FileName "Pgm1.baf"
EntryMode "Data &Mode"
WriteModeLabel "Overwrite"
TipsLabel "Assigning Addresses . . ."
Title "Brelvanor Quilla - Pgm1.baf"
MessageResult "1"
Boxes InstructionBox
> dump Table1
Table1 0 "Origin" "FFFE" "" "" ""
Table1 1 "" "FFFE" "NOP" "00" "No Operation."
Table1 2 "" "FFFF" "JMP  out" "C3   XX   XX" "Jump to address pointed by 'out'."
Table1 3 "" "" "HLT" "76" "Halt program execution."
Table1 4 "" "" "HLT" "76" "Halt program execution."
> list OriginList
OriginList 0 "FFFE"
> list LastAddressList
LastAddressList empty
> click DeleteEdit
> click DeleteEdit
> click AssignAddress
> settle
> list LastAddressList
LastAddressList 0 "10001"
> show TipsLabel
TipsLabel caption="Program Mode." enabled=1 visible=1
# A label in two rows, and a name that is both: nothing is assigned.
> answer no
> click NewFile
box question "Save changes to Pgm1.baf?" yesnocancel -> no
> click INST 15
> type XXText n
> enter
> click PlaceLabelTool
> cell Table1 1 0
> type PlaceText twice
> enter
> escape
> cell Table1 1 2
> click CopyEdit
> click PasteEdit
> click AssignAddress
> settle
box critical "Compile error. There is more than one instance of the label 'twice' in the Label field." ok -> ok
> dump Table1
Table1 0 "Origin" "8000" "" "" ""
Table1 1 "twice" "" "ADI   n" "C6   XX" "Add the equivalent of 'n' to content of Accumulator."
Table1 2 "twice" "" "ADI   n" "C6   XX" "Add the equivalent of 'n' to content of Accumulator."
> list OriginList
OriginList empty
> show TipsLabel
TipsLabel caption="Assigning Addresses . . ." enabled=1 visible=1
> answer no
> click NewFile
box question "Save changes to Pgm1.baf?" yesnocancel -> no
> click INST 37
> type LabelText n
> enter
> click PasteEdit
> click AssignAddress
> settle
box critical "The string 'n' is used as both label and variable." ok -> ok
> list XXCombo
XXCombo 0 "n"
> list OriginList
OriginList empty
> state
PanelState 1
CurrentRow 3
LastLine 2
Rows 33
FileOrigin 1
FileChanged 1
EntryPending 0
SelectionTop 3
SelectionBottom 3
PortOpen 0
AddressError -1
FileName "Pgm1.baf"
EntryMode "Data &Mode"
WriteModeLabel "Overwrite"
TipsLabel "Assigning Addresses . . ."
Title "Brelvanor Quilla - Pgm1.baf"
MessageResult "1"
Boxes InstructionBox
