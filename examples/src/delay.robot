# A delay loop between two states of a lamp at port 80. Three rounds can be stepped; a board needs
# more.
row "MVI A,on" "OUT lamp" "LXI D,wait" "DCX D" "MOV A,D" "ORA E" "JNZ loop" "OUT lamp" "STA ended"
row HLT
click NewOrigin ; key NumberAcceptButton 9000 ; enter ; click EntryMode
key DataAcceptButton FF ; enter
click EntryMode
click PlaceLabelTool
cell Table1 4 0 ; click ExistingPlaceOption ; pick PlaceCombo 1 ; click PlaceAcceptButton
cell Table1 12 0 ; click ExistingPlaceOption ; pick PlaceCombo 2 ; click PlaceAcceptButton
click PlaceDoneButton
click EqtOption
cell RenumberDialog.LabelTable 1 0 ; key RenumberDialog.EqtAcceptButton 0003 ; enter
click RenumberDialog.VariablesOption
cell RenumberDialog.VariableTable 1 0 ; key RenumberDialog.XXAcceptButton 01 ; enter
cell RenumberDialog.VariableTable 2 0 ; key RenumberDialog.XXAcceptButton 80 ; enter
click RenumberDialog.DoneButton
click CommentsTool ; cell Table1 10 4 ; clear CommentsTxt
type CommentsTxt "Result: port 80 holds 00, 9000 holds 00."
click CommentDoneButton
path delay.hex ; click AssembleFile ; settle
path delay.baf ; click SaveAsFile
