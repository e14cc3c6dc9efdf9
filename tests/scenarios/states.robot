== tasks
# The tasks that no other story shows at work: the tip, the box that is open, the keys it takes.
> row "JMP l" ; click INST 2 ; click REG 0 ; changes
session: Cursor=2 PanelState=8 FileChanged=1 EntryPending=1 SelectedInstruction=2 CurrentOpcode=1
StringTable 1="l" | Labels 0 "l" "XXXX" "0" "0" "1" | Table1 1 - - "JMP  l" "C3   XX   XX" default
Table1 2 - - "LXI  B," "01" | caption: TipsLabel="Enter 16-bit number and click 'Accept'."
text: LabelCombo="l" | shown: LabelBox | hidden: InstructionBox
disabled: EditMenu/* FileMenu/* LabelAcceptButton LabelCombo ToolsMenu/* | checked: NewLabelOption
focus: LabelText | default: LabelAcceptButton
> escape ; click INST 68 ; changes
session: PanelState=11 SelectedInstruction=68 CurrentOpcode=197 | Table1 2 - - "PUSH" ""
caption: TipsLabel="Select Register Pair." | shown: RegisterBox | hidden: LabelBox
disabled: REG 1,3,5..8 | focus: RegisterBox
> escape ; click INST 3 ; changes
session: PanelState=13 SelectedInstruction=3 CurrentOpcode=10 | Table1 2 - - "LDAX"
disabled: REG 4,9
== new file
# A new file asks about changes that were not saved: Cancel keeps all, Yes saves first, and a save
# that is given up keeps all as well.
> click NewFile ; row NOP ; click NewFile ; answer yes ; nopath ; click NewFile ; answer yes
box question "Save changes to Pgm1.baf?" yesnocancel -> cancel
box question "Save changes to Pgm1.baf?" yesnocancel -> yes
dialog save "Save As" "Brelvanor Assembler Files (*.baf)|*.baf" -> cancel
> path one.baf ; click NewFile ; changes
box question "Save changes to Pgm1.baf?" yesnocancel -> yes
dialog save "Save As" "Brelvanor Assembler Files (*.baf)|*.baf" -> "one.baf"
session: SelectedInstruction=78 ProjectPath="one.baf" MessageResult="6"
# It ends Insert; a click in Overwrite opens no line then. A large table shrinks to its 32 rows.
> row NOP NOP NOP NOP NOP NOP NOP NOP NOP NOP NOP NOP NOP NOP NOP NOP NOP NOP NOP NOP NOP NOP NOP
> click CommentsTool ; cell Table1 0 4 ; type CommentsTxt x ; click CommentDoneButton
> click WriteMode ; answer no ; click NewFile ; show PasteEdit ; dump Table1 0 0
box question "Save changes to Pgm1.baf?" yesnocancel -> no
PasteEdit caption="&Paste" enabled=0 visible=1
Table1 0 "Origin" "8000" "" "" ""
> row NOP ; cell Table1 1 2 ; row HLT ; changes
session: Cursor=2 FileChanged=1 SelectionAnchor=1 SelectedInstruction=79 CurrentOpcode=118
    SavedCells(2)="NOP" SavedCells(3)="00" SavedCells(4)="No Operation." MessageResult="7"
Table1 1 - - "HLT" "76" default | caption: TipsLabel="Program Mode."
# It goes by the last answer, whatever the question was: Cancel, no new file, with nothing asked.
> path a.baf ; click SaveFile ; click QuitFile ; click NewFile ; show TipsLabel ; answer ok
dialog save "Save As" "Brelvanor Assembler Files (*.baf)|*.baf" -> "a.baf"
box question "Are you sure you want to quit? You will lose unsaved information." okcancel -> cancel
TipsLabel caption="File Saved." enabled=1 visible=1
> click QuitFile
box question "Are you sure you want to quit? You will lose unsaved information." okcancel -> ok
ended
