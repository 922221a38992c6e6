#include "browser/dropped_files.h"

#include "browser/current_trial.h"
#include "browser/directories.h"
#include "browser/file_lists.h"
#include "platform/file_pattern.h"
#include "platform/path_language.h"
#include "shell/dispatch.h"

using namespace Qt::StringLiterals;

namespace browser {

namespace {

bool shows(const FileList &list, const QString &name)
{
    const qsizetype dot = name.lastIndexOf(u'.');
    const quint64 key = dot < 0 ? 0 : platform::extensionKey(QStringView(name).mid(dot + 1));
    return platform::FilePattern(list.Pattern).matches(name, key);
}

// Whether `directory` is open and its files are shown; what keeps it from that has been told. Letter case
// counts: a host may have two directories of one name, with a file of the same name in each.
bool openFor(Panel &panel, const QString &directory)
{
    auto [kinovra, frm, platform] = panel.parts();

    if (frm.dirSelect.Path() == directory) {
        // The file may be new.
        refresh(panel, {&frm.filDatafiles, &frm.filModels});
        return true;
    }
    frm.drvDrives.refresh(platform.files.drives());
    frm.drvDrives.goBackTo(directory);
    const bool isOpen = goToDirectory(panel, directory);
    frm.drvDrives.goBackTo(frm.dirSelect.Path());
    return isOpen && frm.filDatafiles.Path() == frm.dirSelect.Path();
}

void clickOn(Panel &panel, FileList &list, controls::Label &label, const QString &name,
             void (*click)(Panel &))
{
    const int row = list.Names.value().indexOf(name);
    if (row < 0) {
        shell::say(panel, u"%1 is not in the list."_s.arg(name));
        return;
    }
    label.Visible = true;
    list.Visible = true;
    list.ListIndex = row;
    click(panel);
}

} // namespace

void fileDropped(Panel &panel, const QString &path)
{
    auto &frm = panel.frm;

    const QString name = platform::nameOf(path);
    const bool isData = shows(frm.filDatafiles, name);
    if (!isData && !shows(frm.filModels, name)) {
        shell::say(panel, u"%1 is neither a data file nor a model."_s.arg(name));
        return;
    }
    if (!openFor(panel, platform::parentOf(path)))
        return;
    if (isData)
        clickOn(panel, frm.filDatafiles, frm.lblDatafiles, name, filDatafiles_Click);
    else
        clickOn(panel, frm.filModels, frm.lblModels, name, filModels_Click);
}

} // namespace browser
