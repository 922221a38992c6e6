#include "launcher/programs_menu.h"

#include "browser/test_file.h"
#include "launcher/companions.h"
#include "launcher/directory_commands.h"
#include "launcher/program_runner.h"
#include "launcher/progress_chart.h"
#include "launcher/starting.h"
#include "shell/connect_items.h"
#include "shell/dispatch.h"

using namespace Qt::StringLiterals;

namespace launcher {

namespace {

using platform::CommandText;
using platform::Icon;
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
    frm.ProgPath = packageProgram(panel, kinovra.ProgName);
    frm.Comm = kinovra.ListingSwitch + switches + CommandText::document(kinovra.CurrentTrial);
    kinovra.Answer = RunProgram(panel, frm.ProgPath, frm.Comm, 1);
}

void mnuProgHelp_Click(Panel &panel)
{
    auto [kinovra, frm, platform] = panel.parts();

    const QString anyProgram = u"*.exe"_s;
    const QString helpSwitches = u" /? /HELP"_s;
    frm.dlgOpen.InitDir = kinovra.ProgDir;
    const QString chosen = shell::askForFile(panel, {.initialDirectory = kinovra.ProgDir,
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
    shell::connectItems(panel, frm.mnuProg, mnuProg_Click);
    frm.mnuProgs.Opening = [&panel] { mnuProgs_Click(panel); };
    frm.mnuProgs.AsksOnOpening = [&panel] { return mnuProgs_asks(panel); };
    frm.mnuProgs.OpensAfterAsking = true;
    frm.mnuProgHelp.Click = [&panel] { mnuProgHelp_Click(panel); };
    frm.mnuPause.Click = [&panel] { mnuPause_Click(panel); };
    frm.mnuPrompt.Click = [&panel] { mnuPrompt_Click(panel); };
    frm.mnuReset.Click = [&panel] { mnuReset_Click(panel); };
    connectCompanions(panel);
    connectDirectoryCommands(panel);
    panel.platform.programs.ended = [&panel](double value, const platform::Ending &ending) {
        programEnded(panel, value, ending);
    };
}

} // namespace launcher
