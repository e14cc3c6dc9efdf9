== addresses
# An untouched program: no addresses but the origin's own, whose block ends one below it.
> click AssignAddress ; tick 9 ; changes
caption: TipsLabel="Assigning Addresses . . ."
> tick 1 ; changes
LastAddressList 0="7FFF" | caption: TipsLabel="Program Mode."
# Sizes 1, 2 and 3, a data byte and a row left blank: 8000, 8001, 8003, 8006, 8007. Labels get the
# address of their row: two 8000, five 8006; the one on the blank row none. Low bytes go in first.
> row NOP "ADI n" "JMP five" ; click EntryMode ; key DataAcceptButton 5A ; enter ; click EntryMode
> cell Table1 6 2 ; row "CALL two" "LXI B,none" ; click PlaceLabelTool ; cell Table1 1 0
> click ExistingPlaceOption ; pick PlaceCombo 1 ; enter ; cell Table1 4 0
> click ExistingPlaceOption ; enter ; cell Table1 5 0 ; type PlaceText blank ; enter ; escape
> click AssignAddress ; settle ; changes
session: Cursor=8 LastLine=7 FileChanged=1 SelectionAnchor=6 ClickedRow=5 SelectedInstruction=2
    CurrentOpcode=1 | LastAddressList 0="800C" | StringTable 2="n" 3="five" 6="two" 7="none"
Labels 0 "five" "8006" "4" "1" "1" | 1 "two" "8000" "1" "1" "1" | 2 "none" "XXXX" "0" "0" "1"
Labels 3 "blank" "XXXX" "5" "1" "0" | Variables 0 "n" "XX"
Table1 1 "two" "8000" "NOP" "00" default | 2 - "8001" "ADI   n" "C6   XX" default
Table1 3 - "8003" "JMP  five" "C3   06   80" default | 4 "five" "8006" "DFB" "5A" default
Table1 5 "blank" | 6 - "8007" "CALL  two" "CD   00   80" default
Table1 7 - "800A" "LXI  B,  none" "01   XX   XX" default
# Two blocks may touch but not share an address: 8000 to 8003 and an empty block at 8004, whose end
# 8003 counts; then one byte at 8004, at 8003, and inside at 8001. The cursor goes to row 1.
> answer no ; click NewFile ; row NOP "JMP out" ; click NewOrigin ; key NumberAcceptButton 8004
box question "Save changes to Pgm1.baf?" yesnocancel -> no
> enter ; click AssignAddress ; settle ; changes
box critical "Address overlap in origins 8000h and 8004h." ok -> ok
session: Selection=1 CurrentRow=1 LastLine=6 AddressError=-1 SelectionAnchor=0
    SelectedInstruction=37 CurrentOpcode=195 MessageResult="1"
LastAddressList count=2 (1 in at 0) 0..1="8003" | OriginList 1="8004"
StringTable rows=33 (1 in at 2) 2="out" 3..4="" 7..8="" | Labels count=1 (3 out at 0)
Labels 0 "out" - "0" "0" "1" | Variables count=0 | Table1 rows=33 (1 in at 1)
Table1 1 - "8000" "NOP" "00" default | 2 "" "8001" "JMP  out" "C3   XX   XX"
Table1 3 "Origin" "8004" "" "" "" | 4 - "" "" "" "" | 5 "" "" "" "" "" | 6 "" | 7..8 - "" "" "" ""
Table1 colors 1,2=cursor 3,0..4=E0E0E0 9,2=own
> cell Table1 4 2 ; row HLT ; click AssignAddress ; settle ; cell Table1 3 0
> key NumberAcceptButton 8003 ; enter ; click AssignAddress ; settle ; cell Table1 3 0
box critical "Address overlap in origins 8000h and 8003h." ok -> ok
> key NumberAcceptButton 8001 ; enter ; click AssignAddress ; settle ; changes
box critical "Address overlap in origins 8000h and 8001h." ok -> ok
session: SelectionAnchor=4 ClickedRow=3 SelectedInstruction=79 CurrentOpcode=118
LastAddressList 1="8001" | OriginList 1="8001" | Table1 3 - "8001" | 4 - "8001" "HLT" "76" default
# Above FFFF: FFFE is the NOP, FFFF begins the JMP, which may reach beyond; the next one may not.
# The cursor is on its row, the addresses stand as far as the row before, and the tip stays.
> answer no ; click NewFile ; cell Table1 0 0 ; key NumberAcceptButton fffe ; enter
box question "Save changes to Pgm1.baf?" yesnocancel -> no
> row NOP "JMP out" HLT HLT ; click AssignAddress ; settle ; changes
box critical "Compile error. Invalid address in origin FFFEh." ok -> ok
session: Selection=3 CurrentRow=3 LastLine=4 SelectionAnchor=0 ClickedRow=0
LastAddressList count=0 | OriginList count=1 (1 out at 0) 0="FFFE" | StringTable rows=32
Table1 rows=32 (1 out at 0) | 0 "Origin" "FFFE" "" "" "" | 1 - "FFFE" "NOP" "00"
Table1 2 "" "FFFF" "JMP  out" "C3   XX   XX" default | 3 - "" | 4 - - "HLT" "76" default
Table1 colors 0,0..4=E0E0E0 2,0..4=own 3,2=cursor | caption: TipsLabel="Assigning Addresses . . ."
> click DeleteEdit ; click DeleteEdit ; click AssignAddress ; settle ; changes
session: LastLine=3 AddressError=0 | LastAddressList 0="10001" | StringTable rows=30
Table1 rows=30 (2 out at 3) | colors 3,2=cursor | caption: TipsLabel="Program Mode."
# A label in two rows, and a name that is both: nothing is assigned.
> answer no ; click NewFile ; row "ADI n" ; click PlaceLabelTool ; cell Table1 1 0
box question "Save changes to Pgm1.baf?" yesnocancel -> no
> type PlaceText twice ; enter ; escape ; cell Table1 1 2 ; click CopyEdit ; click PasteEdit
> click AssignAddress ; settle ; changes
box critical "Compile error. There is more than one instance of the label 'twice' in the Label field." ok -> ok
session: Selection=2 CurrentRow=2 LastLine=2 AddressError=-1 SelectionAnchor=1 ClickedRow=1
    SelectedInstruction=15 CurrentOpcode=198 | EditStringTable 0="n" | LastAddressList count=0
OriginList count=0 | StringTable rows=33 (3 in at 1) 1..2="n" 5="" | Labels 0 "twice" - "1" "1" "0"
Variables 0 "n" "XX" | EditTable rows=1
EditTable 0 "twice" - "ADI   n" "C6   XX" "Add the equivalent of 'n' to content of Accumulator."
Table1 rows=33 (3 in at 0) | 0 "Origin" "8000" | 1..2 "twice" - "ADI   n" "C6   XX" default
Table1 3 "" "" | 4..5 - "" "" "" "" | colors 0,0..4=E0E0E0 2,2=cursor 3,0..4=own 6,2=own
caption: TipsLabel="Assigning Addresses . . ." | enabled: PasteEdit
> answer no ; click NewFile ; row "JMP n" ; click PasteEdit ; click AssignAddress ; settle
box question "Save changes to Pgm1.baf?" yesnocancel -> no
box critical "The string 'n' is used as both label and variable." ok -> ok
> changes
session: Cursor=3 SelectionAnchor=0 SelectedInstruction=37 CurrentOpcode=195
Labels count=2 (1 in at 0) | 0 "n" "XXXX" "0" "0" "1" | 1 - - "2"
Table1 1 "" - "JMP  n" "C3   XX   XX"
== origins
# The display starts at 0000, shifts left and keeps four digits.
> row NOP ; click NewOrigin ; key NumberAcceptButton gz12 ; click NUM 3 ; click NUM 10
> key NumberAcceptButton 5
# One that is taken is refused; the number stands to be corrected, and Esc gives up.
> escape ; click NewOrigin ; key NumberAcceptButton 8000 ; enter ; changes
box critical "Origin Address already used. Enter another address." ok -> ok
session: Cursor=2 PanelState=28 FileChanged=1 SelectedInstruction=78 MessageResult="1"
Table1 1 - - "NOP" "00" default | caption: DataTypeLabel="Address"
    TipsLabel="Enter starting address of the Origin and Click 'Accept', or press 'Esc' to quit."
shown: NumberBox | hidden: InstructionBox | disabled: EditMenu/* FileMenu/* ToolsMenu/*
focus: NumberAcceptButton | default: NumberAcceptButton
> key NumberAcceptButton 7 ; enter ; click NewOrigin ; key NumberAcceptButton 0007
> click NumberAcceptButton ; escape ; changes
box critical "Origin Address already used. Enter another address." ok -> ok
session: Selection=3 PanelState=1 CurrentRow=3 LastLine=5 | OriginList 1="0007"
StringTable rows=33 | Table1 rows=33 (1 in at 2) | 2 "Origin" "0007" | colors 2,0..4=E0E0E0
caption: TipsLabel="Program Mode." | shown: InstructionBox | hidden: NumberBox
enabled: EditMenu/*-PasteEdit FileMenu/* ToolsMenu/*
# Above all others: it cuts the first block in two where the cursor stands.
> cell Table1 1 2 ; click NewOrigin ; key NumberAcceptButton FFF0 ; enter ; changes
session: Selection=2 CurrentRow=2 LastLine=9 SelectionAnchor=1
OriginList count=3 (1 in at 1) 1="FFF0" | StringTable rows=34 | Table1 rows=34 (1 in at 1)
Table1 1 "Origin" "FFF0" | colors 1,0..4=E0E0E0 2,2=cursor 4,2=own
# Another address for an origin: any but that of another one, its own as well.
> cell Table1 3 0 ; key NumberAcceptButton 8000 ; enter ; changes
box critical "Origin Address already used. Enter another address." ok -> ok
session: PanelState=25 ClickedRow=3 | OriginList count=2
caption: TipsLabel="Enter starting address of the Origin and Click Accept', or press 'Esc' to quit."
shown: NumberBox | hidden: InstructionBox | disabled: EditMenu/* FileMenu/* ToolsMenu/*
> key NumberAcceptButton 7 ; enter ; cell Table1 3 0 ; key NumberAcceptButton 0007 ; enter
> cell Table1 3 0 ; key NumberAcceptButton fff0 ; enter
box critical "Origin Address already used. Enter another address." ok -> ok
# In data mode it ends in data mode.
> click EntryMode ; cell Table1 0 0 ; key NumberAcceptButton 9abc ; enter ; changes
refused EntryMode disabled
session: PanelState=1 | OriginList 2="9ABC" | Table1 3 - "9ABC" | caption: TipsLabel="Program Mode."
shown: InstructionBox | hidden: NumberBox | enabled: EditMenu/*-PasteEdit FileMenu/* ToolsMenu/*
== equivalents
# A program without strings has nothing to number, and the file does not count as changed.
> click EqtOption ; changes
box information "No strings available." ok -> ok
session: MessageResult="1"
# With variables alone the dialog opens on their page. Enter accepts, digits come by key or mouse.
> row "MVI A,count" "IN port" ; path eqt.baf ; click SaveFile ; click EqtOption ; changes
dialog save "Save As" "Brelvanor Assembler Files (*.baf)|*.baf" -> "eqt.baf"
open RenumberDialog
session: Cursor=3 LastLine=2 FileOrigin=3 FileChanged=1 SelectedInstruction=47 CurrentOpcode=219
    FileName="eqt.baf" ProjectPath="eqt.baf" | StringTable 1="count" 2="port"
Variables 0 "count" "XX" | 1 "port" "XX" | Table1 1 - - "MVI  A,   count" "3E   XX" default
Table1 2 - - "IN   port" "DB   XX" default | RenumberDialog.LabelTable rows=1
RenumberDialog.LabelTable 0 "Label" "Current" "New" | RenumberDialog.VariableTable rows=3
RenumberDialog.VariableTable 0 "Label" "Current" "New" | 1 "count" "XX" "XX" | 2 "port" "XX" "XX"
caption: ProgrammingPanel="Brelvanor Quilla - eqt.baf" TipsLabel="File Saved."
hidden: RenumberDialog.DigitBox RenumberDialog.LabelFrame RenumberDialog.XXBox
disabled: RenumberDialog.LabelsOption | checked: RenumberDialog.VariablesOption
# Only a click on a name opens the box.
> click RenumberDialog.NUM 1 ; cell RenumberDialog.VariableTable 1 1
refused RenumberDialog.NUM hidden
> cell RenumberDialog.VariableTable 0 0 ; cell RenumberDialog.VariableTable 2 0
> click RenumberDialog.NUM 15 ; key RenumberDialog.XXAcceptButton 12aG.b ; enter ; enter ; changes
refused RenumberDialog.XXAcceptButton disabled
RenumberDialog.VariableTable 2 - - "AB"
# The edits stay in the dialog's tables; the frame drops them, and the file counts as changed.
> close RenumberDialog ; click EqtOption ; cell RenumberDialog.VariableTable 1 0
closed RenumberDialog
open RenumberDialog
> key RenumberDialog.XXAcceptButton 0f ; enter ; click RenumberDialog.DoneButton ; changes
closed RenumberDialog
Variables 0 - "0F" | Table1 1 - - - "3E   0F"
# Both kinds: labels first, and a page change keeps what is open on the other page.
> row "JMP loop" "CALL sub" "LXI H,loop" "XRI count" ; click EqtOption ; changes
open RenumberDialog
session: Cursor=7 LastLine=6 SelectedInstruction=28 CurrentOpcode=238
StringTable 3="loop" 4="sub" 5="loop" 6="count" | Labels 0 "loop" "XXXX" "0" "0" "1"
Labels 1 "sub" "XXXX" "0" "0" "1" | Table1 3 - - "JMP  loop" "C3   XX   XX" default
Table1 4 - - "CALL  sub" "CD   XX   XX" default | 5 - - "LXI  H,  loop" "21   XX   XX" default
Table1 6 - - "XRI   count" "EE   0F" default | RenumberDialog.LabelTable rows=3
RenumberDialog.LabelTable 1 "loop" "XXXX" "XXXX" | 2 "sub" "XXXX" "XXXX"
RenumberDialog.VariableTable 1 - "0F" "0F" | 2 - - "XX" | caption: TipsLabel="Program Mode."
shown: RenumberDialog.LabelFrame | hidden: RenumberDialog.EqtBox RenumberDialog.VariableFrame
enabled: RenumberDialog.LabelsOption | checked: RenumberDialog.LabelsOption
unchecked: RenumberDialog.VariablesOption
> cell RenumberDialog.VariableTable 1 0 ; cell RenumberDialog.LabelTable 1 0
refused RenumberDialog.VariableTable hidden
> key RenumberDialog.EqtAcceptButton 12345 ; cell RenumberDialog.VariableTable 2 0
refused RenumberDialog.VariableTable hidden
> click RenumberDialog.NUM 7 ; click RenumberDialog.LabelsOption ; click RenumberDialog.NUM 10
> changes
caption: RenumberDialog.EqtLabel="457A" RenumberDialog.LabelLabel="loop"
shown: RenumberDialog.DigitBox RenumberDialog.EqtBox | focus: RenumberDialog.EqtAcceptButton
default: RenumberDialog.EqtAcceptButton
> click RenumberDialog.EqtAcceptButton ; click RenumberDialog.VariablesOption
> click RenumberDialog.NUM 8 ; click RenumberDialog.XXAcceptButton
refused RenumberDialog.NUM hidden
refused RenumberDialog.XXAcceptButton hidden
# The number goes to the row that is current when it is accepted.
> click RenumberDialog.LabelsOption ; cell RenumberDialog.LabelTable 1 0
> key RenumberDialog.EqtAcceptButton 8010 ; cell RenumberDialog.LabelTable 2 1 ; enter ; changes
RenumberDialog.LabelTable 1 - - "457A" | 2 - - "8010"
hidden: RenumberDialog.DigitBox RenumberDialog.EqtBox
# The panel waits behind the dialog, which Esc does not close. Done rewrites all rows of a string.
> row NOP ; close ProgrammingPanel ; escape ; click RenumberDialog.DoneButton ; changes
refused INST modal
refused ProgrammingPanel modal
closed RenumberDialog
Labels 0 - "457A" | 1 - "8010" | Table1 3 - - - "C3   7A   45" | 4 - - - "CD   10   80"
Table1 5 - - - "21   7A   45"
# A label that stands on a row gets its address over the number that was typed.
> click PlaceLabelTool ; cell Table1 5 0 ; click ExistingPlaceOption ; enter
> click PlaceDoneButton ; click AssignAddress ; settle ; changes
session: ClickedRow=5 | LastAddressList 0="800E" | Labels 0 - "800A" "5" "1" | Table1 1 - "8000"
Table1 2 - "8002" | 3 - "8004" - "C3   0A   80" | 4 - "8007" | 5 "loop" "800A" - "21   0A   80"
Table1 6 - "800D"
