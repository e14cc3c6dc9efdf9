# Opens and assembles the project, and opens the simulator at 8000.
path project.baf ; click OpenFile
path program.hex ; click AssembleFile
click SimulationView ; settle
key WatchWindowDialog.AcceptButton 8000 ; click WatchWindowDialog.AcceptButton
