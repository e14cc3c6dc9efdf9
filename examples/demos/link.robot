# A trainer board is a small computer with an 8085 and a serial port. For this demonstration Quilla has
# one inside: nothing goes to your port.
row "MVI A,two" "STA place" HLT
click EqtOption
cell RenumberDialog.LabelTable 1 0
key RenumberDialog.EqtAcceptButton 9000 ; click RenumberDialog.EqtAcceptButton
click RenumberDialog.VariablesOption
cell RenumberDialog.VariableTable 1 0
key RenumberDialog.XXAcceptButton 02 ; click RenumberDialog.XXAcceptButton
click RenumberDialog.DoneButton
# A board takes hex files. Assembling writes one.
path two.hex ; click AssembleFile ; settle
# Options, Comm Port tells which port the board is on.
click PortOption 0
# Download asks for the file, checks it, and waits until the board is ready: a key on the board. Before
# that it asks about a program that is not saved; here it need not be.
answer no ; path two.hex ; answer ok ; click DownloadFile ; settle
# Sent: the program stands in the memory of the board, and can run there.
# Upload is the way back: whatever the board has in its memory comes as a hex file.
path back.hex ; answer ok ; click UploadFile
feed ":068000003E023200907602\r\n:00000001FF" ; settle
# Both files are the same. File, Disassemble makes a program of a hex file again.
