#include "browser/file_lists.h"

#include "platform/letter_case.h"
#include "platform/path_language.h"
#include "platform/runtime_error.h"
#include "shell/dispatch.h"

#include <QMap>

#include <vector>

using namespace Qt::StringLiterals;

namespace browser {

namespace {

using platform::Icon;
using platform::Reading;
using platform::RuntimeError;
using platform::UCase;
using shell::MsgBox;

void show(controls::FileList &list, controls::Label &label)
{
    label.Visible = true;
    list.Visible = true;
}

QString unreadable(const QString &path)
{
    return u"%1 cannot be read: "_s.arg(platform::shortFormOf(path));
}

// One reading serves all lists that show the directory.
void refreshFrom(Panel &panel, const QString &path, const std::vector<FileList *> &lists, Reading reading)
{
    try {
        const auto directory = panel.platform.files.directory(path, reading);
        for (FileList *list : lists)
            list->refresh(directory->files(list->Pattern));
        if (panel.frm.StatusBar1.Panel1.value().startsWith(unreadable(path)))
            shell::say(panel, QString());
    } catch (const RuntimeError &error) {
        for (FileList *list : lists)
            list->refresh({});
        sayUnreadable(panel, path, error);
    }
}

// The three graph buttons and the graph-type list take turns in one place.
void showGraphButtons(Panel &panel)
{
    auto &frm = panel.frm;
    frm.filGraFiles.Visible = false;
    frm.lblGraFiles.Visible = false;
    frm.cmdGraph.Visible = true;
    frm.cmdSelectGra.Visible = true;
    frm.cmdEditGra.Visible = true;
}

// The lists of the data directory and the directory list share one reading of it.
void refreshDataDirectory(Panel &panel)
{
    auto &frm = panel.frm;

    refresh(panel, {&frm.filDatafiles, &frm.filModels, &frm.filPlots, &frm.filBinaries, &frm.filOutputs});
    refreshDirectoryList(panel);
}

} // namespace

void sayUnreadable(Panel &panel, const QString &path, const RuntimeError &error)
{
    shell::say(panel, unreadable(path) + platform::withinSentence(error.Description) + u'.');
}

void pointAt(Panel &panel, FileList &list, const QString &path)
{
    list.show(*panel.platform.files.directory(path, Reading::WhenChanged));
}

void pointAtDataDir(Panel &panel)
{
    auto [kinovra, frm, platform] = panel.parts();

    const auto directory = platform.files.directory(kinovra.DataDir, Reading::WhenChanged);
    for (FileList *list :
         {&frm.filDatafiles, &frm.filModels, &frm.filBinaries, &frm.filPlots, &frm.filOutputs})
        list->show(*directory);
}

void refresh(Panel &panel, std::initializer_list<FileList *> lists, Reading reading)
{
    QMap<QString, std::vector<FileList *>> byPath;
    for (FileList *list : lists) {
        if (!list->Path().isEmpty())
            byPath[list->Path()].push_back(list);
    }
    for (const auto &[path, here] : byPath.asKeyValueRange())
        refreshFrom(panel, path, here, reading);
}

void readChangedDirectories(Panel &panel)
{
    auto &frm = panel.frm;
    refresh(panel,
            {&frm.filDatafiles, &frm.filModels, &frm.filPlots, &frm.filBinaries, &frm.filOutputs,
             &frm.filGraFiles},
            Reading::WhenChanged);
    refreshDirectoryList(panel);
}

void refreshDirectoryList(Panel &panel)
{
    auto &list = panel.frm.dirSelect;
    try {
        list.show(*panel.platform.files.directory(list.Path(), Reading::WhenChanged));
    } catch (const RuntimeError &) {
        list.showGone();
    }
}

void refreshResultLists(Panel &panel)
{
    auto &frm = panel.frm;
    refresh(panel, {&frm.filBinaries, &frm.filOutputs, &frm.filPlots});
}

void sayBinaryFile(Panel &panel)
{
    const QString &file = panel.kinovra.BinaryFile;
    shell::sayToo(panel, file.isEmpty() ? u"No binary file is chosen now."_s
                                        : u"The binary file is %1 now."_s.arg(file));
}

void hideGraphButtons(Panel &panel)
{
    auto &frm = panel.frm;
    frm.cmdGraph.Visible = false;
    frm.cmdSelectGra.Visible = false;
    frm.cmdEditGra.Visible = false;
    if (!frm.filGraFiles.Visible)
        shell::say(panel, u"\"Refresh File Lists\" brings the graph buttons back."_s);
}

void cmdRefresh_Click(Panel &panel)
{
    auto [kinovra, frm, platform] = panel.parts();

    show(frm.filDatafiles, frm.lblDatafiles);
    show(frm.filModels, frm.lblModels);
    show(frm.filPlots, frm.lblPlots);
    show(frm.filBinaries, frm.lblBinaries);
    // A View command may have hidden the graph buttons with nothing left to bring them back.
    if (!frm.filGraFiles.Visible)
        showGraphButtons(panel);
    // The drives first: a letter may mean another place by now.
    frm.drvDrives.refresh(platform.files.drives());
    refreshDataDirectory(panel);
    refresh(panel, {&frm.filGraFiles});
    shell::letPendingEventsRun(panel);
}

void filGraFiles_Click(Panel &panel)
{
    auto &frm = panel.frm;
    showGraphButtons(panel);
    if (frm.filGraFiles.ListCount() == 0) {
        MsgBox(panel, {u"No .GRA files were found in the program directory."_s, Icon::Exclamation});
        frm.lblGraphics[0].Caption = UCase(frm.CurrentGRA);
        frm.cmdEditGra.Enabled = false;
        return;
    }
    if (frm.filGraFiles.ListIndex < 0)
        return;
    frm.CurrentGRA = frm.filGraFiles.FileName();
    frm.lblGraphics[0].Caption = UCase(frm.CurrentGRA);
    frm.cmdEditGra.Enabled = true;
}

void filGraFiles_MouseUp(Panel &panel, int button)
{
    constexpr int RightButton = 2;
    if (button == RightButton)
        showGraphButtons(panel);
}

} // namespace browser
