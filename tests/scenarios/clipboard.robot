== rows
# An empty clipboard cannot be pasted.
> click PasteEdit
refused PasteEdit disabled
# A copy of the cursor row alone, and of a selection; addresses are dropped, those of origins not.
> row "MVI B,count" "DCR B" "JNZ loop" HLT ; click PlaceLabelTool ; cell Table1 2 0
> click ExistingPlaceOption ; enter ; click PlaceDoneButton ; click NewOrigin
> key NumberAcceptButton 9000 ; enter ; click AssignAddress ; settle ; cell Table1 1 2
> click CopyEdit ; drag Table1 5 2 2 2 ; click CopyEdit ; changes
session: LastLine=8 FileChanged=1 SelectionAnchor=5 ClickedRow=2 SelectedInstruction=79
    CurrentOpcode=118 | EditStringTable 0="" 1="loop" 2..3="" | LastAddressList 0="8006" 1="8FFF"
OriginList 1="9000" | StringTable rows=33 (1 in at 1) 1="count" 3="loop"
Labels 0 "loop" "8002" "2" "1" "1" | Variables 0 "count" "XX" | EditTable rows=4
EditTable 0 "loop" - "DCR  B" "05" "Decrement content of B-register."
EditTable 1 - - "JNZ  loop" "C2   02   80" "Jump on no zero, to address pointed by 'loop'."
EditTable 2 - - "HLT" "76" "Halt program execution." | 3 "Origin" "9000"
Table1 rows=33 (1 in at 1) | 1 - "8000" "MVI  B,   count" "06   XX" default
Table1 2 "loop" "8002" "DCR  B" "05" default | 3 - "8003" "JNZ  loop" "C2   02   80" default
Table1 4 - "8006" "HLT" "76" default | 5 "Origin" "9000" | colors 1,2=cursor 2,2=own 5,0..4=E0E0E0
caption: TipsLabel="Completed copying." | enabled: PasteEdit
# A paste goes in before the cursor; the label is known and is not listed again. A cut takes other
# rows out; the cursor below them goes up with its row. Deleting turns Insert off; a cursor above
# stays, one among the rows goes to the first of them.
> cell Table1 8 2 ; click PasteEdit ; changes
session: Selection=12 CurrentRow=12 LastLine=12 SelectionAnchor=8 | OriginList 2="9000"
StringTable rows=37 (4 in at 9) 9="loop" | Table1 rows=37 (4 in at 9)
Table1 8 "loop" - "DCR  B" "05" default | 9 - - "JNZ  loop" "C2   02   80" default
Table1 10 - - "HLT" "76" default | 11 "Origin" "9000" | colors 1,2=own 11,0..4=E0E0E0 12,2=cursor
caption: TipsLabel="Completed pasting."
> drag Table1 8 2 11 2 ; click CutEdit ; click WriteMode ; drag Table1 12 2 14 2 ; click DeleteEdit
> cell Table1 10 2 ; drag Table1 9 2 11 2 ; click DeleteEdit
# Row 0 stays, whatever is deleted; a stray row is then left at the end of the table.
> cell Table1 7 2 ; drag Table1 3 2 0 2 ; click DeleteEdit ; changes
session: Selection=4 CurrentRow=4 LastLine=6 SelectionAnchor=3 | OriginList count=2
StringTable rows=26 (11 out at 1) 25="2" | Labels 0 - - "0" "0" "0" | Table1 rows=26 (11 out at 1)
Table1 1 - "8006" "HLT" "76" default | 2 "Origin" "9000" | 25 "2"
Table1 colors 1,2=own 2,0..4=E0E0E0 4,2=cursor | caption: TipsLabel="Completed deleting."
# The clipboard outlives a new file, and brings its strings with it.
> answer no ; click NewFile ; click PasteEdit ; changes
box question "Save changes to Pgm1.baf?" yesnocancel -> no
session: Selection=5 CurrentRow=5 LastLine=5 SelectionAnchor=0 MessageResult="7"
EditStringTable 1="a1" | LastAddressList count=0 | StringTable rows=36 (10 in at 2) 2="a1" 35=""
Labels count=2 (1 in at 0) | 0 "loop" "XXXX" "1" "1" "0" | 1 "a1" - - - "1" | Variables count=0
EditTable 1 - - "JNZ  a1" | Table1 rows=36 (10 in at 1) | 1 "loop" - "DCR  B" "05" default
Table1 2 - - "JNZ  a1" "C2   02   80" "Jump on no zero, to address pointed by 'loop'."
Table1 3 - - "HLT" "76" default | 4 "Origin" "9000" | 11 - "" "" "" "" | 12 "" "" | 35 ""
Table1 colors 4,0..4=E0E0E0 5,2=cursor 12,0..4=own 14,2=own
caption: TipsLabel="Completed pasting."
# A copy counts as a change.
> path a.baf ; click SaveFile
dialog save "Save As" "Brelvanor Assembler Files (*.baf)|*.baf" -> "a.baf"
> click CopyEdit ; changes
session: FileOrigin=3 FileName="a.baf" ProjectPath="a.baf" | EditStringTable count=1
EditTable rows=1 (3 out at 0) | 0 "" ""
caption: ProgrammingPanel="Brelvanor Quilla - a.baf" TipsLabel="Completed copying."
== strings
# A row whose label means another address in this file gets a new name, in the clipboard as well.
> row "JNZ loop" "MVI B,count" ; click PlaceLabelTool ; cell Table1 1 0 ; click ExistingPlaceOption
> enter ; click PlaceDoneButton ; click AssignAddress ; settle ; click EqtOption
open RenumberDialog
> click RenumberDialog.VariablesOption ; cell RenumberDialog.VariableTable 1 0
> key RenumberDialog.XXAcceptButton 0f ; enter ; click RenumberDialog.DoneButton
closed RenumberDialog
> drag Table1 1 2 2 2 ; click CopyEdit ; cell Table1 5 2 ; click PasteEdit ; answer no
> click NewFile ; click PasteEdit ; changes
box question "Save changes to Pgm1.baf?" yesnocancel -> no
session: Selection=3 CurrentRow=3 LastLine=3 FileChanged=1 ClickedRow=1 SelectedInstruction=1
    CurrentOpcode=6 MessageResult="7" | EditStringTable 0="a1" 1="count"
StringTable rows=34 (2 in at 1) 1="a1" 2="count" | Labels 0 "loop" "XXXX" "1" "1" "0"
Labels 1 "a1" "8000" "0" "0" "1" | Variables 0 "count" "0F" | EditTable rows=2
EditTable 0 "loop" - "JNZ  a1" "C2   00   80" "Jump on no zero, to address pointed by 'loop'."
EditTable 1 - - "MVI  B,   count" "06   0F" "Move the equivalent of 'count' into B-register."
Table1 rows=34 (2 in at 1)
Table1 1 "loop" - "JNZ  a1" "C2   00   80" "Jump on no zero, to address pointed by 'loop'."
Table1 2 - - "MVI  B,   count" "06   0F" default | caption: TipsLabel="Completed pasting."
enabled: PasteEdit
# The cursor that comes to stand on an origin: after a deletion, after a paste, and again with Esc.
> answer no ; click NewFile ; cell Table1 4 2 ; click NewOrigin ; key NumberAcceptButton 9000
box question "Save changes to Pgm1.baf?" yesnocancel -> no
> enter ; row HLT ; cell Table1 1 2 ; click CopyEdit ; cell Table1 3 2 ; drag Table1 2 2 3 2
> click DeleteEdit ; click PasteEdit ; escape ; changes
session: Selection=6 CurrentRow=6 LastLine=7 SelectionAnchor=2 SelectedInstruction=79
    CurrentOpcode=118 | EditStringTable count=1 (1 out at 0) 0="" | OriginList 1="9000"
StringTable rows=35 (1 in at 1) 2..3="" | Labels count=0 | Variables count=0
EditTable rows=1 (1 out at 0) | 0 - - "" "" "" | Table1 rows=35 (1 in at 7) | 1 "" - "" "" ""
Table1 2 - - "" "" "" | 6 "Origin" "9000" | 7 - - "HLT" "76" default
Table1 colors 3,2=own 6,0..1=E0E0E0 6,2=cursor 6,3..4=E0E0E0 | caption: TipsLabel="Program Mode."
