# A subroutine, and what it and PUSH leave on the stack: PUSH puts the high register at the lower
# address, CALL the high byte at the higher one.
row "LXI SP,top" "MVI B,high" "MVI C,low" "PUSH B" "MVI A,number" "CALL double" "STA result"
row "POP D" "MOV A,E" "STA popped" HLT "ADD A" RET
click NewOrigin ; key NumberAcceptButton 9000 ; enter ; click EntryMode
key DataAcceptButton 00 ; enter ; key DataAcceptButton 00 ; enter
click EntryMode
click PlaceLabelTool
cell Table1 12 0 ; click ExistingPlaceOption ; pick PlaceCombo 1 ; click PlaceAcceptButton
cell Table1 15 0 ; click ExistingPlaceOption ; pick PlaceCombo 2 ; click PlaceAcceptButton
cell Table1 16 0 ; click ExistingPlaceOption ; pick PlaceCombo 3 ; click PlaceAcceptButton
click PlaceDoneButton
click EqtOption
cell RenumberDialog.LabelTable 1 0 ; key RenumberDialog.EqtAcceptButton 9100 ; enter
click RenumberDialog.VariablesOption
cell RenumberDialog.VariableTable 1 0 ; key RenumberDialog.XXAcceptButton 12 ; enter
cell RenumberDialog.VariableTable 2 0 ; key RenumberDialog.XXAcceptButton 34 ; enter
cell RenumberDialog.VariableTable 3 0 ; key RenumberDialog.XXAcceptButton 21 ; enter
click RenumberDialog.DoneButton
click CommentsTool ; cell Table1 11 4 ; clear CommentsTxt
type CommentsTxt "Result: 9000 holds 42, 9001 holds 34, 90FC holds 0D, 90FD holds 80, 90FE holds 12, 90FF holds 34."
click CommentDoneButton
path stack.hex ; click AssembleFile ; settle
path stack.baf ; click SaveAsFile
