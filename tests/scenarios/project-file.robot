# A save of a new file asks for its name; a cancel leaves all as it was.
open OpenForm
closed OpenForm
> click SaveFile
dialog save "Save As" "Brelvanor Assembler Files (*.baf)|*.baf" -> cancel
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
TipsLabel "Program Mode."
Title "Brelvanor Quilla - Pgm1.baf"
MessageResult ""
Boxes InstructionBox
# The last four characters of the path give way to the extension, the title keeps the name.
> click INST 1
> click REG 7
> type XXText count
> enter
> click INST 37
> type LabelText loop
> enter
> click INST 79
> click PlaceLabelTool
> cell Table1 3 0
> click ExistingPlaceOption
> enter
> click PlaceDoneButton
> click CommentsTool
> cell Table1 3 4
> clear CommentsTxt
> type CommentsTxt "Größe, конец, 終"
> click CommentDoneButton
> click AssignAddress
> settle
> path program.txt
> click SaveFile
dialog save "Save As" "Brelvanor Assembler Files (*.baf)|*.baf" -> "program.txt"
> state
PanelState 1
CurrentRow 4
LastLine 3
Rows 32
FileOrigin 3
FileChanged 0
EntryPending 0
SelectionTop 4
SelectionBottom 4
PortOpen 0
AddressError 0
FileName "program.txt"
EntryMode "Data &Mode"
WriteModeLabel "Overwrite"
TipsLabel "File Saved."
Title "Brelvanor Quilla - program.txt"
MessageResult ""
Boxes InstructionBox
# A save wipes the addresses, on view too.
> dump Table1
Table1 0 "Origin" "8000" "" "" ""
Table1 1 "" "" "MVI  A,   count" "3E   XX" "Move the equivalent of 'count' into Accumulator."
Table1 2 "" "" "JMP  loop" "C3   05   80" "Jump to address pointed by 'loop'."
Table1 3 "loop" "" "HLT" "76" "Gr\xC3\xB6\xC3\x9Fe, \xD0\xBA\xD0\xBE\xD0\xBD\xD0\xB5\xD1\x86, \xE7\xB5\x82"
# Saved once, it is saved again without a question.
> click INST 78
> click SaveFile
> show TipsLabel
TipsLabel caption="File Saved." enabled=1 visible=1
# The same file opened has the same rows and strings; what the lists say of labels comes later.
> path program.baf
> click OpenFile
dialog open "Open" "Brelvanor Assembler Files (*.baf)|*.baf" -> "program.baf"
> state
PanelState 1
CurrentRow 1
LastLine 1
Rows 32
FileOrigin 2
FileChanged 0
EntryPending 0
SelectionTop 1
SelectionBottom 1
PortOpen 0
AddressError 0
FileName "program.baf"
EntryMode "Data &Mode"
WriteModeLabel "Overwrite"
TipsLabel "File Opened."
Title "Brelvanor Quilla - program.baf"
MessageResult ""
Boxes InstructionBox
> dump Table1
Table1 0 "Origin" "8000" "" "" ""
Table1 1 "" "" "MVI  A,   count" "3E   XX" "Move the equivalent of 'count' into Accumulator."
Table1 2 "" "" "JMP  loop" "C3   05   80" "Jump to address pointed by 'loop'."
Table1 3 "loop" "" "HLT" "76" "Gr\xC3\xB6\xC3\x9Fe, \xD0\xBA\xD0\xBE\xD0\xBD\xD0\xB5\xD1\x86, \xE7\xB5\x82"
Table1 4 "" "" "NOP" "00" "No Operation."
> dump StringTable
StringTable 1 "count"
StringTable 2 "loop"
> colors Table1
Table1 0 0 back=E0E0E0 fore=-
Table1 0 1 back=E0E0E0 fore=-
Table1 0 2 back=E0E0E0 fore=-
Table1 0 3 back=E0E0E0 fore=-
Table1 0 4 back=E0E0E0 fore=-
Table1 1 2 back=cursor fore=cursor
> list LabelCombo
LabelCombo 0 "loop"
> list LabelEqtList
LabelEqtList 0 "8005"
> list LabelUsedList
LabelUsedList empty
> list LabelPlacedList
LabelPlacedList empty
> list LabelLineList
LabelLineList empty
> list XXCombo
XXCombo 0 "count"
> list XXEqtList
XXEqtList 0 "XX"
> list OriginList
OriginList 0 "8000"
> click FindLabel
> list LabelUsedList
LabelUsedList 0 "1"
> list LabelPlacedList
LabelPlacedList 0 "1"
> list LabelLineList
LabelLineList 0 "3"
> escape
# A name without an extension loses its end.
> path myproject
> click SaveAsFile
dialog save "Save As" "Brelvanor Assembler Files (*.baf)|*.baf" -> "myproject"
> path mypro.baf
> click OpenFile
dialog open "Open" "Brelvanor Assembler Files (*.baf)|*.baf" -> "mypro.baf"
> state
PanelState 1
CurrentRow 1
LastLine 1
Rows 32
FileOrigin 2
FileChanged 0
EntryPending 0
SelectionTop 1
SelectionBottom 1
PortOpen 0
AddressError 0
FileName "mypro.baf"
EntryMode "Data &Mode"
WriteModeLabel "Overwrite"
TipsLabel "File Opened."
Title "Brelvanor Quilla - mypro.baf"
MessageResult ""
Boxes InstructionBox
# A path too short, a folder that is not there, a folder in place of a file: all cannot be saved.
> click INST 74
> path abc
> click SaveAsFile
dialog save "Save As" "Brelvanor Assembler Files (*.baf)|*.baf" -> "abc"
box critical "Unable to save file." ok -> ok
> state
PanelState 1
CurrentRow 2
LastLine 2
Rows 32
FileOrigin 2
FileChanged 1
EntryPending 0
SelectionTop 2
SelectionBottom 2
PortOpen 0
AddressError 0
FileName "abc"
EntryMode "Data &Mode"
WriteModeLabel "Overwrite"
TipsLabel "Program Mode."
Title "Brelvanor Quilla - mypro.baf"
MessageResult "1"
Boxes InstructionBox
> path absent/new.baf
> click SaveAsFile
dialog save "Save As" "Brelvanor Assembler Files (*.baf)|*.baf" -> "absent/new.baf"
box critical "Unable to save file." ok -> ok
> click SaveFile
box critical "Unable to save file." ok -> ok
> path folder.txt
> click SaveAsFile
dialog save "Save As" "Brelvanor Assembler Files (*.baf)|*.baf" -> "folder.txt"
box critical "Unable to save file." ok -> ok
> state
PanelState 1
CurrentRow 2
LastLine 2
Rows 32
FileOrigin 2
FileChanged 1
EntryPending 0
SelectionTop 2
SelectionBottom 2
PortOpen 0
AddressError 0
FileName "folder.txt"
EntryMode "Data &Mode"
WriteModeLabel "Overwrite"
TipsLabel "Program Mode."
Title "Brelvanor Quilla - mypro.baf"
MessageResult "1"
Boxes InstructionBox
# The changes stay unsaved, so the next command asks. Yes saves first, and ends if that fails.
> answer yes
> click OpenFile
box question "Save changes to folder.txt?" yesnocancel -> yes
box critical "Unable to save file." ok -> ok
> answer cancel
> click OpenFile
box question "Save changes to folder.txt?" yesnocancel -> cancel
> answer no
> nopath
> click OpenFile
box question "Save changes to folder.txt?" yesnocancel -> no
dialog open "Open" "Brelvanor Assembler Files (*.baf)|*.baf" -> cancel
> dump Table1 2 2
Table1 2 "" "" "JMP  loop" "C3   05   80" "Jump to address pointed by 'loop'."
> answer yes
> click NewFile
box question "Save changes to folder.txt?" yesnocancel -> yes
box critical "Unable to save file." ok -> ok
> answer cancel
> click NewFile
box question "Save changes to folder.txt?" yesnocancel -> cancel
> dump Table1 2 2
Table1 2 "" "" "JMP  loop" "C3   05   80" "Jump to address pointed by 'loop'."
# Files that cannot be opened leave a new program under their name.
> answer no
> path missing.baf
> click OpenFile
box question "Save changes to folder.txt?" yesnocancel -> no
dialog open "Open" "Brelvanor Assembler Files (*.baf)|*.baf" -> "missing.baf"
box critical "Unable to open file." ok -> ok
> state
PanelState 1
CurrentRow 1
LastLine 1
Rows 32
FileOrigin 2
FileChanged 0
EntryPending 0
SelectionTop 1
SelectionBottom 1
PortOpen 0
AddressError 0
FileName "missing.baf"
EntryMode "Data &Mode"
WriteModeLabel "Overwrite"
TipsLabel "Program Mode."
Title "Brelvanor Quilla - missing.baf"
MessageResult "1"
Boxes InstructionBox
> dump Table1
Table1 0 "Origin" "8000" "" "" ""
# The next save makes that file without asking.
> click INST 75
> click SaveFile
> path missing.baf
> click OpenFile
dialog open "Open" "Brelvanor Assembler Files (*.baf)|*.baf" -> "missing.baf"
> dump Table1
Table1 0 "Origin" "8000" "" "" ""
Table1 1 "" "" "SIM" "30" "Set interrupt mask."
> path folder.baf
> click OpenFile
dialog open "Open" "Brelvanor Assembler Files (*.baf)|*.baf" -> "folder.baf"
box critical "Unable to open file." ok -> ok
> path wrong-tag.baf
> click OpenFile
dialog open "Open" "Brelvanor Assembler Files (*.baf)|*.baf" -> "wrong-tag.baf"
box critical "Unable to open file." ok -> ok
> path huge.baf
> click OpenFile
dialog open "Open" "Brelvanor Assembler Files (*.baf)|*.baf" -> "huge.baf"
box critical "Unable to open file." ok -> ok
> path cut.baf
> click OpenFile
dialog open "Open" "Brelvanor Assembler Files (*.baf)|*.baf" -> "cut.baf"
box critical "Unable to open file." ok -> ok
> state
PanelState 1
CurrentRow 1
LastLine 1
Rows 32
FileOrigin 2
FileChanged 0
EntryPending 0
SelectionTop 1
SelectionBottom 1
PortOpen 0
AddressError 0
FileName "cut.baf"
EntryMode "Data &Mode"
WriteModeLabel "Overwrite"
TipsLabel "Program Mode."
Title "Brelvanor Quilla - cut.baf"
MessageResult "1"
Boxes InstructionBox
> list LabelCombo
LabelCombo empty
> list OriginList
OriginList 0 "8000"
# Items need no quotes, and their ends are those of lines or commas; the marks are not compared.
> path unquoted.baf
> click OpenFile
dialog open "Open" "Brelvanor Assembler Files (*.baf)|*.baf" -> "unquoted.baf"
> state
PanelState 1
CurrentRow 1
LastLine 1
Rows 32
FileOrigin 2
FileChanged 0
EntryPending 0
SelectionTop 1
SelectionBottom 1
PortOpen 0
AddressError 0
FileName "unquoted.baf"
EntryMode "Data &Mode"
WriteModeLabel "Overwrite"
TipsLabel "File Opened."
Title "Brelvanor Quilla - unquoted.baf"
MessageResult "1"
Boxes InstructionBox
> dump Table1
Table1 0 "Origin" "7000" "" "" ""
Table1 1 "again" "" "JMP  again" "C3   00   70" "Jump, back"
> dump StringTable
StringTable 1 "again"
> list LabelCombo
LabelCombo 0 "again"
> list LabelEqtList
LabelEqtList 0 "7000"
> list OriginList
OriginList 0 "7000"
# Bytes of another encoding come and go as they are.
> path latin.baf
> click OpenFile
dialog open "Open" "Brelvanor Assembler Files (*.baf)|*.baf" -> "latin.baf"
> dump Table1
Table1 0 "Origin" "8000" "" "" ""
Table1 1 "" "" "HLT" "76" "f\xFCr alle, \xE2\x82\xAC und \x80"
> path again.baf
> click SaveAsFile
dialog save "Save As" "Brelvanor Assembler Files (*.baf)|*.baf" -> "again.baf"
> path again.baf
> click OpenFile
dialog open "Open" "Brelvanor Assembler Files (*.baf)|*.baf" -> "again.baf"
> dump Table1
Table1 0 "Origin" "8000" "" "" ""
Table1 1 "" "" "HLT" "76" "f\xFCr alle, \xE2\x82\xAC und \x80"
# Opening ends data mode and Insert.
> click EntryMode
> click WriteMode
> path program.baf
> click OpenFile
dialog open "Open" "Brelvanor Assembler Files (*.baf)|*.baf" -> "program.baf"
> state
PanelState 1
CurrentRow 1
LastLine 1
Rows 32
FileOrigin 2
FileChanged 0
EntryPending 0
SelectionTop 1
SelectionBottom 1
PortOpen 0
AddressError 0
FileName "program.baf"
EntryMode "Data &Mode"
WriteModeLabel "Overwrite"
TipsLabel "File Opened."
Title "Brelvanor Quilla - program.baf"
MessageResult "1"
Boxes InstructionBox
# A save in data mode ends in data mode, done or not.
> click EntryMode
> click SaveFile
> state
PanelState 29
CurrentRow 1
LastLine 1
Rows 32
FileOrigin 3
FileChanged 0
EntryPending 0
SelectionTop 1
SelectionBottom 1
PortOpen 0
AddressError 0
FileName "program.baf"
EntryMode "Program &Mode"
WriteModeLabel "Overwrite"
TipsLabel "File Saved."
Title "Brelvanor Quilla - program.baf"
MessageResult "1"
Boxes DataBox
> click SaveAsFile
dialog save "Save As" "Brelvanor Assembler Files (*.baf)|*.baf" -> cancel
> show DataBox
DataBox enabled=1 visible=1
> path absent/new.baf
> click SaveAsFile
dialog save "Save As" "Brelvanor Assembler Files (*.baf)|*.baf" -> "absent/new.baf"
box critical "Unable to save file." ok -> ok
> show DataBox
DataBox enabled=1 visible=1
# A new file goes by the last answer, whatever the question was. No: a new file.
> click EntryMode
> click CommentsTool
> click CommentDoneButton
> answer no
> click NewFile
box question "Save changes to new.baf?" yesnocancel -> no
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
MessageResult "7"
Boxes InstructionBox
> click NewFile
> show TipsLabel
TipsLabel caption="New File." enabled=1 visible=1
# Cancel: no new file, even where nothing changed and nothing is asked.
> click INST 78
> path answers.baf
> click SaveFile
dialog save "Save As" "Brelvanor Assembler Files (*.baf)|*.baf" -> "answers.baf"
> answer cancel
> click QuitFile
box question "Are you sure you want to quit? You will lose unsaved information." okcancel -> cancel
> click NewFile
> dump Table1
Table1 0 "Origin" "8000" "" "" ""
Table1 1 "" "" "NOP" "00" "No Operation."
# Yes: a save comes first, and a cancelled one does not hold it up where nothing changed.
> click INST 79
> answer yes
> click NewFile
box question "Save changes to answers.baf?" yesnocancel -> yes
> path answers.baf
> click OpenFile
dialog open "Open" "Brelvanor Assembler Files (*.baf)|*.baf" -> "answers.baf"
> dump Table1
Table1 0 "Origin" "8000" "" "" ""
Table1 1 "" "" "NOP" "00" "No Operation."
Table1 2 "" "" "HLT" "76" "Halt program execution."
> click NewFile
> dump Table1
Table1 0 "Origin" "8000" "" "" ""
> click NewFile
dialog save "Save As" "Brelvanor Assembler Files (*.baf)|*.baf" -> cancel
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
MessageResult "6"
Boxes InstructionBox
