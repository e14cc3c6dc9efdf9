# A comment is typed into the table key by key; an ampersand or a double quote at its end goes at
# once.
open OpenForm
closed OpenForm
> click INST 78
> click INST 1
> key RegisterBox a
> type XXText n
> enter
> click CommentsTool
> show CommentNextButton
CommentNextButton caption="&Next" enabled=1 visible=1
> cell Table1 1 2
> show CommentsTxt
CommentsTxt text="No Operation." enabled=1 visible=1
> colors Table1
Table1 0 0 back=E0E0E0 fore=-
Table1 0 1 back=E0E0E0 fore=-
Table1 0 2 back=E0E0E0 fore=-
Table1 0 3 back=E0E0E0 fore=-
Table1 0 4 back=E0E0E0 fore=-
Table1 1 4 back=C0FFC0 fore=-
Table1 3 2 back=cursor fore=cursor
> clear CommentsTxt
> dump Table1 1 1
Table1 1 "" "" "NOP" "00" ""
> type CommentsTxt "a&b\""
> show CommentsTxt
CommentsTxt text="ab" enabled=1 visible=1
> type CommentsTxt ", c"
> dump Table1 1 1
Table1 1 "" "" "NOP" "00" "ab, c"
> click CommentContinueButton
> show CommentsTxt
CommentsTxt text="ab, c" enabled=1 visible=1
# Next keeps what was typed and takes the row below; the default comment is for rows with an
# opcode, and it shows in the table alone.
> click CommentNextButton
> show CommentsTxt
CommentsTxt text="Move the equivalent of 'n' into Accumulator." enabled=1 visible=1
> clear CommentsTxt
> type CommentsTxt x
> click DefaultCommentButton
> show CommentsTxt
CommentsTxt text="" enabled=1 visible=1
> dump Table1 2 2
Table1 2 "" "" "MVI  A,   n" "3E   XX" "Move the equivalent of 'n' into Accumulator."
> click CommentNextButton
> show DefaultCommentButton
DefaultCommentButton caption="&Default Comment" enabled=0 visible=1
> type CommentsTxt "alone"
> click DefaultCommentButton
refused DefaultCommentButton disabled
> cell Table1 2 0
> type CommentsTxt !
> colors Table1
Table1 0 0 back=E0E0E0 fore=-
Table1 0 1 back=E0E0E0 fore=-
Table1 0 2 back=E0E0E0 fore=-
Table1 0 3 back=E0E0E0 fore=-
Table1 0 4 back=E0E0E0 fore=-
Table1 2 4 back=C0FFC0 fore=-
Table1 3 2 back=cursor fore=cursor
# Ignore takes back the row under edit alone; Esc nothing, Done nothing.
> click CommentCancelButton
> dump Table1 1 3
Table1 1 "" "" "NOP" "00" "ab, c"
Table1 2 "" "" "MVI  A,   n" "3E   XX" "Move the equivalent of 'n' into Accumulator."
Table1 3 "" "" "" "" "alone"
> show CommentsBox
CommentsBox enabled=1 visible=0
> show TipsLabel
TipsLabel caption="Program Mode." enabled=1 visible=1
> click CommentsTool
> cell Table1 3 3
> type CommentsTxt "?"
> escape
> dump Table1 3 3
Table1 3 "" "" "" "" "alone?"
> click CommentsTool
> cell Table1 3 1
> type CommentsTxt "?"
> click CommentDoneButton
> dump Table1 3 3
Table1 3 "" "" "" "" "alone??"
# The last row has no next one. In data mode the tool returns to data mode.
> click EntryMode
> click CommentsTool
> cell Table1 31 4
> show CommentNextButton
CommentNextButton caption="&Next" enabled=0 visible=1
> cell Table1 30 4
> show CommentNextButton
CommentNextButton caption="&Next" enabled=1 visible=1
> click CommentDoneButton
> show TipsLabel
TipsLabel caption="Data Mode." enabled=1 visible=1
> click EntryMode
# An origin may have a comment and stays grey.
> click CommentsTool
> cell Table1 0 4
> show DefaultCommentButton
DefaultCommentButton caption="&Default Comment" enabled=0 visible=1
> type CommentsTxt start
> colors Table1
Table1 0 0 back=E0E0E0 fore=-
Table1 0 1 back=E0E0E0 fore=-
Table1 0 2 back=E0E0E0 fore=-
Table1 0 3 back=E0E0E0 fore=-
Table1 0 4 back=C0FFC0 fore=-
Table1 3 2 back=cursor fore=cursor
> click CommentDoneButton
> colors Table1
Table1 0 0 back=E0E0E0 fore=-
Table1 0 1 back=E0E0E0 fore=-
Table1 0 2 back=E0E0E0 fore=-
Table1 0 3 back=E0E0E0 fore=-
Table1 0 4 back=E0E0E0 fore=-
Table1 3 2 back=cursor fore=cursor
> click CommentsTool
> cell Table1 0 4
> type CommentsTxt ing
> click CommentCancelButton
> dump Table1 0 0
Table1 0 "Origin" "8000" "" "" "start"
> colors Table1
Table1 0 0 back=E0E0E0 fore=-
Table1 0 1 back=E0E0E0 fore=-
Table1 0 2 back=E0E0E0 fore=-
Table1 0 3 back=E0E0E0 fore=-
Table1 0 4 back=E0E0E0 fore=-
Table1 3 2 back=cursor fore=cursor
