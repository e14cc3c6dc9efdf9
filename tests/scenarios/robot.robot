== refusals
# What is refused, in the order in which the robot looks.
> click REG 0 ; click INST 1 ; click REG 8 ; click INST 0 ; cell Table1 0 5 ; close OpenForm
refused REG hidden
refused REG disabled
refused INST hidden
refused Table1 outside
refused OpenForm hidden
> drag Table1 1 2 99999999999 2 ; hover Table1 -1 0 ; press REG 9 ; release INST 4 ; show REG 0
refused Table1 outside
refused Table1 outside
refused REG disabled
refused INST hidden
REG 0 caption="B" enabled=1 visible=1
# The rest of a text is dropped where a key or a character finds no one to take it.
> key RegisterBox "xbc" ; type LabelText name ; type XXText "a long name" ; show XXText
refused RegisterBox hidden
refused LabelText hidden
XXText text="a long" enabled=1 visible=1
> clear XXText ; pick XXCombo 0
refused XXCombo disabled
# Enter and Esc press the buttons of the panel. A list that the user may open.
> enter ; type XXText "x" ; enter ; click INST 1 ; escape ; enter ; click INST 15
refused XXAcceptButton disabled
refused XXAcceptButton hidden
> click ExistingXXOption ; pick XXCombo 1 ; pick XXCombo 0 ; show XXCombo
refused XXCombo outside
XXCombo text="x" index=0 count=1 enabled=1 visible=1
> show ExistingXXOption ; show EntryMode ; show HexList
ExistingXXOption checked=1 enabled=1 visible=1
EntryMode caption="Data &Mode" enabled=0 visible=1
HexList enabled=1 visible=0
# Names with their window, and windows that are not open; rows and entries, as many as there are.
> escape ; show ProgrammingPanel.TipsLabel ; click OpenForm.VersionLabel ; dump Table1 -5 0
ProgrammingPanel.TipsLabel caption="Program Mode." enabled=1 visible=1
refused OpenForm.VersionLabel hidden
Table1 0 "Origin" "8000" "" "" ""
> list XXCombo ; list LabelCombo ; click ReplaceVariable ; colors Table1
XXCombo 0 "x"
LabelCombo empty
Table1 0 0 back=E0E0E0 fore=-
Table1 0 1 back=E0E0E0 fore=-
Table1 0 2 back=E0E0E0 fore=-
Table1 0 3 back=E0E0E0 fore=-
Table1 0 4 back=E0E0E0 fore=-
Table1 1 2 back=0000FF fore=FFFFFF
Table1 2 2 back=cursor fore=cursor
# A box with a choice and no answer is cancelled; the panel closes by its frame.
> close ProgrammingPanel ; answer yes ; close ProgrammingPanel ; answer ok ; close ProgrammingPanel
box question "Are you sure you want to quit? You will lose unsaved information." okcancel -> cancel
box question "Are you sure you want to quit? You will lose unsaved information." okcancel -> cancel
box question "Are you sure you want to quit? You will lose unsaved information." okcancel -> ok
ended
== rows and changes
# Nothing differs at the start, nor right after the differences are told. Whole rows by their keys.
> row "MOV  A , M" "MVI M,x" "LXI SP,p" "LXI B , p" "RST 7" "PUSH PSW" "STAX D" "IN x" RNC ; changes
session: Cursor=10 LastLine=9 FileChanged=1 SelectedInstruction=64 CurrentOpcode=208
StringTable 2="x" 3..4="p" 8="x" | Labels 0 "p" "XXXX" "0" "0" "1" | Variables 0 "x" "XX"
Table1 1 - - "MOV  A,  M" "7E" default | 2 - - "MVI  M,   x" "36   XX" default
Table1 3 - - "LXI  SP,  p" "31   XX   XX" default | 4 - - "LXI  B,  p" "01   XX   XX" default
Table1 5 - - "RST 7" "FF" default | 6 - - "PUSH  PSW" "F5" default | 7 - - "STAX  D" "12" default
Table1 8 - - "IN   x" "DB   XX" default | 9 - - "RNC" "D0" default
caption: TipsLabel="Program Mode."
# A refusal is that of the press, and ends the row; what a hidden box holds waits until it is seen.
> row "ADI Big" NOP
refused XXAcceptButton disabled
> escape ; row "JMP x" NOP
box critical "String already used as Label or Variable. Please enter another label." ok -> ok
refused INST hidden
> escape ; row "JMP p" ; click PlaceLabelTool ; type PlaceText ";" ; changes
session: Cursor=11 PanelState=16 SelectedInstruction=37 CurrentOpcode=195 MessageResult="1"
PlaceCombo 0="p" | StringTable 10="p" | Table1 10 - - "JMP  p" "C3   XX   XX" default
caption: TipsLabel="Select Row, Enter Label and Click 'Place'; or Click 'Cancel'."
text: PlaceCombo="p" PlaceText=";" | shown: PlaceBox | hidden: InstructionBox
disabled: EditMenu/* FileMenu/* PlaceAcceptButton PlaceCombo ToolsMenu/* | checked: NewPlaceOption
focus: PlaceText
