== saving
# A save of a new file asks for its name; a cancel leaves all as it was.
> click SaveFile ; changes
dialog save "Save As" "Brelvanor Assembler Files (*.baf)|*.baf" -> cancel
caption: TipsLabel="Program Mode."
# The last four characters of the path give way to the extension, the title keeps the name. A save
# wipes the addresses, on view too. Saved once, it is saved again without a question.
> row "MVI A,count" "JMP loop" HLT ; click PlaceLabelTool ; cell Table1 3 0
> click ExistingPlaceOption ; enter ; click PlaceDoneButton ; click CommentsTool ; cell Table1 3 4
> clear CommentsTxt ; type CommentsTxt "Größe, конец, 終" ; click CommentDoneButton
> click AssignAddress ; settle ; path program.txt ; click SaveFile ; changes
dialog save "Save As" "Brelvanor Assembler Files (*.baf)|*.baf" -> "program.txt"
session: Cursor=4 LastLine=3 FileOrigin=3 ClickedRow=3 SelectedInstruction=79 CurrentOpcode=118
    SavedComment="Halt program execution." FileName="program.txt" ProjectPath="program.baf"
LastAddressList 0="8005" | StringTable 1="count" 2="loop" | Labels 0 "loop" "8005" "3" "1" "1"
Variables 0 "count" "XX" | Table1 1 - - "MVI  A,   count" "3E   XX" default
Table1 2 - - "JMP  loop" "C3   05   80" default | 3 "loop" - "HLT" "76"
    "Gr\xC3\xB6\xC3\x9Fe, \xD0\xBA\xD0\xBE\xD0\xBD\xD0\xB5\xD1\x86, \xE7\xB5\x82"
caption: ProgrammingPanel="Brelvanor Quilla - program.txt" TipsLabel="File Saved."
> row NOP ; click SaveFile
# The same file opened has the same rows and strings; what the lists say of labels comes later.
> path program.baf ; click OpenFile
dialog open "Open" "Brelvanor Assembler Files (*.baf)|*.baf" -> "program.baf"
> click FindLabel ; escape ; changes
session: Cursor=1 FileOrigin=2 SelectedInstruction=78 CurrentOpcode=0 FileName="program.baf"
LastAddressList count=0 | Table1 4 - - "NOP" "00" default
caption: ProgrammingPanel="Brelvanor Quilla - program.baf" TipsLabel="Program Mode."
# A folder in place of a file cannot be saved.
> row RIM ; path folder.txt ; click SaveAsFile ; changes
dialog save "Save As" "Brelvanor Assembler Files (*.baf)|*.baf" -> "folder.txt"
box critical "Unable to save file." ok -> ok
session: Cursor=2 FileChanged=1 SelectedInstruction=74 CurrentOpcode=32
    SavedCells(2)="MVI  A,   count" SavedCells(3)="3E   XX"
    SavedCells(4)="Move the equivalent of 'count' into Accumulator." SavedCells(5)="count"
    FileName="folder.txt" ProjectPath="folder.baf" MessageResult="1" | StringTable 1=""
Table1 1 - - "RIM" "20"
# The changes stay unsaved, so the next command asks. Yes saves first, and ends if that fails.
> answer yes ; click OpenFile ; answer cancel ; click OpenFile ; answer no ; nopath
box question "Save changes to folder.txt?" yesnocancel -> yes
box critical "Unable to save file." ok -> ok
box question "Save changes to folder.txt?" yesnocancel -> cancel
> click OpenFile ; answer yes ; click NewFile
box question "Save changes to folder.txt?" yesnocancel -> no
dialog open "Open" "Brelvanor Assembler Files (*.baf)|*.baf" -> cancel
box question "Save changes to folder.txt?" yesnocancel -> yes
box critical "Unable to save file." ok -> ok
> changes
== opening
# Files that cannot be opened leave a new program under their name, saved there without asking.
> row NOP ; answer no ; path missing.baf ; click OpenFile
box question "Save changes to Pgm1.baf?" yesnocancel -> no
dialog open "Open" "Brelvanor Assembler Files (*.baf)|*.baf" -> "missing.baf"
box critical "Unable to open file." ok -> ok
> row SIM ; click SaveFile ; path missing.baf ; click OpenFile
dialog open "Open" "Brelvanor Assembler Files (*.baf)|*.baf" -> "missing.baf"
> path folder.baf ; click OpenFile ; changes
dialog open "Open" "Brelvanor Assembler Files (*.baf)|*.baf" -> "folder.baf"
box critical "Unable to open file." ok -> ok
session: FileOrigin=2 SelectedInstruction=75 CurrentOpcode=48 FileName="folder.baf"
    ProjectPath="folder.baf" MessageResult="1"
caption: ProgrammingPanel="Brelvanor Quilla - folder.baf" TipsLabel="Program Mode."
# Items need no quotes, and the marks are not compared. Bytes of another encoding come and go as
# they are; a name without an extension loses its end.
> path latin.baf ; click OpenFile ; path another ; click SaveAsFile ; path ano.baf ; click OpenFile
dialog open "Open" "Brelvanor Assembler Files (*.baf)|*.baf" -> "latin.baf"
dialog save "Save As" "Brelvanor Assembler Files (*.baf)|*.baf" -> "another"
dialog open "Open" "Brelvanor Assembler Files (*.baf)|*.baf" -> "ano.baf"
> changes
session: FileName="ano.baf" ProjectPath="ano.baf" | LabelCombo 0="again" | LabelEqtList 0="7000"
OriginList 0="7000" | Table1 0 - "7000"
Table1 1 "again" - "HLT" "76" "f\xFCr alle, \xE2\x82\xAC und \x80"
caption: ProgrammingPanel="Brelvanor Quilla - ano.baf" TipsLabel="File Opened."
