# A subroutine and its stack. The stack grows downward from where SP points: set SP first.
row "LXI SP,top"

# CALL puts the address of the next row on the stack and jumps; RET comes back.
row "MVI A,number" "CALL double" HLT "ADD A" RET
# The subroutine begins at ADD A: its label goes there.
click PlaceLabelTool
cell Table1 5 0
click ExistingPlaceOption
pick PlaceCombo 1
click PlaceAcceptButton
click PlaceDoneButton
# The top of the stack is outside of the program, so its address is given by hand.
click EqtOption
cell RenumberDialog.LabelTable 1 0
key RenumberDialog.EqtAcceptButton 9100 ; click RenumberDialog.EqtAcceptButton
click RenumberDialog.VariablesOption
cell RenumberDialog.VariableTable 1 0
key RenumberDialog.XXAcceptButton 21 ; click RenumberDialog.XXAcceptButton
click RenumberDialog.DoneButton
click SimulationView ; settle
key WatchWindowDialog.AcceptButton 8000 ; click WatchWindowDialog.AcceptButton
# Two steps: SP is 9100, the accumulator 21.
click WatchWindowDialog.ExecuteButton
click WatchWindowDialog.ExecuteButton
# The call: look at SP and at the program counter.
click WatchWindowDialog.ExecuteButton
# SP is 90FE: two bytes lie on the stack. Now the sum ...
click WatchWindowDialog.ExecuteButton
# ... and the way back: SP is 9100 again, and HLT comes next.
click WatchWindowDialog.ExecuteButton
# The accumulator holds 42, twice 21. Go on from here.
