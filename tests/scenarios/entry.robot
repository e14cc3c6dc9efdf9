== keys
# Keys that do not fit are disabled, and as key presses they do nothing: pairs.
> click INST 14 ; key RegisterBox acelmpxz1 ; click REG 1 ; changes
refused REG disabled
session: PanelState=5 FileChanged=1 EntryPending=1 SelectedInstruction=14 CurrentOpcode=9
Table1 1 - - "DAD" | caption: TipsLabel="Select Register Pair." | shown: RegisterBox
hidden: InstructionBox | disabled: EditMenu/* FileMenu/* REG 1,3,5..7,9 ToolsMenu/*
focus: RegisterBox
> key RegisterBox S ; click INST 68 ; key RegisterBox acelms ; click REG 8 ; key RegisterBox P
refused REG disabled
> click INST 3 ; key RegisterBox hsp ; click REG 4 ; click REG 2 ; click INST 2 ; click REG 9
refused REG disabled
refused REG disabled
> key RegisterBox cs ; escape
# Single registers; there is no MOV M, M, but M may be moved elsewhere.
> click INST 10 ; key RegisterBox sp ; click REG 8 ; key RegisterBox a ; click INST 0 ; click REG 9
refused REG disabled
refused REG disabled
> key RegisterBox mm ; click REG 6 ; changes
refused REG disabled
session: Cursor=5 PanelState=10 LastLine=3 SelectedInstruction=0 CurrentOpcode=112
Table1 1 - - "DAD  SP" "39" default | 2 - - "PUSH  PSW" "F5" default | 3 - - "LDAX  D" "1A" default
Table1 4 - - "ADD  A" "87" default | 5 - - "MOV  M,"
caption: TipsLabel="Select Register or Memory (Source)." | enabled: REG 1,3,5,7 | disabled: REG 8
> key RegisterBox L ; click INST 0 ; click REG 7 ; click REG 6
# The number of RST: only the keys 0 to 7, no accepting. A digit follows the pointer.
> click INST 67 ; click NUM 8 ; click NumberAcceptButton ; key NumberAcceptButton 3 ; hover NUM 5
refused NUM disabled
refused NumberAcceptButton disabled
refused NumberAcceptButton disabled
> changes
session: Cursor=7 PanelState=12 LastLine=6 SelectedInstruction=67 CurrentOpcode=199
Table1 5 - - "MOV  M,  L" "75" default | 6 - - "MOV  A,  M" "7E" default | 7 - - "RST"
caption: DataTypeLabel="Number" NumberLabel="5" TipsLabel="Select Number." | shown: NumberBox
hidden: RegisterBox | disabled: NUM 8..15 NumberAcceptButton | focus: NumberFocusButton
> key NumberFocusButton 89afx ; enter ; click NUM 5
refused LabelAcceptButton disabled
# Hints, until the pointer is elsewhere; the table clears that of the instruction alone.
> hover INST 9 ; click INST 20 ; hover REG 6 ; changes
session: Cursor=8 PanelState=3 LastLine=7 SelectedInstruction=20 CurrentOpcode=5
Table1 7 - - "RST 5" "EF" default | 8 - - "DCR"
caption: RegisterLabel="M" TipsLabel="Select Register or Memory." | shown: RegisterBox
hidden: NumberBox | enabled: REG 6 | focus: RegisterBox
> hover Table1 3 2 ; changes
> hover ProgrammingPanel ; click REG 3 ; changes
session: Cursor=9 PanelState=1 LastLine=8 EntryPending=0 CurrentOpcode=29
Table1 8 - - "DCR  E" "1D" default | caption: TipsLabel="Program Mode." | shown: InstructionBox
hidden: RegisterBox | enabled: EditMenu/*-PasteEdit FileMenu/* ToolsMenu/*
# Esc gives back what the row held, at every stage of an entry, but never its label.
> click PlaceLabelTool ; cell Table1 1 0 ; type PlaceText here ; enter ; escape ; row "JMP there"
> cell Table1 7 2 ; row "MVI C,n" ; cell Table1 7 2 ; click INST 0 ; key RegisterBox b ; changes
session: Cursor=7 PanelState=10 EntryPending=1 SelectionAnchor=7 ClickedRow=1 SelectedInstruction=0
    CurrentOpcode=64 SavedCells(2)="MVI  C,   n" SavedCells(3)="0E   XX"
    SavedCells(4)="Move the equivalent of 'n' into C-register." SavedCells(5)="n"
StringTable 9="there" | Labels 0 "here" "XXXX" "1" "1" "0" | 1 "there" "XXXX" "0" "0" "1"
Variables 0 "n" "XX" | Table1 1 "here" | 7 - - "MOV  B," "" ""
Table1 9 - - "JMP  there" "C3   XX   XX" default
caption: RegisterLabel="" TipsLabel="Select Register or Memory (Source)." | shown: RegisterBox
hidden: InstructionBox | disabled: EditMenu/* FileMenu/* ToolsMenu/*
> escape ; click INST 1 ; click REG 0 ; escape ; changes
session: PanelState=1 EntryPending=0 SelectedInstruction=1 CurrentOpcode=6 | StringTable 7="n"
Table1 7 - - "MVI  C,   n" "0E   XX" default | caption: TipsLabel="Program Mode."
shown: InstructionBox | hidden: RegisterBox | enabled: EditMenu/*-PasteEdit FileMenu/* ToolsMenu/*
== data
# Two digits and Enter make a data row; digits shift through, none at all make 00, and the file is
# not reported as changed.
> click EntryMode ; key DataAcceptButton 3Fg ; changes
session: PanelState=29 | caption: DataLabel="3F" EntryMode="Program &Mode" TipsLabel="Data Mode."
shown: DataBox | hidden: InstructionBox | focus: DataAcceptButton | default: DataAcceptButton
> enter ; key DataAcceptButton aBc ; click DataNum 1 ; click DataAcceptButton ; enter ; changes
session: Cursor=4 | Table1 1 - - "DFB" "3F" default | 2 - - "DFB" "C1" default
Table1 3 - - "DFB" "00" default | caption: DataLabel="00"
> click NewFile
# Among instructions: overwriting one keeps the operand string of its row, which counts no more.
> row "ADI n" ; cell Table1 1 2 ; click EntryMode ; key DataAcceptButton 7 ; enter
> click EntryMode ; click DeleteUnusedLabels ; changes
box information "Unused strings have been deleted." ok -> ok
session: Cursor=2 PanelState=1 FileChanged=1 SelectionAnchor=1 SelectedInstruction=15
    CurrentOpcode=198 MessageResult="1" | StringTable 1="n" | Table1 1 - - - "07"
Table1 2..3 - - "" "" "" | caption: EntryMode="Data &Mode" TipsLabel="Program Mode."
shown: InstructionBox | hidden: DataBox
== growth
# The table keeps ten rows ahead of the cursor: it begins to grow with row 22.
> row NOP NOP NOP NOP NOP NOP NOP NOP NOP NOP NOP NOP NOP NOP NOP NOP NOP NOP NOP NOP NOP ; row HLT
> changes
session: Selection=23 CurrentRow=23 LastLine=22 FileChanged=1 SelectedInstruction=79
    CurrentOpcode=118 | StringTable rows=33 | Table1 rows=33 (1 in at 1)
Table1 1..21 - - "NOP" "00" default | 22 - - "HLT" "76" default | colors 2,2=own 23,2=cursor
caption: TipsLabel="Program Mode."
# A table of 12 rows that is filled to its last one: the ten rows ahead come with the first move of
# the cursor beyond the last line that was visited.
> answer no ; path last_row.baf ; click OpenFile ; cell Table1 11 2 ; changes
box question "Save changes to Pgm1.baf?" yesnocancel -> no
dialog open "Open" "Brelvanor Assembler Files (*.baf)|*.baf" -> "last_row.baf"
session: Selection=11 CurrentRow=11 LastLine=12 FileOrigin=2 FileChanged=0 SelectionAnchor=11
    FileName="last_row.baf" ProjectPath="last_row.baf" MessageResult="7" | LabelCombo 0="x"
LabelEqtList 0="1234" | StringTable rows=13 (20 out at 1) 1="x" 4="y" | Variables 0 "y" "0F"
Table1 rows=13 (20 out at 1) | 1 - - "LXI  H,  x" "21   34   12" "" | 2 - - "ODD" "1234" ""
Table1 3 - - "NOP" "00" | 4 - - "MVI  A,   y" "3E   0F" | 12 - - "HLT" "76" "the end"
Table1 colors 3,2=own 11,2=cursor
caption: ProgrammingPanel="Brelvanor Quilla - last_row.baf" TipsLabel="File Opened."
> row NOP ; changes
session: Selection=12 CurrentRow=12 FileChanged=1 SelectedInstruction=78 CurrentOpcode=0
StringTable rows=32 | Table1 rows=32 (19 in at 11) | 11 - - "NOP" "00" default
Table1 12 - - "HLT" "76" "the end" | 31 - - "" "" "" | colors 12,2=cursor 30,2=own
caption: TipsLabel="Program Mode."
== write modes
# In Overwrite mode a click only moves the cursor, which walks onto the next line; on the last row
# and on an origin a click opens a line, and above an origin so does the end of an instruction.
> click NewOrigin ; key NumberAcceptButton 9000 ; enter ; row RET HLT ; cell Table1 2 2 ; row EI
> changes
session: Selection=3 CurrentRow=3 LastLine=5 FileChanged=1 SelectionAnchor=2 SelectedInstruction=73
    CurrentOpcode=251 SavedCells(2)="RET" SavedCells(3)="C9" SavedCells(4)="Return."
OriginList 1="9000" | StringTable rows=33 | Table1 rows=33 (1 in at 1) | 1 "Origin" "9000"
Table1 2 - - "EI" "FB" default | 3 - - "HLT" "76" default | colors 1,0..4=E0E0E0 2,2=own 3,2=cursor
caption: TipsLabel="Program Mode."
> cell Table1 1 2 ; changes
session: Selection=1 CurrentRow=1 LastLine=6 SelectionAnchor=1 | StringTable rows=34
Table1 rows=34 (1 in at 1) | colors 1,2=cursor 4,2=own
> row DI ; changes
session: Selection=2 CurrentRow=2 LastLine=7 SelectedInstruction=72 CurrentOpcode=243
    SavedCells(2)="" SavedCells(3)="" SavedCells(4)="" | StringTable rows=35
Table1 rows=35 (1 in at 1) | 1 - - "DI" "F3" default
> cell Table1 34 2 ; changes
session: Cursor=34 LastLine=8 SelectionAnchor=34 | StringTable rows=44 | Table1 rows=44 (9 in at 26)
# Going over to Insert opens a line at the cursor, going back moves nothing.
> cell Table1 4 2 ; click WriteMode ; click WriteMode ; changes
session: Selection=4 CurrentRow=4 LastLine=9 SelectionAnchor=4 | StringTable rows=45
Table1 rows=45 (1 in at 4) | colors 4,2=cursor 35,2=own
# In Insert mode every click on a mnemonic opens a line there, except on row 0, and so does each
# finished instruction; a drag opens none.
> click WriteModeLabel ; cell Table1 6 2 ; row RIM SIM ; changes
session: Selection=8 CurrentRow=8 LastLine=13 SelectionAnchor=6 SelectedInstruction=75
    CurrentOpcode=48 | StringTable rows=49 | Table1 rows=49 (4 in at 4) | 6 - - "RIM" "20" default
Table1 7 - - "SIM" "30" default | caption: WriteModeLabel="Insert"
> cell Table1 0 2 ; drag Table1 3 2 6 2 ; changes
session: CurrentRow=1 SelectionTop=3 SelectionBottom=6 SelectionAnchor=3
Table1 colors 1,2=cursor 8,2=own
== comments
# A comment is typed into the table key by key; an ampersand or a double quote at its end goes at
# once.
> row NOP "MVI A,n" ; click CommentsTool ; cell Table1 1 2 ; changes
session: Selection=3 PanelState=20 CurrentRow=3 LastLine=2 FileChanged=1 SelectionAnchor=1
    ClickedRow=1 SelectedInstruction=1 CurrentOpcode=62 SavedComment="No Operation."
StringTable 2="n" | Variables 0 "n" "XX" | Table1 1 - - "NOP" "00" default
Table1 2 - - "MVI  A,   n" "3E   XX" default | colors 1,2=own 1,4=C0FFC0 3,2=cursor
caption: TipsLabel="Select Row, Enter Comments and Click 'Done', or Click 'Cancel'."
text: CommentsTxt="No Operation." | shown: CommentsBox | hidden: InstructionBox
disabled: EditMenu/* FileMenu/* ToolsMenu/* | focus: CommentsTxt
> clear CommentsTxt ; type CommentsTxt "a&b\"" ; type CommentsTxt ", c"
> click CommentContinueButton ; changes
Table1 1 - - - - "ab, c" | text: CommentsTxt="ab, c"
# Next keeps what was typed and takes the row below; the default comment is for rows with an
# opcode, and it shows in the table alone.
> click CommentNextButton ; clear CommentsTxt ; type CommentsTxt x ; click DefaultCommentButton
> changes
session: ClickedRow=2 SavedComment="Move the equivalent of 'n' into Accumulator."
Table1 colors 1,4=own 2,4=C0FFC0 | text: CommentsTxt=""
> click CommentNextButton ; type CommentsTxt alone ; click DefaultCommentButton
refused DefaultCommentButton disabled
# Ignore takes back the row under edit alone, Esc nothing.
> cell Table1 2 0 ; type CommentsTxt ! ; click CommentCancelButton ; click CommentsTool
> cell Table1 3 3 ; type CommentsTxt ? ; escape ; changes
session: PanelState=1 LastLine=3 ClickedRow=3 SavedComment="alone" | Table1 3 - - - - "alone?"
Table1 colors 2,4=own | caption: TipsLabel="Program Mode." | shown: InstructionBox
hidden: CommentsBox | enabled: EditMenu/*-PasteEdit FileMenu/* ToolsMenu/*
# The last row has no next one. In data mode the tool returns to data mode.
> click EntryMode ; click CommentsTool ; cell Table1 31 4 ; changes
session: PanelState=20 ClickedRow=31 SavedComment="" | Table1 colors 31,4=C0FFC0
caption: EntryMode="Program &Mode"
    TipsLabel="Select Row, Enter Comments and Click 'Done', or Click 'Cancel'." | shown: CommentsBox
hidden: InstructionBox
disabled: CommentNextButton DefaultCommentButton EditMenu/* FileMenu/* ToolsMenu/*
> cell Table1 30 4 ; click CommentDoneButton ; click EntryMode ; changes
session: PanelState=1 ClickedRow=30 | Table1 colors 31,4=own
caption: EntryMode="Data &Mode" TipsLabel="Program Mode." | shown: InstructionBox
hidden: CommentsBox | enabled: EditMenu/*-PasteEdit FileMenu/* ToolsMenu/*
# An origin keeps its grey by Ignore and Esc.
> click CommentsTool ; cell Table1 0 4 ; type CommentsTxt a ; click CommentCancelButton
> click CommentsTool ; cell Table1 0 2 ; type CommentsTxt 1 ; escape ; changes
session: ClickedRow=0 | Table1 0 - - - - "1"
