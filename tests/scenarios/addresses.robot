== addresses
# An untouched program: no addresses but the origin's own, whose block ends one below it.
> click AssignAddress ; tick 9 ; show TipsLabel ; tick 1 ; changes
TipsLabel caption="Assigning Addresses . . ." enabled=1 visible=1
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
> enter ; click AssignAddress ; settle
box critical "Address overlap in origins 8000h and 8004h." ok -> ok
> cell Table1 4 2 ; row HLT ; click AssignAddress ; settle ; cell Table1 3 0
> key NumberAcceptButton 8003 ; enter ; click AssignAddress ; settle ; cell Table1 3 0
box critical "Address overlap in origins 8000h and 8003h." ok -> ok
> key NumberAcceptButton 8001 ; enter ; click AssignAddress ; settle ; changes
box critical "Address overlap in origins 8000h and 8001h." ok -> ok
session: Selection=1 CurrentRow=1 LastLine=6 AddressError=-1 SelectionAnchor=4 ClickedRow=3
    SelectedInstruction=79 CurrentOpcode=118 MessageResult="1"
LastAddressList count=2 (1 in at 0) 0="8003" 1="8001" | OriginList 1="8001"
StringTable rows=33 (1 in at 2) 2="out" 3..4="" 7..8="" | Labels count=1 (3 out at 0)
Labels 0 "out" - "0" "0" "1" | Variables count=0 | Table1 rows=33 (1 in at 1)
Table1 1 - "8000" "NOP" "00" default | 2 "" "8001" "JMP  out" "C3   XX   XX" | 3 "Origin" - "" "" ""
Table1 4 - "8001" "HLT" "76" | 5 "" "" "" "" "" | 6 "" | 7..8 - "" "" "" ""
Table1 colors 1,2=cursor 3,0..4=E0E0E0 9,2=own
# A label in two rows, and a name that is both: nothing is assigned.
> answer no ; click NewFile ; row "ADI n" ; click PlaceLabelTool ; cell Table1 1 0
box question "Save changes to Pgm1.baf?" yesnocancel -> no
> type PlaceText twice ; enter ; escape ; cell Table1 1 2 ; click CopyEdit ; click PasteEdit
> click AssignAddress ; settle ; show TipsLabel ; list LastAddressList
box critical "Compile error. There is more than one instance of the label 'twice' in the Label field." ok -> ok
TipsLabel caption="Assigning Addresses . . ." enabled=1 visible=1
LastAddressList empty
> answer no ; click NewFile ; row "JMP n" ; click PasteEdit ; click AssignAddress ; settle
box question "Save changes to Pgm1.baf?" yesnocancel -> no
box critical "The string 'n' is used as both label and variable." ok -> ok
== origins
# The display starts at 0000, shifts left and keeps four digits.
> row NOP ; click NewOrigin ; key NumberAcceptButton gz12 ; click NUM 3 ; click NUM 10
> key NumberAcceptButton 5
# One that is taken is refused; the number stands to be corrected, and Esc gives up.
> escape ; click NewOrigin ; key NumberAcceptButton 8000 ; enter
box critical "Origin Address already used. Enter another address." ok -> ok
> key NumberAcceptButton 7 ; enter ; click NewOrigin ; key NumberAcceptButton 0007
> click NumberAcceptButton ; escape ; changes
box critical "Origin Address already used. Enter another address." ok -> ok
session: Selection=3 CurrentRow=3 LastLine=5 FileChanged=1 SelectedInstruction=78 MessageResult="1"
OriginList 1="0007" | StringTable rows=33 | Table1 rows=33 (1 in at 1) | 1 - - "NOP" "00" default
Table1 2 "Origin" "0007" | colors 2,0..4=E0E0E0 3,2=cursor | caption: TipsLabel="Program Mode."
# Another address for an origin, its own as well; in data mode it ends in data mode.
> cell Table1 2 0 ; key NumberAcceptButton 0007 ; enter ; click EntryMode ; cell Table1 0 0
> key NumberAcceptButton 9abc ; enter ; changes
session: PanelState=29 | OriginList 0="9ABC" | Table1 0 - "9ABC"
caption: EntryMode="Program &Mode" TipsLabel="Data Mode." | shown: DataBox | hidden: InstructionBox
focus: DataAcceptButton | default: DataAcceptButton
== equivalents
# A program without strings has nothing to number.
> click EqtOption
box information "No strings available." ok -> ok
# With variables alone the dialog opens on their page, and only a click on a name opens the box.
# Enter accepts, digits come by key or mouse.
> row "MVI A,count" "IN port" ; path eqt.baf ; click SaveFile ; click EqtOption
dialog save "Save As" "Brelvanor Assembler Files (*.baf)|*.baf" -> "eqt.baf"
open RenumberDialog
> click RenumberDialog.NUM 1 ; cell RenumberDialog.VariableTable 1 1
refused RenumberDialog.NUM hidden
> cell RenumberDialog.VariableTable 0 0 ; cell RenumberDialog.VariableTable 2 0
> click RenumberDialog.NUM 15 ; key RenumberDialog.XXAcceptButton 12aG.b ; enter ; enter ; changes
refused RenumberDialog.XXAcceptButton disabled
session: Cursor=3 LastLine=2 FileOrigin=3 FileChanged=1 SelectedInstruction=47 CurrentOpcode=219
    FileName="eqt.baf" ProjectPath="eqt.baf" MessageResult="1" | StringTable 1="count" 2="port"
Variables 0 "count" "XX" | 1 "port" "XX" | Table1 1 - - "MVI  A,   count" "3E   XX" default
Table1 2 - - "IN   port" "DB   XX" default | RenumberDialog.LabelTable rows=1
RenumberDialog.LabelTable 0 "Label" "Current" "New" | RenumberDialog.VariableTable rows=3
RenumberDialog.VariableTable 0 "Label" "Current" "New" | 1 "count" "XX" "XX" | 2 "port" "XX" "AB"
caption: ProgrammingPanel="Brelvanor Quilla - eqt.baf" TipsLabel="File Saved."
hidden: RenumberDialog.DigitBox RenumberDialog.LabelFrame RenumberDialog.XXBox
disabled: RenumberDialog.LabelsOption | checked: RenumberDialog.VariablesOption
# The edits stay in the dialog's tables; the frame drops them, and the file counts as changed.
> close RenumberDialog ; click EqtOption ; cell RenumberDialog.VariableTable 1 0
closed RenumberDialog
open RenumberDialog
> key RenumberDialog.XXAcceptButton 0f ; enter ; click RenumberDialog.DoneButton ; changes
closed RenumberDialog
Variables 0 - "0F" | Table1 1 - - - "3E   0F"
# Both kinds: labels first, and a page change keeps what is open on the other page. The number goes
# to the row that is current when it is accepted.
> row "JMP loop" "CALL sub" "LXI H,loop" "XRI count" ; click EqtOption
open RenumberDialog
> cell RenumberDialog.LabelTable 1 0 ; key RenumberDialog.EqtAcceptButton 12345
> cell RenumberDialog.VariableTable 2 0
refused RenumberDialog.VariableTable hidden
> click RenumberDialog.NUM 7 ; click RenumberDialog.LabelsOption ; click RenumberDialog.NUM 10
> cell RenumberDialog.LabelTable 2 1 ; changes ; enter
session: Cursor=7 LastLine=6 SelectedInstruction=28 CurrentOpcode=238
StringTable 3="loop" 4="sub" 5="loop" 6="count" | Labels 0 "loop" "XXXX" "0" "0" "1"
Labels 1 "sub" "XXXX" "0" "0" "1" | Table1 3 - - "JMP  loop" "C3   XX   XX" default
Table1 4 - - "CALL  sub" "CD   XX   XX" default | 5 - - "LXI  H,  loop" "21   XX   XX" default
Table1 6 - - "XRI   count" "EE   0F" default | RenumberDialog.LabelTable rows=3
RenumberDialog.LabelTable 1 "loop" "XXXX" "XXXX" | 2 "sub" "XXXX" "XXXX"
RenumberDialog.VariableTable 1 - "0F" "0F" | 2 - - "XX"
caption: TipsLabel="Program Mode." RenumberDialog.EqtLabel="457A" RenumberDialog.LabelLabel="loop"
shown: RenumberDialog.DigitBox RenumberDialog.LabelFrame | hidden: RenumberDialog.VariableFrame
enabled: RenumberDialog.LabelsOption | checked: RenumberDialog.LabelsOption
unchecked: RenumberDialog.VariablesOption | focus: RenumberDialog.EqtAcceptButton
default: RenumberDialog.EqtAcceptButton
# The panel waits behind the dialog, which Esc does not close. Done rewrites all rows of a string.
> row NOP ; close ProgrammingPanel ; escape ; click RenumberDialog.DoneButton ; changes
refused INST modal
refused ProgrammingPanel modal
closed RenumberDialog
Labels 1 - "457A" | Table1 4 - - - "CD   7A   45"
