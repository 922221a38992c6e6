#include "launcher/program_runner.h"

#include "browser/file_lists.h"
#include "browser/test_file.h"
#include "graphs/output_devices.h"
#include "launcher/endings.h"
#include "launcher/starting.h"
#include "platform/letter_case.h"
#include "shell/dispatch.h"

using namespace Qt::StringLiterals;

namespace launcher {

namespace {

using platform::CommandText;
using platform::FileStamp;
using platform::Icon;
using platform::LCase;
using platform::Show;
using platform::UCase;

// Before the pause: a command chosen meanwhile must not change what this run offers.
struct Run
{
    QString program;
    QString directory;
    QString listingSwitch;
    std::optional<FileStamp> listingBefore;

    QString listingName() const { return program + u".out"_s; }
    QString listing() const { return directory + u'\\' + listingName(); }
    // The interactive simulator writes no listing to offer.
    bool writesListing() const { return listingSwitch.isEmpty() && program != u"Interact"; }
};

void sayIfOlder(Panel &panel, const Run &run)
{
    const auto now = panel.platform.files.stamp(run.listing());
    if (!now || now != run.listingBefore)
        return;
    // Beside what was said of the run itself, such as why it did not start.
    shell::sayToo(panel, u"%1 is from before this run."_s.arg(run.listingName()));
}

bool userWantsListing(Panel &panel, const Run &run)
{
    return shell::MsgBox(panel,
                         {u"Do you want to view the output produced by the program, "_s + panel.frm.LineBreak
                              + UCase(run.program) + u".  If so, click Yes to view the output?"_s,
                          Icon::Question, platform::Buttons::YesNo, u"View output"_s})
           == platform::Yes;
}

// False where the listing is not there yet.
bool openListing(Panel &panel, const Run &run)
{
    auto [kinovra, frm, platform] = panel.parts();

    if (browser::TestFile(panel, run.directory, run.listingName(), browser::Silent) != 0) {
        shell::MsgBox(panel,
                      {u"Output could not be opened.  Wait until the program has completed"_s + frm.LineBreak
                           + u"execution or check whether program halted prematurely."_s,
                       Icon::Information});
        return false;
    }
    const QString said = frm.StatusBar1.Panel1;
    kinovra.TaskId = openInTextViewer(panel, run.listing(), run.directory, Show::Shown);
    if (isStarted(kinovra.TaskId))
        shell::say(panel, said);
    return true;
}

} // namespace

qint16 RunProgram(Panel &panel, const QString &prog, const CommandText &Comm, qint16 List)
{
    auto [kinovra, frm, platform] = panel.parts();

    Run run{kinovra.ProgName, kinovra.DataDir, kinovra.ListingSwitch, std::nullopt};
    showCommand(panel, LCase(prog + u' ' + Comm.text()));
    if (browser::TestFile(panel, QString(), prog, browser::ShowMessage) != 0)
        return 1;

    run.listingBefore = platform.files.stamp(run.listing());
    kinovra.TaskId = openWithSystem(panel, UCase(prog), Comm.upperCased(), run.directory, Show::Shown);
    if (run.writesListing() && List != 0)
        watchListing(panel, kinovra.TaskId, run.listing(), run.listingBefore);
    // The pause hangs on the prompt item, not on mnuPause; that is meant.
    if (frm.mnuPrompt.Checked)
        shell::pause(panel, 1);

    if (run.listingSwitch.isEmpty()) {
        frm.dlgOpen.InitDir = run.directory;
        kinovra.SelectedFile = run.listing();
        if (!run.writesListing())
            return 0;
        if (List != 0 && frm.mnuPrompt.Checked) {
            sayIfOlder(panel, run);
            if (userWantsListing(panel, run) && !openListing(panel, run))
                return 0;
        }
    }
    browser::refreshResultLists(panel);
    return 0;
}

void mnuPause_Click(Panel &panel)
{
    panel.frm.mnuPause.Checked = !panel.frm.mnuPause.Checked;
}

void mnuPrompt_Click(Panel &panel)
{
    panel.frm.mnuPrompt.Checked = !panel.frm.mnuPrompt.Checked;
}

void mnuReset_Click(Panel &panel)
{
    graphs::mnuListing_Click(panel, 0);
    graphs::mnuGraphics_Click(panel, 0);
}

} // namespace launcher
