#include "launcher/directory_commands.h"

#include "browser/directories.h"
#include "browser/file_lists.h"
#include "launcher/starting.h"
#include "platform/letter_case.h"
#include "platform/path_language.h"
#include "platform/runtime_error.h"
#include "shell/dispatch.h"

using namespace Qt::StringLiterals;

namespace launcher {

namespace {

using platform::Icon;
using platform::joinPath;
using platform::LCase;
using shell::MsgBox;

void restoreBrowsing(Panel &panel)
{
    auto &frm = panel.frm;
    // The list takes "*.*" as a file name first, which no model has: none stays selected.
    frm.filModels.ListIndex = -1;
    frm.filModels.Pattern = u"*.cfb"_s;
    browser::refresh(panel, {&frm.filModels});
    frm.drvDrives.Visible = true;
    frm.dirSelect.Visible = true;
    frm.filModels.Visible = true;
    frm.lblModels.Visible = true;
    frm.filDatafiles.Visible = true;
    frm.lblDatafiles.Visible = true;
}

// `name` as seen from `directory`, whatever the current directory has become.
QString seenFrom(const QString &directory, const QString &name)
{
    const bool namesDrive = name.size() > 1 && name[1] == u':';
    if (namesDrive || name.startsWith(u"\\\\"))
        return name;
    return name.startsWith(u'\\') ? directory.left(2) + name : joinPath(directory, name);
}

void makeSubdirectory(Panel &panel)
{
    const QString directory = panel.kinovra.DataDir;
    const QString name = shell::InputBox(
        panel, {u"Enter subdirectory name for directory, "_s + LCase(directory) + u", or press Cancel"_s,
                u"Make a subdirectory."_s});
    if (name.isEmpty())
        return;
    panel.platform.files.makeDirectory(seenFrom(directory, name));
    browser::refreshDirectoryList(panel);
}

void tellNotRemoved(Panel &panel, const QString &directory, const platform::RuntimeError &error)
{
    // The box gives one reason for every failure; the status bar knows the true one.
    shell::say(panel, u"%1 was not removed: %2."_s.arg(platform::shortFormOf(directory),
                                                       platform::withinSentence(error.Description)));
    MsgBox(panel, {u"Directory, "_s + LCase(directory) + u", was not empty."_s + panel.frm.LineBreak
                       + u"It was not removed."_s,
                   Icon::Exclamation});
}

void removeDirectory(Panel &panel)
{
    auto [kinovra, frm, platform] = panel.parts();

    const QString directory = kinovra.DataDir;
    const platform::Answer answer =
        MsgBox(panel, {u"Do you want to remove the current directory, "_s + LCase(directory) + u"?"_s
                           + frm.LineBreak + u"Note, it must be empty of files."_s,
                       Icon::Question, platform::Buttons::YesNo, u"Remove directory"_s});
    kinovra.TaskId = answer;
    if (answer != platform::Yes)
        return;
    try {
        platform.files.changeDrive(directory);
        platform.files.changeDirectory(joinPath(directory, u"..\\"_s));
        platform.files.removeDirectory(directory);
    } catch (const platform::RuntimeError &error) {
        tellNotRemoved(panel, directory, error);
        return;
    }
    const QString above = platform.files.currentDirectory();
    // It keeps no backslash, not even of a root.
    kinovra.DataDir = above.endsWith(u'\\') ? above.chopped(1) : above;
    browser::goToDirectory(panel, above);
}

// On the data directory, whatever the current directory has become.
void exploreDirectory(Panel &panel)
{
    panel.kinovra.TaskId = exploreFolder(panel, panel.kinovra.DataDir);
}

} // namespace

void mnuOpen_Click(Panel &panel, int index)
{
    restoreBrowsing(panel);
    switch (index) {
    case MakeSubdirectory:
        makeSubdirectory(panel);
        break;
    case RemoveDirectory:
        removeDirectory(panel);
        break;
    case ExploreDirectory:
        exploreDirectory(panel);
        break;
    default:
        break;
    }
}

} // namespace launcher
