== download
# A download that ends before it begins: no file chosen, none there, sums
# that end in 12, in 1F, in one digit, a record too short for its count.
> click DownloadFile ; changes
dialog open "Open Hex file" "Hex Files(*.hex)|*.hex" -> cancel
> path none.hex ; click DownloadFile ; show TipsLabel ; path decimal.hex ; click DownloadFile
dialog open "Open Hex file" "Hex Files(*.hex)|*.hex" -> "none.hex"
box critical "Unable to open none.hex." ok -> ok
TipsLabel caption="Reading Hex file . . ." enabled=1 visible=1
dialog open "Open Hex file" "Hex Files(*.hex)|*.hex" -> "decimal.hex"
box critical "Check Sum error in decimal.hex." ok -> ok
> path letter.hex ; click DownloadFile ; show TipsLabel ; path zero.hex ; click DownloadFile
dialog open "Open Hex file" "Hex Files(*.hex)|*.hex" -> "letter.hex"
box critical "Unable to open letter.hex." ok -> ok
TipsLabel caption="Reading Hex file . . ." enabled=1 visible=1
dialog open "Open Hex file" "Hex Files(*.hex)|*.hex" -> "zero.hex"
box critical "Unable to open zero.hex." ok -> ok
> path short.hex ; click DownloadFile
dialog open "Open Hex file" "Hex Files(*.hex)|*.hex" -> "short.hex"
box critical "Unable to open short.hex." ok -> ok
# The user changes his mind at the prompt: the records stay, and the port stays closed.
> changes ; path good.hex ; click DownloadFile ; settle ; changes
session: HexPath="short.hex" HexTitle="short.hex" MessageResult="1"
caption: TipsLabel="Reading Hex file . . ."
dialog open "Open Hex file" "Hex Files(*.hex)|*.hex" -> "good.hex"
box information "Prepare Microprocessor Trainer for download and click 'OK' to download, or click 'Cancel' to cancel download." okcancel -> cancel
session: HexPath="good.hex" HexTitle="good.hex" MessageResult="2"
HexList 0=":0080000080" 1=":018000007609" 2=":00000001FF" | caption: TipsLabel="Ready to download."
# Every stage in its time, from data mode and back to it. The port stays open for 100 ms.
> click EntryMode ; path good.hex ; click DownloadFile ; answer ok ; tick 10 ; show TipsLabel
dialog open "Open Hex file" "Hex Files(*.hex)|*.hex" -> "good.hex"
box information "Prepare Microprocessor Trainer for download and click 'OK' to download, or click 'Cancel' to cancel download." okcancel -> ok
TipsLabel caption="Downloading . . ." enabled=1 visible=1
> tick 10 ; changes ; tick 99 ; tick 1 ; changes ; click EntryMode
port open 1 "2400,N,8,1"
dtr 1
rts 1
sent ":0080000080"
sent ":018000007609"
sent ":00000001FF"
session: PanelState=29 PortOpen=1 MessageResult="1"
caption: EntryMode="Program &Mode" TipsLabel="Download completed." | shown: DataBox
hidden: InstructionBox | focus: DataAcceptButton | default: DataAcceptButton
port close
session: PortOpen=0
# A port that is missing or broken. Broken, it was open, and is taken for open still.
> click PortOption 3 ; port 4 missing ; port 2 broken
> path good.hex ; click DownloadFile ; answer ok ; settle ; changes ; click PortOption 1
dialog open "Open Hex file" "Hex Files(*.hex)|*.hex" -> "good.hex"
box information "Prepare Microprocessor Trainer for download and click 'OK' to download, or click 'Cancel' to cancel download." okcancel -> ok
box critical "Comm4 is not available or already in use. Please assign another port for serial communication." ok -> ok
session: PanelState=1 CommPortNumber=4 MSComm1.CommPort=4
caption: EntryMode="Data &Mode" TipsLabel="Download incomplete." | shown: InstructionBox
hidden: DataBox | checked: PortOption 3 | unchecked: PortOption 0
> path good.hex ; click DownloadFile ; answer ok ; settle ; changes ; escape ; changes
dialog open "Open Hex file" "Hex Files(*.hex)|*.hex" -> "good.hex"
box information "Prepare Microprocessor Trainer for download and click 'OK' to download, or click 'Cancel' to cancel download." okcancel -> ok
port open 2 "2400,N,8,1"
dtr 1
rts 1
box critical "Unable to download." ok -> ok
port close
session: PortOpen=1 CommPortNumber=2 MSComm1.CommPort=2 | checked: PortOption 1
unchecked: PortOption 3
session: PortOpen=0 | caption: TipsLabel="Program Mode."
== upload
# An upload that the user does not want, on a port that is broken, and on one that is in use.
> click PortOption 1 ; port 2 broken ; click UploadFile ; changes ; answer ok ; click UploadFile ; changes ; port 2 busy
box information "Click 'OK' and upload from Microprocessor Trainer, or click 'Cancel' to cancel upload." okcancel -> cancel
session: MessageResult="2" CommPortNumber=2 MSComm1.CommPort=2 | checked: PortOption 1
unchecked: PortOption 0
box information "Click 'OK' and upload from Microprocessor Trainer, or click 'Cancel' to cancel upload." okcancel -> ok
port open 2 "2400,N,8,1"
rts 1
dtr 1
port close
session: MessageResult="1" | caption: TipsLabel="Upload incomplete."
> answer ok ; click UploadFile
box information "Click 'OK' and upload from Microprocessor Trainer, or click 'Cancel' to cancel upload." okcancel -> ok
box critical "Comm2 is not available or already in use. Please assign another port for serial communication." ok -> ok
# A silent trainer: the panel works on meanwhile, and Esc ends the wait from any task.
> click PortOption 0 ; answer ok ; click UploadFile
box information "Click 'OK' and upload from Microprocessor Trainer, or click 'Cancel' to cancel upload." okcancel -> ok
port open 1 "2400,N,8,1"
rts 1
dtr 1
sent "ATV1Q0\r"
> click CommentsTool ; show TipsLabel
TipsLabel caption="Select Row, Enter Comments and Click 'Done', or Click 'Cancel'." enabled=1 visible=1
> escape
port close
> changes
session: CommPortNumber=1 MSComm1.CommPort=1 | checked: PortOption 0 | unchecked: PortOption 1
# While one upload waits, neither another nor a download gets the port. What comes in pieces is one
# text. The file is downloaded as it was saved.
> answer ok ; click UploadFile
box information "Click 'OK' and upload from Microprocessor Trainer, or click 'Cancel' to cancel upload." okcancel -> ok
port open 1 "2400,N,8,1"
rts 1
dtr 1
sent "ATV1Q0\r"
> feed ":0080000080\r\n:01" ; path good.hex ; click DownloadFile ; answer ok ; settle
dialog open "Open Hex file" "Hex Files(*.hex)|*.hex" -> "good.hex"
box information "Prepare Microprocessor Trainer for download and click 'OK' to download, or click 'Cancel' to cancel download." okcancel -> ok
box critical "Comm1 is not available or already in use. Please assign another port for serial communication." ok -> ok
> answer ok ; click UploadFile
box information "Click 'OK' and upload from Microprocessor Trainer, or click 'Cancel' to cancel upload." okcancel -> ok
box critical "Comm1 is not available or already in use. Please assign another port for serial communication." ok -> ok
> feed "80000076092\n:0000" ; show TipsLabel
TipsLabel caption="Uploading . . ." enabled=1 visible=1
> feed "0001FF" ; changes
session: PortOpen=1 HexPath="good.hex" HexTitle="good.hex"
HexList 0=":0080000080" 1=":018000007609" 2=":00000001FF"
caption: TipsLabel="Formatting received data . . ."
> path up.hex ; tick 99 ; tick 1 ; changes ; path up.hex ; click DownloadFile ; answer ok ; settle
dtr 0
rts 0
port close
dialog save "Save to Hex file" "Hex Files(*.hex)|*.hex" -> "up.hex"
session: PortOpen=0 HexPath="up.hex" | caption: TipsLabel="Enter file name and click 'Save'."
dialog open "Open Hex file" "Hex Files(*.hex)|*.hex" -> "up.hex"
box information "Prepare Microprocessor Trainer for download and click 'OK' to download, or click 'Cancel' to cancel download." okcancel -> ok
port open 1 "2400,N,8,1"
dtr 1
rts 1
sent ":0080000080"
sent ":018000007609"
sent ":00000001FF"
port close
# Line ends of one character: records lose their last digit, and nobody looks. What comes with the end
# record stays behind it.
> answer ok ; click UploadFile
box information "Click 'OK' and upload from Microprocessor Trainer, or click 'Cancel' to cancel upload." okcancel -> ok
port open 1 "2400,N,8,1"
rts 1
dtr 1
sent "ATV1Q0\r"
> feed ":018000007609\r:00000001FF\n"
> path no/such.hex ; settle ; list HexList ; changes
dtr 0
rts 0
port close
dialog save "Save to Hex file" "Hex Files(*.hex)|*.hex" -> "no/such.hex"
box critical "Unable to save file." ok -> ok
HexList 0 ":01800000760"
HexList 1 ":00000001FF\n"
session: HexPath="no/such.hex" HexTitle="up.hex"
HexList count=2 (1 out at 0) 0=":01800000760" 1=":00000001FF\n"
caption: TipsLabel="Failed to save file."
# Something ahead of the first colon, and a record too short for its line end: what was cut stays.
> answer ok ; click UploadFile
box information "Click 'OK' and upload from Microprocessor Trainer, or click 'Cancel' to cancel upload." okcancel -> ok
port open 1 "2400,N,8,1"
rts 1
dtr 1
sent "ATV1Q0\r"
> feed "\r\n:00000001FF"
> settle ; list HexList ; changes
dtr 0
rts 0
port close
box critical "Received data is corrupt. Please upload again." ok -> ok
HexList empty
HexList count=0 | caption: TipsLabel="Upload failed."
> answer ok ; click UploadFile
box information "Click 'OK' and upload from Microprocessor Trainer, or click 'Cancel' to cancel upload." okcancel -> ok
port open 1 "2400,N,8,1"
rts 1
dtr 1
sent "ATV1Q0\r"
> feed ":01\r\n::00000001FF"
> settle ; list HexList
dtr 0
rts 0
port close
box critical "Received data is corrupt. Please upload again." ok -> ok
HexList 0 ":01"
HexList 1 ":"
HexList 2 ":00000001FF"
# Esc between the end record and its timer: a new wait, which that timer ends, with nothing to save.
> answer ok ; click UploadFile
box information "Click 'OK' and upload from Microprocessor Trainer, or click 'Cancel' to cancel upload." okcancel -> ok
port open 1 "2400,N,8,1"
rts 1
dtr 1
sent "ATV1Q0\r"
> feed ":00000001FF"
> escape ; answer ok ; click UploadFile
port close
box information "Click 'OK' and upload from Microprocessor Trainer, or click 'Cancel' to cancel upload." okcancel -> ok
port open 1 "2400,N,8,1"
rts 1
dtr 1
sent "ATV1Q0\r"
> settle
dtr 0
rts 0
port close
dialog save "Save to Hex file" "Hex Files(*.hex)|*.hex" -> cancel
> list HexList ; changes
HexList empty
caption: TipsLabel="Upload incomplete."
# Unsaved changes are asked for first. A file without its end record stays open: no later download
# finds its channel free.
> row NOP ; click DownloadFile ; answer no ; path endless.hex ; click DownloadFile ; list HexList
box question "Save changes to Pgm1.baf?" yesnocancel -> cancel
box question "Save changes to Pgm1.baf?" yesnocancel -> no
dialog open "Open Hex file" "Hex Files(*.hex)|*.hex" -> "endless.hex"
box critical "Unable to open endless.hex." ok -> ok
HexList 0 ":018000007609"
HexList 1 ":00000001ff"
> answer no ; path good.hex ; click DownloadFile ; list HexList
box question "Save changes to Pgm1.baf?" yesnocancel -> no
dialog open "Open Hex file" "Hex Files(*.hex)|*.hex" -> "good.hex"
box critical "Unable to open good.hex." ok -> ok
HexList empty
# To quit closes the port.
> answer ok ; click UploadFile
box information "Click 'OK' and upload from Microprocessor Trainer, or click 'Cancel' to cancel upload." okcancel -> ok
port open 1 "2400,N,8,1"
rts 1
dtr 1
sent "ATV1Q0\r"
> answer ok ; click QuitFile
box question "Are you sure you want to quit? You will lose unsaved information." okcancel -> ok
port close
ended
