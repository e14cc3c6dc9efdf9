# What the program starts with.
open OpenForm
closed OpenForm
> state
PanelState 1
CurrentRow 1
LastLine 1
Rows 32
FileOrigin 1
FileChanged 0
EntryPending 0
SelectionTop 1
SelectionBottom 1
PortOpen 0
AddressError 0
FileName "Pgm1.baf"
EntryMode "Data &Mode"
WriteModeLabel "Overwrite"
TipsLabel "New File."
Title "Brelvanor Quilla - Pgm1.baf"
MessageResult ""
Boxes InstructionBox
> dump Table1
Table1 0 "Origin" "8000" "" "" ""
> show HeadLabel 0
HeadLabel 0 caption="Label" enabled=1 visible=1
> show HeadLabel 1
HeadLabel 1 caption="Addr." enabled=1 visible=1
> show HeadLabel 2
HeadLabel 2 caption="Mnemonic" enabled=1 visible=1
> show HeadLabel 3
HeadLabel 3 caption="Opcode" enabled=1 visible=1
> show HeadLabel 4
HeadLabel 4 caption="Comment" enabled=1 visible=1
# A new file asks about changes that were not saved: Cancel keeps all, Yes saves first, and a save
# that is given up keeps all as well.
> click NewFile
> click INST 78
> click NewFile
box question "Save changes to Pgm1.baf?" yesnocancel -> cancel
> answer yes
> nopath
> click NewFile
box question "Save changes to Pgm1.baf?" yesnocancel -> yes
dialog save "Save As" "Brelvanor Assembler Files (*.baf)|*.baf" -> cancel
> dump Table1 1
Table1 1 "" "" "NOP" "00" "No Operation."
> answer yes
> path one.baf
> click NewFile
box question "Save changes to Pgm1.baf?" yesnocancel -> yes
dialog save "Save As" "Brelvanor Assembler Files (*.baf)|*.baf" -> "one.baf"
> dump Table1
Table1 0 "Origin" "8000" "" "" ""
> show TipsLabel
TipsLabel caption="New File." enabled=1 visible=1
# Quitting asks whether or not there are changes.
> answer ok
> click QuitFile
box question "Are you sure you want to quit? You will lose unsaved information." okcancel -> ok
ended
