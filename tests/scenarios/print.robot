# A new file: one line, one page. The information is modal and has no button.
> click ViewPrintInfo ; changes ; escape ; enter ; click PrintFile ; close PrintInfo
open PrintInfo
caption: PrintInfo.EquivalentPagesLabel="0" PrintInfo.LabelsLabel="0" PrintInfo.ProgramLineLabel="0"
    PrintInfo.ProgramPagesLabel="1" PrintInfo.StringsLabel="0" PrintInfo.TotalPagesLabel="1"
    PrintInfo.VariablesLabel="0"
refused PrintFile modal
closed PrintInfo
# A program of 32 rows takes a page, and its strings another.
> row "MVI A,count" "JMP loop" HLT ; cell Table1 31 2 ; row NOP ; click PlaceLabelTool
> cell Table1 1 0 ; click ExistingPlaceOption ; enter ; click PlaceDoneButton ; click ViewPrintInfo
open PrintInfo
> changes ; close PrintInfo
session: Selection=32 CurrentRow=32 LastLine=4 FileChanged=1 SelectionAnchor=31 ClickedRow=1
    SelectedInstruction=78 | StringTable rows=42 (10 in at 1) 1="count" 2="loop"
Labels 0 "loop" "XXXX" "1" "1" "1" | Variables 0 "count" "XX" | Table1 rows=42 (10 in at 1)
Table1 1 "loop" - "MVI  A,   count" "3E   XX" default | 2 - - "JMP  loop" "C3   XX   XX" default
Table1 3 - - "HLT" "76" default | 31 - - "NOP" "00" default | colors 11,2=own 32,2=cursor
caption: TipsLabel="Program Mode." PrintInfo.EquivalentPagesLabel="1" PrintInfo.LabelsLabel="1"
    PrintInfo.ProgramLineLabel="31" PrintInfo.StringsLabel="2" PrintInfo.TotalPagesLabel="2"
    PrintInfo.VariablesLabel="1"
closed PrintInfo
# The comment box comes beside the keys. What is ignored stays in the box and off the pages.
> click PrintComments ; changes ; type PrintCommentText lost ; click PrintCommentCancelButton
session: PanelState=35 | caption: TipsLabel="" | shown: PrintCommentBox
disabled: EditMenu/* FileMenu/* ToolsMenu/* | focus: PrintCommentText
default: PrintCommentDoneButton
# A cancelled print changes nothing but the answer.
> answer cancel ; click PrintFile ; changes
box information "Check the default settings of the printer and click 'OK' to print. To cancel print, click 'Cancel'" okcancel -> cancel
session: PanelState=1 MessageResult="2" | caption: TipsLabel="Program Mode."
hidden: PrintCommentBox | enabled: EditMenu/*-PasteEdit FileMenu/* ToolsMenu/*
# A run, stage by stage: nothing can be done meanwhile, and the rows have their addresses.
> answer ok ; click PrintFile ; click INST 0 ; close ProgrammingPanel ; escape ; tick 10 ; changes
box information "Check the default settings of the printer and click 'OK' to print. To cancel print, click 'Cancel'" okcancel -> ok
refused INST disabled
refused ProgrammingPanel disabled
refused TableCancelButton disabled
session: MessageResult="1" | Labels 0 - "8000" | Table1 1 - "8000" | 2 - "8002" | 3 - "8005"
Table1 31 - "8006" | caption: TipsLabel="Composing print information." | disabled: ProgrammingPanel
> tick 2029 ; show TipsLabel ; tick 1 ; tick 2029
TipsLabel caption="Composing print information." enabled=0 visible=1
page PrintPanel "Pgm1.baf" "" 1 2
line 0 "Origin" "8000" "" "" "" shade=0,1,2,3,4
line 1 "loop" "8000" "MVI  A,   count" "3E   XX" "Move the equivalent of 'count' into Accumulator." shade=0,2
line 2 "" "8002" "JMP  loop" "C3   XX   XX" "Jump to address pointed by 'loop'." shade=2
line 3 "" "8005" "HLT" "76" "Halt program execution." shade=-
line 31 "" "8006" "NOP" "00" "No Operation." shade=-
> tick 1 ; changes ; tick 9
page PrintLabelPanel "Pgm1.baf" "" 2 2
line 0 "loop" "8000" "" "count" "XX" "" "" "" "" "" "" shade=-
> tick 1 ; changes
enabled: ProgrammingPanel
# 33 rows take two pages. Both filters count the pages they skip, and take the two seconds for them.
> cell Table1 32 2 ; row RET ; click ViewPrintInfo ; changes ; close PrintInfo
open PrintInfo
session: Selection=33 CurrentRow=33 SelectionAnchor=32 SelectedInstruction=58 CurrentOpcode=201
StringTable rows=43 | Table1 rows=43 (1 in at 32) | 32 - - "RET" "C9" default
caption: TipsLabel="Program Mode." PrintInfo.ProgramLineLabel="32" PrintInfo.ProgramPagesLabel="2"
    PrintInfo.TotalPagesLabel="3"
closed PrintInfo
> click PrintComments ; type PrintCommentText " && found" ; click PrintCommentDoneButton
> click PageOption 2 ; answer ok ; click PrintFile ; tick 4039 ; show TipsLabel ; tick 1 ; settle
box information "Check the default settings of the printer and click 'OK' to print. To cancel print, click 'Cancel'" okcancel -> ok
TipsLabel caption="Composing print information." enabled=0 visible=1
page PrintPanel "Pgm1.baf" "lost && found" 2 3
line 0 "" "8007" "RET" "C9" "Return." shade=-
> click PageOption 1 ; answer ok ; click PrintFile ; settle ; changes
box information "Check the default settings of the printer and click 'OK' to print. To cancel print, click 'Cancel'" okcancel -> ok
page PrintPanel "Pgm1.baf" "lost && found" 1 3
line 0 "Origin" "8000" "" "" "" shade=0,1,2,3,4
line 1 "loop" "8000" "MVI  A,   count" "3E   XX" "Move the equivalent of 'count' into Accumulator." shade=0,2
line 2 "" "8002" "JMP  loop" "C3   XX   XX" "Jump to address pointed by 'loop'." shade=2
line 3 "" "8005" "HLT" "76" "Halt program execution." shade=-
line 31 "" "8006" "NOP" "00" "No Operation." shade=-
page PrintLabelPanel "Pgm1.baf" "lost && found" 3 3
line 0 "loop" "8000" "" "count" "XX" "" "" "" "" "" "" shade=-
Table1 32 - "8007" | caption: TipsLabel="Composing print information." | checked: PageOption 1
unchecked: PageOption 0
# Clearing the text leaves the pages their comment until it is accepted; data mode is returned to.
# A new file empties the box, not the comment of the pages.
> click EntryMode ; click PrintComments ; click ClearComments ; type PrintCommentText gone
> click PrintCommentCancelButton ; show TipsLabel ; click EntryMode ; answer no ; click NewFile
TipsLabel caption="Data Mode." enabled=1 visible=1
box question "Save changes to Pgm1.baf?" yesnocancel -> no
> click PrintComments ; changes
session: Selection=1 PanelState=35 CurrentRow=1 LastLine=1 FileChanged=0 SelectionAnchor=0
    MessageResult="7" | StringTable rows=32 (11 out at 1) | Labels count=0 | Variables count=0
Table1 rows=32 (11 out at 23) | 1 "" "" "" "" "" | 2..3 - "" "" "" "" | colors 1,2=cursor
caption: TipsLabel="" | shown: PrintCommentBox | disabled: EditMenu/* FileMenu/* ToolsMenu/*
# Strings run across the page, labels first, four to a row. Even pages alone with one page of
# listing: the equivalents on page 2 are the first sheet.
> escape ; row "JMP a" "CALL b" "ADI v0" "STA c" ; click PageOption 2 ; answer ok ; click PrintFile
box information "Check the default settings of the printer and click 'OK' to print. To cancel print, click 'Cancel'" okcancel -> ok
> settle
page PrintLabelPanel "Pgm1.baf" "lost && found" 2 2
line 0 "a" "XXXX" "" "b" "XXXX" "" "c" "XXXX" "" "v0" "XX" shade=-
# An overflow in the first block stops the print, and the panel with it.
> cell Table1 0 0 ; key NumberAcceptButton FFF9 ; click NumberAcceptButton ; cell Table1 1 2
> answer ok ; click PrintFile ; settle ; show TipsLabel ; click QuitFile ; close ProgrammingPanel
box information "Check the default settings of the printer and click 'OK' to print. To cancel print, click 'Cancel'" okcancel -> ok
box critical "Compile error. Invalid address in origin FFF9h." ok -> ok
TipsLabel caption="Print aborted." enabled=0 visible=1
refused QuitFile disabled
refused ProgrammingPanel disabled
> settle
