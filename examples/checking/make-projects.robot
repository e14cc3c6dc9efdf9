# Makes the three projects: 7 times 6 by adding, the product at 9000.
row "MVI A,zero" "MVI B,times" "MVI C,number" "ADD C" "DCR B" "JNZ loop" "STA result" HLT
click PlaceLabelTool ; cell Table1 4 0 ; click ExistingPlaceOption ; click PlaceAcceptButton
click PlaceDoneButton

# Carla has given her names no numbers yet.
path carla.baf ; click SaveFile

# Anna is right.
click EqtOption
cell RenumberDialog.LabelTable 2 0
key RenumberDialog.EqtAcceptButton 9000 ; click RenumberDialog.EqtAcceptButton
click RenumberDialog.VariablesOption
cell RenumberDialog.VariableTable 1 0
key RenumberDialog.XXAcceptButton 00 ; click RenumberDialog.XXAcceptButton
cell RenumberDialog.VariableTable 2 0
key RenumberDialog.XXAcceptButton 06 ; click RenumberDialog.XXAcceptButton
cell RenumberDialog.VariableTable 3 0
key RenumberDialog.XXAcceptButton 07 ; click RenumberDialog.XXAcceptButton
click RenumberDialog.DoneButton
path anna.baf ; click SaveAsFile

# Ben adds once too few.
click EqtOption ; click RenumberDialog.VariablesOption
cell RenumberDialog.VariableTable 2 0
key RenumberDialog.XXAcceptButton 05 ; click RenumberDialog.XXAcceptButton
click RenumberDialog.DoneButton
path ben.baf ; click SaveAsFile
