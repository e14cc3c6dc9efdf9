# Four bytes sorted by exchange of neighbours, the smallest first.
row "MVI D,pairs" "LXI H,block" "MVI C,pairs" "MOV A,M" "INX H" "CMP M" "JC keep" "MOV B,M"
row "MOV M,A" "DCX H" "MOV M,B" "INX H" "DCR C" "JNZ next" "DCR D" "JNZ pass" HLT
click NewOrigin ; key NumberAcceptButton 9000 ; enter ; click EntryMode
key DataAcceptButton 40 ; enter ; key DataAcceptButton 9C ; enter ; key DataAcceptButton 05 ; enter
key DataAcceptButton 33 ; enter
click EntryMode
click PlaceLabelTool
cell Table1 2 0 ; click ExistingPlaceOption ; pick PlaceCombo 3 ; click PlaceAcceptButton
cell Table1 4 0 ; click ExistingPlaceOption ; pick PlaceCombo 2 ; click PlaceAcceptButton
cell Table1 13 0 ; click ExistingPlaceOption ; pick PlaceCombo 1 ; click PlaceAcceptButton
cell Table1 19 0 ; click ExistingPlaceOption ; pick PlaceCombo 0 ; click PlaceAcceptButton
click PlaceDoneButton
click EqtOption
click RenumberDialog.VariablesOption
cell RenumberDialog.VariableTable 1 0 ; key RenumberDialog.XXAcceptButton 03 ; enter
click RenumberDialog.DoneButton
click CommentsTool ; cell Table1 17 4 ; clear CommentsTxt
type CommentsTxt "Result: 9000 holds 05, 9001 holds 33, 9002 holds 40, 9003 holds 9C."
click CommentDoneButton
path sort.hex ; click AssembleFile ; settle
path sort.baf ; click SaveAsFile
