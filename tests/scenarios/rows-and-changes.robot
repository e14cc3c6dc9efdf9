# Nothing differs at the start, nor right after the differences are told. Whole rows by their keys.
open OpenForm
closed OpenForm
> changes
> row "MOV  A , M" "MVI M,x" "LXI SP,p" "LXI B , p" "RST 7" "PUSH PSW" "STAX D" "IN x" RNC ; changes
session: CurrentRow=10 LastLine=9 FileChanged=1 SelectionTop=10 SelectionBottom=10
    SelectedInstruction=64 CurrentOpcode=208
LabelCombo count=1 0="p"
LabelEqtList count=1 0="XXXX"
LabelLineList count=1 0="0"
LabelPlacedList count=1 0="0"
LabelUsedList count=1 0="1"
StringTable 2="x" 3..4="p" 8="x"
Table1 1 - - "MOV  A,  M" "7E"
    "Move content of address pointed by HL-register pair into Accumulator."
Table1 2 - - "MVI  M,   x" "36   XX"
    "Move the equivalent of 'x' into address pointed by HL-register pair."
Table1 3 - - "LXI  SP,  p" "31   XX   XX" "Load the equivalent of 'p' into stack pointer."
Table1 4 - - "LXI  B,  p" "01   XX   XX" "Load the equivalent of 'p' into BC-register pair."
Table1 5 - - "RST 7" "FF" "Restart#7 (Call sub-routine at address 0038H)."
Table1 6 - - "PUSH  PSW" "F5" "Store content of Accumulator and flag register in top of stack."
Table1 7 - - "STAX  D" "12" "Store content of Accumulator in address pointed by DE-register pair."
Table1 8 - - "IN   x" "DB   XX"
    "Receive content from port address pointed by 'x' and store in Accumulator."
Table1 9 - - "RNC" "D0" "Return on no carry."
XXCombo count=1 0="x"
XXEqtList count=1 0="XX"
Table1 colors 1,2=own 10,2=cursor
caption: TipsLabel="Program Mode."
> changes
# A refusal is that of the press, and ends the row; what a hidden box holds waits until it is seen.
> row "ADI Big" NOP ; changes
refused XXAcceptButton disabled
session: PanelState=2 EntryPending=1 SelectedInstruction=15 CurrentOpcode=198
Table1 10 - - "ADI" "C6"
caption: TipsLabel="Enter 8-bit number and click 'Accept'."
text: XXCombo="x" XXText="Big"
shown: XXBox
hidden: InstructionBox XXDoneButton XXFindButton XXReplaceButton
disabled: AssembleFile AssignAddress CommentsTool CopyEdit CutEdit DeleteEdit DeleteLabels
    DeleteUnusedLabels DownloadFile EntryMode EqtOption FindEdit NewFileMenu OpenFile PlaceLabelTool
    PrintFile PrintOptions QuitFile ReplaceEdit SaveAsFile SaveFile UploadFile XXAcceptButton
    XXCombo
checked: NewXXOption
focus: XXText
default: XXAcceptButton
> escape ; row "JMP x" NOP ; changes
box critical "String already used as Label or Variable. Please enter another label." ok -> ok
refused INST hidden
session: PanelState=4 SelectedInstruction=37 CurrentOpcode=195 MessageResult="1"
Table1 10 - - "JMP" "C3"
caption: TipsLabel="Enter Label and click 'Accept'."
text: LabelCombo="p"
shown: LabelBox
hidden: XXBox
disabled: LabelAcceptButton LabelCombo
checked: NewLabelOption
focus: LabelText
default: LabelAcceptButton
> escape ; row "JMP p" ; click PlaceLabelTool ; type PlaceText ";" ; changes
session: PanelState=16 CurrentRow=11 EntryPending=0 SelectionTop=11 SelectionBottom=11
PlaceCombo count=1 0="p"
StringTable 10="p"
Table1 10 - - "JMP  p" "C3   XX   XX" "Jump to address pointed by 'p'."
Table1 colors 10,2=own 11,2=cursor
caption: TipsLabel="Select Row, Enter Label and Click 'Place'; or Click 'Cancel'."
text: PlaceCombo="p" PlaceText=";"
shown: PlaceBox
hidden: LabelBox
disabled: PlaceAcceptButton PlaceCombo
checked: NewPlaceOption
focus: PlaceText
# A dialog that waits takes the rest of the line.
> click PlaceDoneButton ; click EqtOption ; row NOP ; escape ; click RenumberDialog.DoneButton ; changes
open RenumberDialog
refused INST modal
closed RenumberDialog
session: PanelState=1
caption: TipsLabel="Program Mode."
shown: InstructionBox
hidden: PlaceBox
enabled: AssembleFile AssignAddress CommentsTool CopyEdit CutEdit DeleteEdit DeleteLabels
    DeleteUnusedLabels DownloadFile EntryMode EqtOption FindEdit NewFileMenu OpenFile PlaceLabelTool
    PrintFile PrintOptions QuitFile ReplaceEdit SaveAsFile SaveFile UploadFile
# Rows that come in between move the others.
> cell Table1 2 2 ; click WriteModeLabel ; row NOP ; changes
session: CurrentRow=3 LastLine=11 SelectionTop=3 SelectionBottom=3 SelectionAnchor=2
    SelectedInstruction=78 CurrentOpcode=0
StringTable rows=34 (2 in at 2)
Table1 rows=34 (2 in at 2)
Table1 2 - - "NOP" "00" "No Operation."
Table1 colors 3,2=cursor 13,2=own
caption: WriteModeLabel="Insert"
> drag Table1 3 2 4 2 ; click CutEdit ; changes
session: LastLine=9 SelectionAnchor=3
EditStringTable count=2 0="" 1="x"
EditTable rows=2
EditTable 1 - - "MVI  M,   x" "36   XX"
    "Move the equivalent of 'x' into address pointed by HL-register pair."
StringTable rows=32 (2 out at 3)
Table1 rows=32 (2 out at 3)
Table1 colors 3,2=cursor
caption: TipsLabel="Completed cutting." WriteModeLabel="Overwrite"
enabled: PasteEdit
> click AssignAddress ; changes
caption: TipsLabel="Assigning Addresses . . ."
