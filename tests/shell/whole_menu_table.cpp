#include "whole_menu_table.h"

using namespace Qt::StringLiterals;

namespace whole_menu {

namespace {

// clang-format off

// The program directory is C:\Kinovra, the data directory C:\Lab\Gait, the trial Walk1 with the data file Walk1.dg,
// the binary file Walk1.pj, the plot Walk1.plt, the graph type Stick.gra. The user is an Expert and has chosen the
// text viewer C:\Tools\Reader.exe. The program that ran last was Noise; all devices are those of the start.
constexpr const char *ItemsWithEverything[]{

// File
R"table(
mnuOpen(0)  refresh filModels; filModels.FileName ""; show drvDrives dirSelect filDatafiles lblDatafiles filModels lblModels
mnuOpen(1)  input [Make a subdirectory.] Enter subdirectory name for directory, c:\lab\gait, or press Cancel
    add Sub; refresh dirSelect filModels; filModels.FileName ""; show drvDrives dirSelect filDatafiles lblDatafiles filModels lblModels
mnuOpen(2)
    box question YesNo [Remove directory] Do you want to remove the current directory, c:\lab\gait?^Note, it must be empty of files.
    box exclamation OK [] Directory, c:\lab\gait, was not empty.^It was not removed.
    refresh filModels; filModels.FileName ""; show drvDrives dirSelect filDatafiles lblDatafiles filModels lblModels
    directory "C:\Lab"; TaskId 6
mnuOpen(3)  explore (none) || in C:\Lab\Gait, normal, document; TaskId 42
    refresh filModels; filModels.FileName ""; show drvDrives dirSelect filDatafiles lblDatafiles filModels lblModels
mnuUser(0)  UserLevel 0; check mnuUser(0); uncheck mnuUser(1)
mnuUser(1)  nothing
mnuDOS(0)  start calc.exe || in C:\Lab\Gait, normal; TaskId 51
mnuDOS(1)  start command.com || in C:\Lab\Gait, maximized; TaskId 51
mnuDOS(2)  start explorer.exe || in C:\Lab\Gait, normal; TaskId 51
mnuDOS(3)  start notepad.exe || in C:\Lab\Gait, normal; TaskId 51
mnuRun  choose *.exe in C:\Kinovra [Select program to run] 1 of *.exe
    open C:\Kinovra\Chosen.exe || in C:\Kinovra, shown; TaskId 42; Answer 52; ProgName "C:\Kinovra\Chosen.exe"
    lblCommand "C:\Kinovra\Chosen.exe"; show lblCommand; directory "C:\Lab\Gait"; InitDir "C:\Lab\Gait"
mnuPrint
    box question OKCancel [Print saved data] Press OK to open Notepad and use its print routine to send the results to a printer.
    open notepad.exe |<Before.out>| in C:\Lab\Gait, normal
mnuPrintSetup  printer
mnuExit  end; directory "C:\DATA"
)table",

// Data
R"table(
mnuDatafile(0)  refresh filDatafiles; show filDatafiles lblDatafiles
mnuDatafile(1)  runs Refila |<Walk1.dg>|; offers Refila; ProgName "Refila"; TaskId 0
mnuDatafile(2)  runs Skelvo |<Walk1.dg>|; ProgName "Skelvo"; TaskId 42; Answer 0
mnuDatafile(3)  start Notepad.exe | <Walk1.dg>| in C:\Lab\Gait, shown; TaskId 51
    ProgName "Notepad"; SelectedFile "Walk1.dg"
mnuDatafile(4)  start C:\Kinovra\Renumber.exe | <Walk1.dg>| in C:\Lab\Gait, shown; TaskId 51; Answer 0
    ProgName "Renumber"; SelectedFile "Walk1.dg"; lblCommand "C:\Kinovra\Renumber.exe Walk1.dg"; show lblCommand
mnuArielType(0)  start C:\Kinovra\Skelvo.exe | /A <Walk1.3d>| in C:\Lab\Gait, shown; TaskId 51; Answer 0
    ProgName "Skelvo"; lblCommand "C:\Kinovra\Skelvo.exe /A Walk1.3d"; show lblCommand
mnuArielType(1)  start C:\Kinovra\Skelvo.exe | /A <Walk1.1t>| in C:\Lab\Gait, shown; TaskId 51; Answer 0
    ProgName "Skelvo"; lblCommand "C:\Kinovra\Skelvo.exe /A Walk1.1t"; show lblCommand
mnuArielType(2)  start C:\Kinovra\Skelvo.exe | /A <Walk1.2t>| in C:\Lab\Gait, shown; TaskId 51; Answer 0
    ProgName "Skelvo"; lblCommand "C:\Kinovra\Skelvo.exe /A Walk1.2t"; show lblCommand
mnuArielType(3)  start C:\Kinovra\Skelvo.exe | /A <Walk1.3t>| in C:\Lab\Gait, shown; TaskId 51; Answer 0
    ProgName "Skelvo"; lblCommand "C:\Kinovra\Skelvo.exe /A Walk1.3t"; show lblCommand
mnuArielType(4)  start C:\Kinovra\Skelvo.exe | /A <Walk1.4t>| in C:\Lab\Gait, shown; TaskId 51; Answer 0
    ProgName "Skelvo"; lblCommand "C:\Kinovra\Skelvo.exe /A Walk1.4t"; show lblCommand
mnuArielType(5)  start C:\Kinovra\Skelvo.exe | /A <Walk1.5t>| in C:\Lab\Gait, shown; TaskId 51; Answer 0
    ProgName "Skelvo"; lblCommand "C:\Kinovra\Skelvo.exe /A Walk1.5t"; show lblCommand
mnuArielType(6)  start C:\Kinovra\Skelvo.exe | /A <Walk1.6t>| in C:\Lab\Gait, shown; TaskId 51; Answer 0
    ProgName "Skelvo"; lblCommand "C:\Kinovra\Skelvo.exe /A Walk1.6t"; show lblCommand
mnuArielType(7)  start C:\Kinovra\Skelvo.exe | /A <Walk1.7t>| in C:\Lab\Gait, shown; TaskId 51; Answer 0
    ProgName "Skelvo"; lblCommand "C:\Kinovra\Skelvo.exe /A Walk1.7t"; show lblCommand
mnuArielType(8)  start C:\Kinovra\Skelvo.exe | /A <Walk1.8t>| in C:\Lab\Gait, shown; TaskId 51; Answer 0
    ProgName "Skelvo"; lblCommand "C:\Kinovra\Skelvo.exe /A Walk1.8t"; show lblCommand
mnuArielType(9)  start C:\Kinovra\Skelvo.exe | /A <Walk1.9t>| in C:\Lab\Gait, shown; TaskId 51; Answer 0
    ProgName "Skelvo"; lblCommand "C:\Kinovra\Skelvo.exe /A Walk1.9t"; show lblCommand
mnuConvert(0)  box exclamation OK [Skelvo] Not yet implemented!
mnuConvert(1)  box exclamation OK [Skelvo] Not yet implemented!
mnuConvert(2)  box exclamation OK [Skelvo] Not yet implemented!
mnuConvert(3)  start C:\Kinovra\Skelvo.exe | /A <Walk1.cda>| in C:\Lab\Gait, shown; ProgName "Skelvo"; TaskId 51
mnuConvert(4)  box exclamation OK [Skelvo] Not yet implemented!
mnuConvert(5)  start C:\Kinovra\Conv2DG.exe | <Walk1.dg>| in C:\Lab\Gait, shown; ProgName "Conv2DG"; TaskId 51
mnuConvert(6)  nothing
)table",

// Model
R"table(
mnuModel(0)  refresh filModels; show filModels lblModels; lblTrial "WALK1"
mnuModel(1)
    box question YesNo [] Do you want to rewrite the model file with information^from the datafile?
    start C:\Kinovra\DG2CFB.exe | /C/M/N/F/G/R <Walk1>| in C:\Lab\Gait, shown; TaskId 51; Answer 6
    ProgName "DG2CFB"; lblCommand "C:\Kinovra\DG2CFB.exe /C/M/N/F/G/R Walk1"; show lblCommand
mnuModel(2)  start C:\Kinovra\FPlate.exe | /F/R <Walk1>| in C:\Lab\Gait, shown; TaskId 51; Answer 0
    ProgName "FPlate"; lblCommand "C:\Kinovra\FPlate.exe /F/R Walk1"; show lblCommand
mnuModel(3)  start C:\Kinovra\modlex.exe || in C:\Lab\Gait, normal; TaskId 51
mnuModel(4)  start Notepad.exe | <Walk1.cfb>| in C:\Lab\Gait, shown; TaskId 51
    ProgName "Notepad.exe"; SelectedFile "Walk1.cfb"
mnuModel(5)  start C:\Kinovra\FPlate.exe | /F/M/N <Walk1.rf2>| in C:\Lab\Gait, shown; TaskId 51; Answer 0
    ProgName "FPlate"; lblCommand "C:\Kinovra\FPlate.exe /F/M/N Walk1.rf2"; show lblCommand
mnuNewModel  choose *.cfb in C:\Before [Select a model file (.CFB)] 1 of *.cfb, must exist
    save (none) in C:\Lab\Gait [Save as] *.cfb
    add Copy.CFB; CurrentTrial "Copy"; lblTrial "COPY"; refresh filModels; show filModels; directory "C:\Lab\Gait"
)table",

// Programs
R"table(
mnuProg(0)  runs Errcheck |<Walk1>|; offers Errcheck; ProgName "Errcheck"; TaskId 42; Answer 0
mnuProg(1)  runs Fourier |<Walk1>|; offers Fourier; ProgName "Fourier"; TaskId 42; Answer 0
mnuProg(2)  runs Noise |<Walk1>|; offers Noise; TaskId 42; Answer 0
mnuProg(3)  runs Kinemati |<Walk1>|; offers Kinemati; ProgName "Kinemati"; TaskId 42; Answer 0
mnuProg(4)  runs Momentum |<Walk1>|; offers Momentum; ProgName "Momentum"; TaskId 42; Answer 0
mnuProg(5)  runs Muscle |<Walk1>|; offers Muscle; ProgName "Muscle"; TaskId 42; Answer 0
mnuProg(6)  runs Energy |<Walk1>|; offers Energy; ProgName "Energy"; TaskId 42; Answer 0
mnuProg(7)  runs Torque |<Walk1>|; offers Torque; ProgName "Torque"; TaskId 42; Answer 0
mnuProg(8)  runs Force |<Walk1>|; offers Force; ProgName "Force"; TaskId 42; Answer 0
mnuProg(9)  runs Powers |<Walk1>|; offers Powers; ProgName "Powers"; TaskId 42; Answer 0
mnuProg(10)  open C:\KINOVRA\INTERACT.EXE |<WALK1>| in C:\Lab\Gait, shown; pause 1
    ProgName "Interact"; SelectedFile "C:\Lab\Gait\Interact.out"; InitDir "C:\Lab\Gait"; TaskId 42; Answer 0
    lblCommand "c:\kinovra\interact.exe walk1"; show lblCommand
mnuProg(11)  runs Simulate |<Walk1>|; offers Simulate; ProgName "Simulate"; TaskId 42; Answer 0
mnuProg(12)  open C:\KINOVRA\INTERACT.EXE |/C <WALK1>| in C:\Lab\Gait, shown; pause 1
    ProgName "Interact"; SelectedFile "C:\Lab\Gait\Interact.out"; InitDir "C:\Lab\Gait"; TaskId 42; Answer 0
    lblCommand "c:\kinovra\interact.exe /c walk1"; show lblCommand
mnuOptions  start C:\Kinovra\Options.exe | /C/R/M/F/G <Walk1>| in C:\Lab\Gait, shown; TaskId 51
    ProgName "Options.exe"; lblCommand "C:\Kinovra\Options.exe /C/R/M/F/G   Walk1"; show lblCommand
)table",

// Average, Animate
R"table(
mnuAverage(0)  show frmNewAverage; txtBinary "Walk1.pj"; comFilenames "Click to View|Walk1.pj"
mnuAverage(1)  runs Average |<Walk1.pj>|; offers Average; ProgName "Average"; TaskId 42; Answer 0
    comFilenames "Walk1.pj"
mnuAverage(2)  show frmNewAverage; BinaryFile ""; txtBinary "Average.av"; comFilenames "Not Available"
    frmNewAverage.Height 5400; grey frmNewAverage.cmdOK
mnuAverage(3)  runs Average |/S <Walk1.pj>|; offers Average; ProgName "Average"; TaskId 42; Answer 0
mnuAverage(4)  show frmViewer; ViewerFile "C:\Kinovra\average.txt"; Answer 0
mnuAverage(5)  open C:\KINOVRA\AVERAGE.EXE | /?| in C:\Lab\Gait, shown; pause 1; offers Noise
    refresh filBinaries filOutputs filPlots; SelectedFile "C:\Lab\Gait\Noise.out"; InitDir "C:\Lab\Gait"
    lblCommand "c:\kinovra\average.exe  /?"; show lblCommand; TaskId 42; Answer 0
mnuSkelvo(0)  start C:\Kinovra\Skelvo.exe | <Walk1.dg>| in C:\Lab\Gait, shown; TaskId 51
    ProgName "Skelvo"; SelectedFile "Walk1.dg"; lblCommand "c:\kinovra\skelvo.exe walk1.dg"; show lblCommand
mnuSkelvo(1)  start C:\Kinovra\Skelvo.exe | <Walk1.cn>| in C:\Lab\Gait, shown; TaskId 51
    ProgName "Skelvo"; SelectedFile "Walk1.cn"; lblCommand "c:\kinovra\skelvo.exe walk1.cn"; show lblCommand
mnuSkelvo(2)  start C:\Kinovra\Skelvo.exe |  /g <Walk1.km>| in C:\Lab\Gait, shown; TaskId 51; Answer 0
    ProgName "Skelvo"; SelectedFile " /g Walk1.km"; lblCommand "c:\kinovra\skelvo.exe  /g walk1.km"; show lblCommand
mnuSkelvo(3)  start C:\Kinovra\Skelvo.exe | <Walk1.sn>| in C:\Lab\Gait, shown; TaskId 51
    ProgName "Skelvo"; SelectedFile "Walk1.sn"; lblCommand "c:\kinovra\skelvo.exe walk1.sn"; show lblCommand
)table",

// Graph
R"table(
mnuGraph(0)  box information OK [] Click on a binary file (usually .PJ) from the 'Binary files' list.
    refresh filBinaries filGraFiles; show filBinaries lblBinaries
mnuGraph(1)  box information OK [] Click on a .GRA file from the 'Graph (.GRA) types' list.
    refresh filGraFiles; show filGraFiles lblGraFiles; hide cmdGraph cmdSelectGra cmdEditGra
mnuGraph(2)  runs Graph |/C /A /Z <Walk1> <Stick.gra>|; events; ProgName "Graph"; BinaryFile "Walk1"; TaskId 42; Answer 0
mnuGraph(3)  start C:\Kinovra\grafow.exe | <Walk1.plt>| in C:\Lab\Gait, normal; SelectedFile "Walk1.plt"; TaskId 51
mnuGraph(4)  start C:\Kinovra\grafod.exe | <Walk1.plt>| in C:\Lab\Gait, normal; SelectedFile "Walk1.plt"; TaskId 51
mnuGraph(5)  open C:\KINOVRA\GRAFOW.EXE || in C:\LAB\GAIT, normal; ProgName "Grafow"; TaskId 42
mnuGraphOptions(0)  check mnuGraphOptions(0)
mnuGraphOptions(1)  check mnuGraphOptions(1)
mnuGraphOptions(2)  check mnuGraphOptions(2)
mnuGraphOptions(3)  check mnuGraphOptions(3)
mnuGraphOptions(4)  check mnuGraphOptions(4)
mnuGraphOptions(5)  nothing
mnuGraphPrint(0)  start C:\Kinovra\Grafow.exe | /2 <Walk1.plt>| in C:\Lab\Gait, shown; TaskId 51
    refresh filPlots; show filPlots lblPlots; ProgName "Grafow"; SelectedFile "Walk1.plt"
mnuGraphPrint(1)  start C:\Kinovra\Grafow.exe | /3 <Walk1.plt>| in C:\Lab\Gait, shown; TaskId 51
    refresh filPlots; show filPlots lblPlots; ProgName "Grafow"; SelectedFile "Walk1.plt"
mnuGraphPrint(2)  start C:\Kinovra\Grafow.exe | /4 <Walk1.plt>| in C:\Lab\Gait, shown; TaskId 51
    refresh filPlots; show filPlots lblPlots; ProgName "Grafow"; SelectedFile "Walk1.plt"
mnuGraphPrint(3)  start C:\Kinovra\Grafow.exe | /5 <Walk1.plt>| in C:\Lab\Gait, shown; TaskId 51
    refresh filPlots; show filPlots lblPlots; ProgName "Grafow"; SelectedFile "Walk1.plt"
mnuGraphPrint(4)  start C:\Kinovra\Grafow.exe | | in C:\Lab\Gait, shown; TaskId 51
    refresh filPlots; show filPlots lblPlots; ProgName "Grafow"; SelectedFile ""
)table",

// View
R"table(
mnuForce(0)  runs FPAnalyz |/F/I <Walk1.rf>|; ProgName "FPAnalyz"; TaskId 42; Answer 0
mnuForce(1)  runs FPHist |/A/C <Walk1.rf>|; ProgName "FPHist"; TaskId 42; Answer 0
mnuForce(2)  runs FPSig |/A/C/D/2 <Walk1.rf>|; ProgName "FPSig"; TaskId 42; Answer 0
mnuForce(3)  runs FPSig |/A/C/D/3 <Walk1.rf>|; ProgName "FPSig"; TaskId 42; Answer 0
mnuView(0)  refresh filBinaries; show filBinaries lblBinaries
mnuView(1)
    choose *.plt in C:\Lab\Gait [Select graph to view] 1 of Plotter files (*.plt)|*.plt|HPGL files (*.plt;*.pgl;*.hpg)|*.plt;*.pgl;*.hpg|Bitmaps (*.pcx;*.bmp)|*.pcx;*.bmp|All files (*.*)|*.*
    start C:\Kinovra\GrafoW.exe | <C:\Lab\Gait\Chosen.plt>| in C:\Lab\Gait, shown; TaskId 51; InitDir "C:\Lab\Gait"
    ProgName "GrafoW"; lblCommand "C:\Kinovra\GrafoW.exe C:\Lab\Gait\Chosen.plt"; show lblCommand
mnuView(2)  refresh filGraFiles; show filGraFiles lblGraFiles; hide cmdGraph cmdSelectGra cmdEditGra
mnuView(3)
    choose Noise.out in C:\Lab\Gait [Select ASCII file to view] 2 of Text files (*.txt)|*.txt|Output files (*.out)|*.out|Listings (*.lst)|*.lst|All files (*.*)|*.*
    start notepad.exe | <C:\Lab\Gait\Chosen.out>| in C:\Lab\Gait, normal; TaskId 51; Answer 0; InitDir "C:\Lab\Gait"
    SelectedFile "C:\Lab\Gait\Chosen.out"
mnuView(4)
    choose (none) in C:\Lab\Gait [Select multimedia file to view] 1 of AVI && MPEG files (*.avi;*.mpg)|*.avi;*.mpg;*.mpe;*.mpeg|All files (*.*)|*.*
    start mplayer.exe | <C:\Lab\Gait\Chosen.avi>| in C:\Lab\Gait, normal; TaskId 51; InitDir "C:\Lab\Gait"
    SelectedFile "C:\Lab\Gait\Chosen.avi"
)table",

// Settings
R"table(
mnuReset  GraphicsSwitch "/A "
mnuListing(0)  GraphicsSwitch ""
mnuListing(1)  check mnuListing(1); uncheck mnuListing(0); GraphicsSwitch ""
    ListingSwitch "/T "; ListingDevice "SCREEN"; lblOutput "SCREEN"
mnuListing(2)  check mnuListing(2); uncheck mnuListing(0); GraphicsSwitch ""
    ListingSwitch "/L "; ListingDevice "PRINTER"; lblOutput "PRINTER"
mnuListing(3)  check mnuListing(3); uncheck mnuListing(0); GraphicsSwitch ""
    ListingSwitch "/N "; ListingDevice "NONE"; lblOutput "NONE"
mnuGraphics(0)  GraphicsSwitch "/A "
mnuGraphics(1)  check mnuGraphics(1); uncheck mnuGraphics(0); GraphicsSwitch ""
    GraphicsDevice "PRINTER"; lblGraphics(1) "PRINTER"
mnuGraphics(2)  check mnuGraphics(2); uncheck mnuGraphics(0); GraphicsSwitch ""
    GraphicsDevice "PLOTTER"; lblGraphics(1) "PLOTTER"
mnuGraphics(3)  check mnuGraphics(3); uncheck mnuGraphics(0); GraphicsSwitch ""
    GraphicsDevice "DISK FILE"; lblGraphics(1) "DISK FILE"
mnuTextViewer(0)  TextViewer "C:\Kinovra\notepad.exe"; check mnuTextViewer(0); uncheck mnuTextViewer(2); Answer 0
mnuTextViewer(1)  TextViewer "C:\Windows\notepad.exe"; check mnuTextViewer(1); uncheck mnuTextViewer(2); Answer 0
mnuTextViewer(2)  choose *.exe in C:\Windows\ [Select a text viewer.] 1 of Programs|*.exe|All files|*.*
    TextViewer "C:\Tools\Chosen.exe"; InitDir "C:\Windows\"; Answer 0
mnuPause  check mnuPause
mnuPrompt  uncheck mnuPrompt
)table",

// Manuals
R"table(
mnuManual(0)  open kinovra.pdf || in C:\Kinovra\manuals\, normal, document; ManualFile "kinovra.pdf"; TaskId 42
mnuManual(1)  open cfbfile.pdf || in C:\Kinovra\manuals\, normal, document; ManualFile "cfbfile.pdf"; TaskId 42
mnuManual(2)  open graph.pdf || in C:\Kinovra\manuals\, normal, document; ManualFile "graph.pdf"; TaskId 42
mnuManual(3)  open skelvo.pdf || in C:\Kinovra\manuals\, normal, document; ManualFile "skelvo.pdf"; TaskId 42
mnuManual(4)  open kv_win.pdf || in C:\Kinovra\manuals\, normal, document; ManualFile "kv_win.pdf"; TaskId 42
mnuManual(5)  open ondex.pdf || in C:\Kinovra\manuals\, normal, document; ManualFile "ondex.pdf"; TaskId 42
mnuManual(6)  open ox2_qrg.pdf || in C:\Kinovra\manuals\, normal, document; ManualFile "ox2_qrg.pdf"; TaskId 42
mnuManual(7)  open simulate.pdf || in C:\Kinovra\manuals\, normal, document; ManualFile "simulate.pdf"; TaskId 42
mnuManual(8)  open binaries.pdf || in C:\Kinovra\manuals\, normal, document; ManualFile "binaries.pdf"; TaskId 42
mnuManual(9)  open (none) || in C:\Kinovra\manuals\, normal, document; ManualFile ""; TaskId 42
)table",

// Help
R"table(
mnuHelpItem(0)  show frmViewer; ViewerFile "C:\Kinovra\Overview.txt"; Answer 0
mnuHelpItem(1)  show frmViewer; ViewerFile "C:\Kinovra\Average.txt"; Answer 0
mnuHelpItem(2)  show frmViewer; ViewerFile "C:\Kinovra\Ondex.txt"; Answer 0
mnuHelpItem(3)  show frmViewer; ViewerFile "C:\Kinovra\Refila.txt"; Answer 0
mnuHelpItem(4)  show frmViewer; ViewerFile "C:\Kinovra\DG_file.txt"; Answer 0
mnuHelpItem(5)  show frmViewer; ViewerFile "C:\Kinovra\Force.txt"; Answer 0
mnuHelpItem(6)  show frmViewer; ViewerFile "C:\Kinovra\Energy.txt"; Answer 0
mnuHelpItem(7)  show frmViewer; ViewerFile "C:\Kinovra\FPlate.txt"; Answer 0
mnuHelpItem(8)  show frmViewer; ViewerFile "C:\Kinovra\Skelvo.txt"; Answer 0
mnuHelpItem(9)  show frmViewer; ViewerFile "C:\Kinovra\Kinemati.txt"; Answer 0
mnuHelpItem(10)  show frmViewer; ViewerFile "C:\Kinovra\Muscle.txt"; Answer 0
mnuHelpItem(11)  show frmViewer; ViewerFile "C:\Kinovra\Momentum.txt"; Answer 0
mnuHelpItem(12)  show frmViewer; ViewerFile "C:\Kinovra\Options.txt"; Answer 0
mnuHelpItem(13)  show frmViewer; ViewerFile "C:\Kinovra\Powers.txt"; Answer 0
mnuHelpItem(14)  show frmViewer; ViewerFile "C:\Kinovra\Readme.txt"; Answer 0
mnuHelpItem(15)  show frmViewer; ViewerFile "C:\Kinovra\Simulate.txt"; Answer 0
mnuHelpItem(16)  show frmViewer; ViewerFile "C:\Kinovra\Torque.txt"; Answer 0
mnuHelpItem(17)  show frmViewer; ViewerFile "C:\Kinovra\UpdateKV.txt"; Answer 0
mnuHelpItem(18)  show frmViewer; ViewerFile "C:\Kinovra\Work.txt"; Answer 0
mnuProgHelp  choose *.exe in C:\Kinovra [Select a program to view its help.] 1 of *.exe, must exist, no read-only
    start C:\Kinovra\Chosen.exe | /? /HELP| in C:\Lab\Gait, shown; TaskId 51; ProgName "C:\Kinovra\Chosen.exe"
    lblCommand "C:\Kinovra\Chosen.exe /? /HELP"; show lblCommand; directory "C:\Lab\Gait"; InitDir "C:\Lab\Gait"
mnuAbout(0)  show frmAbout
mnuAbout(1)  start WinHlp32.EXE || in C:\Lab\Gait, normal
mnuAbout(2)
    box question YesNo [Update Noise Yes/No?] The current version of Noise is 3.05 (build 012).~^~^Do you want download a new version?~^~^Press Yes to download now or No to continue using the current version.
    box question YesNo [Exit?] To use the new version you must exit and reload Noise.~^~^Do you want to exit now?
    Open https://kinovra.example/soft/Noise || in C:\Kinovra, shown, address; TaskId 42; end; directory "C:\DATA"
mnuAbout(3)  Open https://kinovra.example/soft/kinovra.htm || in (none), shown, address; TaskId 42
)table"};

// The same directories, both empty. Nothing has run yet; listings and graphics go to a printer, programs are to
// pause and are not asked about, and all graph options but the first are on.
constexpr const char *ItemsWithNothing[]{

// File
R"table(
mnuOpen(0)  show drvDrives dirSelect filDatafiles lblDatafiles filModels lblModels
mnuOpen(1)  input [Make a subdirectory.] Enter subdirectory name for directory, c:\lab\gait, or press Cancel
    show drvDrives dirSelect filDatafiles lblDatafiles filModels lblModels
mnuOpen(2)
    box question YesNo [Remove directory] Do you want to remove the current directory, c:\lab\gait?^Note, it must be empty of files.
    remove (the directory); DataDir "C:\Lab"; lblPath "c:\lab"; lblTrial "none"; directory "C:\Lab"; TaskId 6
    refresh dirSelect
    show drvDrives dirSelect filDatafiles lblDatafiles filModels lblModels filOutputs lblOutputs filPlots lblPlots
mnuOpen(3)  explore (none) || in C:\Lab\Gait, normal, document; TaskId 42
    show drvDrives dirSelect filDatafiles lblDatafiles filModels lblModels
mnuUser(0)  nothing
mnuUser(1)  UserLevel 1; check mnuUser(1); uncheck mnuUser(0)
mnuDOS(0)  start calc.exe || in C:\Lab\Gait, normal; TaskId 51
mnuDOS(1)  start command.com || in C:\Lab\Gait, maximized; TaskId 51
mnuDOS(2)  start explorer.exe || in C:\Lab\Gait, normal; TaskId 51
mnuDOS(3)  start notepad.exe || in C:\Lab\Gait, normal; TaskId 51
mnuRun  choose *.exe in C:\Kinovra [Select program to run] 1 of *.exe
    lblCommand ""; show lblCommand; directory "C:\Lab\Gait"; InitDir "C:\Lab\Gait"
mnuPrint
    box question OKCancel [Print saved data] Press OK to open Notepad and use its print routine to send the results to a printer.
    open notepad.exe || in C:\Lab\Gait, normal
mnuPrintSetup  printer; box information OK [] No printer was found on this computer.
mnuExit  end; directory "C:\DATA"
)table",

// Data
R"table(
mnuDatafile(0)  box exclamation OK [] No datafiles in this directory.^Open another directory.
    show drvDrives dirSelect filDatafiles lblDatafiles filModels lblModels
mnuDatafile(1)  missing C:\KINOVRA\REFILA.EXE; ProgName "Refila"; TaskId 1
    lblCommand "c:\kinovra\refila.exe /l .dg"; show lblCommand
mnuDatafile(2)  missing C:\KINOVRA\SKELVO.EXE; ProgName "Skelvo"; SelectedFile ".dg"; Answer 1
    lblCommand "c:\kinovra\skelvo.exe .dg"; show lblCommand
mnuDatafile(3)  start Notepad.exe | <.dg>| in C:\Lab\Gait, shown; ProgName "Notepad"; SelectedFile ".dg"; TaskId 51
mnuDatafile(4)  missing C:\LAB\GAIT\.DG; Answer 53
mnuArielType(0)  box exclamation OK [] The Common File '.CF' is missing.; Answer 53
mnuArielType(1)  box exclamation OK [] The Common File '.CF' is missing.; Answer 53
mnuArielType(2)  box exclamation OK [] The Common File '.CF' is missing.; Answer 53
mnuArielType(3)  box exclamation OK [] The Common File '.CF' is missing.; Answer 53
mnuArielType(4)  box exclamation OK [] The Common File '.CF' is missing.; Answer 53
mnuArielType(5)  box exclamation OK [] The Common File '.CF' is missing.; Answer 53
mnuArielType(6)  box exclamation OK [] The Common File '.CF' is missing.; Answer 53
mnuArielType(7)  box exclamation OK [] The Common File '.CF' is missing.; Answer 53
mnuArielType(8)  box exclamation OK [] The Common File '.CF' is missing.; Answer 53
mnuArielType(9)  box exclamation OK [] The Common File '.CF' is missing.; Answer 53
mnuConvert(0)  box exclamation OK [Skelvo] Not yet implemented!
mnuConvert(1)  box exclamation OK [Skelvo] Not yet implemented!
mnuConvert(2)  box exclamation OK [Skelvo] Not yet implemented!
mnuConvert(3)  start C:\Kinovra\Skelvo.exe | /A <.cda>| in C:\Lab\Gait, shown; ProgName "Skelvo"; TaskId 51
mnuConvert(4)  box exclamation OK [Skelvo] Not yet implemented!
mnuConvert(5)  start C:\Kinovra\Conv2DG.exe | <.>| in C:\Lab\Gait, shown; ProgName "Conv2DG"; TaskId 51
mnuConvert(6)  nothing
)table",

// Model
R"table(
mnuModel(0)
    box question YesNo [] No models (.CFB files) in this directory.^Do you want to create a new model (.CFB) file.
    start Notepad.exe | <.cfb>| in C:\Lab\Gait, shown; TaskId 51; Answer 6
    ProgName "Notepad.exe"; SelectedFile ".cfb"; show filModels lblModels
mnuModel(1)  missing C:\LAB\GAIT\.DG; Answer 53
mnuModel(2)  missing C:\LAB\GAIT\.RF; Answer 53
mnuModel(3)  start C:\Kinovra\modlex.exe || in C:\Lab\Gait, normal; TaskId 51
mnuModel(4)  start Notepad.exe | <.cfb>| in C:\Lab\Gait, shown; TaskId 51
    ProgName "Notepad.exe"; SelectedFile ".cfb"
mnuModel(5)  missing C:\LAB\GAIT\.RF2; Answer 53
mnuNewModel  choose *.cfb in C:\Before [Select a model file (.CFB)] 1 of *.cfb, must exist
)table",

// Programs
R"table(
mnuProg(0)
    box information OK [] Data have not been Refined/scaled or Converted.^Click on the Data menu to convert your digitized data.
    Answer 53
mnuProg(1)
    box information OK [] Data have not been Refined/scaled or Converted.^Click on the Data menu to convert your digitized data.
    Answer 53
mnuProg(2)
    box information OK [] Data have not been Refined/scaled or Converted.^Click on the Data menu to convert your digitized data.
    Answer 53
mnuProg(3)
    box information OK [] Data have not been Refined/scaled or Converted.^Click on the Data menu to convert your digitized data.
    Answer 53
mnuProg(4)  missing C:\KINOVRA\MOMENTUM.EXE; ProgName "Momentum"; Answer 1
    lblCommand "c:\kinovra\momentum.exe /l /d "; show lblCommand
mnuProg(5)  missing C:\KINOVRA\MUSCLE.EXE; ProgName "Muscle"; Answer 1
    lblCommand "c:\kinovra\muscle.exe /l /d "; show lblCommand
mnuProg(6)  missing C:\KINOVRA\ENERGY.EXE; ProgName "Energy"; Answer 1
    lblCommand "c:\kinovra\energy.exe /l /d "; show lblCommand
mnuProg(7)  missing C:\KINOVRA\TORQUE.EXE; ProgName "Torque"; Answer 1
    lblCommand "c:\kinovra\torque.exe /l /d "; show lblCommand
mnuProg(8)  missing C:\KINOVRA\FORCE.EXE; ProgName "Force"; Answer 1
    lblCommand "c:\kinovra\force.exe /l /d "; show lblCommand
mnuProg(9)  missing C:\KINOVRA\POWERS.EXE; ProgName "Powers"; Answer 1
    lblCommand "c:\kinovra\powers.exe /l /d "; show lblCommand
mnuProg(10)  missing C:\KINOVRA\INTERACT.EXE; ProgName "Interact"; Answer 1
    lblCommand "c:\kinovra\interact.exe /l /d "; show lblCommand
mnuProg(11)  missing C:\KINOVRA\SIMULATE.EXE; ProgName "Simulate"; Answer 1
    lblCommand "c:\kinovra\simulate.exe /l /d "; show lblCommand
mnuProg(12)  missing C:\KINOVRA\INTERACT.EXE; ProgName "Interact"; Answer 1
    lblCommand "c:\kinovra\interact.exe /l /c /d "; show lblCommand
mnuOptions  start C:\Kinovra\Options.exe | /C/R/M/F/G | in C:\Lab\Gait, shown; TaskId 51
    ProgName "Options.exe"; lblCommand "C:\Kinovra\Options.exe /C/R/M/F/G   "; show lblCommand
)table",

// Average, Animate
R"table(
mnuAverage(0)  show frmNewAverage; txtBinary "Average.av"; comFilenames "Not Available"
    frmNewAverage.Height 5400; grey frmNewAverage.cmdOK
mnuAverage(1)
    box question YesNoCancel [Binary data file not selected] No binary data file was selected.  Press Yes to use default (.pj), No to select another file or Cancel to quit.
    missing C:\KINOVRA\AVERAGE.EXE; BinaryFile ".pj"; comFilenames ".pj"; ProgName "Average"; TaskId 6; Answer 1
    lblCommand "c:\kinovra\average.exe /l .pj"; show lblCommand
mnuAverage(2)  show frmNewAverage; txtBinary "Average.av"; comFilenames "Not Available"
    frmNewAverage.Height 5400; grey frmNewAverage.cmdOK
mnuAverage(3)
    box question YesNoCancel [Binary data file not selected] No binary data file was selected.  Press Yes to use default (.pj), No to select another file or Cancel to quit.
    missing C:\KINOVRA\AVERAGE.EXE; BinaryFile ".pj"; ProgName "Average"; TaskId 6; Answer 1
    lblCommand "c:\kinovra\average.exe /l /s .pj"; show lblCommand
mnuAverage(4)  missing C:\KINOVRA\AVERAGE.TXT
    box question YesNoCancel [Binary data file not selected] No binary data file was selected.  Press Yes to use default (.pj), No to select another file or Cancel to quit.
    missing C:\KINOVRA\AVERAGE.EXE; BinaryFile ".pj"; ProgName "Average"; TaskId 6; Answer 1
    lblCommand "c:\kinovra\average.exe /l .pj"; show lblCommand
mnuAverage(5)  missing C:\KINOVRA\AVERAGE.EXE; Answer 1; lblCommand "c:\kinovra\average.exe  /?"; show lblCommand
mnuSkelvo(0)  start C:\Kinovra\Skelvo.exe | <.dg>| in C:\Lab\Gait, shown; TaskId 51
    ProgName "Skelvo"; SelectedFile ".dg"; lblCommand "c:\kinovra\skelvo.exe .dg"; show lblCommand
mnuSkelvo(1)  start C:\Kinovra\Skelvo.exe | <.cn>| in C:\Lab\Gait, shown; TaskId 51
    ProgName "Skelvo"; SelectedFile ".cn"; lblCommand "c:\kinovra\skelvo.exe .cn"; show lblCommand
mnuSkelvo(2)  start C:\Kinovra\Skelvo.exe | <.km>| in C:\Lab\Gait, shown; TaskId 51; Answer 53
    ProgName "Skelvo"; SelectedFile ".km"; lblCommand "c:\kinovra\skelvo.exe .km"; show lblCommand
mnuSkelvo(3)  start C:\Kinovra\Skelvo.exe | <.sn>| in C:\Lab\Gait, shown; TaskId 51
    ProgName "Skelvo"; SelectedFile ".sn"; lblCommand "c:\kinovra\skelvo.exe .sn"; show lblCommand
)table",

// Graph
R"table(
mnuGraph(0)  box exclamation OK [] No binary files in this directory.
mnuGraph(1)  box exclamation OK [] No .GRA files were found in the program directory.
    hide cmdGraph cmdSelectGra cmdEditGra
mnuGraph(2)  box exclamation OK [] Select a trial from the Data or Model menus first.
    show drvDrives dirSelect filDatafiles lblDatafiles filModels lblModels
mnuGraph(3)  box exclamation OK [] No graphs in this directory.
mnuGraph(4)  box exclamation OK [] No graphs in this directory.
mnuGraph(5)  open C:\KINOVRA\GRAFOW.EXE || in C:\LAB\GAIT, normal; ProgName "Grafow"; TaskId 42
mnuGraphOptions(0)  check mnuGraphOptions(0); uncheck mnuGraphOptions(1)
mnuGraphOptions(1)  uncheck mnuGraphOptions(1)
mnuGraphOptions(2)  uncheck mnuGraphOptions(2)
mnuGraphOptions(3)  uncheck mnuGraphOptions(3)
mnuGraphOptions(4)  uncheck mnuGraphOptions(4)
mnuGraphOptions(5)  uncheck mnuGraphOptions(1) mnuGraphOptions(2) mnuGraphOptions(3) mnuGraphOptions(4)
mnuGraphPrint(0)  box exclamation OK [] No graphs in this directory.
mnuGraphPrint(1)  box exclamation OK [] No graphs in this directory.
mnuGraphPrint(2)  box exclamation OK [] No graphs in this directory.
mnuGraphPrint(3)  box exclamation OK [] No graphs in this directory.
mnuGraphPrint(4)  box exclamation OK [] No graphs in this directory.
)table",

// View
R"table(
mnuForce(0)  box exclamation OK [] Select a trial from the Select trial menu.
mnuForce(1)  box exclamation OK [] Select a trial from the Select trial menu.
mnuForce(2)  box exclamation OK [] Select a trial from the Select trial menu.
mnuForce(3)  box exclamation OK [] Select a trial from the Select trial menu.
mnuView(0)  box exclamation OK [] No binary files in this directory.
mnuView(1)
    choose *.plt in C:\Lab\Gait [Select graph to view] 1 of Plotter files (*.plt)|*.plt|HPGL files (*.plt;*.pgl;*.hpg)|*.plt;*.pgl;*.hpg|Bitmaps (*.pcx;*.bmp)|*.pcx;*.bmp|All files (*.*)|*.*
    InitDir "C:\Lab\Gait"
mnuView(2)  box exclamation OK [] No .GRA files were found in the program directory.
    hide cmdGraph cmdSelectGra cmdEditGra
mnuView(3)
    choose *.out in C:\Lab\Gait [Select ASCII file to view] 2 of Text files (*.txt)|*.txt|Output files (*.out)|*.out|Listings (*.lst)|*.lst|All files (*.*)|*.*
    InitDir "C:\Lab\Gait"; Answer 53
mnuView(4)
    choose (none) in C:\Lab\Gait [Select multimedia file to view] 1 of AVI && MPEG files (*.avi;*.mpg)|*.avi;*.mpg;*.mpe;*.mpeg|All files (*.*)|*.*
    InitDir "C:\Lab\Gait"
)table",

// Settings
R"table(
mnuReset  check mnuListing(0) mnuGraphics(0); uncheck mnuListing(2) mnuGraphics(1)
    ListingSwitch ""; ListingDevice "DISK FILE"; lblOutput "DISK FILE"
    GraphicsSwitch "/A "; GraphicsDevice "SCREEN"; lblGraphics(1) "SCREEN"
mnuListing(0)  check mnuListing(0); uncheck mnuListing(2)
    ListingSwitch ""; ListingDevice "DISK FILE"; lblOutput "DISK FILE"
mnuListing(1)  check mnuListing(1); uncheck mnuListing(2)
    ListingSwitch "/T "; ListingDevice "SCREEN"; lblOutput "SCREEN"
mnuListing(2)  nothing
mnuListing(3)  check mnuListing(3); uncheck mnuListing(2)
    ListingSwitch "/N "; ListingDevice "NONE"; lblOutput "NONE"
mnuGraphics(0)  check mnuGraphics(0); uncheck mnuGraphics(1)
    GraphicsSwitch "/A "; GraphicsDevice "SCREEN"; lblGraphics(1) "SCREEN"
mnuGraphics(1)  nothing
mnuGraphics(2)  check mnuGraphics(2); uncheck mnuGraphics(1); GraphicsDevice "PLOTTER"; lblGraphics(1) "PLOTTER"
mnuGraphics(3)  check mnuGraphics(3); uncheck mnuGraphics(1); GraphicsDevice "DISK FILE"; lblGraphics(1) "DISK FILE"
mnuTextViewer(0)  Answer 53
mnuTextViewer(1)  Answer 53
mnuTextViewer(2)  choose *.exe in C:\Windows\ [Select a text viewer.] 1 of Programs|*.exe|All files|*.*
    InitDir "C:\Windows\"; Answer 53
mnuPause  uncheck mnuPause
mnuPrompt  check mnuPrompt
)table",

// Manuals
R"table(
mnuManual(0)  open kinovra.pdf || in C:\Kinovra\manuals\, normal, document; ManualFile "kinovra.pdf"; TaskId 42
mnuManual(1)  open cfbfile.pdf || in C:\Kinovra\manuals\, normal, document; ManualFile "cfbfile.pdf"; TaskId 42
mnuManual(2)  open graph.pdf || in C:\Kinovra\manuals\, normal, document; ManualFile "graph.pdf"; TaskId 42
mnuManual(3)  open skelvo.pdf || in C:\Kinovra\manuals\, normal, document; ManualFile "skelvo.pdf"; TaskId 42
mnuManual(4)  open kv_win.pdf || in C:\Kinovra\manuals\, normal, document; ManualFile "kv_win.pdf"; TaskId 42
mnuManual(5)  open ondex.pdf || in C:\Kinovra\manuals\, normal, document; ManualFile "ondex.pdf"; TaskId 42
mnuManual(6)  open ox2_qrg.pdf || in C:\Kinovra\manuals\, normal, document; ManualFile "ox2_qrg.pdf"; TaskId 42
mnuManual(7)  open simulate.pdf || in C:\Kinovra\manuals\, normal, document; ManualFile "simulate.pdf"; TaskId 42
mnuManual(8)  open binaries.pdf || in C:\Kinovra\manuals\, normal, document; ManualFile "binaries.pdf"; TaskId 42
mnuManual(9)  open (none) || in C:\Kinovra\manuals\, normal, document; ManualFile ""; TaskId 42
)table",

// Help
R"table(
mnuHelpItem(0)  missing C:\KINOVRA\OVERVIEW.TXT; ViewerFile "C:\Kinovra\Overview.txt"; Answer 53
mnuHelpItem(1)  missing C:\KINOVRA\AVERAGE.TXT; ViewerFile "C:\Kinovra\Average.txt"; Answer 53
mnuHelpItem(2)  missing C:\KINOVRA\ONDEX.TXT; ViewerFile "C:\Kinovra\Ondex.txt"; Answer 53
mnuHelpItem(3)  missing C:\KINOVRA\REFILA.TXT; ViewerFile "C:\Kinovra\Refila.txt"; Answer 53
mnuHelpItem(4)  missing C:\KINOVRA\DG_FILE.TXT; ViewerFile "C:\Kinovra\DG_file.txt"; Answer 53
mnuHelpItem(5)  missing C:\KINOVRA\FORCE.TXT; ViewerFile "C:\Kinovra\Force.txt"; Answer 53
mnuHelpItem(6)  missing C:\KINOVRA\ENERGY.TXT; ViewerFile "C:\Kinovra\Energy.txt"; Answer 53
mnuHelpItem(7)  missing C:\KINOVRA\FPLATE.TXT; ViewerFile "C:\Kinovra\FPlate.txt"; Answer 53
mnuHelpItem(8)  missing C:\KINOVRA\SKELVO.TXT; ViewerFile "C:\Kinovra\Skelvo.txt"; Answer 53
mnuHelpItem(9)  missing C:\KINOVRA\KINEMATI.TXT; ViewerFile "C:\Kinovra\Kinemati.txt"; Answer 53
mnuHelpItem(10)  missing C:\KINOVRA\MUSCLE.TXT; ViewerFile "C:\Kinovra\Muscle.txt"; Answer 53
mnuHelpItem(11)  missing C:\KINOVRA\MOMENTUM.TXT; ViewerFile "C:\Kinovra\Momentum.txt"; Answer 53
mnuHelpItem(12)  missing C:\KINOVRA\OPTIONS.TXT; ViewerFile "C:\Kinovra\Options.txt"; Answer 53
mnuHelpItem(13)  missing C:\KINOVRA\POWERS.TXT; ViewerFile "C:\Kinovra\Powers.txt"; Answer 53
mnuHelpItem(14)  missing C:\KINOVRA\README.TXT; ViewerFile "C:\Kinovra\Readme.txt"; Answer 53
mnuHelpItem(15)  missing C:\KINOVRA\SIMULATE.TXT; ViewerFile "C:\Kinovra\Simulate.txt"; Answer 53
mnuHelpItem(16)  missing C:\KINOVRA\TORQUE.TXT; ViewerFile "C:\Kinovra\Torque.txt"; Answer 53
mnuHelpItem(17)  missing C:\KINOVRA\UPDATEKV.TXT; ViewerFile "C:\Kinovra\UpdateKV.txt"; Answer 53
mnuHelpItem(18)  missing C:\KINOVRA\WORK.TXT; ViewerFile "C:\Kinovra\Work.txt"; Answer 53
mnuProgHelp  choose *.exe in C:\Kinovra [Select a program to view its help.] 1 of *.exe, must exist, no read-only
    lblCommand "*.exe /? /HELP"; show lblCommand; directory "C:\Lab\Gait"; InitDir "C:\Lab\Gait"
mnuAbout(0)  show frmAbout
mnuAbout(1)  start WinHlp32.EXE || in C:\Lab\Gait, normal
mnuAbout(2)
    box question YesNo [Update KVwin98.exe Yes/No?] The current version of KVwin98.exe is 3.05 (build 012).~^~^Do you want download a new version?~^~^Press Yes to download now or No to continue using the current version.
    box question YesNo [Exit?] To use the new version you must exit and reload KVwin98.exe.~^~^Do you want to exit now?
    Open https://kinovra.example/soft/KVwin98.exe || in C:\Kinovra, shown, address; TaskId 42; end; directory "C:\DATA"
mnuAbout(3)  Open https://kinovra.example/soft/kinovra.htm || in (none), shown, address; TaskId 42
)table"};

constexpr const char *ButtonsWithEverything[]{R"table(
cmdEditGra  start notepad.exe | <C:\Kinovra\graphs\Stick.gra>| in C:\Lab\Gait, normal; TaskId 51
cmdSelectGra  refresh filGraFiles; show filGraFiles lblGraFiles; hide cmdGraph cmdSelectGra cmdEditGra
cmdGraph  runs Graph |/C /A /Z <Walk1> <Stick.gra>|; events; ProgName "Graph"; BinaryFile "Walk1"; TaskId 42; Answer 0
cmdForces  store Kinovra/Startup/Datadir "C:\Lab\Gait"
    start C:\Kinovra\forces.exe | <Walk1.rf>| in C:\Lab\Gait, normal; TaskId 51
cmdGuide  open kv_win.pdf || in C:\Kinovra\manuals\, normal, document; ManualFile "kv_win.pdf"; TaskId 42
cmdSkelvo  store Kinovra/Startup/Datadir "C:\Lab\Gait"
    start C:\Kinovra\skelvo98.exe | <Walk1.dg>| in C:\Lab\Gait, normal; TaskId 51
cmdOndex  store Ondex2/Startup/Datadir "C:\Lab\Gait"
    box question YesNoCancel [View .RF file or open Ondex2?] Press Yes to view Reduced Forces file (.rf), No to open Ondex2 or Cancel
    start C:\Kinovra\ondex2.exe | <Walk1.rf>| in C:\Lab\Gait, normal; TaskId 51; Answer 0
cmdEditor  store Kinovra/Startup/Datadir "C:\Lab\Gait"
    start C:\Kinovra\modlex.exe | <Walk1.cfb>| in C:\Lab\Gait, normal; TaskId 51; Answer 0
cmdRefresh  events; refresh drvDrives dirSelect filDatafiles filModels filBinaries filOutputs filPlots filGraFiles
    show filDatafiles lblDatafiles filModels lblModels filBinaries lblBinaries filPlots lblPlots
cmdExit  store Kinovra/Startup/Progdir "C:\Kinovra"; store Kinovra/Startup/Datadir "C:\Lab\Gait"
    store Kinovra/Startup/LastGRA "Stick.gra"; store Kinovra/Startup/UserLevel "1"
    store Kinovra/Startup/Viewer "C:\Tools\Reader.exe"; end; directory "C:\DATA"
cmdManual  open kinovra.pdf || in C:\Kinovra\manuals\, normal, document; TaskId 42; Answer 0
)table"};

constexpr const char *ButtonsWithNothing[]{R"table(
cmdEditGra  start notepad.exe | <C:\Kinovra\graphs\RUN.GRA>| in C:\Lab\Gait, normal; TaskId 51
cmdSelectGra  show filGraFiles lblGraFiles; hide cmdGraph cmdSelectGra cmdEditGra
cmdGraph  box exclamation OK [] Select a trial from the Data or Model menus first.
    show drvDrives dirSelect filDatafiles lblDatafiles filModels lblModels
cmdForces  store Kinovra/Startup/Datadir "C:\Lab\Gait"
    start C:\Kinovra\forces.exe | ;| in C:\Lab\Gait, normal; TaskId 51
cmdGuide  open kv_win.pdf || in C:\Kinovra\manuals\, normal, document; ManualFile "kv_win.pdf"; TaskId 42
cmdSkelvo  store Kinovra/Startup/Datadir "C:\Lab\Gait"
    start C:\Kinovra\skelvo98.exe | ;| in C:\Lab\Gait, normal; TaskId 51
cmdOndex  store Ondex2/Startup/Datadir "C:\Lab\Gait"; missing C:\LAB\GAIT\.RF
    start C:\Kinovra\ondex2.exe | ;| in C:\Lab\Gait, normal; TaskId 51; Answer 53
cmdEditor  store Kinovra/Startup/Datadir "C:\Lab\Gait"
    start C:\Kinovra\modlex.exe | ;| in C:\Lab\Gait, normal; TaskId 51
cmdRefresh  events
    show filDatafiles lblDatafiles filModels lblModels filBinaries lblBinaries filPlots lblPlots
cmdExit  store Kinovra/Startup/Progdir "C:\Kinovra"; store Kinovra/Startup/Datadir "C:\Lab\Gait"
    store Kinovra/Startup/LastGRA "RUN.GRA"; store Kinovra/Startup/UserLevel "0"
    store Kinovra/Startup/Viewer "C:\Windows\notepad.exe"; end; directory "C:\DATA"
cmdManual  Answer 53
)table"};

constexpr const char *MenusWithEverything[]{R"table(
mnuDatafiles  mnuDatafile .++++; mnuConvert ...+...; Answer 0
mnuConverts  mnuArielType ++++++++++; Answer 0
mnuAriel  mnuArielType ++++++++++; Answer 0
mnuModels  mnuModel .+++++; mnuNewModel +; Answer 0
mnuProgs  mnuProg ++++++++++++.; mnuOptions +; mnuAverage ++++..; marks mnuProg .+++++++++++.
mnuAverages  mnuAverage ++++..
mnuImages  mnuSkelvo ++++
mnuViews  mnuForce ++++; Answer 0
mnuTextViewers  mnuTextViewer +..; Answer 0
mnuManuals  mnuManual +++++++++.; Answer 0
mnuHelp  mnuHelpItem +++++++++++++++++++; Answer 0
)table"};

constexpr const char *MenusWithNothing[]{R"table(
mnuDatafiles  mnuDatafile .xxxx; mnuConvert ...x...; Answer 53
mnuConverts  mnuArielType xxxxxxxxxx; Answer 53
mnuAriel  box exclamation OK [] Select a trial from the Data or Model menus first.
    show drvDrives dirSelect filDatafiles lblDatafiles filModels lblModels
mnuModels  mnuModel .xxxxx; mnuNewModel +; Answer 53
mnuProgs
    box question YesNo [] No models (.CFB files) in this directory.^Do you want to create a new model (.CFB) file.
    start Notepad.exe | <.cfb>| in C:\Lab\Gait, shown; ProgName "Notepad.exe"; SelectedFile ".cfb"; TaskId 51; Answer 6
    mnuProg xxxxxxxxxxxx.; mnuOptions x; mnuAverage xxxx..; marks mnuProg .xx.xxxxxx.x.
mnuAverages  mnuAverage xxxx..
mnuImages  box exclamation OK [] Select a trial from the Data or Model menus first.
    show drvDrives dirSelect filDatafiles lblDatafiles filModels lblModels
mnuViews  mnuForce xxxx; Answer 53
mnuTextViewers  mnuTextViewer x..; Answer 53
mnuManuals  mnuManual xxxxxxxxx.; Answer 76
mnuHelp  mnuHelpItem xxxxxxxxxxxxxxxxxxx; Answer 53
)table"};

// clang-format on

// "WORD NAME |PARAMETERS|" of a table.
struct Run
{
    QString name;
    QString parameters;
};

Run runOf(const QString &effect)
{
    const qsizetype bar = effect.indexOf(u'|');
    return {effect.section(u' ', 1, 1), effect.mid(bar + 1).chopped(1)};
}

QStringList running(const Run &run)
{
    QString shown = run.parameters;
    shown.remove(u'<').remove(u'>');
    return {
        u"open C:\\KINOVRA\\%1.EXE |%2| in C:\\Lab\\Gait, shown"_s.arg(run.name.toUpper(),
                                                                       run.parameters.toUpper()),
        u"pause 1"_s,
        u"refresh filBinaries filOutputs filPlots"_s,
        u"show lblCommand"_s,
        u"lblCommand \"c:\\kinovra\\%1.exe %2\""_s.arg(run.name.toLower(), shown.toLower()),
        u"SelectedFile \"C:\\Lab\\Gait\\%1.out\""_s.arg(run.name),
        u"InitDir \"C:\\Lab\\Gait\""_s,
    };
}

QStringList offering(const QString &name)
{
    return {
        u"box question YesNo [View output] Do you want to view the output produced by the program, ^%1.  If "
        u"so, "
        "click Yes to view the output?"_s.arg(name.toUpper()),
        u"open C:\\Tools\\Reader.exe |<C:\\Lab\\Gait\\%1.out>| in C:\\Lab\\Gait, shown, viewer"_s.arg(name),
    };
}

QStringList expanded(const QString &effect)
{
    if (effect == u"nothing")
        return {};
    if (effect.startsWith(u"runs "))
        return running(runOf(effect));
    if (effect.startsWith(u"offers "))
        return offering(effect.mid(7));
    if (effect.startsWith(u"missing "))
        return {
            u"box exclamation OK [] Error opening file: \"%1\"  (53)^File not found"_s.arg(effect.mid(8))};
    return {effect};
}

template <size_t N>
std::vector<Row> rowsOf(const char *const (&tables)[N])
{
    std::vector<Row> rows;
    for (const char *table : tables) {
        for (QString line : QString::fromUtf8(table).split(u'\n', Qt::SkipEmptyParts)) {
            if (!line.startsWith(u' ')) {
                rows.push_back({line.section(u' ', 0, 0), {}});
                line.remove(0, rows.back().name.size());
            }
            while (line.startsWith(u' '))
                line.remove(0, 1);
            for (const QString &effect : line.split(u"; "_s, Qt::SkipEmptyParts))
                rows.back().effects += expanded(effect);
        }
    }
    return rows;
}

} // namespace

std::vector<Row> itemsWithEverything()
{
    return rowsOf(ItemsWithEverything);
}

std::vector<Row> itemsWithNothing()
{
    return rowsOf(ItemsWithNothing);
}

std::vector<Row> buttonsWithEverything()
{
    return rowsOf(ButtonsWithEverything);
}

std::vector<Row> buttonsWithNothing()
{
    return rowsOf(ButtonsWithNothing);
}

std::vector<Row> menusWithEverything()
{
    return rowsOf(MenusWithEverything);
}

std::vector<Row> menusWithNothing()
{
    return rowsOf(MenusWithNothing);
}

// clang-format off
std::vector<Visibility> visibilities()
{
    return {
        // command             all there, from shown and hidden  nothing there, from shown and hidden
        {"mnuOpen(0)",         "DMBOPT CSE", "DM---- ---",       "DMBOPT CSE", "DM---- ---"},
        {"mnuOpen(1)",         "DMBOPT CSE", "DM---- ---",       "DMBOPT CSE", "DM---- ---"},
        {"mnuOpen(2)",         "DMBOPT CSE", "DM---- ---",       "DMBOPT CSE", "DM-OP- ---"},
        {"mnuOpen(3)",         "DMBOPT CSE", "DM---- ---",       "DMBOPT CSE", "DM---- ---"},
        {"mnuGraph(0)",        "DMBOPT CSE", "--B--- ---",       "DMBOPT CSE", "------ ---"},
        {"mnuGraph(1)",        "DMBOPT ---", "-----T ---",       "DMBOP- ---", "------ ---"},
        {"mnuGraph(2)",        "DMBOPT CSE", "------ ---",       "DMBOPT CSE", "DM---- ---"},
        {"mnuGraph(3)",        "DMBOPT CSE", "------ ---",       "DMBOPT CSE", "------ ---"},
        {"mnuGraph(4)",        "DMBOPT CSE", "------ ---",       "DMBOPT CSE", "------ ---"},
        {"mnuGraph(5)",        "DMBOPT CSE", "------ ---",       "DMBOPT CSE", "------ ---"},
        {"mnuGraphOptions(0)", "DMBOPT CSE", "------ ---",       "DMBOPT CSE", "------ ---"},
        {"mnuGraphOptions(1)", "DMBOPT CSE", "------ ---",       "DMBOPT CSE", "------ ---"},
        {"mnuGraphOptions(2)", "DMBOPT CSE", "------ ---",       "DMBOPT CSE", "------ ---"},
        {"mnuGraphOptions(3)", "DMBOPT CSE", "------ ---",       "DMBOPT CSE", "------ ---"},
        {"mnuGraphOptions(4)", "DMBOPT CSE", "------ ---",       "DMBOPT CSE", "------ ---"},
        {"mnuGraphOptions(5)", "DMBOPT CSE", "------ ---",       "DMBOPT CSE", "------ ---"},
        {"mnuGraphPrint(0)",   "DMBOPT CSE", "----P- ---",       "DMBO-T CSE", "------ ---"},
        {"mnuGraphPrint(1)",   "DMBOPT CSE", "----P- ---",       "DMBO-T CSE", "------ ---"},
        {"mnuGraphPrint(2)",   "DMBOPT CSE", "----P- ---",       "DMBO-T CSE", "------ ---"},
        {"mnuGraphPrint(3)",   "DMBOPT CSE", "----P- ---",       "DMBO-T CSE", "------ ---"},
        {"mnuGraphPrint(4)",   "DMBOPT CSE", "----P- ---",       "DMBO-T CSE", "------ ---"},
        {"mnuForce(0)",        "DMBOPT CSE", "------ ---",       "DMBOPT CSE", "------ ---"},
        {"mnuForce(1)",        "DMBOPT CSE", "------ ---",       "DMBOPT CSE", "------ ---"},
        {"mnuForce(2)",        "DMBOPT CSE", "------ ---",       "DMBOPT CSE", "------ ---"},
        {"mnuForce(3)",        "DMBOPT CSE", "------ ---",       "DMBOPT CSE", "------ ---"},
        {"mnuView(0)",         "DMBOPT CSE", "--B--- ---",       "DMBOPT CSE", "------ ---"},
        {"mnuView(1)",         "DMBOPT CSE", "------ ---",       "DMBOPT CSE", "------ ---"},
        {"mnuView(2)",         "DMBOPT ---", "-----T ---",       "DMBOP- ---", "------ ---"},
        {"mnuView(3)",         "DMBOPT CSE", "------ ---",       "DMBOPT CSE", "------ ---"},
        {"mnuView(4)",         "DMBOPT CSE", "------ ---",       "DMBOPT CSE", "------ ---"},
        // No graph type is being chosen where their list is hidden: the buttons come back.
        {"cmdRefresh",         "DMBOPT CSE", "DMB-P- CSE",       "DMBOPT CSE", "DMB-P- CSE"},
        {"cmdSelectGra",       "DMBOPT ---", "-----T ---",       "DMBOPT ---", "-----T ---"},
    };
}
// clang-format on

} // namespace whole_menu
