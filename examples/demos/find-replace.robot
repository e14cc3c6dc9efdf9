# Find and replace. Two names are easily mixed up, and this program uses one of them too often.
row "MVI A,one" "MVI B,one" "MVI C,one" "ADD B" HLT
# Find marks every place of a name in blue, and counts them.
click FindVariable
pick XXCombo 0
click XXFindButton
# Three places.
click XXDoneButton
# Replace marks in red all places that can change.
click ReplaceVariable
# Click those that you mean: they turn green.
cell Table1 2 2
cell Table1 3 2
# Then give the new name, and press Replace.
type XXText two
click XXReplaceButton
click XXDoneButton
# Only the picked rows have changed. Each name has its own number in Equivalents.
