#include "launcher/programs_menu.h"

#include "browser/test_file.h"
#include "launcher/program_runner.h"
#include "launcher/starting.h"
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

} // namespace launcher
