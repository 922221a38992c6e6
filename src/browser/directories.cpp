#include "browser/directories.h"

#include "browser/current_trial.h"
#include "browser/dropped_files.h"
#include "browser/file_lists.h"
#include "browser/result_files.h"
#include "platform/letter_case.h"
#include "platform/runtime_error.h"
#include "shell/dispatch.h"

using namespace Qt::StringLiterals;

namespace browser {

namespace {

using platform::RuntimeError;
using shell::MsgBox;

void tellPathProblem(Panel &panel, const RuntimeError &error)
{
    MsgBox(panel, {u"There was a problem finding a path.  Error was "_s + error.Description,
                   platform::Icon::Exclamation});
}

void becomeDataDirectory(Panel &panel)
{
    auto [kinovra, frm, platform] = panel.parts();

    const QString path = frm.dirSelect.Path();
    kinovra.DataDir = path;
    if (kinovra.DataDir.size() < 4)
        kinovra.DataDir = frm.drvDrives.Drive;
    platform.files.changeDrive(path);
    platform.files.changeDirectory(path);
    kinovra.CurrentTrial.clear();
    kinovra.CurrentExtension.clear();
    // What was said was of the directory before.
    shell::say(panel, QString());
    const bool hadBinaryFile = !kinovra.BinaryFile.isEmpty();
    kinovra.BinaryFile.clear();
    if (hadBinaryFile)
        sayBinaryFile(panel);
    frm.SelectedPlot.clear();
    frm.lblTrial.Caption = u"none"_s;
    frm.lblPath.Caption = platform::LCase(kinovra.DataDir);
    pointAtDataDir(panel);
    frm.filModels.Visible = true;
    frm.lblModels.Visible = true;
    if (frm.filModels.ListCount() == 1 && !chooseOnlyModel(panel))
        return;
    frm.filDatafiles.Visible = true;
    frm.lblDatafiles.Visible = true;
    frm.filOutputs.Visible = true;
    frm.lblOutputs.Visible = true;
    frm.filPlots.Visible = true;
    frm.lblPlots.Visible = true;
}

} // namespace

void openDirectory(Panel &panel, const QString &path)
{
    const auto directory = panel.platform.files.directory(path, platform::Reading::Anew);
    panel.frm.dirSelect.show(*directory);
    dirSelect_Change(panel);
}

bool goToDirectory(Panel &panel, const QString &path)
{
    try {
        openDirectory(panel, path);
        return true;
    } catch (const RuntimeError &error) {
        tellPathProblem(panel, error);
        return false;
    }
}

void openRow(Panel &panel, int row)
{
    auto &list = panel.frm.dirSelect;
    if (row < 0 || row >= list.RowCount() || row == list.OpenedRow())
        return;
    goToDirectory(panel, list.RowPath(row));
}

void drvDrives_Change(Panel &panel)
{
    auto [kinovra, frm, platform] = panel.parts();

    try {
        openDirectory(panel, frm.drvDrives.Drive);
        platform.files.changeDrive(frm.dirSelect.Path());
        platform.files.changeDirectory(frm.dirSelect.Path());
    } catch (const RuntimeError &error) {
        MsgBox(panel, {u"There was a drive problem."_s + frm.LineBreak + u"Error was: "_s + error.Description,
                       platform::Icon::Exclamation});
        frm.drvDrives.goBackTo(frm.dirSelect.Path());
    }
}

void dirSelect_Change(Panel &panel)
{
    try {
        becomeDataDirectory(panel);
    } catch (const RuntimeError &error) {
        tellPathProblem(panel, error);
    }
}

void connect(Panel &panel)
{
    auto &frm = panel.frm;
    frm.drvDrives.Change = [&panel] { drvDrives_Change(panel); };
    frm.dirSelect.OpenRow = [&panel](int row) { openRow(panel, row); };
    frm.Returned = [&panel] { readChangedDirectories(panel); };
    frm.FileDropped = [&panel](const QString &path) { fileDropped(panel, path); };
    frm.cmdRefresh.Click = [&panel] { cmdRefresh_Click(panel); };
    frm.filDatafiles.Click = [&panel] { filDatafiles_Click(panel); };
    frm.filModels.Click = [&panel] { filModels_Click(panel); };
    frm.filBinaries.Click = [&panel] { filBinaries_Click(panel); };
    frm.filBinaries.DblClick = [&panel] { filBinaries_DblClick(panel); };
    frm.filBinaries.GotFocus = [&panel] { refresh(panel, {&panel.frm.filBinaries}); };
    frm.filOutputs.DblClick = [&panel] { filOutputs_DblClick(panel); };
    frm.filPlots.Click = [&panel] { filPlots_Click(panel); };
    frm.filPlots.DblClick = [&panel] { filPlots_DblClick(panel); };
    frm.filPlots.GotFocus = [&panel] { refresh(panel, {&panel.frm.filPlots}); };
    frm.filGraFiles.Click = [&panel] { filGraFiles_Click(panel); };
    frm.filGraFiles.MouseUp = [&panel](int button) { filGraFiles_MouseUp(panel, button); };
}

} // namespace browser
