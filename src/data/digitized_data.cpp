#include "data/digitized_data.h"

#include "browser/current_trial.h"
#include "browser/file_lists.h"
#include "browser/test_file.h"
#include "browser/trial_files.h"
#include "data/conversion.h"
#include "launcher/directory_commands.h"
#include "launcher/program_runner.h"
#include "launcher/starting.h"
#include "shell/dispatch.h"

using namespace Qt::StringLiterals;

namespace data {

namespace {

using platform::CommandText;
using platform::Icon;
using shell::MsgBox;

enum Item { Select, ScaleRefine, Animate, ViewInNotepad, Renumber };

void select(Panel &panel)
{
    auto &frm = panel.frm;
    browser::refresh(panel, {&frm.filDatafiles});
    frm.filDatafiles.Visible = true;
    frm.lblDatafiles.Visible = true;
    if (frm.filDatafiles.ListCount() == 0) {
        MsgBox(panel, {u"No datafiles in this directory."_s + frm.LineBreak + u"Open another directory."_s,
                       Icon::Exclamation});
        launcher::mnuOpen_Click(panel, launcher::OpenDirectory);
    } else if (frm.filDatafiles.ListCount() == 1) {
        browser::chooseTrialOf(panel, frm.filDatafiles.List(0));
    }
}

QString dataFile(const Panel &panel)
{
    return panel.kinovra.CurrentTrial + u".dg"_s;
}

void scaleAndRefine(Panel &panel)
{
    auto [kinovra, frm, platform] = panel.parts();

    kinovra.ProgName = u"Refila"_s;
    frm.ProgPath = launcher::packageProgram(panel, kinovra.ProgName);
    frm.Comm = kinovra.ListingSwitch + CommandText::document(dataFile(panel));
    // Not Answer, as elsewhere; that is meant.
    kinovra.TaskId = launcher::RunProgram(panel, frm.ProgPath, frm.Comm, 1);
}

void animate(Panel &panel)
{
    auto [kinovra, frm, platform] = panel.parts();

    kinovra.ProgName = u"Skelvo"_s;
    frm.ProgPath = launcher::packageProgram(panel, kinovra.ProgName);
    kinovra.SelectedFile = dataFile(panel);
    kinovra.Answer =
        launcher::RunProgram(panel, frm.ProgPath, CommandText::document(kinovra.SelectedFile), 0);
}

// Notepad always, whatever the text viewer is; that is meant.
void viewInNotepad(Panel &panel)
{
    auto [kinovra, frm, platform] = panel.parts();

    kinovra.ProgName = u"Notepad"_s;
    kinovra.SelectedFile = dataFile(panel);
    kinovra.TaskId = launcher::startDirectly(
        panel, u"Notepad.exe"_s, u" "_s + CommandText::document(kinovra.SelectedFile), platform::Show::Shown);
}

void renumber(Panel &panel)
{
    auto [kinovra, frm, platform] = panel.parts();

    kinovra.Answer = browser::TestFile(panel, kinovra.DataDir, dataFile(panel), browser::ShowMessage);
    if (kinovra.Answer != 0)
        return;
    kinovra.ProgName = u"Renumber"_s;
    frm.ProgPath = launcher::packageProgram(panel, kinovra.ProgName);
    kinovra.SelectedFile = dataFile(panel);
    launcher::showAndStart(panel, frm.ProgPath, u" "_s + CommandText::document(kinovra.SelectedFile));
}

} // namespace

void mnuDatafile_Click(Panel &panel, int index)
{
    switch (index) {
    case Select:
        select(panel);
        break;
    case ScaleRefine:
        scaleAndRefine(panel);
        break;
    case Animate:
        animate(panel);
        break;
    case ViewInNotepad:
        viewInNotepad(panel);
        break;
    case Renumber:
        renumber(panel);
        break;
    default:
        MsgBox(panel, {u"Program select error in Datafile menu."_s, Icon::Exclamation});
    }
}

void mnuDatafiles_Click(Panel &panel)
{
    auto &items = panel.frm.mnuDatafile;

    browser::TrialFiles trial(panel);
    const bool hasData = trial.hasByAnswer(".dg");
    for (size_t item = ScaleRefine; item <= Renumber; ++item)
        items[item].enableUnless(trial.hindrance());
    if (!trial.hasByAnswer(".CN") && hasData)
        items[ScaleRefine].enableUnless(trial.hindrance());
    if (!trial.hasByAnswer(".REN") && hasData)
        items[Renumber].enableUnless(trial.hindrance());
    trial.hasByAnswer(".cda");
    panel.frm.mnuConvert[PeakPerformance].enableUnless(trial.hindrance());
}

} // namespace data
