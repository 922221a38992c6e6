#include "launcher/programs_menu.h"

#include "averaging/averaging_menu.h"
#include "browser/test_file.h"
#include "data/models.h"
#include "launcher/companions.h"
#include "launcher/program_runner.h"
#include "launcher/starting.h"
#include "platform/letter_case.h"
#include "shell/dispatch.h"

using namespace Qt::StringLiterals;

namespace launcher {

namespace {

using platform::CommandText;
using platform::Icon;
using platform::UCase;
using shell::MsgBox;

struct ProgramRow
{
    const char *program;
    const char *switches;
};

// In menu order.
constexpr std::array<ProgramRow, 13> Programs{{
    {"Errcheck", ""},
    {"Fourier", ""},
    {"Noise", ""},
    {"Kinemati", ""},
    {"Momentum", ""},
    {"Muscle", ""},
    {"Energy", ""},
    {"Torque", ""},
    {"Force", ""},
    {"Powers", ""},
    {"Interact", ""},
    {"Simulate", ""},
    {"Interact", "/C "},
}};

constexpr int LastThatNeedsRefinedData = 3;

enum Item : size_t {
    Fourier = 1,
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

bool trialHas(Panel &panel, const char *extension)
{
    return browser::TestFile(panel, panel.kinovra.DataDir,
                             panel.kinovra.CurrentTrial + QLatin1String(extension), browser::Silent)
           == 0;
}

// Tests both files, whatever the first says.
bool trialHasEither(Panel &panel, const char *extension, const char *other)
{
    const bool first = trialHas(panel, extension);
    return trialHas(panel, other) || first;
}

void enable(Panel &panel, size_t from, size_t to, bool enabled)
{
    for (size_t i = from; i <= to; ++i)
        panel.frm.mnuProg[i].Enabled = enabled;
}

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

// False where the user does not want a model.
bool offerModel(Panel &panel)
{
    auto [kinovra, frm, platform] = panel.parts();

    if (frm.filModels.ListCount() == 0) {
        kinovra.Answer = MsgBox(panel, {u"No models (.CFB files) in this directory."_s + frm.LineBreak
                                            + u"Do you want to create a new model (.CFB) file."_s,
                                        Icon::Question, platform::Buttons::YesNo});
        if (kinovra.Answer == platform::No)
            return false;
        data::mnuModel_Click(panel, 4);
    }
    if (frm.filModels.ListCount() == 1)
        followOnlyModel(panel);
    return true;
}

void enableByFiles(Panel &panel)
{
    auto &frm = panel.frm;

    const bool hasModel = trialHas(panel, ".cfb");
    frm.mnuOptions.Enabled = hasModel;
    enable(panel, 0, hasModel ? Powers : Simulate, hasModel);
    // Without a model the marks of Kinematics and Interact stay as they were; that is meant.
    if (!hasModel)
        return;
    enable(panel, 0, Kinematics, trialHas(panel, ".cn"));
    const bool hasKs = trialHas(panel, ".ks");
    const bool hasKm = trialHas(panel, ".km");
    frm.mnuProg[Kinematics].Checked = hasKs || hasKm;
    enable(panel, Momentum, Powers, hasKm);
    if (hasKm)
        frm.mnuProg[Powers].Enabled = trialHasEither(panel, ".fo", ".jp");
    const bool hasSimulation = trialHas(panel, ".sim");
    frm.mnuProg[Interact].Checked = hasSimulation;
    enable(panel, Interact, Simulate, hasSimulation);
}

void checkByResults(Panel &panel)
{
    auto &items = panel.frm.mnuProg;

    items[Fourier].Checked = trialHas(panel, ".fr");
    items[Noise].Checked = trialHasEither(panel, ".ns", ".cut");
    items[Momentum].Checked = trialHas(panel, ".mm");
    items[Muscle].Checked = trialHas(panel, ".mu");
    items[Energy].Checked = trialHas(panel, ".en");
    items[Torque].Checked = trialHas(panel, ".tq");
    items[Force].Checked = trialHasEither(panel, ".fo", ".jp");
    items[Powers].Checked = trialHasEither(panel, ".ps", ".pj");
    items[Simulate].Checked = trialHas(panel, ".sn");
}

} // namespace

void mnuProg_Click(Panel &panel, int index)
{
    auto [kinovra, frm, platform] = panel.parts();

    if (index >= 0 && index <= LastThatNeedsRefinedData) {
        kinovra.Answer =
            browser::TestFile(panel, kinovra.DataDir, kinovra.CurrentTrial + u".cn"_s, browser::Silent);
        if (kinovra.Answer != 0) {
            MsgBox(panel, {u"Data have not been Refined/scaled or Converted."_s + frm.LineBreak
                               + u"Click on the Data menu to convert your digitized data."_s,
                           Icon::Information});
            return;
        }
    }
    const bool known = index >= 0 && static_cast<size_t>(index) < Programs.size();
    const ProgramRow row = known ? Programs[static_cast<size_t>(index)] : ProgramRow{"", ""};
    kinovra.ProgName = QLatin1String(row.program);
    QString switches = QLatin1String(row.switches);
    if (frm.mnuPause.Checked)
        switches += u"/D "_s;
    frm.ProgPath = kinovra.ProgDir + u'\\' + kinovra.ProgName + u".exe"_s;
    frm.Comm = kinovra.ListingSwitch + switches + CommandText::document(kinovra.CurrentTrial);
    kinovra.Answer = RunProgram(panel, frm.ProgPath, frm.Comm, 1);
}

void mnuProgs_Click(Panel &panel)
{
    averaging::enableAveraging(panel);
    if (!offerModel(panel))
        return;
    enableByFiles(panel);
    checkByResults(panel);
}

bool mnuProgs_asks(const Panel &panel)
{
    return panel.frm.filModels.ListCount() == 0;
}

void mnuProgHelp_Click(Panel &panel)
{
    auto [kinovra, frm, platform] = panel.parts();

    const QString anyProgram = u"*.exe"_s;
    const QString helpSwitches = u" /? /HELP"_s;
    frm.dlgOpen.InitDir = kinovra.ProgDir;
    const QString chosen = platform.dialogs
                               .openFile({.initialDirectory = kinovra.ProgDir,
                                          .fileName = anyProgram,
                                          .filter = anyProgram,
                                          .title = u"Select a program to view its help."_s,
                                          .mustExist = true,
                                          .hideReadOnly = true})
                               .value_or(anyProgram);
    frm.lblCommand.Caption = chosen + helpSwitches;
    frm.lblCommand.Visible = true;
    if (chosen != anyProgram) {
        frm.ProgPath = chosen;
        kinovra.ProgName = chosen;
        kinovra.TaskId = startDirectly(panel, frm.ProgPath, helpSwitches, platform::Show::Shown);
    }
    frm.dlgOpen.InitDir = kinovra.DataDir;
    platform.files.changeDrive(kinovra.DataDir);
    platform.files.changeDirectory(kinovra.DataDir);
}

void connect(Panel &panel)
{
    auto &frm = panel.frm;
    for (int i = 0; i < static_cast<int>(frm.mnuProg.size()); ++i)
        frm.mnuProg[static_cast<size_t>(i)].Click = [&panel, i] { mnuProg_Click(panel, i); };
    frm.mnuProgs.Opening = [&panel] { mnuProgs_Click(panel); };
    frm.mnuProgs.AsksOnOpening = [&panel] { return mnuProgs_asks(panel); };
    frm.mnuProgs.OpensAfterAsking = true;
    frm.mnuProgHelp.Click = [&panel] { mnuProgHelp_Click(panel); };
    frm.mnuPause.Click = [&panel] { mnuPause_Click(panel); };
    frm.mnuPrompt.Click = [&panel] { mnuPrompt_Click(panel); };
    frm.mnuReset.Click = [&panel] { mnuReset_Click(panel); };
    connectCompanions(panel);
    panel.platform.programs.ended = [&panel](double value, const platform::Ending &ending) {
        programEnded(panel, value, ending);
    };
}

} // namespace launcher
