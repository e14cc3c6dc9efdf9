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
> cell Table1 1 0 ; click ExistingPlaceOption ; click PlaceAcceptButton ; click PlaceDoneButton ; changes
session: Selection=32 CurrentRow=32 LastLine=4 FileChanged=1 SelectionAnchor=31 ClickedRow=1
    SelectedInstruction=78 | StringTable rows=42 (10 in at 1) 1="count" 2="loop"
Labels 0 "loop" "XXXX" "1" "1" "1" | Variables 0 "count" "XX" | Table1 rows=42 (10 in at 1)
Table1 1 "loop" - "MVI  A,   count" "3E   XX" default | 2 - - "JMP  loop" "C3   XX   XX" default
Table1 3 - - "HLT" "76" default | 31 - - "NOP" "00" default | colors 11,2=own 32,2=cursor
caption: TipsLabel="Program Mode."
> click ViewPrintInfo ; changes ; close PrintInfo
open PrintInfo
caption: PrintInfo.EquivalentPagesLabel="1" PrintInfo.LabelsLabel="1"
    PrintInfo.ProgramLineLabel="31" PrintInfo.StringsLabel="2" PrintInfo.TotalPagesLabel="2"
    PrintInfo.VariablesLabel="1"
closed PrintInfo
# The comment box comes beside the keys. What is ignored stays in the box and off the pages.
> click PrintComments ; changes ; type PrintCommentText "lost" ; click PrintCommentCancelButton ; show PrintCommentText
session: PanelState=35 | caption: TipsLabel="" | shown: PrintCommentBox
disabled: EditMenu/* FileMenu/* ToolsMenu/* | focus: PrintCommentText
default: PrintCommentDoneButton
PrintCommentText text="lost" enabled=1 visible=0
# A cancelled print changes nothing but the answer.
> answer cancel ; click PrintFile ; changes
box information "Check the default settings of the printer and click 'OK' to print. To cancel print, click 'Cancel'" okcancel -> cancel
session: PanelState=1 MessageResult="2" | caption: TipsLabel="Program Mode."
hidden: PrintCommentBox | enabled: EditMenu/*-PasteEdit FileMenu/* ToolsMenu/*
# A run, stage by stage: nothing can be done meanwhile, and the rows have their addresses.
> answer ok ; click PrintFile ; changes ; click INST 0 ; close ProgrammingPanel ; escape ; tick 10 ; changes
box information "Check the default settings of the printer and click 'OK' to print. To cancel print, click 'Cancel'" okcancel -> ok
session: MessageResult="1" | caption: TipsLabel="Assigning addresses . . ."
disabled: ProgrammingPanel
refused INST disabled
refused ProgrammingPanel disabled
refused TableCancelButton disabled
Labels 0 - "8000" | Table1 1 - "8000" | 2 - "8002" | 3 - "8005" | 31 - "8006"
caption: TipsLabel="Composing print information."
> tick 2029
> tick 1 ; tick 2029
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
> click PageOption 2 ; changes ; answer ok ; click PrintFile ; tick 4039 ; tick 1 ; settle
checked: PageOption 2 | unchecked: PageOption 0
box information "Check the default settings of the printer and click 'OK' to print. To cancel print, click 'Cancel'" okcancel -> ok
page PrintPanel "Pgm1.baf" "lost && found" 2 3
line 0 "" "8007" "RET" "C9" "Return." shade=-
> click PageOption 1 ; changes ; answer ok ; click PrintFile ; settle ; click PageOption 0 ; changes
Table1 32 - "8007" | caption: TipsLabel="Composing print information." | checked: PageOption 1
unchecked: PageOption 2
box information "Check the default settings of the printer and click 'OK' to print. To cancel print, click 'Cancel'" okcancel -> ok
page PrintPanel "Pgm1.baf" "lost && found" 1 3
line 0 "Origin" "8000" "" "" "" shade=0,1,2,3,4
line 1 "loop" "8000" "MVI  A,   count" "3E   XX" "Move the equivalent of 'count' into Accumulator." shade=0,2
line 2 "" "8002" "JMP  loop" "C3   XX   XX" "Jump to address pointed by 'loop'." shade=2
line 3 "" "8005" "HLT" "76" "Halt program execution." shade=-
line 31 "" "8006" "NOP" "00" "No Operation." shade=-
page PrintLabelPanel "Pgm1.baf" "lost && found" 3 3
line 0 "loop" "8000" "" "count" "XX" "" "" "" "" "" "" shade=-
checked: PageOption 0 | unchecked: PageOption 1
# Clearing the text leaves the pages their comment until it is accepted; data mode is returned to.
> click EntryMode ; click PrintComments ; show PrintCommentText ; click ClearComments ; show PrintCommentText
PrintCommentText text="lost && found" enabled=1 visible=1
PrintCommentText text="" enabled=1 visible=1
> click PrintCommentCancelButton ; show TipsLabel
TipsLabel caption="Data Mode." enabled=1 visible=1
> click PrintComments ; enter ; click EntryMode ; changes
caption: TipsLabel="Program Mode."
# No strings, no page for them. A new file empties the box, not the comment of the pages.
> click PrintComments ; type PrintCommentText "kept" ; click PrintCommentDoneButton ; answer no ; click NewFile
box question "Save changes to Pgm1.baf?" yesnocancel -> no
> row NOP ; click PrintComments ; show PrintCommentText ; escape ; click ViewPrintInfo ; changes ; close PrintInfo
PrintCommentText text="" enabled=1 visible=1
open PrintInfo
session: Selection=2 CurrentRow=2 LastLine=1 SelectionAnchor=0 SelectedInstruction=78
    CurrentOpcode=0 MessageResult="7" | StringTable rows=32 (11 out at 1) | Labels count=0
Variables count=0 | Table1 rows=32 (11 out at 23) | 1 "" "" "NOP" "00" | 2..3 - "" "" "" ""
Table1 colors 2,2=cursor
caption: PrintInfo.EquivalentPagesLabel="0" PrintInfo.LabelsLabel="0" PrintInfo.ProgramLineLabel="1"
    PrintInfo.ProgramPagesLabel="1" PrintInfo.StringsLabel="0" PrintInfo.TotalPagesLabel="1"
    PrintInfo.VariablesLabel="0"
closed PrintInfo
> path "sum.baf" ; click SaveAsFile ; answer ok ; click PrintFile ; settle
dialog save "Save As" "Brelvanor Assembler Files (*.baf)|*.baf" -> "sum.baf"
box information "Check the default settings of the printer and click 'OK' to print. To cancel print, click 'Cancel'" okcancel -> ok
page PrintPanel "sum.baf" "kept" 1 1
line 0 "Origin" "8000" "" "" "" shade=0,1,2,3,4
line 1 "" "8000" "NOP" "00" "No Operation." shade=-
# 120 strings take one page, 121 two. They run across the page, labels first, four to a row.
> click NewFile ; click PrintComments ; click PrintCommentDoneButton ; row "JMP a" "CALL b" "ADI v0"
> row "ADI v1" "ADI v2" "ADI v3" "ADI v4" "ADI v5" "ADI v6" "ADI v7" "ADI v8" "ADI v9" "ADI v10" "ADI v11" "ADI v12" "ADI v13" "ADI v14" "ADI v15" "ADI v16" "ADI v17" "ADI v18" "ADI v19" "ADI v20" "ADI v21" "ADI v22" "ADI v23" "ADI v24" "ADI v25" "ADI v26" "ADI v27" "ADI v28" "ADI v29" ; cell Table1 4 2
> row "ADI v30" "ADI v31" "ADI v32" "ADI v33" "ADI v34" "ADI v35" "ADI v36" "ADI v37" "ADI v38" "ADI v39" "ADI v40" "ADI v41" "ADI v42" "ADI v43" "ADI v44" "ADI v45" "ADI v46" "ADI v47" "ADI v48" "ADI v49" "ADI v50" "ADI v51" "ADI v52" "ADI v53" "ADI v54" "ADI v55" "ADI v56" "ADI v57" "ADI v58" ; cell Table1 4 2
> row "ADI v59" "ADI v60" "ADI v61" "ADI v62" "ADI v63" "ADI v64" "ADI v65" "ADI v66" "ADI v67" "ADI v68" "ADI v69" "ADI v70" "ADI v71" "ADI v72" "ADI v73" "ADI v74" "ADI v75" "ADI v76" "ADI v77" "ADI v78" "ADI v79" "ADI v80" "ADI v81" "ADI v82" "ADI v83" "ADI v84" "ADI v85" "ADI v86" "ADI v87" ; cell Table1 4 2
> row "ADI v88" "ADI v89" "ADI v90" "ADI v91" "ADI v92" "ADI v93" "ADI v94" "ADI v95" "ADI v96" "ADI v97" "ADI v98" "ADI v99" "ADI v100" "ADI v101" "ADI v102" "ADI v103" "ADI v104" "ADI v105" "ADI v106" "ADI v107" "ADI v108" "ADI v109" "ADI v110" "ADI v111" "ADI v112" "ADI v113" "ADI v114" "ADI v115" "ADI v116" "ADI v117" ; cell Table1 4 2
> cell Table1 4 2 ; drag Table1 4 2 33 2 ; click DeleteEdit
> click ViewPrintInfo ; show PrintInfo.EquivalentPagesLabel ; close PrintInfo
open PrintInfo
PrintInfo.EquivalentPagesLabel caption="1" enabled=1 visible=1
closed PrintInfo
> row "STA c" ; click ViewPrintInfo ; show PrintInfo.StringsLabel ; show PrintInfo.EquivalentPagesLabel ; close PrintInfo ; click PageOption 1 ; answer ok ; click PrintFile ; settle
open PrintInfo
PrintInfo.StringsLabel caption="121" enabled=1 visible=1
PrintInfo.EquivalentPagesLabel caption="2" enabled=1 visible=1
closed PrintInfo
box information "Check the default settings of the printer and click 'OK' to print. To cancel print, click 'Cancel'" okcancel -> ok
page PrintPanel "Pgm1.baf" "" 1 3
line 0 "Origin" "8000" "" "" "" shade=0,1,2,3,4
line 1 "" "8000" "JMP  a" "C3   XX   XX" "Jump to address pointed by 'a'." shade=2
line 2 "" "8003" "CALL  b" "CD   XX   XX" "Call sub-routine pointed by 'b'." shade=2
line 3 "" "8006" "ADI   v0" "C6   XX" "Add the equivalent of 'v0' to content of Accumulator." shade=2
line 4 "" "8008" "STA  c" "32   XX   XX" "Store content of Accumulator in address pointed by 'c'." shade=2
page PrintLabelPanel "Pgm1.baf" "" 3 3
line 0 "v117" "XX" "" "" "" "" "" "" "" "" "" shade=-
# Even pages alone with one page of listing: the equivalents on page 2 are the first sheet.
> click DeleteUnusedLabels ; click PageOption 2 ; answer ok ; click PrintFile ; settle ; changes
box information "Unused strings have been deleted." ok -> ok
box information "Check the default settings of the printer and click 'OK' to print. To cancel print, click 'Cancel'" okcancel -> ok
page PrintLabelPanel "Pgm1.baf" "" 2 2
line 0 "a" "XXXX" "" "b" "XXXX" "" "c" "XXXX" "" "v0" "XX" shade=-
session: Cursor=5 LastLine=4 SelectionAnchor=4 SelectedInstruction=6 CurrentOpcode=50
    ProjectPath="sum.baf" MessageResult="1" | StringTable 1="a" 2="b" 3="v0" 4="c"
Labels 0 "a" "XXXX" "0" "0" "1" | 1 "b" "XXXX" "0" "0" "1" | 2 "c" "XXXX" "0" "0" "1"
Variables 0 "v0" "XX" | Table1 1 - "8000" "JMP  a" "C3   XX   XX"
Table1 2 - "8003" "CALL  b" "CD   XX   XX" default | 3 - "8006" "ADI   v0" "C6   XX" default
Table1 4 - "8008" "STA  c" "32   XX   XX" default
caption: TipsLabel="Composing print information." | checked: PageOption 2 | unchecked: PageOption 0
# An overflow in a later block goes unseen; in the first it stops the print, and the panel with it.
> click NewOrigin ; key NumberAcceptButton FFFF ; click NumberAcceptButton ; row NOP NOP
> answer ok ; click PrintFile ; settle
box information "Check the default settings of the printer and click 'OK' to print. To cancel print, click 'Cancel'" okcancel -> ok
page PrintLabelPanel "Pgm1.baf" "" 2 2
line 0 "a" "XXXX" "" "b" "XXXX" "" "c" "XXXX" "" "v0" "XX" shade=-
> cell Table1 0 0 ; key NumberAcceptButton FFF9 ; click NumberAcceptButton ; cell Table1 1 2
> answer ok ; click PrintFile ; settle ; changes ; click QuitFile ; close ProgrammingPanel ; settle
box information "Check the default settings of the printer and click 'OK' to print. To cancel print, click 'Cancel'" okcancel -> ok
box critical "Compile error. Invalid address in origin FFF9h." ok -> ok
session: Selection=4 CurrentRow=4 LastLine=8 AddressError=-1 SelectionAnchor=1 ClickedRow=0
    SelectedInstruction=78 CurrentOpcode=0 | OriginList 0="FFF9" | StringTable rows=33
Table1 rows=33 (1 in at 0) | 0 "Origin" "FFF9" | 1 "" "FFF9" "JMP  a" "C3   XX   XX" default
Table1 2 - "FFFC" "CALL  b" "CD   XX   XX" | 3 - "FFFF" "ADI   v0" "C6   XX"
Table1 4 - "8008" "STA  c" "32   XX   XX" | 5 "Origin" "FFFF" "" "" "" | 6..7 - - "NOP" "00" default
Table1 colors 0,0..4=E0E0E0 1,0..4=own 4,2=cursor 5,0..4=E0E0E0 6,2=own
caption: TipsLabel="Print aborted." | disabled: ProgrammingPanel
refused QuitFile disabled
refused ProgrammingPanel disabled
