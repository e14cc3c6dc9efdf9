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
    CurrentOpcode=118 | EditStringTable 0="count" | LastAddressList 0="8006" 1="8FFF"
OriginList 1="9000" | StringTable rows=33 (1 in at 1) 1="count" 3="loop"
Labels 0 "loop" "8002" "2" "1" "1" | Variables 0 "count" "XX" | EditTable rows=1
EditTable 0 - - "MVI  B,   count" "06   XX" "Move the equivalent of 'count' into B-register."
Table1 rows=33 (1 in at 1) | 1 - "8000" "MVI  B,   count" "06   XX" default
Table1 2 "loop" "8002" "DCR  B" "05" default | 3 - "8003" "JNZ  loop" "C2   02   80" default
Table1 4 - "8006" "HLT" "76" default | 5 "Origin" "9000" | colors 1,2=cursor 2,2=own 5,0..4=E0E0E0
caption: TipsLabel="Completed copying." | enabled: PasteEdit
> drag Table1 5 2 2 2 ; click CopyEdit ; changes
session: SelectionAnchor=5 | EditStringTable count=4 (3 in at 0) 0="" 1="loop" 2..3=""
EditTable rows=4 (3 in at 0) | 0 "loop" - "DCR  B" "05" "Decrement content of B-register."
EditTable 1 - - "JNZ  loop" "C2   02   80" "Jump on no zero, to address pointed by 'loop'."
EditTable 2 - - "HLT" "76" "Halt program execution." | 3 "Origin" "9000" "" "" ""
# A paste goes in before the cursor; the label is known and is not listed again.
> cell Table1 8 2 ; click PasteEdit ; changes
session: Selection=12 CurrentRow=12 LastLine=12 SelectionAnchor=8 | OriginList 2="9000"
StringTable rows=37 (4 in at 9) 9="loop" | Table1 rows=37 (4 in at 9)
Table1 8 "loop" - "DCR  B" "05" default | 9 - - "JNZ  loop" "C2   02   80" default
Table1 10 - - "HLT" "76" default | 11 "Origin" "9000" | colors 1,2=own 11,0..4=E0E0E0 12,2=cursor
caption: TipsLabel="Completed pasting."
# A cut takes the rows out again. The cursor below the rows goes up with its row.
> drag Table1 8 2 11 2 ; click CutEdit ; changes
session: Selection=8 CurrentRow=8 LastLine=8 | OriginList count=2 | StringTable rows=33 (4 out at 9)
Table1 rows=33 (4 out at 8) | caption: TipsLabel="Completed cutting."
# Deleting turns Insert off; a cursor above stays, one among the rows goes to the first of them.
> click WriteMode ; drag Table1 12 2 14 2 ; click DeleteEdit ; changes
session: LastLine=9 SelectionAnchor=12 | StringTable rows=31 | Table1 rows=31
caption: TipsLabel="Completed deleting."
> cell Table1 10 2 ; drag Table1 9 2 11 2 ; click DeleteEdit
# Row 0 stays, whatever is deleted; a stray row is then left at the end of the table.
> cell Table1 7 2 ; drag Table1 3 2 0 2 ; click DeleteEdit ; changes
session: Selection=4 CurrentRow=4 LastLine=6 SelectionAnchor=3
StringTable rows=26 (5 out at 1) 25="2" | Labels 0 - - "0" "0" "0" | Table1 rows=26 (5 out at 1)
Table1 1 - "8006" "HLT" "76" default | 2 "Origin" "9000" | 25 "2"
Table1 colors 2,0..4=E0E0E0 3,2=own 4,2=cursor
# The lines in use: from the row of a deletion that takes the last of them.
> drag Table1 1 2 20 2 ; click DeleteEdit ; changes
session: Selection=1 CurrentRow=1 LastLine=1 SelectionAnchor=1 | OriginList count=1
StringTable rows=32 (6 in at 5) 5="2" 31="" | Table1 rows=32 (6 in at 1) | 5 "2" | 7 - "" "" "" ""
Table1 8 "" "" | 31 "" | colors 1,2=cursor 8,0..4=own 10,2=own
# The clipboard outlives a new file, and brings its strings with it.
> answer no ; click NewFile ; click PasteEdit ; changes
box question "Save changes to Pgm1.baf?" yesnocancel -> no
session: Selection=5 CurrentRow=5 LastLine=5 SelectionAnchor=0 MessageResult="7"
EditStringTable 1="a1" | LastAddressList count=0 | OriginList 1="9000"
StringTable rows=36 (4 in at 2) 2="a1" 9="" | Labels count=2 (1 in at 0)
Labels 0 "loop" "XXXX" "1" "1" "0" | 1 "a1" - - - "1" | Variables count=0
EditTable 1 - - "JNZ  a1" | Table1 rows=36 (4 in at 1) | 1 "loop" - "DCR  B" "05" default
Table1 2 - - "JNZ  a1" "C2   02   80" "Jump on no zero, to address pointed by 'loop'."
Table1 3 - - "HLT" "76" default | 4 "Origin" "9000" | 9 "" | colors 4,0..4=E0E0E0
caption: TipsLabel="Completed pasting."
# A copy counts as a change.
> path a.baf ; click SaveFile ; changes
dialog save "Save As" "Brelvanor Assembler Files (*.baf)|*.baf" -> "a.baf"
session: FileOrigin=3 FileChanged=0 FileName="a.baf" ProjectPath="a.baf"
caption: ProgrammingPanel="Brelvanor Quilla - a.baf" TipsLabel="File Saved."
> click CopyEdit ; changes
session: FileChanged=1 | EditStringTable count=1 | EditTable rows=1 (3 out at 0) | 0 "" ""
caption: TipsLabel="Completed copying."
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
    CurrentOpcode=6 | EditStringTable 0="loop" 1="count" | LastAddressList 0="8004"
StringTable rows=34 (2 in at 1) 1="loop" 2="count" 5="loop" 6="count"
Labels 0 "loop" "8000" "1" "1" "1" | Variables 0 "count" "0F" | EditTable rows=2
EditTable 0 "loop" - "JNZ  loop" "C2   00   80" "Jump on no zero, to address pointed by 'loop'."
EditTable 1 - - "MVI  B,   count" "06   0F" "Move the equivalent of 'count' into B-register."
Table1 rows=34 (2 in at 6) | 1 "loop" "8000" "JNZ  loop" "C2   00   80" default
Table1 2 - "8003" "MVI  B,   count" "06   0F" default
Table1 5 "loop" - "JNZ  loop" "C2   00   80" default | 6 - - "MVI  B,   count" "06   0F" default
caption: TipsLabel="Completed pasting." | enabled: PasteEdit
> answer no ; click NewFile ; click PasteEdit ; changes
box question "Save changes to Pgm1.baf?" yesnocancel -> no
session: Cursor=3 LastLine=3 SelectionAnchor=0 MessageResult="7" | EditStringTable 0="a1"
LastAddressList count=0 | StringTable 1="a1" 5..6="" | Labels count=2 (1 in at 0)
Labels 0 "loop" "XXXX" "1" "1" "0" | 1 "a1" - "0" "0" | EditTable 0 - - "JNZ  a1"
Table1 1 - "" "JNZ  a1" - "Jump on no zero, to address pointed by 'loop'." | 2 - ""
Table1 5 "" - "" "" "" | 6 - - "" "" ""
# The next address of the same name gives the next name, and a name that is taken is left out.
> click EqtOption ; cell RenumberDialog.LabelTable 2 0 ; key RenumberDialog.EqtAcceptButton 1234
open RenumberDialog
> enter ; click RenumberDialog.DoneButton ; click PasteEdit ; changes
closed RenumberDialog
session: Selection=5 CurrentRow=5 LastLine=5 NextLabelNumber=2 | EditStringTable 0="a2"
StringTable rows=36 (2 in at 3) 3="a2" 4="count" | Labels count=3 (1 in at 1)
Labels 1 "a1" "1234" "0" "0" "1" | 2 "a2" | EditTable 0 - - "JNZ  a2" | Table1 rows=36 (2 in at 1)
Table1 1 "loop" - "JNZ  a1" "C2   34   12" "Jump on no zero, to address pointed by 'loop'."
Table1 2 - - "MVI  B,   count" "06   0F" default | 3 - - "JNZ  a2"
> click PlaceLabelTool ; cell Table1 9 0 ; type PlaceText a3 ; enter ; click PlaceDoneButton
> click EqtOption ; cell RenumberDialog.LabelTable 3 0 ; key RenumberDialog.EqtAcceptButton 4321
open RenumberDialog
> enter ; click RenumberDialog.DoneButton ; click PasteEdit ; changes
closed RenumberDialog
session: Selection=7 CurrentRow=7 LastLine=7 ClickedRow=9 NextLabelNumber=4 | EditStringTable 0="a4"
StringTable rows=38 (2 in at 5) 5="a4" 6="count" | Labels count=5 (2 in at 2)
Labels 2 "a2" "4321" "0" "0" "1" | 3 "a3" "XXXX" "11" "1" "0" | 4 "a4" | EditTable 0 - - "JNZ  a4"
Table1 rows=38 (2 in at 3)
Table1 3 "loop" - "JNZ  a2" "C2   21   43" "Jump on no zero, to address pointed by 'loop'."
Table1 4 - - "MVI  B,   count" "06   0F" default | 5 - - "JNZ  a4" | 11 "a3"
# A data byte put over a row leaves the string of that row, which is then pasted as a label.
> answer no ; click NewFile ; row "JMP lp" ; click EntryMode ; cell Table1 1 2
box question "Save changes to Pgm1.baf?" yesnocancel -> no
> key DataAcceptButton 3f ; enter ; click EntryMode ; cell Table1 1 2 ; click CopyEdit
> cell Table1 4 2 ; click PasteEdit ; changes
session: Selection=5 CurrentRow=5 LastLine=2 SelectionAnchor=4 SelectedInstruction=37
    CurrentOpcode=195 | EditStringTable count=1 | StringTable rows=33 (5 out at 1) 1="lp" 4="a4"
Labels count=2 (3 out at 0) | 0 "lp" - "0" "0" | 1 - "" - - "0" | Variables count=0
EditTable rows=1 (1 out at 0) | 0 - - "Da4" "3F" "Data Byte." | Table1 rows=33 (5 out at 1)
Table1 1 - - "DFB" "3F" | 4 - - "Da4" "3F" "Data Byte." | 6 "" | colors 2,2=own 5,2=cursor
# The cursor that comes to stand on an origin: after a deletion, after a paste, and again with Esc.
> answer no ; click NewFile ; cell Table1 4 2 ; click NewOrigin ; key NumberAcceptButton 9000
box question "Save changes to Pgm1.baf?" yesnocancel -> no
> enter ; row HLT ; cell Table1 1 2 ; click CopyEdit ; cell Table1 3 2 ; drag Table1 2 2 3 2
> click DeleteEdit ; changes
session: Selection=3 CurrentRow=3 LastLine=4 SelectionAnchor=2 SelectedInstruction=79
    CurrentOpcode=118 | EditStringTable 0="" | OriginList 1="9000"
StringTable rows=32 (1 out at 1) 3="" | Labels count=0 | EditTable 0 - - "" "" ""
Table1 rows=32 (1 out at 1) | 3 "Origin" "9000" "" "" "" | 4 - - "HLT" "76" default
Table1 colors 3,0..1=E0E0E0 3,2=E0E0E0/cursor 3,3..4=E0E0E0 4,2=own
caption: TipsLabel="Completed deleting."
> click PasteEdit ; changes
session: Selection=5 CurrentRow=5 LastLine=6 | StringTable rows=34 | Table1 rows=34 (2 in at 3)
caption: TipsLabel="Completed pasting."
> escape ; changes
session: Selection=6 CurrentRow=6 LastLine=7 | StringTable rows=35 | Table1 rows=35 (1 in at 5)
Table1 colors 6,2=cursor | caption: TipsLabel="Program Mode."
