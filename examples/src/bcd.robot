# Two decimal numbers added digit by digit with DAA, which corrects sums up to 159.
row "LXI H,first" "MOV A,M" "INX H" "ADD M" DAA "STA sum" "MVI A,none" "ACI none" "STA upper" HLT
click NewOrigin ; key NumberAcceptButton 9000 ; enter ; click EntryMode
key DataAcceptButton 58 ; enter ; key DataAcceptButton 67 ; enter ; key DataAcceptButton 00 ; enter
key DataAcceptButton 00 ; enter
click EntryMode
click PlaceLabelTool
cell Table1 12 0 ; click ExistingPlaceOption ; pick PlaceCombo 0 ; click PlaceAcceptButton
cell Table1 14 0 ; click ExistingPlaceOption ; pick PlaceCombo 2 ; click PlaceAcceptButton
cell Table1 15 0 ; click ExistingPlaceOption ; pick PlaceCombo 1 ; click PlaceAcceptButton
click PlaceDoneButton
click EqtOption
click RenumberDialog.VariablesOption
cell RenumberDialog.VariableTable 1 0 ; key RenumberDialog.XXAcceptButton 00 ; enter
click RenumberDialog.DoneButton
click CommentsTool ; cell Table1 10 4 ; clear CommentsTxt
type CommentsTxt "Result: 9002 holds 01, 9003 holds 25: 58 and 67 is 125."
click CommentDoneButton
path bcd.hex ; click AssembleFile ; settle
path bcd.baf ; click SaveAsFile
