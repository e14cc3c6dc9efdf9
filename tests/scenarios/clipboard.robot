== rows
# An empty clipboard cannot be pasted.
> click PasteEdit
refused PasteEdit disabled
# A copy of the cursor row alone, and of a selection; addresses are dropped, those of origins not.
> row "MVI B,count" "DCR B" "JNZ loop" HLT ; click PlaceLabelTool ; cell Table1 2 0
> click ExistingPlaceOption ; enter ; click PlaceDoneButton ; click NewOrigin
> key NumberAcceptButton 9000 ; enter ; click AssignAddress ; settle ; cell Table1 1 2
> click CopyEdit ; changes
session: LastLine=8 FileChanged=1 SelectionAnchor=1 ClickedRow=2 SelectedInstruction=79
    CurrentOpcode=118
EditStringTable 0="count" | LabelCombo 0="loop" | LabelEqtList 0="8002" | LabelLineList 0="2"
LabelPlacedList 0="1" | LabelUsedList 0="1" | LastAddressList 0="8006" 1="8FFF"
OriginList 1="9000" | StringTable rows=33 (1 in at 1) 1="count" 3="loop" | XXCombo 0="count"
XXEqtList 0="XX"
EditTable rows=1
EditTable 0 - - "MVI  B,   count" "06   XX" "Move the equivalent of 'count' into B-register."
Table1 rows=33 (1 in at 1)
Table1 1 - "8000" "MVI  B,   count" "06   XX" "Move the equivalent of 'count' into B-register."
Table1 2 "loop" "8002" "DCR  B" "05" "Decrement content of B-register."
Table1 3 - "8003" "JNZ  loop" "C2   02   80" "Jump on no zero, to address pointed by 'loop'."
Table1 4 - "8006" "HLT" "76" "Halt program execution." | 5 "Origin" "9000"
Table1 colors 1,2=cursor 2,2=own 5,0..4=E0E0E0
caption: TipsLabel="Completed copying." | enabled: PasteEdit
> drag Table1 5 2 2 2 ; click CopyEdit ; changes
session: SelectionAnchor=5
EditStringTable count=4 (3 in at 0) 0="" 1="loop" 2..3=""
EditTable rows=4 (3 in at 0) | 0 "loop" - "DCR  B" "05" "Decrement content of B-register."
EditTable 1 - - "JNZ  loop" "C2   02   80" "Jump on no zero, to address pointed by 'loop'."
EditTable 2 - - "HLT" "76" "Halt program execution." | 3 "Origin" "9000" "" "" ""
# A paste goes in before the cursor; the label is known and is not listed again.
> cell Table1 8 2 ; click PasteEdit ; changes
session: Selection=12 CurrentRow=12 LastLine=12 SelectionAnchor=8
OriginList 2="9000" | StringTable rows=37 (4 in at 9) 9="loop"
Table1 rows=37 (4 in at 9) | 8 "loop" - "DCR  B" "05" "Decrement content of B-register."
Table1 9 - - "JNZ  loop" "C2   02   80" "Jump on no zero, to address pointed by 'loop'."
Table1 10 - - "HLT" "76" "Halt program execution." | 11 "Origin" "9000"
Table1 colors 1,2=own 11,0..4=E0E0E0 12,2=cursor
caption: TipsLabel="Completed pasting."
# A cut takes the rows out again. The cursor below the rows goes up with its row.
> drag Table1 8 2 11 2 ; click CutEdit ; changes
session: Selection=8 CurrentRow=8 LastLine=8
OriginList count=2 | StringTable rows=33 (4 out at 9)
Table1 rows=33 (4 out at 8)
caption: TipsLabel="Completed cutting."
# Deleting turns Insert off; a cursor above stays, one among the rows goes to the first of them.
> click WriteMode ; drag Table1 12 2 14 2 ; click DeleteEdit ; changes
session: LastLine=9 SelectionAnchor=12
StringTable rows=31
Table1 rows=31
caption: TipsLabel="Completed deleting."
> cell Table1 10 2 ; drag Table1 9 2 11 2 ; click DeleteEdit ; changes
session: Selection=9 CurrentRow=9 SelectionAnchor=9
StringTable rows=28
Table1 rows=28 (3 out at 8)
Table1 colors 9,2=cursor
# Row 0 stays, whatever is deleted; a stray row is then left at the end of the table.
> cell Table1 7 2 ; drag Table1 3 2 0 2 ; click DeleteEdit ; changes
session: Selection=4 CurrentRow=4 LastLine=6 SelectionAnchor=3
LabelLineList 0="0" | LabelPlacedList 0="0" | LabelUsedList 0="0"
StringTable rows=26 (2 out at 1) 1="" 25="2"
Table1 rows=26 (2 out at 1) | 1 - "8006" "HLT" "76" "Halt program execution."
Table1 2 "Origin" "9000" "" "" "" | 3 "" "" | 25 "2"
Table1 colors 2,0..4=E0E0E0 3,0..4=own 4,2=cursor 7,2=own
# The lines in use: from the row of a deletion that takes the last of them.
> drag Table1 1 2 20 2 ; click DeleteEdit ; changes
session: Selection=1 CurrentRow=1 LastLine=1 SelectionAnchor=1
OriginList count=1 | StringTable rows=32 (6 in at 5) 5="2" 31=""
Table1 rows=32 (6 in at 1) | 5 "2" | 7 - "" "" "" "" | 8 "" "" | 31 ""
Table1 colors 1,2=cursor 8,0..4=own 10,2=own
# The last rows of the table: ten fresh ones come.
> drag Table1 31 2 28 2 ; click DeleteEdit ; changes
session: SelectionAnchor=31
StringTable rows=38
Table1 rows=38
# The clipboard outlives a new file, and brings its strings with it.
> answer no ; click NewFile ; changes
box question "Save changes to Pgm1.baf?" yesnocancel -> no
session: FileChanged=0 SelectionAnchor=0 MessageResult="7"
LabelCombo count=0 | LabelEqtList count=0 | LabelLineList count=0 | LabelPlacedList count=0
LabelUsedList count=0 | LastAddressList count=0 | StringTable rows=32 (6 out at 5) | XXCombo count=0
XXEqtList count=0
Table1 rows=32 (6 out at 5)
caption: TipsLabel="New File."
> click PasteEdit ; changes
session: Selection=5 CurrentRow=5 LastLine=5 FileChanged=1
EditStringTable 1="a1" | LabelCombo 0="loop" 1="a1" | LabelEqtList 0="XXXX" 1="8002"
LabelLineList 0="1" 1="0" | LabelPlacedList 0="1" 1="0" | LabelUsedList 0="0" 1="1"
OriginList 1="9000" | StringTable rows=36 (4 in at 2) 2="a1"
EditTable 1 - - "JNZ  a1" | Table1 rows=36 (4 in at 1)
Table1 1 "loop" - "DCR  B" "05" "Decrement content of B-register."
Table1 2 - - "JNZ  a1" "C2   02   80" "Jump on no zero, to address pointed by 'loop'."
Table1 3 - - "HLT" "76" "Halt program execution." | 4 "Origin" "9000"
Table1 colors 4,0..4=E0E0E0
caption: TipsLabel="Completed pasting."
== strings
# A row whose label means another address in this file gets a new name, in the clipboard as well.
> row "JNZ loop" "MVI B,count" ; click PlaceLabelTool ; cell Table1 1 0 ; click ExistingPlaceOption
> enter ; click PlaceDoneButton ; click AssignAddress ; settle ; click EqtOption
open RenumberDialog
> click RenumberDialog.VariablesOption ; cell RenumberDialog.VariableTable 1 0
> key RenumberDialog.XXAcceptButton 0f ; enter ; click RenumberDialog.DoneButton
closed RenumberDialog
> drag Table1 1 2 2 2 ; click CopyEdit ; cell Table1 5 2 ; click PasteEdit ; changes
session: Cursor=7 LastLine=4 FileChanged=1 SelectionAnchor=5 ClickedRow=1 SelectedInstruction=1
    CurrentOpcode=6
EditStringTable 0="loop" 1="count" | LabelCombo 0="loop" | LabelEqtList 0="8000"
LabelLineList 0="1" | LabelPlacedList 0="1" | LabelUsedList 0="1" | LastAddressList 0="8004"
StringTable rows=34 (2 in at 1) 1="loop" 2="count" 5="loop" 6="count" | XXCombo 0="count"
XXEqtList 0="0F"
EditTable rows=2
EditTable 0 "loop" - "JNZ  loop" "C2   00   80" "Jump on no zero, to address pointed by 'loop'."
EditTable 1 - - "MVI  B,   count" "06   0F" "Move the equivalent of 'count' into B-register."
Table1 rows=34 (2 in at 6)
Table1 1 "loop" "8000" "JNZ  loop" "C2   00   80" "Jump on no zero, to address pointed by 'loop'."
Table1 2 - "8003" "MVI  B,   count" "06   0F" "Move the equivalent of 'count' into B-register."
Table1 5 "loop" - "JNZ  loop" "C2   00   80" "Jump on no zero, to address pointed by 'loop'."
Table1 6 - - "MVI  B,   count" "06   0F" "Move the equivalent of 'count' into B-register."
caption: TipsLabel="Completed pasting." | enabled: PasteEdit
> answer no ; click NewFile ; click PasteEdit ; changes
box question "Save changes to Pgm1.baf?" yesnocancel -> no
session: Cursor=3 LastLine=3 SelectionAnchor=0 MessageResult="7"
EditStringTable 0="a1" | LabelCombo 1="a1" | LabelEqtList count=2 (1 in at 0) 0="XXXX"
LabelLineList 1="0" | LabelPlacedList 1="0" | LabelUsedList count=2 (1 in at 0) 0="0"
LastAddressList count=0 | StringTable 1="a1" 5..6=""
EditTable 0 - - "JNZ  a1" | Table1 1 - "" "JNZ  a1" | 2 - "" | 5 "" - "" "" "" | 6 - - "" "" ""
# The same clipboard again finds all of its strings as they are.
> click PasteEdit ; changes
session: Selection=5 CurrentRow=5 LastLine=5
StringTable rows=36 (2 in at 3) 3="a1" 4="count"
Table1 rows=36 (2 in at 3)
Table1 3 "loop" - "JNZ  a1" "C2   00   80" "Jump on no zero, to address pointed by 'loop'."
Table1 4 - - "MVI  B,   count" "06   0F" "Move the equivalent of 'count' into B-register."
# The next address of the same name gives the next name, and a name that is taken is left out.
> click EqtOption ; cell RenumberDialog.LabelTable 2 0 ; key RenumberDialog.EqtAcceptButton 1234
open RenumberDialog
> enter ; click RenumberDialog.DoneButton ; click PasteEdit ; changes
closed RenumberDialog
session: Selection=7 CurrentRow=7 LastLine=7 NextLabelNumber=2
EditStringTable 0="a2" | LabelCombo 2="a2" | LabelEqtList count=3 (1 in at 1) 1="1234"
LabelLineList 2="0" | LabelPlacedList 2="0" | LabelUsedList 2="1"
StringTable rows=38 (2 in at 5) 5="a2" 6="count"
EditTable 0 - - "JNZ  a2" | Table1 rows=38 (2 in at 1)
Table1 1 "loop" - "JNZ  a1" "C2   34   12" "Jump on no zero, to address pointed by 'loop'."
Table1 2 - - "MVI  B,   count" "06   0F" "Move the equivalent of 'count' into B-register."
Table1 3 - - - "C2   34   12" | 5 - - "JNZ  a2"
> click PlaceLabelTool ; cell Table1 9 0 ; type PlaceText a3 ; enter ; click PlaceDoneButton
> click EqtOption ; cell RenumberDialog.LabelTable 3 0 ; key RenumberDialog.EqtAcceptButton 4321
open RenumberDialog
> enter ; click RenumberDialog.DoneButton ; click PasteEdit ; changes
closed RenumberDialog
session: Selection=9 CurrentRow=9 LastLine=9 ClickedRow=9 NextLabelNumber=4
EditStringTable 0="a4" | LabelCombo 3="a3" 4="a4"
LabelEqtList count=5 (2 in at 2) 2="4321" 3="XXXX" | LabelLineList 3="11" 4="0"
LabelPlacedList 3="1" 4="0" | LabelUsedList 3="0" 4="1"
StringTable rows=40 (2 in at 7) 7="a4" 8="count"
EditTable 0 - - "JNZ  a4" | Table1 rows=40 (2 in at 5)
Table1 5 "loop" - "JNZ  a2" "C2   21   43" "Jump on no zero, to address pointed by 'loop'."
Table1 6 - - "MVI  B,   count" "06   0F" "Move the equivalent of 'count' into B-register."
Table1 7 - - "JNZ  a4" | 11 "a3"
# A known variable keeps its equivalent, the pasted row its byte.
> click EqtOption ; click RenumberDialog.VariablesOption ; cell RenumberDialog.VariableTable 1 0
open RenumberDialog
> key RenumberDialog.XXAcceptButton 77 ; enter ; click RenumberDialog.DoneButton ; click PasteEdit
closed RenumberDialog
> changes
session: Selection=11 CurrentRow=11 LastLine=11
LabelLineList 3="13" | StringTable rows=42 (2 in at 9) 9="a4" 10="count" | XXEqtList 0="77"
Table1 rows=42 (2 in at 7) | 2 - - - "06   77" | 4 - - - "06   77" | 6 - - - "06   77"
Table1 7 "loop" - "JNZ  a4" "C2   00   80" "Jump on no zero, to address pointed by 'loop'."
Table1 8 - - "MVI  B,   count" "06   77" "Move the equivalent of 'count' into B-register."
# A data byte put over a row leaves the string of that row, which is then pasted as a label.
> answer no ; click NewFile ; row "JMP lp" ; click EntryMode ; cell Table1 1 2
box question "Save changes to Pgm1.baf?" yesnocancel -> no
> key DataAcceptButton 3f ; enter ; click EntryMode ; cell Table1 1 2 ; click CopyEdit ; changes
session: Selection=1 CurrentRow=1 LastLine=1 SelectionAnchor=1 SelectedInstruction=37
    CurrentOpcode=195
EditStringTable count=1 (1 out at 0) 0="lp" | LabelCombo count=1 (4 out at 0) 0="lp"
LabelEqtList count=1 | LabelLineList count=1 (4 out at 0) | LabelPlacedList count=1 (4 out at 0)
LabelUsedList count=1 (4 out at 0) | StringTable rows=32 (10 out at 1) 1="lp" | XXCombo count=0
XXEqtList count=0
EditTable rows=1 (1 out at 0) | 0 - - "DFB" "3F" "Data Byte." | Table1 rows=32 (10 out at 1)
Table1 1 - - "DFB" "3F" "Data Byte." | 3 ""
caption: TipsLabel="Completed copying."
> cell Table1 4 2 ; click PasteEdit ; changes
session: Cursor=5 LastLine=2 SelectionAnchor=4
EditStringTable 0="a4" | LabelCombo 1="a4" | LabelEqtList 1="" | LabelLineList 1="0"
LabelPlacedList 1="0" | LabelUsedList count=2 (1 in at 0) 0..1="0"
StringTable rows=33 (1 in at 4) 4="a4"
EditTable 0 - - "Da4" | Table1 rows=33 (1 in at 5) | 4 - - "Da4" "3F" "Data Byte."
caption: TipsLabel="Completed pasting."
# The cursor that comes to stand on an origin: after a deletion, after a paste, and again with Esc.
> answer no ; click NewFile ; cell Table1 4 2 ; click NewOrigin ; key NumberAcceptButton 9000
box question "Save changes to Pgm1.baf?" yesnocancel -> no
> enter ; row HLT ; cell Table1 1 2 ; click CopyEdit ; cell Table1 3 2 ; drag Table1 2 2 3 2
> click DeleteEdit ; changes
session: Selection=3 CurrentRow=3 LastLine=4 SelectionAnchor=2 SelectedInstruction=79
    CurrentOpcode=118
EditStringTable 0="" | LabelCombo count=0 | LabelEqtList count=0 | LabelLineList count=0
LabelPlacedList count=0 | LabelUsedList count=0 | OriginList 1="9000"
StringTable rows=32 (1 out at 1) 3=""
EditTable 0 - - "" "" "" | Table1 rows=32 (1 out at 1) | 3 "Origin" "9000" "" "" ""
Table1 4 - - "HLT" "76" "Halt program execution."
Table1 colors 3,0..1=E0E0E0 3,2=E0E0E0/cursor 3,3..4=E0E0E0 4,2=own
caption: TipsLabel="Completed deleting."
> click PasteEdit ; changes
session: Selection=5 CurrentRow=5 LastLine=6
StringTable rows=34
Table1 rows=34 (2 in at 3)
caption: TipsLabel="Completed pasting."
> escape ; changes
session: Selection=6 CurrentRow=6 LastLine=7
StringTable rows=35
Table1 rows=35 (1 in at 5)
Table1 colors 6,2=cursor
caption: TipsLabel="Program Mode."
# What is entered there wipes the address; the Opcode of an origin cannot be clicked.
> row NOP ; changes
session: Selection=7 CurrentRow=7 SelectedInstruction=78 CurrentOpcode=0 SavedCells(1)="9000"
OriginList 1=""
Table1 6 - "" "NOP" "00" "No Operation."
Table1 colors 6,2=E0E0E0 7,2=cursor
> cell Table1 6 3 ; changes
