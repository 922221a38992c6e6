#include "launcher/progress_chart.h"

#include "averaging/averaging_menu.h"
#include "browser/hindrances.h"
#include "browser/trial_files.h"
#include "data/models.h"
#include "platform/letter_case.h"
#include "shell/dispatch.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace launcher {

namespace {

using browser::TrialFiles;
using platform::UCase;

/// The items of mnuProg. The last one, "Create A New Simulation", is never touched here.
enum Item : size_t {
    ErrorCheck,
    Fourier,
    Noise,
    Kinematics,
    Momentum,
    Muscle,
    Energy,
    Torque,
    Force,
    Powers,
    Interact,
    Simulate
};

constexpr int ViewModelInNotepad = 4;

// A single model is the trial. Where that is news, the label follows and the status bar says so.
void followOnlyModel(Panel &panel)
{
    auto [kinovra, frm, platform] = panel.parts();

    const QString before = UCase(kinovra.CurrentTrial);
    kinovra.CurrentTrial = frm.filModels.List(0).section(u'.', 0, 0);
    const QString trial = UCase(kinovra.CurrentTrial);
    if (trial != before) {
        frm.lblTrial.Caption = trial;
        shell::say(panel, u"The trial is now %1, the only model of this directory."_s.arg(trial));
    }
}

// False where there is no model and the user does not want one.
bool offerModel(Panel &panel)
{
    auto [kinovra, frm, platform] = panel.parts();

    if (mnuProgs_asks(panel)) {
        kinovra.Answer = shell::MsgBox(panel, {u"No models (.CFB files) in this directory."_s + frm.LineBreak
                                                   + u"Do you want to create a new model (.CFB) file."_s,
                                               platform::Icon::Question, platform::Buttons::YesNo});
        if (kinovra.Answer == platform::No)
            return false;
        data::mnuModel_Click(panel, ViewModelInNotepad);
    }
    if (frm.filModels.ListCount() == 1)
        followOnlyModel(panel);
    return true;
}

void enableUnless(Panel &panel, Item from, Item to, const QString &hindrance)
{
    for (size_t i = from; i <= to; ++i)
        panel.frm.mnuProg[i].enableUnless(hindrance);
}

void enableByFiles(Panel &panel, TrialFiles &trial)
{
    auto &items = panel.frm.mnuProg;

    const bool hasModel = trial.has(".cfb");
    panel.frm.mnuOptions.enableUnless(trial.hindrance());
    if (!hasModel) {
        // The marks of Kinematics and Interact stay as they were; that is meant.
        enableUnless(panel, ErrorCheck, Simulate, trial.hindrance());
        return;
    }
    trial.has(".cn");
    enableUnless(panel, ErrorCheck, Kinematics, trial.hindrance());
    const bool hasKs = trial.has(".ks");
    const bool hasKm = trial.has(".km");
    items[Kinematics].Checked = hasKs || hasKm;
    enableUnless(panel, Momentum, Powers, trial.hindrance());
    if (hasKm && !trial.hasEither(".fo", ".jp"))
        items[Powers].enableUnless(browser::trialFilesHindrance(panel, u".fo"_s, u".jp"_s));
    items[Interact].Checked = trial.has(".sim");
    enableUnless(panel, Interact, Simulate, trial.hindrance());
}

void checkByResults(Panel &panel, TrialFiles &trial)
{
    auto &items = panel.frm.mnuProg;

    items[Fourier].Checked = trial.has(".fr");
    items[Noise].Checked = trial.hasEither(".ns", ".cut");
    items[Momentum].Checked = trial.has(".mm");
    items[Muscle].Checked = trial.has(".mu");
    items[Energy].Checked = trial.has(".en");
    items[Torque].Checked = trial.has(".tq");
    items[Force].Checked = trial.hasEither(".fo", ".jp");
    items[Powers].Checked = trial.hasEither(".ps", ".pj");
    items[Simulate].Checked = trial.has(".sn");
}

} // namespace

void mnuProgs_Click(Panel &panel)
{
    averaging::enableAveraging(panel);
    if (!offerModel(panel)) {
        mnuProgs_Passed(panel);
        return;
    }
    TrialFiles trial(panel);
    enableByFiles(panel, trial);
    checkByResults(panel, trial);
}

void mnuProgs_Passed(Panel &panel)
{
    // The items keep their states, but what greyed them may have been another directory's.
    const auto tell = [](controls::MenuItem &item) {
        if (!item.Enabled)
            item.Hindrance = u"Needs a model (.CFB file) in this directory"_s;
    };
    std::for_each(panel.frm.mnuProg.begin(), panel.frm.mnuProg.end(), tell);
    tell(panel.frm.mnuOptions);
}

bool mnuProgs_asks(const Panel &panel)
{
    return panel.frm.filModels.ListCount() == 0;
}

} // namespace launcher
