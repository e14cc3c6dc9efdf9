== tasks
# Every task that the user can begin: its tip, the box that is open for it, the keys it takes.
> click INST 15 ; changes
session: PanelState=2 FileChanged=1 EntryPending=1 SelectedInstruction=15 CurrentOpcode=198
Table1 1 - - "ADI" "C6" | caption: TipsLabel="Enter 8-bit number and click 'Accept'." | shown: XXBox
hidden: InstructionBox XXDoneButton XXFindButton XXReplaceButton
disabled: EditMenu/* ExistingXXOption FileMenu/* ToolsMenu/* XXAcceptButton XXCombo
checked: NewXXOption | focus: XXText | default: XXAcceptButton
> type XXText v ; enter ; click INST 10 ; changes
session: Cursor=2 PanelState=3 SelectedInstruction=10 CurrentOpcode=128 | StringTable 1="v"
Variables 0 "v" "XX" | Table1 1 - - "ADI   v" "C6   XX" default | 2 - - "ADD"
caption: TipsLabel="Select Register or Memory." | shown: RegisterBox | hidden: XXBox
disabled: REG 8..9 | focus: RegisterBox
> escape ; click INST 37 ; changes
session: PanelState=4 SelectedInstruction=37 CurrentOpcode=195 | Table1 2 - - "JMP" "C3"
caption: TipsLabel="Enter Label and click 'Accept'." | shown: LabelBox | hidden: RegisterBox
disabled: ExistingLabelOption LabelAcceptButton LabelCombo | checked: NewLabelOption
focus: LabelText | default: LabelAcceptButton
> type LabelText l ; enter ; click INST 14 ; changes
session: Cursor=3 PanelState=5 SelectedInstruction=14 CurrentOpcode=9 | StringTable 2="l"
Labels 0 "l" "XXXX" "0" "0" "1" | Table1 2 - - "JMP  l" "C3   XX   XX" default | 3 - - "DAD"
caption: TipsLabel="Select Register Pair." | shown: RegisterBox | hidden: LabelBox | enabled: REG 8
disabled: REG 1,3,5..7 | focus: RegisterBox
> escape ; click INST 2 ; click REG 0 ; changes
session: PanelState=8 SelectedInstruction=2 CurrentOpcode=1 | Table1 3 - - "LXI  B," "01"
caption: TipsLabel="Enter 16-bit number and click 'Accept'." | text: LabelCombo="l"
shown: LabelBox | hidden: RegisterBox | enabled: ExistingLabelOption | focus: LabelText
> escape ; click INST 0 ; changes
session: PanelState=9 SelectedInstruction=0 CurrentOpcode=64 | Table1 3 - - "MOV" ""
caption: TipsLabel="Select Register or Memory (Destination)." | shown: RegisterBox
hidden: LabelBox | enabled: REG 1,3,5..7 | disabled: REG 8 | focus: RegisterBox
> click REG 0 ; changes
session: PanelState=10 | Table1 3 - - "MOV  B,"
caption: TipsLabel="Select Register or Memory (Source)."
> escape ; click INST 68 ; changes
session: PanelState=11 SelectedInstruction=68 CurrentOpcode=197 | Table1 3 - - "PUSH"
caption: TipsLabel="Select Register Pair." | enabled: REG 9 | disabled: REG 1,3,5..7
> escape ; click INST 67 ; changes
session: PanelState=12 SelectedInstruction=67 CurrentOpcode=199 | Table1 3 - - "RST"
caption: DataTypeLabel="Number" NumberLabel="" TipsLabel="Select Number." | shown: NumberBox
hidden: RegisterBox | disabled: NUM 8..15 NumberAcceptButton | focus: NumberFocusButton
> escape ; click INST 3 ; changes
session: PanelState=13 SelectedInstruction=3 CurrentOpcode=10 | Table1 3 - - "LDAX"
caption: TipsLabel="Select Register Pair." | shown: RegisterBox | hidden: NumberBox
disabled: REG 4,9 | focus: RegisterBox
> escape ; click INST 1 ; changes
session: PanelState=14 SelectedInstruction=1 CurrentOpcode=6 | Table1 3 - - "MVI"
caption: TipsLabel="Select Register or Memory." | enabled: REG 1,3..7
> click REG 0 ; changes
session: PanelState=15 | Table1 3 - - "MVI  B," "06"
caption: TipsLabel="Enter 8-bit number and click 'Accept'." | text: XXCombo="v" | shown: XXBox
hidden: RegisterBox | enabled: ExistingXXOption | focus: XXText | default: XXAcceptButton
> escape ; cell Table1 0 0 ; changes
session: PanelState=25 EntryPending=0 | Table1 3 - - "" ""
caption: DataTypeLabel="Address" NumberLabel="0000"
    TipsLabel="Enter starting address of the Origin and Click Accept', or press 'Esc' to quit."
shown: NumberBox | hidden: XXBox | enabled: NUM 8..15 NumberAcceptButton
default: NumberAcceptButton
> escape ; click NewOrigin ; escape ; click EntryMode ; changes
session: PanelState=29 | caption: EntryMode="Program &Mode" TipsLabel="Data Mode." | shown: DataBox
hidden: NumberBox | enabled: EditMenu/*-PasteEdit FileMenu/* ToolsMenu/* | focus: DataAcceptButton
default: DataAcceptButton
> click CommentsTool ; cell Table1 1 4 ; changes
session: PanelState=20 ClickedRow=1
    SavedComment="Add the equivalent of 'v' to content of Accumulator." | Table1 colors 1,4=C0FFC0
caption: TipsLabel="Select Row, Enter Comments and Click 'Done', or Click 'Cancel'."
text: CommentsTxt="Add the equivalent of 'v' to content of Accumulator." | shown: CommentsBox
hidden: DataBox | disabled: EditMenu/* FileMenu/* ToolsMenu/* | focus: CommentsTxt
> escape ; changes
session: PanelState=29 | Table1 colors 1,4=own | caption: TipsLabel="Data Mode." | shown: DataBox
hidden: CommentsBox | enabled: EditMenu/*-PasteEdit FileMenu/* ToolsMenu/* | focus: DataAcceptButton
> click EntryMode ; click PlaceLabelTool ; changes
session: PanelState=16 | PlaceCombo 0="l" | caption: EntryMode="Data &Mode"
    TipsLabel="Select Row, Enter Label and Click 'Place'; or Click 'Cancel'." | text: PlaceCombo="l"
shown: PlaceBox | hidden: DataBox
disabled: EditMenu/* FileMenu/* PlaceAcceptButton PlaceCombo ToolsMenu/* | checked: NewPlaceOption
focus: PlaceText
> cell Table1 2 0 ; changes
session: PanelState=17 ClickedRow=2 | Table1 colors 2,0=00FF00
> escape ; click FindLabel ; changes
session: PanelState=22 | FindCombo 0="l" | Table1 colors 2,0=own
caption: TipsLabel="Select a Label from list and Click 'Find', or Click 'Done' to close."
text: FindCombo="l" | shown: FindBox | hidden: PlaceBox | focus: FindCombo | default: FindButton
> escape ; click ReplaceLabel ; changes
session: PanelState=23 LastLine=2 | ReplaceCombo 0="l" | Table1 colors 2,2=0000FF/FFFFFF
caption: TipsLabel="Select Labels from table, Enter Label and Click 'Replace'; or Click 'Cancel'."
text: ReplaceCombo="l" | shown: ReplaceBox | hidden: FindBox | disabled: ReplaceCombo
checked: NewReplaceOption
> cell Table1 2 2 ; changes
session: PanelState=24 SelectionAnchor=2 | Table1 colors 2,2=00FF00/000000
> escape ; click DeleteLabels ; changes
session: PanelState=31 | Table1 colors 2,2=own
caption: TipsLabel="Press 'Esc' to quit deleting labels." | hidden: ReplaceBox
> escape ; click FindVariable ; changes
session: PanelState=32
caption: TipsLabel="Select a Variable from list and Click 'Find', or Click 'Done' to close."
shown: XXBox XXDoneButton XXFindButton | hidden: XXAcceptButton | enabled: XXCombo
disabled: ExistingXXOption NewXXOption XXText | default: XXFindButton
> escape ; click ReplaceVariable ; changes
session: PanelState=33 | Table1 colors 1,2=0000FF/FFFFFF | caption: TipsLabel=""
shown: XXReplaceButton | hidden: XXFindButton | enabled: ExistingXXOption NewXXOption XXText
disabled: XXCombo XXReplaceButton | focus: XXText | default: XXReplaceButton
> cell Table1 1 2 ; changes
session: PanelState=34 SelectionAnchor=1 | Table1 colors 1,2=00FF00/000000
> escape ; changes
session: PanelState=1 | Table1 colors 1,2=own | caption: TipsLabel="Program Mode."
shown: InstructionBox | hidden: XXBox | enabled: EditMenu/*-PasteEdit FileMenu/* ToolsMenu/*
# Menu entries that would begin another task are disabled until this one ends; those for the looks
# of the panel are not.
> click INST 0 ; click NewOrigin ; click QuitFile ; click CutEdit ; click EntryMode
refused NewOrigin disabled
refused QuitFile disabled
refused CutEdit disabled
refused EntryMode disabled
> click WriteMode ; click TipsOption ; changes
session: PanelState=9 EntryPending=1 SelectedInstruction=0 CurrentOpcode=64 | Table1 3 - - "MOV"
caption: WriteModeLabel="Insert" | shown: RegisterBox | hidden: InstructionBox TipsBox
disabled: EditMenu/* FileMenu/* ToolsMenu/* | focus: RegisterBox
> click WriteModeLabel ; click TipsOption ; escape
== new file
# A new file asks about changes that were not saved: Cancel keeps all, Yes saves first, and a save
# that is given up keeps all as well.
> click NewFile ; row NOP ; click NewFile ; answer yes ; nopath ; click NewFile ; changes
box question "Save changes to Pgm1.baf?" yesnocancel -> cancel
box question "Save changes to Pgm1.baf?" yesnocancel -> yes
dialog save "Save As" "Brelvanor Assembler Files (*.baf)|*.baf" -> cancel
session: Cursor=2 FileChanged=1 SelectedInstruction=78 MessageResult="6"
Table1 1 - - "NOP" "00" default | caption: TipsLabel="Program Mode."
> answer yes ; path one.baf ; click NewFile ; changes
box question "Save changes to Pgm1.baf?" yesnocancel -> yes
dialog save "Save As" "Brelvanor Assembler Files (*.baf)|*.baf" -> "one.baf"
session: Cursor=1 FileChanged=0 ProjectPath="one.baf" | Table1 1 - - "" "" ""
caption: TipsLabel="New File."
# It ends Insert; a click in Overwrite opens no line then. A large table shrinks to its 32 rows.
> row NOP NOP NOP NOP NOP NOP NOP NOP NOP NOP NOP NOP NOP NOP NOP NOP NOP NOP NOP NOP NOP NOP NOP
> click WriteMode ; answer no ; click NewFile ; changes
box question "Save changes to Pgm1.baf?" yesnocancel -> no
session: MessageResult="7"
> row NOP ; cell Table1 1 2 ; row HLT ; changes
session: Cursor=2 FileChanged=1 SelectionAnchor=1 SelectedInstruction=79 CurrentOpcode=118
    SavedCells(2)="NOP" SavedCells(3)="00" SavedCells(4)="No Operation."
Table1 1 - - "HLT" "76" default | caption: TipsLabel="Program Mode."
# It goes by the last answer, whatever the question was. Cancel: no new file, with nothing asked.
> path answers.baf ; click SaveFile ; answer cancel ; click QuitFile ; click NewFile ; changes
dialog save "Save As" "Brelvanor Assembler Files (*.baf)|*.baf" -> "answers.baf"
box question "Are you sure you want to quit? You will lose unsaved information." okcancel -> cancel
session: FileOrigin=3 FileChanged=0 FileName="answers.baf" ProjectPath="answers.baf"
    MessageResult="2"
caption: ProgrammingPanel="Brelvanor Quilla - answers.baf" TipsLabel="File Saved."
# Yes: a save comes first, and a cancelled one does not hold it up where nothing changed.
> row HLT ; answer yes ; click NewFile ; row RET ; path answers.baf ; click SaveFile
box question "Save changes to answers.baf?" yesnocancel -> yes
dialog save "Save As" "Brelvanor Assembler Files (*.baf)|*.baf" -> "answers.baf"
> click NewFile ; changes
session: Cursor=1 FileOrigin=1 SelectionAnchor=0 SelectedInstruction=58 CurrentOpcode=201
    SavedCells(2)="" SavedCells(3)="" SavedCells(4)="" FileName="Pgm1.baf" MessageResult="6"
Table1 1 - - "" "" ""
caption: ProgrammingPanel="Brelvanor Quilla - Pgm1.baf" TipsLabel="New File."
# Quitting asks whether or not there are changes.
> answer ok ; click QuitFile
box question "Are you sure you want to quit? You will lose unsaved information." okcancel -> ok
ended
