# The sum of five bytes.
row "LXI H,block" "MVI C,count" "XRA A" "ADD M" "INX H" "DCR C" "JNZ loop" "STA sum" HLT
click NewOrigin ; key NumberAcceptButton 9000 ; enter ; click EntryMode
key DataAcceptButton 11 ; enter ; key DataAcceptButton 22 ; enter ; key DataAcceptButton 07 ; enter
key DataAcceptButton 30 ; enter ; key DataAcceptButton 05 ; enter ; key DataAcceptButton 00 ; enter
click EntryMode
click PlaceLabelTool
cell Table1 4 0 ; click ExistingPlaceOption ; pick PlaceCombo 1 ; click PlaceAcceptButton
cell Table1 11 0 ; click ExistingPlaceOption ; pick PlaceCombo 0 ; click PlaceAcceptButton
cell Table1 16 0 ; click ExistingPlaceOption ; pick PlaceCombo 2 ; click PlaceAcceptButton
click PlaceDoneButton
click EqtOption
click RenumberDialog.VariablesOption
cell RenumberDialog.VariableTable 1 0 ; key RenumberDialog.XXAcceptButton 05 ; enter
click RenumberDialog.DoneButton
click CommentsTool ; cell Table1 9 4 ; clear CommentsTxt
type CommentsTxt "Result: 9005 holds 6F."
click CommentDoneButton
path sum.hex ; click AssembleFile ; settle
path sum.baf ; click SaveAsFile
