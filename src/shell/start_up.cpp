#include "shell/start_up.h"

#include "browser/directories.h"
#include "browser/file_lists.h"
#include "browser/test_file.h"
#include "launcher/presence_check.h"
#include "platform/letter_case.h"
#include "platform/path_language.h"
#include "platform/runtime_error.h"
#include "shell/build_values.h"
#include "shell/command_line.h"
#include "shell/dispatch.h"
#include "shell/file_names.h"
#include "shell/stored_settings.h"

#include <QStringBuilder>

using namespace Qt::StringLiterals;

namespace shell {

namespace {

using browser::Silent;
using browser::TestFile;
using platform::Icon;
using platform::LCase;
using platform::RuntimeError;
using platform::UCase;

// A root, or a bare drive letter, is too short to be held as a data directory: the drive's text stands for
// it. That text means the drive's current directory, and that is meant.
constexpr qsizetype ShortestDataDir = 4;

QString notepad(const Kinovra &kinovra)
{
    return kinovra.WindowsDir + u"notepad.exe"_s;
}

void placeWindow(Panel &panel)
{
    panel.frm.Top = 300;
    panel.frm.Left = (panel.screen.Width - panel.frm.Width) / 2;
}

void fillDrives(Panel &panel)
{
    auto &drives = panel.frm.drvDrives;
    drives.refresh(panel.platform.files.drives());
    try {
        drives.choose(panel.platform.files.currentDirectory());
    } catch (const RuntimeError &) {
        drives.Drive = drives.Drives.value().value(0);
    }
}

void readSettings(Panel &panel)
{
    auto [kinovra, frm, platform] = panel.parts();

    LoadSettings(panel);
    frm.CurrentGRA = storedText(panel, u"LastGRA"_s, u"RUN.GRA"_s);
    kinovra.UserLevel = storedUserLevel(panel);
    frm.mnuUser[static_cast<size_t>(kinovra.UserLevel)].Checked = true;
}

void readCommandLine(Panel &panel)
{
    auto [kinovra, frm, platform] = panel.parts();

    kinovra.SelectedFile.clear();
    GetCommandLine(panel);
    if (!kinovra.SelectedFile.isEmpty()) {
        const QString directory = DirectoryOf(kinovra.SelectedFile);
        if (directory != u".\\")
            kinovra.DataDir = directory;
    }
    frm.lblCommand.Caption = kinovra.SelectedFile;
    frm.StartDir = platform.files.currentDirectory();
    if (kinovra.DataDir.isEmpty())
        kinovra.DataDir = platform.files.currentDirectory();
    if (kinovra.DataDir.size() < ShortestDataDir)
        kinovra.DataDir = frm.drvDrives.Drive;
}

void chooseTextViewer(Panel &panel)
{
    auto [kinovra, frm, platform] = panel.parts();

    kinovra.TextViewer = storedText(panel, u"Viewer"_s, u"Notepad.exe"_s);
    kinovra.WindowsDir = platform.environment.variable(u"WINDIR"_s);
    if (!kinovra.WindowsDir.isEmpty())
        kinovra.WindowsDir += u'\\';
    if (kinovra.TextViewer.isEmpty())
        kinovra.TextViewer = kinovra.WindowsDir + u"Notepad.exe"_s;
    kinovra.Answer = TestFile(panel, QString(), kinovra.TextViewer, Silent);
    if (kinovra.Answer != 0)
        kinovra.TextViewer = notepad(kinovra);
}

// The check mark follows the viewer: Notepad+ of the program directory, Windows Notepad, or a chosen one.
void checkTextViewer(Panel &panel)
{
    auto [kinovra, frm, platform] = panel.parts();

    const QString viewer = UCase(kinovra.TextViewer);
    size_t item = 2;
    if (viewer == UCase(kinovra.ProgDir + u"\\notepad.exe"_s))
        item = 0;
    else if (viewer == UCase(notepad(kinovra)) || viewer == u"NOTEPAD.EXE")
        item = 1;
    frm.mnuTextViewer[item].Checked = true;
}

void findProgramDirectory(Panel &panel)
{
    auto [kinovra, frm, platform] = panel.parts();

    kinovra.ProgDir = platform.environment.variable(u"KINOVRA"_s);
    if (kinovra.ProgDir.isEmpty())
        kinovra.ProgDir = platform.environment.programFolder();
    kinovra.ManualsDir = kinovra.ProgDir + u"\\manuals\\"_s;
}

void enableButtons(Panel &panel)
{
    auto [kinovra, frm, platform] = panel.parts();

    const auto enableBy = [&panel](controls::Button &button, const QString &directory,
                                   const QString &manual) {
        panel.kinovra.Answer = TestFile(panel, directory, manual, Silent);
        if (panel.kinovra.Answer == 0)
            button.Enabled = true;
    };
    enableBy(frm.cmdGuide, kinovra.ManualsDir, u"kv_qrg.pdf"_s);
    enableBy(frm.cmdManual, kinovra.ManualsDir, u"kinovra.pdf"_s);
    enableBy(frm.cmdManual, kinovra.ProgDir, u"kinovra.txt"_s);
    for (controls::Button *button : {&frm.cmdOndex, &frm.cmdSkelvo, &frm.cmdEditor, &frm.cmdForces})
        button->Enabled = true;
}

// Rows to click are the way out where the data directory could not be opened: those of the program directory
// that has taken its place, or else of the current directory, with which a directory list begins.
void showSomeDirectory(Panel &panel)
{
    auto [kinovra, frm, platform] = panel.parts();

    try {
        browser::openDirectory(panel, kinovra.DataDir);
        return;
    } catch (const RuntimeError &) {
        // It has been reported.
    }
    try {
        const QString current = platform.files.currentDirectory();
        frm.dirSelect.show(*platform.files.directory(current, platform::Reading::Anew));
    } catch (const RuntimeError &) {
        // The drive list is left.
    }
}

void openDataDirectory(Panel &panel)
{
    // Each statement that fails reports, and the next one is tried with the program directory.
    const auto attempt = [&panel](auto &&statement) {
        try {
            statement();
        } catch (const RuntimeError &) {
            panel.kinovra.DataDir = panel.kinovra.ProgDir;
            MsgBox(panel, {u"No data directory was given, will use program directory."_s, Icon::Information,
                           platform::Buttons::OKOnly, u"No Data Directory"_s});
        }
    };
    attempt([&panel] { panel.platform.files.changeDrive(panel.kinovra.DataDir); });
    attempt([&panel] { panel.platform.files.changeDirectory(panel.kinovra.DataDir); });
    attempt([&panel] { panel.frm.drvDrives.choose(panel.kinovra.DataDir); });
    QString &directory = panel.kinovra.DataDir;
    while (directory.startsWith(u' '))
        directory.remove(0, 1);
    while (directory.endsWith(u' '))
        directory.chop(1);
    if (directory.endsWith(u'\\'))
        directory.chop(1);
    attempt([&panel] { browser::openDirectory(panel, panel.kinovra.DataDir); });
    if (panel.frm.dirSelect.Path().isEmpty())
        showSomeDirectory(panel);
}

void openGraphTypes(Panel &panel)
{
    auto [kinovra, frm, platform] = panel.parts();

    try {
        browser::pointAt(panel, frm.filGraFiles, kinovra.ProgDir + u"\\graphs"_s);
    } catch (const RuntimeError &) {
        try {
            browser::pointAt(panel, frm.filGraFiles, kinovra.DataDir);
        } catch (const RuntimeError &) {
            frm.filGraFiles.refresh({});
        }
        MsgBox(panel, {u"No Graphs subdirectory was found, will use data directory."_s + frm.LineBreak
                           + u"Program directory may have been renamed."_s,
                       Icon::Information, platform::Buttons::OKOnly, u"No Graphs Subdirectory"_s});
    }
}

QString headerText(const Kinovra &kinovra)
{
    return u"\r\n     KvWin98, version "_s + kinovra.VersionText
           + u"\n\n     Kinovra Motion Analysis System\r\n"
             "     This software is for planar motion analysis only.\r\n\r\n"
             "     It starts the programs of the package; the analysis is theirs."_s;
}

// The command line's file wins over a single model that the directory list has just made the trial.
// `argument` is as the command line gave it.
void chooseFirstTrial(Panel &panel, const QString &argument)
{
    auto [kinovra, frm, platform] = panel.parts();

    const QString file = platform::nameOf(argument);
    if (!argument.isEmpty())
        kinovra.SelectedFile = file;
    kinovra.Answer = TestFile(panel, kinovra.DataDir, file, Silent);
    if (kinovra.Answer == 0) {
        kinovra.CurrentTrial = FileTitle(file);
        kinovra.CurrentExtension = GetExtension(file);
    } else if (argument != u";" && argument != u"?") {
        ShowSplash(panel, 3);
        if (panel.about.ToFront)
            panel.about.ToFront();
    }
}

} // namespace

QString versionText(int major, int minor, int build)
{
    return QString::number(major) % u'.' % u"%1"_s.arg(minor, 2, 10, QChar(u'0'))
           % u" (build %1)"_s.arg(build, 3, 10, QChar(u'0'));
}

void ShowSplash(Panel &panel, int seconds)
{
    panel.about.show();
    panel.frm.Visible = true;
    pause(panel, seconds);
    panel.about.Visible = false;
}

void Form_Load(Panel &panel)
{
    auto [kinovra, frm, platform] = panel.parts();

    frm.LineBreak = u"\n"_s;
    kinovra.ProgName = u"KVwin98.exe"_s;
    kinovra.VersionText = versionText(build::VersionMajor, build::VersionMinor, build::VersionBuild);
    frm.StatusBar1.Panel2 = u"Version "_s + kinovra.VersionText;
    kinovra.WebHome = QString::fromUtf16(build::WebHome);
    placeWindow(panel);
    frm.Loaded = 1;
    fillDrives(panel);
    readSettings(panel);
    readCommandLine(panel);
    const QString argument = kinovra.SelectedFile;
    chooseTextViewer(panel);
    findProgramDirectory(panel);
    checkTextViewer(panel);
    enableButtons(panel);
    openDataDirectory(panel);
    openGraphTypes(panel);
    kinovra.BinaryFile.clear();
    frm.GraphicsSwitch = u"/A /Z "_s;
    if (frm.CurrentGRA.isEmpty())
        frm.CurrentGRA = u"RUN.GRA"_s;
    kinovra.ListingDevice = u"DISK FILE"_s;
    kinovra.GraphicsDevice = u"SCREEN"_s;
    kinovra.MainWindowHandle = frm.hWnd;
    kinovra.HeaderText = headerText(kinovra);
    launcher::checkPresence(panel);
    frm.dlgOpen.InitDir = kinovra.DataDir;
    chooseFirstTrial(panel, argument);
    frm.lblTrial.Caption = UCase(kinovra.CurrentTrial);
    frm.lblPath.Caption = LCase(kinovra.DataDir);
    frm.lblOutput.Caption = UCase(kinovra.ListingDevice);
    frm.lblGraphics[0].Caption = UCase(frm.CurrentGRA);
    frm.Visible = true;
}

} // namespace shell
