# A port read and another written. Force port 00 to a value before you run it, to read that.
row "IN keys" CMA "OUT lamps" "IN lamps" RLC "OUT echo" HLT
click EqtOption
click RenumberDialog.VariablesOption
cell RenumberDialog.VariableTable 1 0 ; key RenumberDialog.XXAcceptButton 00 ; enter
cell RenumberDialog.VariableTable 2 0 ; key RenumberDialog.XXAcceptButton 01 ; enter
cell RenumberDialog.VariableTable 3 0 ; key RenumberDialog.XXAcceptButton 02 ; enter
click RenumberDialog.DoneButton
click CommentsTool ; cell Table1 7 4 ; clear CommentsTxt
type CommentsTxt "Result: port 01 holds FF, port 02 holds FF, when port 00 holds 00."
click CommentDoneButton
path ports.hex ; click AssembleFile ; settle
path ports.baf ; click SaveAsFile
