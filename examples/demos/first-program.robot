# A first program: five plus seven. A program is built row by row; press an instruction key, then
# what it asks for. The line Tips: always says what comes next.

# MVI A moves a number into the accumulator. First the key MVI ...
click INST 1
# ... then the register ...
click REG 7
# ... then a name for the number. Its value comes later.
type XXText five
click XXAcceptButton
# The row is complete: mnemonic, opcode 3E, and a comment. The XX stands for the byte of "five".
row "MVI B,seven"
# Now the sum, left in the accumulator, and the end of the program.
row "ADD B" HLT
# The numbers behind the names are given in Equivalents.
click EqtOption
click RenumberDialog.VariablesOption
# Click a name, enter its digits, and accept.
cell RenumberDialog.VariableTable 1 0
key RenumberDialog.XXAcceptButton 05 ; click RenumberDialog.XXAcceptButton
cell RenumberDialog.VariableTable 2 0
key RenumberDialog.XXAcceptButton 07 ; click RenumberDialog.XXAcceptButton
click RenumberDialog.DoneButton
# The bytes are in their places. Now look at it in the simulator.
click SimulationView ; settle
key WatchWindowDialog.AcceptButton 8000 ; click WatchWindowDialog.AcceptButton
# Execute runs one instruction at a time. Watch the registers.
click WatchWindowDialog.ExecuteButton
click WatchWindowDialog.ExecuteButton
# Now the addition: 05 plus 07 is 0C.
click WatchWindowDialog.ExecuteButton
# The accumulator holds 0C. Close the simulator and go on from here: the program is yours.
