# The whole instruction set, entered by its keys in order of the opcodes, each with a new name.
open OpenForm
closed OpenForm
# Rows 00 to 3F: pairs, single registers, direct addresses.
> click INST 78
> click INST 2
> key RegisterBox b
> type LabelText a01
> enter
> click INST 7
> key RegisterBox b
> click INST 23
> key RegisterBox b
> click INST 22
> key RegisterBox b
> click INST 20
> key RegisterBox b
> click INST 1
> key RegisterBox b
> type XXText v06
> enter
> click INST 31
> click INST 14
> key RegisterBox b
> click INST 3
> key RegisterBox b
> click INST 21
> key RegisterBox b
> click INST 22
> key RegisterBox c
> click INST 20
> key RegisterBox c
> click INST 1
> key RegisterBox c
> type XXText v0e
> enter
> click INST 32
> click INST 2
> key RegisterBox d
> type LabelText a11
> enter
> click INST 7
> key RegisterBox d
> click INST 23
> key RegisterBox d
> click INST 22
> key RegisterBox d
> click INST 20
> key RegisterBox d
> click INST 1
> key RegisterBox d
> type XXText v16
> enter
> click INST 33
> click INST 14
> key RegisterBox d
> click INST 3
> key RegisterBox d
> click INST 21
> key RegisterBox d
> click INST 22
> key RegisterBox e
> click INST 20
> key RegisterBox e
> click INST 1
> key RegisterBox e
> type XXText v1e
> enter
> click INST 34
> click INST 74
> click INST 2
> key RegisterBox h
> type LabelText a21
> enter
> click INST 8
> type LabelText a22
> enter
> click INST 23
> key RegisterBox h
> click INST 22
> key RegisterBox h
> click INST 20
> key RegisterBox h
> click INST 1
> key RegisterBox h
> type XXText v26
> enter
> click INST 19
> click INST 14
> key RegisterBox h
> click INST 4
> type LabelText a2a
> enter
> click INST 21
> key RegisterBox h
> click INST 22
> key RegisterBox l
> click INST 20
> key RegisterBox l
> click INST 1
> key RegisterBox l
> type XXText v2e
> enter
> click INST 30
> click INST 75
> click INST 2
> key RegisterBox s
> type LabelText a31
> enter
> click INST 6
> type LabelText a32
> enter
> click INST 23
> key RegisterBox s
> click INST 22
> key RegisterBox m
> click INST 20
> key RegisterBox m
> click INST 1
> key RegisterBox m
> type XXText v36
> enter
> click INST 76
> click INST 14
> key RegisterBox s
> click INST 5
> type LabelText a3a
> enter
> click INST 21
> key RegisterBox s
> click INST 22
> key RegisterBox a
> click INST 20
> key RegisterBox a
> click INST 1
> key RegisterBox a
> type XXText v3e
> enter
> click INST 77
# Rows 40 to 7F: MOV and HLT.
> click INST 0
> key RegisterBox bb
> click INST 0
> key RegisterBox bc
> click INST 0
> key RegisterBox bd
> click INST 0
> key RegisterBox be
> click INST 0
> key RegisterBox bh
> click INST 0
> key RegisterBox bl
> click INST 0
> key RegisterBox bm
> click INST 0
> key RegisterBox ba
> click INST 0
> key RegisterBox cb
> click INST 0
> key RegisterBox cc
> click INST 0
> key RegisterBox cd
> click INST 0
> key RegisterBox ce
> click INST 0
> key RegisterBox ch
> click INST 0
> key RegisterBox cl
> click INST 0
> key RegisterBox cm
> click INST 0
> key RegisterBox ca
> click INST 0
> key RegisterBox db
> click INST 0
> key RegisterBox dc
> click INST 0
> key RegisterBox dd
> click INST 0
> key RegisterBox de
> click INST 0
> key RegisterBox dh
> click INST 0
> key RegisterBox dl
> click INST 0
> key RegisterBox dm
> click INST 0
> key RegisterBox da
> click INST 0
> key RegisterBox eb
> click INST 0
> key RegisterBox ec
> click INST 0
> key RegisterBox ed
> click INST 0
> key RegisterBox ee
> click INST 0
> key RegisterBox eh
> click INST 0
> key RegisterBox el
> click INST 0
> key RegisterBox em
> click INST 0
> key RegisterBox ea
> click INST 0
> key RegisterBox hb
> click INST 0
> key RegisterBox hc
> click INST 0
> key RegisterBox hd
> click INST 0
> key RegisterBox he
> click INST 0
> key RegisterBox hh
> click INST 0
> key RegisterBox hl
> click INST 0
> key RegisterBox hm
> click INST 0
> key RegisterBox ha
> click INST 0
> key RegisterBox lb
> click INST 0
> key RegisterBox lc
> click INST 0
> key RegisterBox ld
> click INST 0
> key RegisterBox le
> click INST 0
> key RegisterBox lh
> click INST 0
> key RegisterBox ll
> click INST 0
> key RegisterBox lm
> click INST 0
> key RegisterBox la
> click INST 0
> key RegisterBox mb
> click INST 0
> key RegisterBox mc
> click INST 0
> key RegisterBox md
> click INST 0
> key RegisterBox me
> click INST 0
> key RegisterBox mh
> click INST 0
> key RegisterBox ml
> click INST 79
> click INST 0
> key RegisterBox ma
> click INST 0
> key RegisterBox ab
> click INST 0
> key RegisterBox ac
> click INST 0
> key RegisterBox ad
> click INST 0
> key RegisterBox ae
> click INST 0
> key RegisterBox ah
> click INST 0
> key RegisterBox al
> click INST 0
> key RegisterBox am
> click INST 0
> key RegisterBox aa
# Rows 80 to BF: arithmetic and logic.
> click INST 10
> key RegisterBox b
> click INST 10
> key RegisterBox c
> click INST 10
> key RegisterBox d
> click INST 10
> key RegisterBox e
> click INST 10
> key RegisterBox h
> click INST 10
> key RegisterBox l
> click INST 10
> key RegisterBox m
> click INST 10
> key RegisterBox a
> click INST 11
> key RegisterBox b
> click INST 11
> key RegisterBox c
> click INST 11
> key RegisterBox d
> click INST 11
> key RegisterBox e
> click INST 11
> key RegisterBox h
> click INST 11
> key RegisterBox l
> click INST 11
> key RegisterBox m
> click INST 11
> key RegisterBox a
> click INST 12
> key RegisterBox b
> click INST 12
> key RegisterBox c
> click INST 12
> key RegisterBox d
> click INST 12
> key RegisterBox e
> click INST 12
> key RegisterBox h
> click INST 12
> key RegisterBox l
> click INST 12
> key RegisterBox m
> click INST 12
> key RegisterBox a
> click INST 13
> key RegisterBox b
> click INST 13
> key RegisterBox c
> click INST 13
> key RegisterBox d
> click INST 13
> key RegisterBox e
> click INST 13
> key RegisterBox h
> click INST 13
> key RegisterBox l
> click INST 13
> key RegisterBox m
> click INST 13
> key RegisterBox a
> click INST 24
> key RegisterBox b
> click INST 24
> key RegisterBox c
> click INST 24
> key RegisterBox d
> click INST 24
> key RegisterBox e
> click INST 24
> key RegisterBox h
> click INST 24
> key RegisterBox l
> click INST 24
> key RegisterBox m
> click INST 24
> key RegisterBox a
> click INST 25
> key RegisterBox b
> click INST 25
> key RegisterBox c
> click INST 25
> key RegisterBox d
> click INST 25
> key RegisterBox e
> click INST 25
> key RegisterBox h
> click INST 25
> key RegisterBox l
> click INST 25
> key RegisterBox m
> click INST 25
> key RegisterBox a
> click INST 26
> key RegisterBox b
> click INST 26
> key RegisterBox c
> click INST 26
> key RegisterBox d
> click INST 26
> key RegisterBox e
> click INST 26
> key RegisterBox h
> click INST 26
> key RegisterBox l
> click INST 26
> key RegisterBox m
> click INST 26
> key RegisterBox a
> click INST 35
> key RegisterBox b
> click INST 35
> key RegisterBox c
> click INST 35
> key RegisterBox d
> click INST 35
> key RegisterBox e
> click INST 35
> key RegisterBox h
> click INST 35
> key RegisterBox l
> click INST 35
> key RegisterBox m
> click INST 35
> key RegisterBox a
# Rows C0 to FF: branches, stack, immediate operands, restarts.
> click INST 61
> click INST 69
> key RegisterBox b
> click INST 39
> type LabelText ac2
> enter
> click INST 37
> type LabelText ac3
> enter
> click INST 52
> type LabelText ac4
> enter
> click INST 68
> key RegisterBox b
> click INST 15
> type XXText vc6
> enter
> click INST 67
> key NumberFocusButton 0
> click INST 62
> click INST 58
> click INST 44
> type LabelText aca
> enter
> click INST 53
> type LabelText acc
> enter
> click INST 49
> type LabelText acd
> enter
> click INST 16
> type XXText vce
> enter
> click INST 67
> key NumberFocusButton 1
> click INST 64
> click INST 69
> key RegisterBox d
> click INST 45
> type LabelText ad2
> enter
> click INST 48
> type XXText vd3
> enter
> click INST 55
> type LabelText ad4
> enter
> click INST 68
> key RegisterBox d
> click INST 17
> type XXText vd6
> enter
> click INST 67
> key NumberFocusButton 2
> click INST 63
> click INST 40
> type LabelText ada
> enter
> click INST 47
> type XXText vdb
> enter
> click INST 54
> type LabelText adc
> enter
> click INST 18
> type XXText vde
> enter
> click INST 67
> key NumberFocusButton 3
> click INST 59
> click INST 69
> key RegisterBox h
> click INST 38
> type LabelText ae2
> enter
> click INST 70
> click INST 50
> type LabelText ae4
> enter
> click INST 68
> key RegisterBox h
> click INST 27
> type XXText ve6
> enter
> click INST 67
> key NumberFocusButton 4
> click INST 60
> click INST 42
> click INST 43
> type LabelText aea
> enter
> click INST 9
> click INST 51
> type LabelText aec
> enter
> click INST 28
> type XXText vee
> enter
> click INST 67
> key NumberFocusButton 5
> click INST 65
> click INST 69
> key RegisterBox p
> click INST 41
> type LabelText af2
> enter
> click INST 72
> click INST 56
> type LabelText af4
> enter
> click INST 68
> key RegisterBox p
> click INST 29
> type XXText vf6
> enter
> click INST 67
> key NumberFocusButton 6
> click INST 66
> click INST 71
> click INST 46
> type LabelText afa
> enter
> click INST 73
> click INST 57
> type LabelText afc
> enter
> click INST 36
> type XXText vfe
> enter
> click INST 67
> key NumberFocusButton 7
# What stands in the table: mnemonic, opcode with unknown operand bytes, default comment.
> dump Table1
Table1 0 "Origin" "8000" "" "" ""
Table1 1 "" "" "NOP" "00" "No Operation."
Table1 2 "" "" "LXI  B,  a01" "01   XX   XX" "Load the equivalent of 'a01' into BC-register pair."
Table1 3 "" "" "STAX  B" "02" "Store content of Accumulator in address pointed by BC-register pair."
Table1 4 "" "" "INX  B" "03" "Increment content of BC-register pair."
Table1 5 "" "" "INR  B" "04" "Increment content of B-register."
Table1 6 "" "" "DCR  B" "05" "Decrement content of B-register."
Table1 7 "" "" "MVI  B,   v06" "06   XX" "Move the equivalent of 'v06' into B-register."
Table1 8 "" "" "RLC" "07" "Rotate Accumulator content left."
Table1 9 "" "" "DAD  B" "09" "Add content of BC-register pair to content of HL-register pair."
Table1 10 "" "" "LDAX  B" "0A" "Load Accumulator with content in address pointed by BC-register pair."
Table1 11 "" "" "DCX  B" "0B" "Decrement content of BC-register pair."
Table1 12 "" "" "INR  C" "0C" "Increment content of C-register."
Table1 13 "" "" "DCR  C" "0D" "Decrement content of C-register."
Table1 14 "" "" "MVI  C,   v0e" "0E   XX" "Move the equivalent of 'v0e' into C-register."
Table1 15 "" "" "RRC" "0F" "Rotate Accumulator content right."
Table1 16 "" "" "LXI  D,  a11" "11   XX   XX" "Load the equivalent of 'a11' into DE-register pair."
Table1 17 "" "" "STAX  D" "12" "Store content of Accumulator in address pointed by DE-register pair."
Table1 18 "" "" "INX  D" "13" "Increment content of DE-register pair."
Table1 19 "" "" "INR  D" "14" "Increment content of D-register."
Table1 20 "" "" "DCR  D" "15" "Decrement content of D-register."
Table1 21 "" "" "MVI  D,   v16" "16   XX" "Move the equivalent of 'v16' into D-register."
Table1 22 "" "" "RAL" "17" "Rotate Accumulator content left through carry flag."
Table1 23 "" "" "DAD  D" "19" "Add content of DE-register pair to content of HL-register pair."
Table1 24 "" "" "LDAX  D" "1A" "Load Accumulator with content in address pointed by DE-register pair."
Table1 25 "" "" "DCX  D" "1B" "Decrement content of DE-register pair."
Table1 26 "" "" "INR  E" "1C" "Increment content of E-register."
Table1 27 "" "" "DCR  E" "1D" "Decrement content of E-register."
Table1 28 "" "" "MVI  E,   v1e" "1E   XX" "Move the equivalent of 'v1e' into E-register."
Table1 29 "" "" "RAR" "1F" "Rotate Accumulator content right through carry flag."
Table1 30 "" "" "RIM" "20" "Reset interrupt mask."
Table1 31 "" "" "LXI  H,  a21" "21   XX   XX" "Load the equivalent of 'a21' into HL-register pair."
Table1 32 "" "" "SHLD  a22" "22   XX   XX" "Store content of HL-register pair in address pointed by 'a22'."
Table1 33 "" "" "INX  H" "23" "Increment content of HL-register pair."
Table1 34 "" "" "INR  H" "24" "Increment content of H-register."
Table1 35 "" "" "DCR  H" "25" "Decrement content of H-register."
Table1 36 "" "" "MVI  H,   v26" "26   XX" "Move the equivalent of 'v26' into H-register."
Table1 37 "" "" "DAA" "27" "Decimal adjust Accumulator."
Table1 38 "" "" "DAD  H" "29" "Add content of HL-register pair to content of HL-register pair."
Table1 39 "" "" "LHLD  a2a" "2A   XX   XX" "Load HL-register pair with content from address pointed by 'a2a'."
Table1 40 "" "" "DCX  H" "2B" "Decrement content of HL-register pair."
Table1 41 "" "" "INR  L" "2C" "Increment content of L-register."
Table1 42 "" "" "DCR  L" "2D" "Decrement content of L-register."
Table1 43 "" "" "MVI  L,   v2e" "2E   XX" "Move the equivalent of 'v2e' into L-register."
Table1 44 "" "" "CMA" "2F" "Complement content of Accumulator."
Table1 45 "" "" "SIM" "30" "Set interrupt mask."
Table1 46 "" "" "LXI  SP,  a31" "31   XX   XX" "Load the equivalent of 'a31' into stack pointer."
Table1 47 "" "" "STA  a32" "32   XX   XX" "Store content of Accumulator in address pointed by 'a32'."
Table1 48 "" "" "INX  SP" "33" "Increment content of stack pointer."
Table1 49 "" "" "INR  M" "34" "Increment content of address pointed by HL-register pair."
Table1 50 "" "" "DCR  M" "35" "Decrement content of address pointed by HL-register pair."
Table1 51 "" "" "MVI  M,   v36" "36   XX" "Move the equivalent of 'v36' into address pointed by HL-register pair."
Table1 52 "" "" "STC" "37" "Set carry flag."
Table1 53 "" "" "DAD  SP" "39" "Add content of stack pointer to content of HL-register pair."
Table1 54 "" "" "LDA  a3a" "3A   XX   XX" "Load Accumulator with content from address pointed by 'a3a'."
Table1 55 "" "" "DCX  SP" "3B" "Decrement content of stack pointer."
Table1 56 "" "" "INR  A" "3C" "Increment content of Accumulator."
Table1 57 "" "" "DCR  A" "3D" "Decrement content of Accumulator."
Table1 58 "" "" "MVI  A,   v3e" "3E   XX" "Move the equivalent of 'v3e' into Accumulator."
Table1 59 "" "" "CMC" "3F" "Complement carry flag."
Table1 60 "" "" "MOV  B,  B" "40" "Move content of B-register into B-register."
Table1 61 "" "" "MOV  B,  C" "41" "Move content of C-register into B-register."
Table1 62 "" "" "MOV  B,  D" "42" "Move content of D-register into B-register."
Table1 63 "" "" "MOV  B,  E" "43" "Move content of E-register into B-register."
Table1 64 "" "" "MOV  B,  H" "44" "Move content of H-register into B-register."
Table1 65 "" "" "MOV  B,  L" "45" "Move content of L-register into B-register."
Table1 66 "" "" "MOV  B,  M" "46" "Move content of address pointed by HL-register pair into B-register."
Table1 67 "" "" "MOV  B,  A" "47" "Move content of Accumulator into B-register."
Table1 68 "" "" "MOV  C,  B" "48" "Move content of B-register into C-register."
Table1 69 "" "" "MOV  C,  C" "49" "Move content of C-register into C-register."
Table1 70 "" "" "MOV  C,  D" "4A" "Move content of D-register into C-register."
Table1 71 "" "" "MOV  C,  E" "4B" "Move content of E-register into C-register."
Table1 72 "" "" "MOV  C,  H" "4C" "Move content of H-register into C-register."
Table1 73 "" "" "MOV  C,  L" "4D" "Move content of L-register into C-register."
Table1 74 "" "" "MOV  C,  M" "4E" "Move content of address pointed by HL-register pair into C-register."
Table1 75 "" "" "MOV  C,  A" "4F" "Move content of Accumulator into C-register."
Table1 76 "" "" "MOV  D,  B" "50" "Move content of B-register into D-register."
Table1 77 "" "" "MOV  D,  C" "51" "Move content of C-register into D-register."
Table1 78 "" "" "MOV  D,  D" "52" "Move content of D-register into D-register."
Table1 79 "" "" "MOV  D,  E" "53" "Move content of E-register into D-register."
Table1 80 "" "" "MOV  D,  H" "54" "Move content of H-register into D-register."
Table1 81 "" "" "MOV  D,  L" "55" "Move content of L-register into D-register."
Table1 82 "" "" "MOV  D,  M" "56" "Move content of address pointed by HL-register pair into D-register."
Table1 83 "" "" "MOV  D,  A" "57" "Move content of Accumulator into D-register."
Table1 84 "" "" "MOV  E,  B" "58" "Move content of B-register into E-register."
Table1 85 "" "" "MOV  E,  C" "59" "Move content of C-register into E-register."
Table1 86 "" "" "MOV  E,  D" "5A" "Move content of D-register into E-register."
Table1 87 "" "" "MOV  E,  E" "5B" "Move content of E-register into E-register."
Table1 88 "" "" "MOV  E,  H" "5C" "Move content of H-register into E-register."
Table1 89 "" "" "MOV  E,  L" "5D" "Move content of L-register into E-register."
Table1 90 "" "" "MOV  E,  M" "5E" "Move content of address pointed by HL-register pair into E-register."
Table1 91 "" "" "MOV  E,  A" "5F" "Move content of Accumulator into E-register."
Table1 92 "" "" "MOV  H,  B" "60" "Move content of B-register into H-register."
Table1 93 "" "" "MOV  H,  C" "61" "Move content of C-register into H-register."
Table1 94 "" "" "MOV  H,  D" "62" "Move content of D-register into H-register."
Table1 95 "" "" "MOV  H,  E" "63" "Move content of E-register into H-register."
Table1 96 "" "" "MOV  H,  H" "64" "Move content of H-register into H-register."
Table1 97 "" "" "MOV  H,  L" "65" "Move content of L-register into H-register."
Table1 98 "" "" "MOV  H,  M" "66" "Move content of address pointed by HL-register pair into H-register."
Table1 99 "" "" "MOV  H,  A" "67" "Move content of Accumulator into H-register."
Table1 100 "" "" "MOV  L,  B" "68" "Move content of B-register into L-register."
Table1 101 "" "" "MOV  L,  C" "69" "Move content of C-register into L-register."
Table1 102 "" "" "MOV  L,  D" "6A" "Move content of D-register into L-register."
Table1 103 "" "" "MOV  L,  E" "6B" "Move content of E-register into L-register."
Table1 104 "" "" "MOV  L,  H" "6C" "Move content of H-register into L-register."
Table1 105 "" "" "MOV  L,  L" "6D" "Move content of L-register into L-register."
Table1 106 "" "" "MOV  L,  M" "6E" "Move content of address pointed by HL-register pair into L-register."
Table1 107 "" "" "MOV  L,  A" "6F" "Move content of Accumulator into L-register."
Table1 108 "" "" "MOV  M,  B" "70" "Move content of B-register into address pointed by HL-register pair."
Table1 109 "" "" "MOV  M,  C" "71" "Move content of C-register into address pointed by HL-register pair."
Table1 110 "" "" "MOV  M,  D" "72" "Move content of D-register into address pointed by HL-register pair."
Table1 111 "" "" "MOV  M,  E" "73" "Move content of E-register into address pointed by HL-register pair."
Table1 112 "" "" "MOV  M,  H" "74" "Move content of H-register into address pointed by HL-register pair."
Table1 113 "" "" "MOV  M,  L" "75" "Move content of L-register into address pointed by HL-register pair."
Table1 114 "" "" "HLT" "76" "Halt program execution."
Table1 115 "" "" "MOV  M,  A" "77" "Move content of Accumulator into address pointed by HL-register pair."
Table1 116 "" "" "MOV  A,  B" "78" "Move content of B-register into Accumulator."
Table1 117 "" "" "MOV  A,  C" "79" "Move content of C-register into Accumulator."
Table1 118 "" "" "MOV  A,  D" "7A" "Move content of D-register into Accumulator."
Table1 119 "" "" "MOV  A,  E" "7B" "Move content of E-register into Accumulator."
Table1 120 "" "" "MOV  A,  H" "7C" "Move content of H-register into Accumulator."
Table1 121 "" "" "MOV  A,  L" "7D" "Move content of L-register into Accumulator."
Table1 122 "" "" "MOV  A,  M" "7E" "Move content of address pointed by HL-register pair into Accumulator."
Table1 123 "" "" "MOV  A,  A" "7F" "Move content of Accumulator into Accumulator."
Table1 124 "" "" "ADD  B" "80" "Add content of B-register to content of Accumulator."
Table1 125 "" "" "ADD  C" "81" "Add content of C-register to content of Accumulator."
Table1 126 "" "" "ADD  D" "82" "Add content of D-register to content of Accumulator."
Table1 127 "" "" "ADD  E" "83" "Add content of E-register to content of Accumulator."
Table1 128 "" "" "ADD  H" "84" "Add content of H-register to content of Accumulator."
Table1 129 "" "" "ADD  L" "85" "Add content of L-register to content of Accumulator."
Table1 130 "" "" "ADD  M" "86" "Add content of address pointed by HL-register pair to content of Accumulator."
Table1 131 "" "" "ADD  A" "87" "Add content of Accumulator to content of Accumulator."
Table1 132 "" "" "ADC  B" "88" "Add with carry, content of B-register to content of Accumulator."
Table1 133 "" "" "ADC  C" "89" "Add with carry, content of C-register to content of Accumulator."
Table1 134 "" "" "ADC  D" "8A" "Add with carry, content of D-register to content of Accumulator."
Table1 135 "" "" "ADC  E" "8B" "Add with carry, content of E-register to content of Accumulator."
Table1 136 "" "" "ADC  H" "8C" "Add with carry, content of H-register to content of Accumulator."
Table1 137 "" "" "ADC  L" "8D" "Add with carry, content of L-register to content of Accumulator."
Table1 138 "" "" "ADC  M" "8E" "Add with carry, content of address pointed by HL-register pair to content of Accumulator."
Table1 139 "" "" "ADC  A" "8F" "Add with carry, content of Accumulator to content of Accumulator."
Table1 140 "" "" "SUB  B" "90" "Subtract content of B-register from content of Accumulator."
Table1 141 "" "" "SUB  C" "91" "Subtract content of C-register from content of Accumulator."
Table1 142 "" "" "SUB  D" "92" "Subtract content of D-register from content of Accumulator."
Table1 143 "" "" "SUB  E" "93" "Subtract content of E-register from content of Accumulator."
Table1 144 "" "" "SUB  H" "94" "Subtract content of H-register from content of Accumulator."
Table1 145 "" "" "SUB  L" "95" "Subtract content of L-register from content of Accumulator."
Table1 146 "" "" "SUB  M" "96" "Subtract content of address pointed by HL-register pair from content of Accumulator."
Table1 147 "" "" "SUB  A" "97" "Subtract content of Accumulator from content of Accumulator."
Table1 148 "" "" "SBB  B" "98" "Subtract with borrow, content of B-register from content of Accumulator."
Table1 149 "" "" "SBB  C" "99" "Subtract with borrow, content of C-register from content of Accumulator."
Table1 150 "" "" "SBB  D" "9A" "Subtract with borrow, content of D-register from content of Accumulator."
Table1 151 "" "" "SBB  E" "9B" "Subtract with borrow, content of E-register from content of Accumulator."
Table1 152 "" "" "SBB  H" "9C" "Subtract with borrow, content of H-register from content of Accumulator."
Table1 153 "" "" "SBB  L" "9D" "Subtract with borrow, content of L-register from content of Accumulator."
Table1 154 "" "" "SBB  M" "9E" "Subtract with borrow, content pointed by HL-register pair from content of Accumulator."
Table1 155 "" "" "SBB  A" "9F" "Subtract with borrow, content of Accumulator from content of Accumulator."
Table1 156 "" "" "ANA  B" "A0" "AND content of B-register with content of Accumulator."
Table1 157 "" "" "ANA  C" "A1" "AND content of C-register with content of Accumulator."
Table1 158 "" "" "ANA  D" "A2" "AND content of D-register with content of Accumulator."
Table1 159 "" "" "ANA  E" "A3" "AND content of E-register with content of Accumulator."
Table1 160 "" "" "ANA  H" "A4" "AND content of H-register with content of Accumulator."
Table1 161 "" "" "ANA  L" "A5" "AND content of L-register with content of Accumulator."
Table1 162 "" "" "ANA  M" "A6" "AND content of address pointed by HL-register pair with content of Accumulator."
Table1 163 "" "" "ANA  A" "A7" "AND content of Accumulator with content of Accumulator."
Table1 164 "" "" "XRA  B" "A8" "XOR content of B-register with content of Accumulator."
Table1 165 "" "" "XRA  C" "A9" "XOR content of C-register with content of Accumulator."
Table1 166 "" "" "XRA  D" "AA" "XOR content of D-register with content of Accumulator."
Table1 167 "" "" "XRA  E" "AB" "XOR content of E-register with content of Accumulator."
Table1 168 "" "" "XRA  H" "AC" "XOR content of H-register with content of Accumulator."
Table1 169 "" "" "XRA  L" "AD" "XOR content of L-register with content of Accumulator."
Table1 170 "" "" "XRA  M" "AE" "XOR content of address pointed by HL-register pair with content of Accumulator."
Table1 171 "" "" "XRA  A" "AF" "XOR content of Accumulator with content of Accumulator."
Table1 172 "" "" "ORA  B" "B0" "OR content of B-register with content of Accumulator."
Table1 173 "" "" "ORA  C" "B1" "OR content of C-register with content of Accumulator."
Table1 174 "" "" "ORA  D" "B2" "OR content of D-register with content of Accumulator."
Table1 175 "" "" "ORA  E" "B3" "OR content of E-register with content of Accumulator."
Table1 176 "" "" "ORA  H" "B4" "OR content of H-register with content of Accumulator."
Table1 177 "" "" "ORA  L" "B5" "OR content of L-register with content of Accumulator."
Table1 178 "" "" "ORA  M" "B6" "OR content of address pointed by HL-register pair with content of Accumulator."
Table1 179 "" "" "ORA  A" "B7" "OR content of Accumulator with content of Accumulator."
Table1 180 "" "" "CMP  B" "B8" "Compare content of B-register with content of Accumulator."
Table1 181 "" "" "CMP  C" "B9" "Compare content of C-register with content of Accumulator."
Table1 182 "" "" "CMP  D" "BA" "Compare content of D-register with content of Accumulator."
Table1 183 "" "" "CMP  E" "BB" "Compare content of E-register with content of Accumulator."
Table1 184 "" "" "CMP  H" "BC" "Compare content of H-register with content of Accumulator."
Table1 185 "" "" "CMP  L" "BD" "Compare content of L-register with content of Accumulator."
Table1 186 "" "" "CMP  M" "BE" "Compare content of address pointed by HL-register pair with content of Accumulator."
Table1 187 "" "" "CMP  A" "BF" "Compare content of Accumulator with content of Accumulator."
Table1 188 "" "" "RNZ" "C0" "Return on no zero."
Table1 189 "" "" "POP  B" "C1" "Load BC-register pair with content from top of stack."
Table1 190 "" "" "JNZ  ac2" "C2   XX   XX" "Jump on no zero, to address pointed by 'ac2'."
Table1 191 "" "" "JMP  ac3" "C3   XX   XX" "Jump to address pointed by 'ac3'."
Table1 192 "" "" "CNZ  ac4" "C4   XX   XX" "Call on no zero, sub-routine pointed by 'ac4'."
Table1 193 "" "" "PUSH  B" "C5" "Store content of BC-register pair in top of stack."
Table1 194 "" "" "ADI   vc6" "C6   XX" "Add the equivalent of 'vc6' to content of Accumulator."
Table1 195 "" "" "RST 0" "C7" "Restart#0 (Call sub-routine at address 0000H)."
Table1 196 "" "" "RZ" "C8" "Return on zero."
Table1 197 "" "" "RET" "C9" "Return."
Table1 198 "" "" "JZ  aca" "CA   XX   XX" "Jump on zero, to address pointed by 'aca'."
Table1 199 "" "" "CZ  acc" "CC   XX   XX" "Call on zero, sub-routine pointed by 'acc'."
Table1 200 "" "" "CALL  acd" "CD   XX   XX" "Call sub-routine pointed by 'acd'."
Table1 201 "" "" "ACI   vce" "CE   XX" "Add with carry, the equivalent of 'vce' to content of Accumulator."
Table1 202 "" "" "RST 1" "CF" "Restart#1 (Call sub-routine at address 0008H)."
Table1 203 "" "" "RNC" "D0" "Return on no carry."
Table1 204 "" "" "POP  D" "D1" "Load DE-register pair with content from top of stack."
Table1 205 "" "" "JNC  ad2" "D2   XX   XX" "Jump on no carry, to address pointed by 'ad2'."
Table1 206 "" "" "OUT   vd3" "D3   XX" "Send content of Accumulator to port address pointed by 'vd3'."
Table1 207 "" "" "CNC  ad4" "D4   XX   XX" "Call on no carry, sub-routine pointed by 'ad4'."
Table1 208 "" "" "PUSH  D" "D5" "Store content of DE-register pair in top of stack."
Table1 209 "" "" "SUI   vd6" "D6   XX" "Subtract the equivalent of 'vd6' from content of Accumulator."
Table1 210 "" "" "RST 2" "D7" "Restart#2 (Call sub-routine at address 0010H)."
Table1 211 "" "" "RC" "D8" "Return on carry."
Table1 212 "" "" "JC  ada" "DA   XX   XX" "Jump on carry, to address pointed by 'ada'."
Table1 213 "" "" "IN   vdb" "DB   XX" "Receive content from port address pointed by 'vdb' and store in Accumulator."
Table1 214 "" "" "CC  adc" "DC   XX   XX" "Call on carry, sub-routine pointed by 'adc'."
Table1 215 "" "" "SBI   vde" "DE   XX" "Subtract with borrow, the equivalent of 'vde' from content of Accumulator."
Table1 216 "" "" "RST 3" "DF" "Restart#3 (Call sub-routine at address 0018H)."
Table1 217 "" "" "RPO" "E0" "Return on odd parity."
Table1 218 "" "" "POP  H" "E1" "Load HL-register pair with content from top of stack."
Table1 219 "" "" "JPO  ae2" "E2   XX   XX" "Jump on odd parity, to address pointed by 'ae2'."
Table1 220 "" "" "XTHL" "E3" "Exchange content of HL-register pair with top of stack."
Table1 221 "" "" "CPO  ae4" "E4   XX   XX" "Call on odd parity, sub-routine pointed by 'ae4'."
Table1 222 "" "" "PUSH  H" "E5" "Store content of HL-register pair in top of stack."
Table1 223 "" "" "ANI   ve6" "E6   XX" "AND the equivalent of 've6' with content of Accumulator."
Table1 224 "" "" "RST 4" "E7" "Restart#4 (Call sub-routine at address 0020H)."
Table1 225 "" "" "RPE" "E8" "Return on even parity."
Table1 226 "" "" "PCHL" "E9" "Load program counter with content of HL-register pair."
Table1 227 "" "" "JPE  aea" "EA   XX   XX" "Jump on even parity, to address pointed by 'aea'."
Table1 228 "" "" "XCHG" "EB" "Exchange content of DE & HL-register pairs."
Table1 229 "" "" "CPE  aec" "EC   XX   XX" "Call on even parity, sub-routine pointed by 'aec'."
Table1 230 "" "" "XRI   vee" "EE   XX" "XOR the equivalent of 'vee' with content of Accumulator."
Table1 231 "" "" "RST 5" "EF" "Restart#5 (Call sub-routine at address 0028H)."
Table1 232 "" "" "RP" "F0" "Return on plus."
Table1 233 "" "" "POP  PSW" "F1" "Load Accumulator and flag register with content from top of stack."
Table1 234 "" "" "JP  af2" "F2   XX   XX" "Jump on plus, to address pointd by 'af2'."
Table1 235 "" "" "DI" "F3" "Disable interrupts."
Table1 236 "" "" "CP  af4" "F4   XX   XX" "Call on plus, sub-routine pointed by 'af4'."
Table1 237 "" "" "PUSH  PSW" "F5" "Store content of Accumulator and flag register in top of stack."
Table1 238 "" "" "ORI   vf6" "F6   XX" "OR the equivalent of 'vf6' with content of Accumulator."
Table1 239 "" "" "RST 6" "F7" "Restart#6 (Call sub-routine at address 0030H)."
Table1 240 "" "" "RM" "F8" "Return on minus."
Table1 241 "" "" "SPHL" "F9" "Load stack pointer with content of HL-register pair."
Table1 242 "" "" "JM  afa" "FA   XX   XX" "Jump on minus, to address pointed by 'afa'."
Table1 243 "" "" "EI" "FB" "Enable interrupts."
Table1 244 "" "" "CM  afc" "FC   XX   XX" "Call on minus, sub-routine pointed by 'afc'."
Table1 245 "" "" "CPI   vfe" "FE   XX" "Compare the equivalent of 'vfe' with content of Accumulator."
Table1 246 "" "" "RST 7" "FF" "Restart#7 (Call sub-routine at address 0038H)."
