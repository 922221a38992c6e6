#include "viewer/view_commands.h"

#include "browser/file_lists.h"
#include "browser/test_file.h"
#include "browser/trial_files.h"
#include "launcher/starting.h"
#include "platform/runtime_error.h"
#include "shell/dispatch.h"

#include <functional>

using namespace Qt::StringLiterals;

namespace viewer {

namespace {

using platform::CommandText;
using platform::Icon;
using platform::OpenFileRequest;
using platform::RuntimeError;
using shell::MsgBox;

// False where the directory cannot be opened, of which `message` tells; the list stays as it was.
bool pointAt(Panel &panel, controls::FileList &list, const QString &directory, const QString &message)
{
    try {
        browser::pointAt(panel, list, directory);
        return true;
    } catch (const RuntimeError &) {
        MsgBox(panel, {message, Icon::Exclamation});
        return false;
    }
}

void showBinaryFiles(Panel &panel)
{
    auto [kinovra, frm, platform] = panel.parts();

    if (!pointAt(panel, frm.filBinaries, kinovra.DataDir, u"The data directory was not found."_s))
        return;
    if (frm.filBinaries.ListCount() == 0) {
        MsgBox(panel, {u"No binary files in this directory."_s, Icon::Exclamation});
        return;
    }
    frm.lblBinaries.Visible = true;
    frm.filBinaries.Visible = true;
}

void showGraphTypes(Panel &panel)
{
    auto [kinovra, frm, platform] = panel.parts();

    if (!pointAt(panel, frm.filGraFiles, kinovra.ProgDir + u"\\graphs"_s,
                 u"The \\GRAPHS subdirectory was not found."_s))
        return;
    const bool hasTypes = frm.filGraFiles.ListCount() > 0;
    if (!hasTypes)
        MsgBox(panel, {u"No .GRA files were found in the program directory."_s, Icon::Exclamation});
    frm.lblGraFiles.Visible = hasTypes;
    frm.filGraFiles.Visible = hasTypes;
    browser::hideGraphButtons(panel);
}

// Lets the user choose a file and hands its full path to `view`; a dialog that is cancelled ends it silently,
// every error is told.
void viewChosen(Panel &panel, const OpenFileRequest &request,
                const std::function<void(const QString &)> &view)
{
    QString file;
    try {
        panel.frm.dlgOpen.InitDir = request.initialDirectory;
        const auto chosen = shell::askForFile(panel, request);
        if (!chosen)
            return;
        file = *chosen;
        view(file);
    } catch (const RuntimeError &error) {
        MsgBox(panel, {u"Error opening file: %1\n"_s.arg(file) + panel.frm.LineBreak
                           + u"#%1 is:\"%2\""_s.arg(QString::number(error.Number), error.Description),
                       Icon::Exclamation});
    }
}

void viewPlot(Panel &panel)
{
    const OpenFileRequest request{
        .initialDirectory = panel.kinovra.DataDir,
        .fileName = u"*.plt"_s,
        .filter = u"Plotter files (*.plt)|*.plt|HPGL files (*.plt;*.pgl;*.hpg)|*.plt;*.pgl;*.hpg|"
                  "Bitmaps (*.pcx;*.bmp)|*.pcx;*.bmp|All files (*.*)|*.*"_s,
        .title = u"Select graph to view"_s};
    viewChosen(panel, request, [&panel](const QString &file) {
        if (file.isEmpty())
            return;
        panel.kinovra.ProgName = u"GrafoW"_s;
        panel.frm.ProgPath = launcher::packageProgram(panel, panel.kinovra.ProgName);
        launcher::showAndStart(panel, panel.frm.ProgPath, u" "_s + CommandText::document(file));
    });
}

// Starts a program of the operating system by its name alone.
void viewSelected(Panel &panel, const QString &file, const QString &program)
{
    auto &kinovra = panel.kinovra;
    kinovra.SelectedFile = file;
    if (!file.isEmpty())
        kinovra.TaskId = launcher::startDirectly(panel, program, u" "_s + CommandText::document(file),
                                                 platform::Show::Normal);
}

void viewOutput(Panel &panel)
{
    auto &kinovra = panel.kinovra;
    QString proposed = kinovra.ProgName + u".out"_s;
    kinovra.Answer = browser::TestFile(panel, kinovra.DataDir, proposed, browser::Silent);
    if (kinovra.Answer != 0)
        proposed = u"*.out"_s;
    const OpenFileRequest request{.initialDirectory = kinovra.DataDir,
                                  .fileName = proposed,
                                  .filter = u"Text files (*.txt)|*.txt|Output files (*.out)|*.out|"
                                            "Listings (*.lst)|*.lst|All files (*.*)|*.*"_s,
                                  .title = u"Select ASCII file to view"_s,
                                  .filterIndex = 2};
    // Notepad always, whatever the text viewer is; that is meant.
    viewChosen(panel, request,
               [&panel](const QString &file) { viewSelected(panel, file, u"notepad.exe"_s); });
}

void viewFilm(Panel &panel)
{
    const OpenFileRequest request{
        .initialDirectory = panel.kinovra.DataDir,
        .filter = u"AVI && MPEG files (*.avi;*.mpg)|*.avi;*.mpg;*.mpe;*.mpeg|All files (*.*)|*.*"_s,
        .title = u"Select multimedia file to view"_s};
    viewChosen(panel, request,
               [&panel](const QString &file) { viewSelected(panel, file, u"mplayer.exe"_s); });
}

} // namespace

void mnuView_Click(Panel &panel, int index)
{
    switch (index) {
    case BinaryFiles:
        showBinaryFiles(panel);
        break;
    case PlotFiles:
        viewPlot(panel);
        break;
    case GraphTypes:
        showGraphTypes(panel);
        break;
    case OutputFiles:
        viewOutput(panel);
        break;
    case Films:
        viewFilm(panel);
        break;
    default:
        MsgBox(panel, {u"Program error.  Invalid case in mnuView."_s, Icon::Exclamation});
    }
}

void mnuViews_Click(Panel &panel)
{
    browser::TrialFiles trial(panel);
    trial.hasByAnswer(".rf");
    for (controls::MenuItem &item : panel.frm.mnuForce)
        item.enableUnless(trial.hindrance());
}

} // namespace viewer
