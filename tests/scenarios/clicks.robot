== ready
# On a new table only the Mnemonics column answers a click: it moves the cursor, on row 0 to row 1.
> cell Table1 5 2 ; cell Table1 3 0 ; cell Table1 3 1 ; cell Table1 3 3 ; cell Table1 3 4
> cell Table1 0 1 ; cell Table1 0 3 ; cell Table1 0 4 ; changes
session: Cursor=5 SelectionAnchor=5
> cell Table1 0 2 ; changes
session: Cursor=1 SelectionAnchor=1
# A press on row 0 counts as one on row 1, so a drag from there to row 1 is a plain click. A drag
# upward selects as one downward does, up to row 0, and moves nothing. The column of the press
# decides: let go over another column it selects, begun there it does not.
> cell Table1 4 2 ; drag Table1 0 2 1 2 ; drag Table1 0 2 4 2 ; drag Table1 2 2 0 2 ; changes
session: SelectionTop=0 SelectionBottom=2 SelectionAnchor=2
> drag Table1 3 2 6 4 ; drag Table1 8 1 9 2 ; changes
session: SelectionTop=3 SelectionBottom=6 SelectionAnchor=3
# An Opcode cell starts its instruction afresh; Esc gives the row back, comment and all.
> row NOP "MOV A,B" RNC "RST 3" ; click EntryMode ; key DataAcceptButton 3F ; click DataAcceptButton
> click EntryMode ; cell Table1 2 3 ; escape ; changes
session: Cursor=2 LastLine=5 FileChanged=1 CurrentOpcode=64 SavedCells(2)="MOV  A,  B"
    SavedCells(3)="78" SavedCells(4)="Move content of B-register into Accumulator."
Table1 1 - - "NOP" "00" default | 2 - - "MOV  A,  B" "78" default | 3 - - "RNC" "D0" default
Table1 4 - - "RST 3" "DF" default | 5 - - "DFB" "3F" default | caption: TipsLabel="Program Mode."
# The first restart number is taken as it was entered; a NOP cannot be entered again; RNC becomes
# HLT.
> cell Table1 4 3 ; key NumberFocusButton 5 ; cell Table1 1 3 ; cell Table1 3 3 ; changes
session: Cursor=4 SelectedInstruction=79 CurrentOpcode=118 SavedCells(2)="RNC" SavedCells(3)="D0"
    SavedCells(4)="Return on no carry." | Table1 3 - - "HLT" "76" | 4 - - "RST 5" "EF"
# A label in the first column answers no click, an origin opens its editor.
> click PlaceLabelTool ; cell Table1 2 2 ; type PlaceText here ; click PlaceAcceptButton
> click PlaceDoneButton ; cell Table1 2 0 ; cell Table1 0 0 ; key NumberAcceptButton 1c0de ; enter
> changes
session: SelectionAnchor=2 | OriginList 0="C0DE" | Labels 0 "here" "XXXX" "2" "1" "0"
Table1 0 - "C0DE" | 2 "here"
== deleting labels
# Only the first column counts; the label's number is forgotten, and the lists are tidied at the
# end. An origin can be emptied too, its grey stays.
> row "JMP loop" HLT ; click PlaceLabelTool ; cell Table1 2 0 ; click ExistingPlaceOption ; enter
> cell Table1 1 0 ; type PlaceText here ; enter ; escape ; click NewOrigin
> key NumberAcceptButton 9000 ; enter ; click AssignAddress ; settle ; click DeleteLabels
> cell Table1 2 2 ; cell Table1 2 0 ; cell Table1 4 0 ; cell Table1 3 0 ; escape ; changes
session: LastLine=6 FileChanged=1 SelectionAnchor=2 ClickedRow=1 SelectedInstruction=79
    CurrentOpcode=118 | LastAddressList 0="8003" 1="8FFF" | StringTable rows=33 (1 in at 1) 1="loop"
Labels 0 "loop" "XXXX" "0" "0" "1" | 1 "here" "8000" "1" "1" "0" | Table1 rows=33 (1 in at 1)
Table1 1 "here" "8000" "JMP  loop" "C3   03   80" default | 2 - "8003" "HLT" "76" default
Table1 3 - "9000" | colors 1,2=cursor 2,2=own 3,0..4=E0E0E0 | caption: TipsLabel="Program Mode."
