# A row whose label means another address in this file gets a new name, in the clipboard as well.
open OpenForm
closed OpenForm
> click INST 39
> type LabelText loop
> enter
> click INST 1
> click REG 0
> type XXText count
> enter
> click PlaceLabelTool
> cell Table1 1 0
> click ExistingPlaceOption
> enter
> click PlaceDoneButton
> click AssignAddress
> settle
> click EqtOption
open RenumberDialog
> click RenumberDialog.VariablesOption
> cell RenumberDialog.VariableTable 1 0
> key RenumberDialog.XXAcceptButton 0f
> enter
> click RenumberDialog.DoneButton
closed RenumberDialog
> drag Table1 1 2 2 2
> click CopyEdit
> cell Table1 5 2
> click PasteEdit
> dump Table1
Table1 0 "Origin" "8000" "" "" ""
Table1 1 "loop" "8000" "JNZ  loop" "C2   00   80" "Jump on no zero, to address pointed by 'loop'."
Table1 2 "" "8003" "MVI  B,   count" "06   0F" "Move the equivalent of 'count' into B-register."
Table1 5 "loop" "" "JNZ  loop" "C2   00   80" "Jump on no zero, to address pointed by 'loop'."
Table1 6 "" "" "MVI  B,   count" "06   0F" "Move the equivalent of 'count' into B-register."
> list LabelEqtList
LabelEqtList 0 "8000"
> answer no
> click NewFile
box question "Save changes to Pgm1.baf?" yesnocancel -> no
> click PasteEdit
> dump Table1
Table1 0 "Origin" "8000" "" "" ""
Table1 1 "loop" "" "JNZ  a1" "C2   00   80" "Jump on no zero, to address pointed by 'loop'."
Table1 2 "" "" "MVI  B,   count" "06   0F" "Move the equivalent of 'count' into B-register."
> dump StringTable
StringTable 1 "a1"
StringTable 2 "count"
> dump EditTable
EditTable 0 "loop" "" "JNZ  a1" "C2   00   80" "Jump on no zero, to address pointed by 'loop'."
EditTable 1 "" "" "MVI  B,   count" "06   0F" "Move the equivalent of 'count' into B-register."
> list LabelCombo
LabelCombo 0 "loop"
LabelCombo 1 "a1"
> list LabelEqtList
LabelEqtList 0 "XXXX"
LabelEqtList 1 "8000"
> list XXCombo
XXCombo 0 "count"
> list XXEqtList
XXEqtList 0 "0F"
# The same clipboard again finds all of its strings as they are.
> click PasteEdit
> dump Table1
Table1 0 "Origin" "8000" "" "" ""
Table1 1 "loop" "" "JNZ  a1" "C2   00   80" "Jump on no zero, to address pointed by 'loop'."
Table1 2 "" "" "MVI  B,   count" "06   0F" "Move the equivalent of 'count' into B-register."
Table1 3 "loop" "" "JNZ  a1" "C2   00   80" "Jump on no zero, to address pointed by 'loop'."
Table1 4 "" "" "MVI  B,   count" "06   0F" "Move the equivalent of 'count' into B-register."
> list LabelCombo
LabelCombo 0 "loop"
LabelCombo 1 "a1"
> list XXCombo
XXCombo 0 "count"
# The next address of the same name gives the next name, and a name that is taken is left out.
> click EqtOption
open RenumberDialog
> cell RenumberDialog.LabelTable 2 0
> key RenumberDialog.EqtAcceptButton 1234
> enter
> click RenumberDialog.DoneButton
closed RenumberDialog
> click PasteEdit
> dump Table1 5 6
Table1 5 "loop" "" "JNZ  a2" "C2   00   80" "Jump on no zero, to address pointed by 'loop'."
Table1 6 "" "" "MVI  B,   count" "06   0F" "Move the equivalent of 'count' into B-register."
> list LabelCombo
LabelCombo 0 "loop"
LabelCombo 1 "a1"
LabelCombo 2 "a2"
> click PlaceLabelTool
> cell Table1 9 0
> type PlaceText a3
> enter
> click PlaceDoneButton
> click EqtOption
open RenumberDialog
> cell RenumberDialog.LabelTable 3 0
> key RenumberDialog.EqtAcceptButton 4321
> enter
> click RenumberDialog.DoneButton
closed RenumberDialog
> click PasteEdit
> dump Table1 7 8
Table1 7 "loop" "" "JNZ  a4" "C2   00   80" "Jump on no zero, to address pointed by 'loop'."
Table1 8 "" "" "MVI  B,   count" "06   0F" "Move the equivalent of 'count' into B-register."
> list LabelCombo
LabelCombo 0 "loop"
LabelCombo 1 "a1"
LabelCombo 2 "a2"
LabelCombo 3 "a3"
LabelCombo 4 "a4"
> list LabelEqtList
LabelEqtList 0 "XXXX"
LabelEqtList 1 "1234"
LabelEqtList 2 "4321"
LabelEqtList 3 "XXXX"
LabelEqtList 4 "8000"
> list LabelUsedList
LabelUsedList 0 "0"
LabelUsedList 1 "1"
LabelUsedList 2 "1"
LabelUsedList 3 "0"
LabelUsedList 4 "1"
> list LabelPlacedList
LabelPlacedList 0 "1"
LabelPlacedList 1 "0"
LabelPlacedList 2 "0"
LabelPlacedList 3 "1"
LabelPlacedList 4 "0"
# A known variable keeps its equivalent, the pasted row its byte.
> click EqtOption
open RenumberDialog
> click RenumberDialog.VariablesOption
> cell RenumberDialog.VariableTable 1 0
> key RenumberDialog.XXAcceptButton 77
> enter
> click RenumberDialog.DoneButton
closed RenumberDialog
> click PasteEdit
> dump Table1 8 10
Table1 8 "" "" "MVI  B,   count" "06   77" "Move the equivalent of 'count' into B-register."
Table1 9 "loop" "" "JNZ  a4" "C2   00   80" "Jump on no zero, to address pointed by 'loop'."
Table1 10 "" "" "MVI  B,   count" "06   0F" "Move the equivalent of 'count' into B-register."
> list XXEqtList
XXEqtList 0 "77"
# A data byte put over a row leaves the string of that row, which is then pasted as a label.
> answer no
> click NewFile
box question "Save changes to Pgm1.baf?" yesnocancel -> no
> click INST 37
> type LabelText lp
> enter
> click EntryMode
> cell Table1 1 2
> key DataAcceptButton 3f
> enter
> click EntryMode
> cell Table1 1 2
> click CopyEdit
> dump EditTable
EditTable 0 "" "" "DFB" "3F" "Data Byte."
> cell Table1 4 2
> click PasteEdit
> dump Table1
Table1 0 "Origin" "8000" "" "" ""
Table1 1 "" "" "DFB" "3F" "Data Byte."
Table1 4 "" "" "Da4" "3F" "Data Byte."
> dump StringTable
StringTable 1 "lp"
StringTable 4 "a4"
> list LabelCombo
LabelCombo 0 "lp"
LabelCombo 1 "a4"
> list LabelEqtList
LabelEqtList 0 "XXXX"
LabelEqtList 1 ""
> list LabelUsedList
LabelUsedList 0 "0"
LabelUsedList 1 "0"
# The cursor that comes to stand on an origin: after a deletion, after a paste, and again with Esc.
> answer no
> click NewFile
box question "Save changes to Pgm1.baf?" yesnocancel -> no
> cell Table1 4 2
> click NewOrigin
> key NumberAcceptButton 9000
> enter
> click INST 79
> cell Table1 1 2
> click CopyEdit
> cell Table1 3 2
> drag Table1 2 2 3 2
> click DeleteEdit
> dump Table1
Table1 0 "Origin" "8000" "" "" ""
Table1 3 "Origin" "9000" "" "" ""
Table1 4 "" "" "HLT" "76" "Halt program execution."
> colors Table1
Table1 0 0 back=E0E0E0 fore=-
Table1 0 1 back=E0E0E0 fore=-
Table1 0 2 back=E0E0E0 fore=-
Table1 0 3 back=E0E0E0 fore=-
Table1 0 4 back=E0E0E0 fore=-
Table1 3 0 back=E0E0E0 fore=-
Table1 3 1 back=E0E0E0 fore=-
Table1 3 2 back=E0E0E0 fore=cursor
Table1 3 3 back=E0E0E0 fore=-
Table1 3 4 back=E0E0E0 fore=-
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
AddressError 0
FileName "Pgm1.baf"
EntryMode "Data &Mode"
WriteModeLabel "Overwrite"
TipsLabel "Completed deleting."
Title "Brelvanor Quilla - Pgm1.baf"
MessageResult "7"
Boxes InstructionBox
> click PasteEdit
> dump Table1
Table1 0 "Origin" "8000" "" "" ""
Table1 5 "Origin" "9000" "" "" ""
Table1 6 "" "" "HLT" "76" "Halt program execution."
> state
PanelState 1
CurrentRow 5
LastLine 6
Rows 34
FileOrigin 1
FileChanged 1
EntryPending 0
SelectionTop 5
SelectionBottom 5
PortOpen 0
AddressError 0
FileName "Pgm1.baf"
EntryMode "Data &Mode"
WriteModeLabel "Overwrite"
TipsLabel "Completed pasting."
Title "Brelvanor Quilla - Pgm1.baf"
MessageResult "7"
Boxes InstructionBox
> escape
> dump Table1
Table1 0 "Origin" "8000" "" "" ""
Table1 6 "Origin" "9000" "" "" ""
Table1 7 "" "" "HLT" "76" "Halt program execution."
> colors Table1
Table1 0 0 back=E0E0E0 fore=-
Table1 0 1 back=E0E0E0 fore=-
Table1 0 2 back=E0E0E0 fore=-
Table1 0 3 back=E0E0E0 fore=-
Table1 0 4 back=E0E0E0 fore=-
Table1 6 0 back=E0E0E0 fore=-
Table1 6 1 back=E0E0E0 fore=-
Table1 6 2 back=cursor fore=cursor
Table1 6 3 back=E0E0E0 fore=-
Table1 6 4 back=E0E0E0 fore=-
> state
PanelState 1
CurrentRow 6
LastLine 7
Rows 35
FileOrigin 1
FileChanged 1
EntryPending 0
SelectionTop 6
SelectionBottom 6
PortOpen 0
AddressError 0
FileName "Pgm1.baf"
EntryMode "Data &Mode"
WriteModeLabel "Overwrite"
TipsLabel "Program Mode."
Title "Brelvanor Quilla - Pgm1.baf"
MessageResult "7"
Boxes InstructionBox
# What is entered there wipes the address; the Opcode of an origin cannot be clicked.
> click INST 78
> dump Table1
Table1 0 "Origin" "8000" "" "" ""
Table1 6 "Origin" "" "NOP" "00" "No Operation."
Table1 7 "" "" "HLT" "76" "Halt program execution."
> list OriginList
OriginList 0 "8000"
OriginList 1 ""
> cell Table1 6 3
> show InstructionBox
InstructionBox enabled=1 visible=1
