# Two bytes multiplied by shifts and additions; the product has 16 bits.
row "LDA first" "MOV E,A" "MVI D,none" "LDA second" "MVI H,none" "MVI L,none" "MVI C,bits" "DAD H"
row RAL "JNC skip" "DAD D" "DCR C" "JNZ loop" "SHLD result" HLT
click NewOrigin ; key NumberAcceptButton 9000 ; enter ; click EntryMode
key DataAcceptButton 37 ; enter ; key DataAcceptButton 2A ; enter ; key DataAcceptButton 00 ; enter
key DataAcceptButton 00 ; enter
click EntryMode
click PlaceLabelTool
cell Table1 8 0 ; click ExistingPlaceOption ; pick PlaceCombo 3 ; click PlaceAcceptButton
cell Table1 12 0 ; click ExistingPlaceOption ; pick PlaceCombo 2 ; click PlaceAcceptButton
cell Table1 17 0 ; click ExistingPlaceOption ; pick PlaceCombo 0 ; click PlaceAcceptButton
cell Table1 18 0 ; click ExistingPlaceOption ; pick PlaceCombo 1 ; click PlaceAcceptButton
cell Table1 19 0 ; click ExistingPlaceOption ; pick PlaceCombo 4 ; click PlaceAcceptButton
click PlaceDoneButton
click EqtOption
click RenumberDialog.VariablesOption
cell RenumberDialog.VariableTable 1 0 ; key RenumberDialog.XXAcceptButton 00 ; enter
cell RenumberDialog.VariableTable 2 0 ; key RenumberDialog.XXAcceptButton 08 ; enter
click RenumberDialog.DoneButton
click CommentsTool ; cell Table1 15 4 ; clear CommentsTxt
type CommentsTxt "Result: 9002 holds 06, 9003 holds 09: 37 times 2A is 0906."
click CommentDoneButton
path multiply.hex ; click AssembleFile ; settle
path multiply.baf ; click SaveAsFile
