== keys
# Keys that do not fit are disabled, and as key presses they do nothing: pairs.
> click INST 14 ; key RegisterBox acelmpxz1 ; click REG 1
refused REG disabled
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
session: Cursor=5 PanelState=10 LastLine=3 FileChanged=1 EntryPending=1 CurrentOpcode=112
Table1 1 - - "DAD  SP" "39" default | 2 - - "PUSH  PSW" "F5" default | 3 - - "LDAX  D" "1A" default
Table1 4 - - "ADD  A" "87" default | 5 - - "MOV  M,"
caption: TipsLabel="Select Register or Memory (Source)." | shown: RegisterBox
hidden: InstructionBox | disabled: EditMenu/* FileMenu/* REG 6,8..9 ToolsMenu/* | focus: RegisterBox
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
> hover INST 9 ; click INST 20 ; hover REG 6 ; hover Table1 3 2 ; hover ProgrammingPanel
> show RegisterLabel ; click REG 3 ; changes
RegisterLabel caption="" enabled=1 visible=1
session: Cursor=9 PanelState=1 LastLine=8 EntryPending=0 SelectedInstruction=20 CurrentOpcode=29
Table1 7 - - "RST 5" "EF" default | 8 - - "DCR  E" "1D" default | caption: TipsLabel="Program Mode."
shown: InstructionBox | hidden: NumberBox | enabled: EditMenu/*-PasteEdit FileMenu/* ToolsMenu/*
# Esc gives back what the row held, at every stage of an entry, but never its label.
> click PlaceLabelTool ; cell Table1 1 0 ; type PlaceText here ; enter ; escape ; row "JMP there"
> cell Table1 7 2 ; row "MVI C,n" ; cell Table1 7 2 ; click INST 0 ; key RegisterBox b
> dump Table1 7 7 ; escape
Table1 7 "" "" "MOV  B," "" ""
> click INST 1 ; click REG 0 ; escape ; changes
session: Cursor=7 SelectionAnchor=7 ClickedRow=1 SelectedInstruction=1 CurrentOpcode=6
    SavedCells(2)="MVI  C,   n" SavedCells(3)="0E   XX"
    SavedCells(4)="Move the equivalent of 'n' into C-register." SavedCells(5)="n"
StringTable 7="n" 9="there" | Labels 0 "here" "XXXX" "1" "1" "0" | 1 "there" "XXXX" "0" "0" "1"
Variables 0 "n" "XX" | Table1 1 "here" | 7 - - "MVI  C,   n" "0E   XX"
Table1 9 - - "JMP  there" "C3   XX   XX" default
== data
# Two digits and Enter make a data row; digits shift through, none at all make 00, and the file is
# not reported as changed.
> click EntryMode ; key DataAcceptButton 3Fg ; enter ; key DataAcceptButton aBc ; click DataNum 1
> click DataAcceptButton ; enter ; changes
session: Cursor=4 PanelState=29 | Table1 1 - - "DFB" "3F" default | 2 - - "DFB" "C1" default
Table1 3 - - "DFB" "00" default | caption: EntryMode="Program &Mode" TipsLabel="Data Mode."
shown: DataBox | hidden: InstructionBox | focus: DataAcceptButton | default: DataAcceptButton
> click NewFile
# Among instructions: overwriting one keeps the operand string of its row, which counts no more.
> row "ADI n" ; cell Table1 1 2 ; click EntryMode ; key DataAcceptButton 7 ; enter ; click EntryMode
> click DeleteUnusedLabels ; changes
box information "Unused strings have been deleted." ok -> ok
session: Cursor=2 PanelState=1 FileChanged=1 SelectionAnchor=1 SelectedInstruction=15
    CurrentOpcode=198 MessageResult="1" | StringTable 1="n" | Table1 1 - - - "07"
Table1 2..3 - - "" "" "" | caption: EntryMode="Data &Mode" TipsLabel="Program Mode."
shown: InstructionBox | hidden: DataBox
== write modes
# In Overwrite mode a click only moves the cursor, which walks onto the next line; on the last row
# and on an origin a click opens a line, and above an origin so does the end of an instruction.
> click NewOrigin ; key NumberAcceptButton 9000 ; enter ; row RET HLT ; cell Table1 2 2 ; row EI
> cell Table1 1 2 ; row DI ; cell Table1 34 2 ; changes
session: Selection=34 CurrentRow=34 LastLine=8 FileChanged=1 SelectionAnchor=34
    SelectedInstruction=72 CurrentOpcode=243 | OriginList 1="9000" | StringTable rows=44
Table1 rows=44 (12 in at 1) | 1 - - "DI" "F3" default | 3 "Origin" "9000" | 4 - - "EI" "FB" default
Table1 5 - - "HLT" "76" default | colors 3,0..4=E0E0E0 13,2=own 34,2=cursor
caption: TipsLabel="Program Mode."
# Going over to Insert opens a line at the cursor, going back moves nothing.
> cell Table1 4 2 ; click WriteMode ; click WriteMode ; changes
session: Selection=4 CurrentRow=4 LastLine=9 SelectionAnchor=4 | StringTable rows=45
Table1 rows=45 (1 in at 4) | colors 4,2=cursor 35,2=own
# In Insert mode every click on a mnemonic opens a line there, except on row 0, and so does each
# finished instruction; a drag opens none.
> click WriteModeLabel ; cell Table1 6 2 ; row RIM SIM ; cell Table1 0 2 ; drag Table1 3 2 6 2
> changes
session: CurrentRow=1 LastLine=13 SelectionTop=3 SelectionBottom=6 SelectionAnchor=3
    SelectedInstruction=75 CurrentOpcode=48 | StringTable rows=49 | Table1 rows=49 (4 in at 5)
Table1 6 - - "RIM" "20" default | 7 - - "SIM" "30" default | colors 1,2=cursor 4,2=own
caption: WriteModeLabel="Insert"
== comments
# A comment is typed into the table key by key; an ampersand or a double quote at its end goes at
# once.
> row NOP "MVI A,n" ; click CommentsTool ; cell Table1 1 2 ; clear CommentsTxt
> type CommentsTxt "a&b\"" ; type CommentsTxt ", c" ; click CommentContinueButton ; changes
session: Selection=3 PanelState=20 CurrentRow=3 LastLine=2 FileChanged=1 SelectionAnchor=1
    ClickedRow=1 SelectedInstruction=1 CurrentOpcode=62 SavedComment="No Operation."
StringTable 2="n" | Variables 0 "n" "XX" | Table1 1 - - "NOP" "00" "ab, c"
Table1 2 - - "MVI  A,   n" "3E   XX" default | colors 1,2=own 1,4=C0FFC0 3,2=cursor
caption: TipsLabel="Select Row, Enter Comments and Click 'Done', or Click 'Cancel'."
text: CommentsTxt="ab, c" | shown: CommentsBox | hidden: InstructionBox
disabled: EditMenu/* FileMenu/* ToolsMenu/* | focus: CommentsTxt
# Next keeps what was typed and takes the row below; the default comment is for rows with an
# opcode, and it shows in the table alone.
> click CommentNextButton ; clear CommentsTxt ; type CommentsTxt x ; click DefaultCommentButton
> changes
session: ClickedRow=2 SavedComment="Move the equivalent of 'n' into Accumulator."
Table1 colors 1,4=own 2,4=C0FFC0 | text: CommentsTxt=""
> click CommentNextButton ; type CommentsTxt alone ; click DefaultCommentButton
refused DefaultCommentButton disabled
# Ignore takes back the row under edit alone, Esc nothing.
> cell Table1 31 0 ; show CommentNextButton
CommentNextButton caption="&Next" enabled=0 visible=1
> cell Table1 2 0 ; type CommentsTxt ! ; click CommentCancelButton ; click CommentsTool
> cell Table1 3 3 ; type CommentsTxt ? ; escape ; changes
session: PanelState=1 LastLine=3 ClickedRow=3 SavedComment="alone" | Table1 3 - - - - "alone?"
Table1 colors 2,4=own | caption: TipsLabel="Program Mode." | shown: InstructionBox
hidden: CommentsBox | enabled: EditMenu/*-PasteEdit FileMenu/* ToolsMenu/*
