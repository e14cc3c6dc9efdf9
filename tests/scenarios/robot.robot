# What the robot refuses, in the order in which it looks.
open OpenForm
closed OpenForm
> show REG 0
REG 0 caption="B" enabled=1 visible=0
> click REG 0
refused REG hidden
> show XXAcceptButton
XXAcceptButton caption="Accept" enabled=1 visible=0
> click XXAcceptButton
refused XXAcceptButton hidden
> click INST 1
> click REG 8
refused REG disabled
> click INST 0
refused INST hidden
> cell Table1 0 5
refused Table1 outside
> cell Table1 32 0
refused Table1 outside
> drag Table1 1 2 99999999999 2
refused Table1 outside
> hover Table1 -1 0
refused Table1 outside
> click AssembleFile
refused AssembleFile disabled
> close OpenForm
refused OpenForm hidden
> press REG 9
refused REG disabled
> release INST 4
refused INST hidden
> hover REG 9
refused REG disabled
# The rest of a text is dropped where a key or a character finds no one to take it.
> key RegisterBox "xbc"
refused RegisterBox hidden
> show LabelText
LabelText text="" enabled=1 visible=0
> type LabelText name
refused LabelText hidden
> type XXText "a long name"
> show XXText
XXText text="a long" enabled=1 visible=1
> clear XXText
> pick XXCombo 0
refused XXCombo disabled
> click ExistingXXOption
refused ExistingXXOption disabled
# Enter and Esc press the buttons of the panel.
> enter
refused XXAcceptButton disabled
> type XXText "x"
> enter
> click INST 1
> escape
> click REG 8
refused REG disabled
> enter
refused XXAcceptButton hidden
> show TipsLabel
TipsLabel caption="Program Mode." enabled=1 visible=1
# A list that the user may open.
> click INST 15
> click ExistingXXOption
> pick XXCombo 1
refused XXCombo outside
> pick XXCombo -1
refused XXCombo outside
> pick XXCombo 0
> show XXCombo
XXCombo text="x" index=0 count=1 enabled=1 visible=1
> show ExistingXXOption
ExistingXXOption checked=1 enabled=1 visible=1
> show NewXXOption
NewXXOption checked=0 enabled=1 visible=1
> show XXBox
XXBox enabled=1 visible=1
> show EntryMode
EntryMode caption="Data &Mode" enabled=0 visible=1
> show Table1
Table1 enabled=1 visible=1
> show HexList
HexList enabled=1 visible=0
> escape
# Names with their window, and windows that are not open.
> show ProgrammingPanel.TipsLabel
ProgrammingPanel.TipsLabel caption="Program Mode." enabled=1 visible=1
> show OpenForm.VersionLabel
> hover ProgrammingPanel
> hover OpenForm
refused OpenForm hidden
> click OpenForm.VersionLabel
refused OpenForm.VersionLabel hidden
# Rows and entries, as many as there are.
> dump Table1 1 1
Table1 1 "" "" "MVI  B,   x" "06   XX" "Move the equivalent of 'x' into B-register."
> dump ProgrammingPanel.Table1 30 99
> dump Table1 -5 0
Table1 0 "Origin" "8000" "" "" ""
> dump Table1 1 0
> list XXCombo
XXCombo 0 "x"
> list LabelCombo
LabelCombo empty
# Clicks and drags in the table.
> cell Table1 0 0
> key NumberAcceptButton "9g000"
> show NumberLabel
NumberLabel caption="9000" enabled=1 visible=1
> escape
> drag Table1 3 2 1 2
> state
PanelState 1
CurrentRow 2
LastLine 1
Rows 32
FileOrigin 1
FileChanged 1
EntryPending 0
SelectionTop 1
SelectionBottom 3
PortOpen 0
AddressError 0
FileName "Pgm1.baf"
EntryMode "Data &Mode"
WriteModeLabel "Overwrite"
TipsLabel "Program Mode."
Title "Brelvanor Quilla - Pgm1.baf"
MessageResult ""
Boxes InstructionBox
> click WriteModeLabel
> hover Table1 0 2
> hover INST 0
> show InstructionLabel 0
InstructionLabel 0 caption="MOV" enabled=1 visible=1
> colors Table1
Table1 0 0 back=E0E0E0 fore=-
Table1 0 1 back=E0E0E0 fore=-
Table1 0 2 back=E0E0E0 fore=-
Table1 0 3 back=E0E0E0 fore=-
Table1 0 4 back=E0E0E0 fore=-
Table1 2 2 back=cursor fore=cursor
# A box with a choice and no answer is cancelled; the panel closes by its frame.
> close ProgrammingPanel
box question "Are you sure you want to quit? You will lose unsaved information." okcancel -> cancel
> answer yes
> close ProgrammingPanel
box question "Are you sure you want to quit? You will lose unsaved information." okcancel -> cancel
> answer ok
> close ProgrammingPanel
box question "Are you sure you want to quit? You will lose unsaved information." okcancel -> ok
ended
