# Spelling: 0 to 9 and a to z, a letter first, at least one character and no more than six.
open OpenForm
closed OpenForm
> click INST 37
> show LabelAcceptButton
LabelAcceptButton caption="&Accept" enabled=0 visible=1
> show ExistingLabelOption
ExistingLabelOption checked=0 enabled=0 visible=1
> type LabelText 1
> click LabelAcceptButton
refused LabelAcceptButton disabled
> type LabelText a
> click LabelAcceptButton
refused LabelAcceptButton disabled
> clear LabelText
> type LabelText A
> click LabelAcceptButton
refused LabelAcceptButton disabled
> type LabelText 1
> click LabelAcceptButton
refused LabelAcceptButton disabled
> clear LabelText
> type LabelText a
> show LabelAcceptButton
LabelAcceptButton caption="&Accept" enabled=1 visible=1
> type LabelText _
> enter
refused LabelAcceptButton disabled
> type LabelText 1
> enter
refused LabelAcceptButton disabled
> clear LabelText
> enter
refused LabelAcceptButton disabled
> type LabelText "a b"
> click LabelAcceptButton
refused LabelAcceptButton disabled
> clear LabelText
> type LabelText "z\xC3\xA9"
> click LabelAcceptButton
refused LabelAcceptButton disabled
> clear LabelText
> type LabelText "{a"
> click LabelAcceptButton
refused LabelAcceptButton disabled
> clear LabelText
> type LabelText abcdefg
> show LabelText
LabelText text="abcdef" enabled=1 visible=1
> enter
> click INST 15
> type XXText 9
> enter
refused XXAcceptButton disabled
> clear XXText
> type XXText Z
> click XXAcceptButton
refused XXAcceptButton disabled
> clear XXText
> type XXText z9z9z9z9
> show XXText
XXText text="z9z9z9" enabled=1 visible=1
> enter
> dump Table1 1
Table1 1 "" "" "JMP  abcdef" "C3   XX   XX" "Jump to address pointed by 'abcdef'."
Table1 2 "" "" "ADI   z9z9z9" "C6   XX" "Add the equivalent of 'z9z9z9' to content of Accumulator."
# Taken, as a label or as a variable: told in the words of the box, the text is emptied, the box
# stays; another name does it.
> click INST 49
> type LabelText abcdef
> enter
box critical "String already used as Label or Variable. Please enter another label." ok -> ok
> show LabelText
LabelText text="" enabled=1 visible=1
> show LabelAcceptButton
LabelAcceptButton caption="&Accept" enabled=0 visible=1
> type LabelText z9z9z9
> enter
box critical "String already used as Label or Variable. Please enter another label." ok -> ok
> type LabelText xx
> enter
> click INST 47
> type XXText xx
> enter
box critical "String already present as Label or Variable. Please enter another string." ok -> ok
> show XXText
XXText text="" enabled=1 visible=1
> show XXAcceptButton
XXAcceptButton caption="Accept" enabled=0 visible=1
> type XXText z9z9z9
> click XXAcceptButton
box critical "String already present as Label or Variable. Please enter another string." ok -> ok
> type XXText x
> state
PanelState 2
CurrentRow 4
LastLine 3
Rows 32
FileOrigin 1
FileChanged 1
EntryPending 1
SelectionTop 4
SelectionBottom 4
PortOpen 0
AddressError 0
FileName "Pgm1.baf"
EntryMode "Data &Mode"
WriteModeLabel "Overwrite"
TipsLabel "Enter 8-bit number and click 'Accept'."
Title "Brelvanor Quilla - Pgm1.baf"
MessageResult "1"
Boxes XXBox
> enter
> list LabelCombo
LabelCombo 0 "abcdef"
LabelCombo 1 "xx"
> list XXCombo
XXCombo 0 "z9z9z9"
XXCombo 1 "x"
> list LabelEqtList
LabelEqtList 0 "XXXX"
LabelEqtList 1 "XXXX"
> list XXEqtList
XXEqtList 0 "XX"
XXEqtList 1 "XX"
# Known names: the first one is offered; the choice makes the other input idle and empties it.
> click INST 37
> type LabelText q
> click ExistingLabelOption
> show LabelText
LabelText text="" enabled=0 visible=1
> show LabelCombo
LabelCombo text="abcdef" index=0 count=2 enabled=1 visible=1
> show LabelAcceptButton
LabelAcceptButton caption="&Accept" enabled=1 visible=1
> type LabelText r
refused LabelText disabled
> pick LabelCombo 1
> click NewLabelOption
> show LabelAcceptButton
LabelAcceptButton caption="&Accept" enabled=0 visible=1
> show LabelCombo
LabelCombo text="xx" index=1 count=2 enabled=0 visible=1
> click ExistingLabelOption
> show LabelCombo
LabelCombo text="abcdef" index=0 count=2 enabled=1 visible=1
> pick LabelCombo 1
> enter
> click INST 48
> type XXText q
> click ExistingXXOption
> show XXText
XXText text="" enabled=0 visible=1
> show XXCombo
XXCombo text="z9z9z9" index=0 count=2 enabled=1 visible=1
> show XXAcceptButton
XXAcceptButton caption="Accept" enabled=1 visible=1
> click NewXXOption
> show XXAcceptButton
XXAcceptButton caption="Accept" enabled=0 visible=1
> click ExistingXXOption
> pick XXCombo 1
> enter
> dump Table1 3
Table1 3 "" "" "CALL  xx" "CD   XX   XX" "Call sub-routine pointed by 'xx'."
Table1 4 "" "" "IN   x" "DB   XX" "Receive content from port address pointed by 'x' and store in Accumulator."
Table1 5 "" "" "JMP  xx" "C3   XX   XX" "Jump to address pointed by 'xx'."
Table1 6 "" "" "OUT   x" "D3   XX" "Send content of Accumulator to port address pointed by 'x'."
> dump StringTable
StringTable 1 "abcdef"
StringTable 2 "z9z9z9"
StringTable 3 "xx"
StringTable 4 "x"
StringTable 5 "xx"
StringTable 6 "x"
# A name whose number is known gives its bytes at once.
> click PlaceLabelTool
> cell Table1 4 0
> click ExistingPlaceOption
> pick PlaceCombo 1
> enter
> escape
> click AssignAddress
> settle
> click EqtOption
open RenumberDialog
> click RenumberDialog.VariablesOption
> cell RenumberDialog.VariableTable 2 0
> key RenumberDialog.XXAcceptButton 0f
> click RenumberDialog.XXAcceptButton
> click RenumberDialog.DoneButton
closed RenumberDialog
> cell Table1 7 2
> click INST 38
> click ExistingLabelOption
> pick LabelCombo 1
> enter
> click INST 36
> click ExistingXXOption
> pick XXCombo 1
> enter
> dump Table1 3
Table1 3 "" "8005" "CALL  xx" "CD   08   80" "Call sub-routine pointed by 'xx'."
Table1 4 "xx" "8008" "IN   x" "DB   0F" "Receive content from port address pointed by 'x' and store in Accumulator."
Table1 5 "" "800A" "JMP  xx" "C3   08   80" "Jump to address pointed by 'xx'."
Table1 6 "" "800D" "OUT   x" "D3   0F" "Send content of Accumulator to port address pointed by 'x'."
Table1 7 "" "" "JPO  xx" "E2   08   80" "Jump on odd parity, to address pointed by 'xx'."
Table1 8 "" "" "CPI   x" "FE   0F" "Compare the equivalent of 'x' with content of Accumulator."
# Overwritten and deleted rows leave their names behind until they are cleared away; the others
# keep their order. A label counts as used by a row of three bytes, as placed on any row but an
# origin; a variable as used by a row of two bytes.
> cell Table1 1 2
> click INST 78
> cell Table1 2 2
> click INST 0
> key RegisterBox bc
> list LabelCombo
LabelCombo 0 "abcdef"
LabelCombo 1 "xx"
> list LabelUsedList
LabelUsedList 0 "1"
LabelUsedList 1 "1"
> list LabelPlacedList
LabelPlacedList 0 "0"
LabelPlacedList 1 "1"
> list LabelLineList
LabelLineList 0 "0"
LabelLineList 1 "4"
> list XXCombo
XXCombo 0 "z9z9z9"
XXCombo 1 "x"
> click DeleteUnusedLabels
box information "Unused strings have been deleted." ok -> ok
> list LabelCombo
LabelCombo 0 "xx"
> list LabelUsedList
LabelUsedList 0 "1"
> list LabelPlacedList
LabelPlacedList 0 "1"
> list LabelLineList
LabelLineList 0 "4"
> list LabelEqtList
LabelEqtList 0 "8008"
> list XXCombo
XXCombo 0 "x"
> list XXEqtList
XXEqtList 0 "0F"
> click DeleteUnusedLabels
box information "Unused strings have been deleted." ok -> ok
> list LabelCombo
LabelCombo 0 "xx"
> show TipsLabel
TipsLabel caption="Program Mode." enabled=1 visible=1
