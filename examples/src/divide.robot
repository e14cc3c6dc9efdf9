# A byte divided by another by repeated subtraction.
row "LDA whole" "LXI H,part" "MVI B,none" "CMP M" "JC done" "SUB M" "INR B" "JMP loop" "STA rest"
row "MOV A,B" "STA times" HLT
click NewOrigin ; key NumberAcceptButton 9000 ; enter ; click EntryMode
key DataAcceptButton 64 ; enter ; key DataAcceptButton 07 ; enter ; key DataAcceptButton 00 ; enter
key DataAcceptButton 00 ; enter
click EntryMode
click PlaceLabelTool
cell Table1 4 0 ; click ExistingPlaceOption ; pick PlaceCombo 3 ; click PlaceAcceptButton
cell Table1 9 0 ; click ExistingPlaceOption ; pick PlaceCombo 2 ; click PlaceAcceptButton
cell Table1 14 0 ; click ExistingPlaceOption ; pick PlaceCombo 0 ; click PlaceAcceptButton
cell Table1 15 0 ; click ExistingPlaceOption ; pick PlaceCombo 1 ; click PlaceAcceptButton
cell Table1 16 0 ; click ExistingPlaceOption ; pick PlaceCombo 5 ; click PlaceAcceptButton
cell Table1 17 0 ; click ExistingPlaceOption ; pick PlaceCombo 4 ; click PlaceAcceptButton
click PlaceDoneButton
click EqtOption
click RenumberDialog.VariablesOption
cell RenumberDialog.VariableTable 1 0 ; key RenumberDialog.XXAcceptButton 00 ; enter
click RenumberDialog.DoneButton
click CommentsTool ; cell Table1 12 4 ; clear CommentsTxt
type CommentsTxt "Result: 9002 holds 0E, 9003 holds 02: 64 by 07 is 0E, rest 02."
click CommentDoneButton
path divide.hex ; click AssembleFile ; settle
path divide.baf ; click SaveAsFile
