# Equivalents and hexadecimal numbers. Quilla counts in hexadecimal: 0 to 9, then A to F; 0A is ten,
# 10 is sixteen, FF is 255.

# A name can be used on many rows ...
row "MVI A,limit" "CPI limit" "STA place" HLT
# ... and its number is given once, in Equivalents.
click EqtOption
# Labels stand for addresses of four digits. Digits move in from the right.
cell RenumberDialog.LabelTable 1 0
key RenumberDialog.EqtAcceptButton 9000
click RenumberDialog.EqtAcceptButton
# Variables stand for bytes of two digits.
click RenumberDialog.VariablesOption
cell RenumberDialog.VariableTable 1 0
# The digit keys can be pressed as well. Sixty-four is 40.
click RenumberDialog.NUM 4
click RenumberDialog.NUM 0
click RenumberDialog.XXAcceptButton
# Nothing has changed in the program yet. Done writes it in.
click RenumberDialog.DoneButton
# Both rows of "limit" hold 40 now, and STA the address 9000 as 00 90: the low byte comes first.
# To change it everywhere, open Equivalents again.
