# A loop: count down from three. A label names the row that the program jumps back to.
row "MVI C,count" "MVI A,zero" "ADD C" "DCR C"
# JNZ jumps while the count is not zero. Its operand is a label: type a new name.
click INST 39
type LabelText again
click LabelAcceptButton
row HLT
# The label is used, but stands on no row yet. Place Labels puts it there.
click PlaceLabelTool
# Click the row to jump to ...
cell Table1 3 0
# ... and pick the name, which was used before.
click ExistingPlaceOption
pick PlaceCombo 0
click PlaceAcceptButton
click PlaceDoneButton
# The names "count" and "zero" need their numbers.
click EqtOption
click RenumberDialog.VariablesOption
cell RenumberDialog.VariableTable 1 0
key RenumberDialog.XXAcceptButton 03 ; click RenumberDialog.XXAcceptButton
cell RenumberDialog.VariableTable 2 0
key RenumberDialog.XXAcceptButton 00 ; click RenumberDialog.XXAcceptButton
click RenumberDialog.DoneButton
# Assign Addresses gives every row its place, and the jump its target.
click AssignAddress ; settle
# "again" is 8004, and the jump holds 04 80, the low byte first. Try it in the simulator.
