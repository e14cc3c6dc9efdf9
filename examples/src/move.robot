# A block of four bytes copied to another place.
row "LXI H,source" "LXI D,target" "MVI C,count" "MOV A,M" "STAX D" "INX H" "INX D" "DCR C"
row "JNZ loop" HLT
click NewOrigin ; key NumberAcceptButton 9000 ; enter ; click EntryMode
key DataAcceptButton DE ; enter ; key DataAcceptButton AD ; enter ; key DataAcceptButton BE ; enter
key DataAcceptButton EF ; enter ; key DataAcceptButton 00 ; enter ; key DataAcceptButton 00 ; enter
key DataAcceptButton 00 ; enter ; key DataAcceptButton 00 ; enter
click EntryMode
click PlaceLabelTool
cell Table1 4 0 ; click ExistingPlaceOption ; pick PlaceCombo 2 ; click PlaceAcceptButton
cell Table1 12 0 ; click ExistingPlaceOption ; pick PlaceCombo 0 ; click PlaceAcceptButton
cell Table1 16 0 ; click ExistingPlaceOption ; pick PlaceCombo 1 ; click PlaceAcceptButton
click PlaceDoneButton
click EqtOption
click RenumberDialog.VariablesOption
cell RenumberDialog.VariableTable 1 0 ; key RenumberDialog.XXAcceptButton 04 ; enter
click RenumberDialog.DoneButton
click CommentsTool ; cell Table1 10 4 ; clear CommentsTxt
type CommentsTxt "Result: 9004 holds DE, 9005 holds AD, 9006 holds BE, 9007 holds EF."
click CommentDoneButton
path move.hex ; click AssembleFile ; settle
path move.baf ; click SaveAsFile
