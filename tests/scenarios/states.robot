# Every task that the user can begin: its tip, and the one box that is open for it.
open OpenForm
closed OpenForm
> show TipsLabel
TipsLabel caption="New File." enabled=1 visible=1
> show InstructionBox
InstructionBox enabled=1 visible=1
> click INST 15
> show TipsLabel
TipsLabel caption="Enter 8-bit number and click 'Accept'." enabled=1 visible=1
> show XXBox
XXBox enabled=1 visible=1
> show InstructionBox
InstructionBox enabled=1 visible=0
> type XXText v
> enter
> click INST 10
> show TipsLabel
TipsLabel caption="Select Register or Memory." enabled=1 visible=1
> show RegisterBox
RegisterBox enabled=1 visible=1
> escape
> click INST 37
> show TipsLabel
TipsLabel caption="Enter Label and click 'Accept'." enabled=1 visible=1
> show LabelBox
LabelBox enabled=1 visible=1
> type LabelText l
> enter
> click INST 14
> show TipsLabel
TipsLabel caption="Select Register Pair." enabled=1 visible=1
> show RegisterBox
RegisterBox enabled=1 visible=1
> escape
> click INST 2
> show TipsLabel
TipsLabel caption="Select Register Pair." enabled=1 visible=1
> show RegisterBox
RegisterBox enabled=1 visible=1
> click REG 0
> show TipsLabel
TipsLabel caption="Enter 16-bit number and click 'Accept'." enabled=1 visible=1
> show LabelBox
LabelBox enabled=1 visible=1
> show RegisterBox
RegisterBox enabled=1 visible=0
> escape
> click INST 0
> show TipsLabel
TipsLabel caption="Select Register or Memory (Destination)." enabled=1 visible=1
> click REG 0
> show TipsLabel
TipsLabel caption="Select Register or Memory (Source)." enabled=1 visible=1
> show RegisterBox
RegisterBox enabled=1 visible=1
> escape
> click INST 68
> show TipsLabel
TipsLabel caption="Select Register Pair." enabled=1 visible=1
> escape
> click INST 67
> show TipsLabel
TipsLabel caption="Select Number." enabled=1 visible=1
> show NumberBox
NumberBox enabled=1 visible=1
> escape
> click INST 3
> show TipsLabel
TipsLabel caption="Select Register Pair." enabled=1 visible=1
> escape
> click INST 1
> show TipsLabel
TipsLabel caption="Select Register or Memory." enabled=1 visible=1
> click REG 0
> show TipsLabel
TipsLabel caption="Enter 8-bit number and click 'Accept'." enabled=1 visible=1
> show XXBox
XXBox enabled=1 visible=1
> escape
> cell Table1 0 0
> show TipsLabel
TipsLabel caption="Enter starting address of the Origin and Click Accept', or press 'Esc' to quit." enabled=1 visible=1
> show NumberBox
NumberBox enabled=1 visible=1
> escape
> click NewOrigin
> show TipsLabel
TipsLabel caption="Enter starting address of the Origin and Click 'Accept', or press 'Esc' to quit." enabled=1 visible=1
> show NumberBox
NumberBox enabled=1 visible=1
> escape
> click EntryMode
> show TipsLabel
TipsLabel caption="Data Mode." enabled=1 visible=1
> show DataBox
DataBox enabled=1 visible=1
> show InstructionBox
InstructionBox enabled=1 visible=0
> click CommentsTool
> show TipsLabel
TipsLabel caption="Select Row, Enter Comments and Click 'Done', or Click 'Cancel'." enabled=1 visible=1
> show CommentsBox
CommentsBox enabled=1 visible=1
> show DataBox
DataBox enabled=1 visible=0
> cell Table1 1 4
> show TipsLabel
TipsLabel caption="Select Row, Enter Comments and Click 'Done', or Click 'Cancel'." enabled=1 visible=1
> show CommentsBox
CommentsBox enabled=1 visible=1
> escape
> show DataBox
DataBox enabled=1 visible=1
> click EntryMode
> click PlaceLabelTool
> show TipsLabel
TipsLabel caption="Select Row, Enter Label and Click 'Place'; or Click 'Cancel'." enabled=1 visible=1
> show PlaceBox
PlaceBox enabled=1 visible=1
> cell Table1 2 0
> show TipsLabel
TipsLabel caption="Select Row, Enter Label and Click 'Place'; or Click 'Cancel'." enabled=1 visible=1
> show PlaceBox
PlaceBox enabled=1 visible=1
> escape
> click FindLabel
> show TipsLabel
TipsLabel caption="Select a Label from list and Click 'Find', or Click 'Done' to close." enabled=1 visible=1
> show FindBox
FindBox enabled=1 visible=1
> escape
> click ReplaceLabel
> show TipsLabel
TipsLabel caption="Select Labels from table, Enter Label and Click 'Replace'; or Click 'Cancel'." enabled=1 visible=1
> show ReplaceBox
ReplaceBox enabled=1 visible=1
> cell Table1 2 2
> show TipsLabel
TipsLabel caption="Select Labels from table, Enter Label and Click 'Replace'; or Click 'Cancel'." enabled=1 visible=1
> show ReplaceBox
ReplaceBox enabled=1 visible=1
> escape
> click DeleteLabels
> show TipsLabel
TipsLabel caption="Press 'Esc' to quit deleting labels." enabled=1 visible=1
> show InstructionBox
InstructionBox enabled=1 visible=0
> escape
> click FindVariable
> show TipsLabel
TipsLabel caption="Select a Variable from list and Click 'Find', or Click 'Done' to close." enabled=1 visible=1
> show XXBox
XXBox enabled=1 visible=1
> escape
> click ReplaceVariable
> show TipsLabel
TipsLabel caption="" enabled=1 visible=1
> show XXBox
XXBox enabled=1 visible=1
> cell Table1 1 2
> show TipsLabel
TipsLabel caption="" enabled=1 visible=1
> show XXBox
XXBox enabled=1 visible=1
> escape
> show InstructionBox
InstructionBox enabled=1 visible=1
# Menu entries that would begin another task are disabled until this one ends; those for the looks
# of the panel are not.
> click INST 0
> click NewOrigin
refused NewOrigin disabled
> click OpenFile
refused OpenFile disabled
> click SaveFile
refused SaveFile disabled
> click AssembleFile
refused AssembleFile disabled
> click QuitFile
refused QuitFile disabled
> click CutEdit
refused CutEdit disabled
> click FindLabel
refused FindLabel disabled
> click PlaceLabelTool
refused PlaceLabelTool disabled
> click DeleteUnusedLabels
refused DeleteUnusedLabels disabled
> click AssignAddress
refused AssignAddress disabled
> click EntryMode
refused EntryMode disabled
> click WriteMode
> show WriteModeLabel
WriteModeLabel caption="Insert" enabled=1 visible=1
> click WriteModeLabel
> click TipsOption
> show TipsLabel
TipsLabel caption="Select Register or Memory (Destination)." enabled=1 visible=0
> click TipsOption
> show TipsLabel
TipsLabel caption="Select Register or Memory (Destination)." enabled=1 visible=1
> show FileMenu
FileMenu caption="&File" enabled=1 visible=1
> escape
# Paste waits for something to paste.
> show PasteEdit
PasteEdit caption="&Paste" enabled=0 visible=1
> click CopyEdit
> show PasteEdit
PasteEdit caption="&Paste" enabled=1 visible=1
> click NewOrigin
> show PasteEdit
PasteEdit caption="&Paste" enabled=0 visible=1
> escape
