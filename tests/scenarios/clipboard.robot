# An empty clipboard cannot be pasted.
open OpenForm
closed OpenForm
> show PasteEdit
PasteEdit caption="&Paste" enabled=0 visible=1
> click PasteEdit
refused PasteEdit disabled
# A copy of the cursor row alone, and of a selection; addresses are dropped, those of origins not.
> click INST 1
> click REG 0
> type XXText count
> enter
> click INST 20
> click REG 0
> click INST 39
> type LabelText loop
> enter
> click INST 79
> click PlaceLabelTool
> cell Table1 2 0
> click ExistingPlaceOption
> enter
> click PlaceDoneButton
> click NewOrigin
> key NumberAcceptButton 9000
> enter
> click AssignAddress
> settle
> cell Table1 1 2
> click CopyEdit
> dump EditTable
EditTable 0 "" "" "MVI  B,   count" "06   XX" "Move the equivalent of 'count' into B-register."
> state
PanelState 1
CurrentRow 1
LastLine 8
Rows 33
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
TipsLabel "Completed copying."
Title "Brelvanor Quilla - Pgm1.baf"
MessageResult ""
Boxes InstructionBox
> drag Table1 5 2 2 2
> click CopyEdit
> dump EditTable
EditTable 0 "loop" "" "DCR  B" "05" "Decrement content of B-register."
EditTable 1 "" "" "JNZ  loop" "C2   02   80" "Jump on no zero, to address pointed by 'loop'."
EditTable 2 "" "" "HLT" "76" "Halt program execution."
EditTable 3 "Origin" "9000" "" "" ""
> show PasteEdit
PasteEdit caption="&Paste" enabled=1 visible=1
# A paste goes in before the cursor; the label is known and is not listed again.
> cell Table1 8 2
> click PasteEdit
> dump Table1
Table1 0 "Origin" "8000" "" "" ""
Table1 1 "" "8000" "MVI  B,   count" "06   XX" "Move the equivalent of 'count' into B-register."
Table1 2 "loop" "8002" "DCR  B" "05" "Decrement content of B-register."
Table1 3 "" "8003" "JNZ  loop" "C2   02   80" "Jump on no zero, to address pointed by 'loop'."
Table1 4 "" "8006" "HLT" "76" "Halt program execution."
Table1 5 "Origin" "9000" "" "" ""
Table1 8 "loop" "" "DCR  B" "05" "Decrement content of B-register."
Table1 9 "" "" "JNZ  loop" "C2   02   80" "Jump on no zero, to address pointed by 'loop'."
Table1 10 "" "" "HLT" "76" "Halt program execution."
Table1 11 "Origin" "9000" "" "" ""
> dump StringTable
StringTable 1 "count"
StringTable 3 "loop"
StringTable 9 "loop"
> list LabelCombo
LabelCombo 0 "loop"
> list LabelLineList
LabelLineList 0 "2"
> list OriginList
OriginList 0 "8000"
OriginList 1 "9000"
OriginList 2 "9000"
> state
PanelState 1
CurrentRow 12
LastLine 12
Rows 37
FileOrigin 1
FileChanged 1
EntryPending 0
SelectionTop 12
SelectionBottom 12
PortOpen 0
AddressError 0
FileName "Pgm1.baf"
EntryMode "Data &Mode"
WriteModeLabel "Overwrite"
TipsLabel "Completed pasting."
Title "Brelvanor Quilla - Pgm1.baf"
MessageResult ""
Boxes InstructionBox
# A cut takes the rows out again. The cursor below the rows goes up with its row.
> drag Table1 8 2 11 2
> click CutEdit
> dump Table1
Table1 0 "Origin" "8000" "" "" ""
Table1 1 "" "8000" "MVI  B,   count" "06   XX" "Move the equivalent of 'count' into B-register."
Table1 2 "loop" "8002" "DCR  B" "05" "Decrement content of B-register."
Table1 3 "" "8003" "JNZ  loop" "C2   02   80" "Jump on no zero, to address pointed by 'loop'."
Table1 4 "" "8006" "HLT" "76" "Halt program execution."
Table1 5 "Origin" "9000" "" "" ""
> list OriginList
OriginList 0 "8000"
OriginList 1 "9000"
> state
PanelState 1
CurrentRow 8
LastLine 8
Rows 33
FileOrigin 1
FileChanged 1
EntryPending 0
SelectionTop 8
SelectionBottom 8
PortOpen 0
AddressError 0
FileName "Pgm1.baf"
EntryMode "Data &Mode"
WriteModeLabel "Overwrite"
TipsLabel "Completed cutting."
Title "Brelvanor Quilla - Pgm1.baf"
MessageResult ""
Boxes InstructionBox
# Deleting turns Insert off; a cursor above stays, one among the rows goes to the first of them.
> click WriteMode
> drag Table1 12 2 14 2
> click DeleteEdit
> state
PanelState 1
CurrentRow 8
LastLine 9
Rows 31
FileOrigin 1
FileChanged 1
EntryPending 0
SelectionTop 8
SelectionBottom 8
PortOpen 0
AddressError 0
FileName "Pgm1.baf"
EntryMode "Data &Mode"
WriteModeLabel "Overwrite"
TipsLabel "Completed deleting."
Title "Brelvanor Quilla - Pgm1.baf"
MessageResult ""
Boxes InstructionBox
> cell Table1 10 2
> drag Table1 9 2 11 2
> click DeleteEdit
> state
PanelState 1
CurrentRow 9
LastLine 9
Rows 28
FileOrigin 1
FileChanged 1
EntryPending 0
SelectionTop 9
SelectionBottom 9
PortOpen 0
AddressError 0
FileName "Pgm1.baf"
EntryMode "Data &Mode"
WriteModeLabel "Overwrite"
TipsLabel "Completed deleting."
Title "Brelvanor Quilla - Pgm1.baf"
MessageResult ""
Boxes InstructionBox
# Row 0 stays, whatever is deleted; a stray row is then left at the end of the table.
> cell Table1 7 2
> drag Table1 3 2 0 2
> click DeleteEdit
> dump Table1
Table1 0 "Origin" "8000" "" "" ""
Table1 1 "" "8006" "HLT" "76" "Halt program execution."
Table1 2 "Origin" "9000" "" "" ""
Table1 25 "2" "" "" "" ""
> dump StringTable
StringTable 25 "2"
> list LabelPlacedList
LabelPlacedList 0 "0"
> state
PanelState 1
CurrentRow 4
LastLine 6
Rows 26
FileOrigin 1
FileChanged 1
EntryPending 0
SelectionTop 4
SelectionBottom 4
PortOpen 0
AddressError 0
FileName "Pgm1.baf"
EntryMode "Data &Mode"
WriteModeLabel "Overwrite"
TipsLabel "Completed deleting."
Title "Brelvanor Quilla - Pgm1.baf"
MessageResult ""
Boxes InstructionBox
# The lines in use: from the row of a deletion that takes the last of them.
> drag Table1 1 2 20 2
> click DeleteEdit
> state
PanelState 1
CurrentRow 1
LastLine 1
Rows 32
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
TipsLabel "Completed deleting."
Title "Brelvanor Quilla - Pgm1.baf"
MessageResult ""
Boxes InstructionBox
# The last rows of the table: ten fresh ones come.
> drag Table1 31 2 28 2
> click DeleteEdit
> state
PanelState 1
CurrentRow 1
LastLine 1
Rows 38
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
TipsLabel "Completed deleting."
Title "Brelvanor Quilla - Pgm1.baf"
MessageResult ""
Boxes InstructionBox
# The clipboard outlives a new file, and brings its strings with it.
> answer no
> click NewFile
box question "Save changes to Pgm1.baf?" yesnocancel -> no
> show PasteEdit
PasteEdit caption="&Paste" enabled=1 visible=1
> dump EditTable
EditTable 0 "loop" "" "DCR  B" "05" "Decrement content of B-register."
EditTable 1 "" "" "JNZ  loop" "C2   02   80" "Jump on no zero, to address pointed by 'loop'."
EditTable 2 "" "" "HLT" "76" "Halt program execution."
EditTable 3 "Origin" "9000" "" "" ""
> click PasteEdit
> dump Table1
Table1 0 "Origin" "8000" "" "" ""
Table1 1 "loop" "" "DCR  B" "05" "Decrement content of B-register."
Table1 2 "" "" "JNZ  a1" "C2   02   80" "Jump on no zero, to address pointed by 'loop'."
Table1 3 "" "" "HLT" "76" "Halt program execution."
Table1 4 "Origin" "9000" "" "" ""
> list LabelCombo
LabelCombo 0 "loop"
LabelCombo 1 "a1"
> list LabelPlacedList
LabelPlacedList 0 "1"
LabelPlacedList 1 "0"
> list LabelUsedList
LabelUsedList 0 "0"
LabelUsedList 1 "1"
> list LabelLineList
LabelLineList 0 "1"
LabelLineList 1 "0"
> list LabelEqtList
LabelEqtList 0 "XXXX"
LabelEqtList 1 "8002"
> list OriginList
OriginList 0 "8000"
OriginList 1 "9000"
> state
PanelState 1
CurrentRow 5
LastLine 5
Rows 36
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
