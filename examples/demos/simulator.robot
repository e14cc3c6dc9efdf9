# The simulator. This program adds two to whatever is read from a port, and stores it.
row "IN port" "ADI two" "STA place" HLT
click EqtOption
cell RenumberDialog.LabelTable 1 0
key RenumberDialog.EqtAcceptButton 9000 ; click RenumberDialog.EqtAcceptButton
click RenumberDialog.VariablesOption
cell RenumberDialog.VariableTable 1 0
key RenumberDialog.XXAcceptButton 01 ; click RenumberDialog.XXAcceptButton
cell RenumberDialog.VariableTable 2 0
key RenumberDialog.XXAcceptButton 02 ; click RenumberDialog.XXAcceptButton
click RenumberDialog.DoneButton
# The Simulation Panel shows the whole machine.
click SimulationView ; settle
# First the address where the program starts: type its digits, then press OK.
key WatchWindowDialog.AcceptButton 8000
click WatchWindowDialog.AcceptButton
# Execute runs the instruction that is shown, and shows the next one.
click WatchWindowDialog.ExecuteButton
click WatchWindowDialog.ExecuteButton
# The accumulator holds 02: the port was 00. Now the sum goes to 9000.
click WatchWindowDialog.ExecuteButton
# HLT ends the run. To start afresh, close the window and open it again.
click WatchWindowDialog.ExecuteButton
# Force a value on port 01 before you start, and the program reads that. Go on from here.
