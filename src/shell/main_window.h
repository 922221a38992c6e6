#pragma once

#include "controls/control.h"
#include "controls/directory_list.h"
#include "controls/drive_list.h"
#include "controls/file_list.h"
#include "controls/menu_item.h"
#include "controls/window.h"
#include "platform/command_text.h"

#include <array>

namespace shell {

/// Width of the main window in twips; it never changes.
constexpr int MainWindowWidth = 10100;
/// The least height of the main window in twips.
constexpr int MainWindowLeastHeight = 7300;
/// What the window's height has over the directory list's, in twips.
constexpr int HeightBesideDirectoryList = 3800;

/// The main window: its controls, its menus, and the variables that are its own. The constructor gives every
/// control the caption, tool tip, pattern and state that it has before the window is loaded.
struct frmKinovra : controls::Window
{
    frmKinovra();

    controls::Button cmdEditGra, cmdSelectGra, cmdGraph;
    controls::Button cmdForces, cmdGuide, cmdSkelvo, cmdOndex, cmdEditor, cmdRefresh, cmdExit, cmdManual;
    controls::FileList filPlots, filOutputs, filBinaries, filGraFiles, filModels, filDatafiles;
    controls::DirList dirSelect;
    controls::DriveList drvDrives;
    controls::Label lblPath, lblTitle, lblCommand, lblOutput, lblTrial;
    std::array<controls::Label, 2> lblGraphics; ///< 0 the graph type, 1 the graphics device
    controls::Label lblPlots, lblOutputs, lblGraFiles, lblBinaries, lblModels, lblDatafiles;
    controls::StatusBar StatusBar1;
    controls::CommonDialog dlgOpen;

    controls::MenuItem mnuFiles, mnuUsers, mnuRun, mnuPrint, mnuPrintSetup, mnuExit;
    controls::MenuArray<4> mnuOpen;
    controls::MenuArray<2> mnuUser;
    controls::MenuArray<4> mnuDOS;

    controls::MenuItem mnuDatafiles, mnuConverts, mnuAriel;
    controls::MenuArray<5> mnuDatafile;
    controls::MenuArray<10> mnuArielType;
    controls::MenuArray<7> mnuConvert;

    controls::MenuItem mnuModels, mnuNewModel;
    controls::MenuArray<6> mnuModel;

    controls::MenuItem mnuProgs, mnuOptions;
    controls::MenuArray<13> mnuProg;

    controls::MenuItem mnuAverages;
    controls::MenuArray<6> mnuAverage;

    controls::MenuItem mnuImages;
    controls::MenuArray<4> mnuSkelvo;

    controls::MenuItem mnuGraphs, mnuGraphPrints;
    controls::MenuArray<7> mnuGraph; ///< item 6 is the menu of mnuGraphOptions
    controls::MenuArray<6> mnuGraphOptions;
    controls::MenuArray<5> mnuGraphPrint;

    controls::MenuItem mnuViews, mnuForces;
    controls::MenuArray<4> mnuForce;
    controls::MenuArray<5> mnuView;

    controls::MenuItem mnuSettings, mnuReset, mnuOutDev, mnuOutGraphs, mnuTextViewers, mnuPause, mnuPrompt;
    controls::MenuArray<4> mnuListing;
    controls::MenuArray<4> mnuGraphics;
    controls::MenuArray<3> mnuTextViewer;

    controls::MenuItem mnuManuals;
    controls::MenuArray<10> mnuManual;

    controls::MenuItem mnuHelp, mnuProgHelp;
    controls::MenuArray<19> mnuHelpItem;
    controls::MenuArray<4> mnuAbout;

    controls::Event Returned; ///< the user comes back from another window
    std::function<void(const QString &path)> FileDropped;

    QString CurrentGRA;         ///< graph-type file
    QString GraphicsSwitch;     ///< switches of the graphics device for the graph programs
    QString StartDir;           ///< current directory at start, restored at the end
    QString LineBreak;          ///< one line-feed character; joins the lines of messages
    QString ProgPath;           ///< full path of the program that a command hands to the runner
    platform::CommandText Comm; ///< the arguments that a command hands to the runner
    QString SelectedPlot;       ///< plot last clicked in filPlots
    qint16 Loaded = 0;          ///< 1 once the window is loading; nothing reads it, and that is meant
};

} // namespace shell
