== download
# A download that ends before it begins: no file chosen, none there, sums that end in 12 and 1F.
> click DownloadFile ; path none.hex ; click DownloadFile ; path decimal.hex ; click DownloadFile
dialog open "Open Hex file" "Hex Files(*.hex)|*.hex" -> cancel
dialog open "Open Hex file" "Hex Files(*.hex)|*.hex" -> "none.hex"
box critical "Unable to open none.hex." ok -> ok
dialog open "Open Hex file" "Hex Files(*.hex)|*.hex" -> "decimal.hex"
box critical "Check Sum error in decimal.hex." ok -> ok
> path letter.hex ; click DownloadFile ; changes
dialog open "Open Hex file" "Hex Files(*.hex)|*.hex" -> "letter.hex"
box critical "Unable to open letter.hex." ok -> ok
session: HexPath="letter.hex" HexTitle="letter.hex" MessageResult="1"
HexList 0=":008000009F" 1=":00000001FF" | caption: TipsLabel="Reading Hex file . . ."
# Every stage in its time, from data mode and back to it. The port stays open for 100 ms.
> click EntryMode ; path good.hex ; click DownloadFile ; answer ok ; tick 10 ; show TipsLabel
dialog open "Open Hex file" "Hex Files(*.hex)|*.hex" -> "good.hex"
box information "Prepare Microprocessor Trainer for download and click 'OK' to download, or click 'Cancel' to cancel download." okcancel -> ok
TipsLabel caption="Downloading . . ." enabled=1 visible=1
> tick 10 ; changes ; tick 99 ; show TipsLabel ; tick 1 ; click EntryMode
port open 1 "2400,N,8,1"
dtr 1
rts 1
sent ":0080000080"
sent ":018000007609"
sent ":00000001FF"
session: PanelState=29 PortOpen=1 HexPath="good.hex" HexTitle="good.hex"
HexList count=3 (1 in at 0) 0=":0080000080" 1=":018000007609"
caption: EntryMode="Program &Mode" TipsLabel="Download completed." | shown: DataBox
hidden: InstructionBox | focus: DataAcceptButton | default: DataAcceptButton
TipsLabel caption="Download completed." enabled=1 visible=1
port close
# A port that is missing or broken. Broken, it was open, and is taken for open still.
> click PortOption 3 ; port 4 missing ; path good.hex ; click DownloadFile ; answer ok ; settle
dialog open "Open Hex file" "Hex Files(*.hex)|*.hex" -> "good.hex"
box information "Prepare Microprocessor Trainer for download and click 'OK' to download, or click 'Cancel' to cancel download." okcancel -> ok
box critical "Comm4 is not available or already in use. Please assign another port for serial communication." ok -> ok
> click PortOption 1 ; port 2 broken ; path good.hex ; click DownloadFile ; answer ok ; settle
dialog open "Open Hex file" "Hex Files(*.hex)|*.hex" -> "good.hex"
box information "Prepare Microprocessor Trainer for download and click 'OK' to download, or click 'Cancel' to cancel download." okcancel -> ok
port open 2 "2400,N,8,1"
dtr 1
rts 1
box critical "Unable to download." ok -> ok
port close
> changes ; escape
session: PanelState=1 CommPortNumber=2 MSComm1.CommPort=2
caption: EntryMode="Data &Mode" TipsLabel="Download incomplete." | shown: InstructionBox
hidden: DataBox | checked: PortOption 1 | unchecked: PortOption 0
== upload
# An upload that the user does not want, on a port that is broken, and on one that is in use.
> click PortOption 1 ; port 2 broken ; click UploadFile ; answer ok ; click UploadFile ; changes
box information "Click 'OK' and upload from Microprocessor Trainer, or click 'Cancel' to cancel upload." okcancel -> cancel
box information "Click 'OK' and upload from Microprocessor Trainer, or click 'Cancel' to cancel upload." okcancel -> ok
port open 2 "2400,N,8,1"
rts 1
dtr 1
port close
session: MessageResult="1" CommPortNumber=2 MSComm1.CommPort=2
caption: TipsLabel="Upload incomplete." | checked: PortOption 1 | unchecked: PortOption 0
> port 2 busy ; answer ok ; click UploadFile
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
# While one upload waits, a download does not get the port. What comes in pieces is one text. The
# file is downloaded as it was saved.
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
> feed "80000076092\n:0000" ; show TipsLabel
TipsLabel caption="Uploading . . ." enabled=1 visible=1
> feed "0001FF" ; changes
session: PortOpen=1 HexPath="good.hex" HexTitle="good.hex" CommPortNumber=1 MSComm1.CommPort=1
HexList 0=":0080000080" 1=":018000007609" 2=":00000001FF"
caption: TipsLabel="Formatting received data . . ." | checked: PortOption 0
unchecked: PortOption 1
> path up.hex ; tick 99 ; show TipsLabel ; tick 1 ; show TipsLabel ; path up.hex
TipsLabel caption="Formatting received data . . ." enabled=1 visible=1
dtr 0
rts 0
port close
dialog save "Save to Hex file" "Hex Files(*.hex)|*.hex" -> "up.hex"
TipsLabel caption="Enter file name and click 'Save'." enabled=1 visible=1
> click DownloadFile ; answer ok
dialog open "Open Hex file" "Hex Files(*.hex)|*.hex" -> "up.hex"
> settle ; changes
box information "Prepare Microprocessor Trainer for download and click 'OK' to download, or click 'Cancel' to cancel download." okcancel -> ok
port open 1 "2400,N,8,1"
dtr 1
rts 1
sent ":0080000080"
sent ":018000007609"
sent ":00000001FF"
port close
session: PortOpen=0 HexPath="up.hex" HexTitle="up.hex" | caption: TipsLabel="Download completed."
# A record too short for its line end: what was cut stays.
> answer ok ; click UploadFile
box information "Click 'OK' and upload from Microprocessor Trainer, or click 'Cancel' to cancel upload." okcancel -> ok
port open 1 "2400,N,8,1"
rts 1
dtr 1
sent "ATV1Q0\r"
> feed ":01\r\n::00000001FF" ; settle ; changes
dtr 0
rts 0
port close
box critical "Received data is corrupt. Please upload again." ok -> ok
HexList 0=":01" 1=":" | caption: TipsLabel="Upload failed."
# A save that is given up has no message.
> answer ok ; click UploadFile ; feed ":00000001FF" ; nopath ; settle ; show TipsLabel
box information "Click 'OK' and upload from Microprocessor Trainer, or click 'Cancel' to cancel upload." okcancel -> ok
port open 1 "2400,N,8,1"
rts 1
dtr 1
sent "ATV1Q0\r"
dtr 0
rts 0
port close
dialog save "Save to Hex file" "Hex Files(*.hex)|*.hex" -> cancel
TipsLabel caption="Failed to save file." enabled=1 visible=1
# Unsaved changes are asked for first. A file without its end record stays open: no later download
# finds its channel free.
> row NOP ; click DownloadFile ; answer no ; path endless.hex ; click DownloadFile ; changes
box question "Save changes to Pgm1.baf?" yesnocancel -> cancel
box question "Save changes to Pgm1.baf?" yesnocancel -> no
dialog open "Open Hex file" "Hex Files(*.hex)|*.hex" -> "endless.hex"
box critical "Unable to open endless.hex." ok -> ok
session: Cursor=2 FileChanged=1 SelectedInstruction=78 HexPath="endless.hex" HexTitle="endless.hex"
HexList count=2 (1 out at 0) 0=":018000007609" 1=":00000001ff" | Table1 1 - - "NOP" "00" default
caption: TipsLabel="Reading Hex file . . ."
> answer no ; path good.hex ; click DownloadFile
box question "Save changes to Pgm1.baf?" yesnocancel -> no
dialog open "Open Hex file" "Hex Files(*.hex)|*.hex" -> "good.hex"
box critical "Unable to open good.hex." ok -> ok
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
