#include "launcher/presence_check.h"

#include "browser/test_file.h"
#include "shell/dispatch.h"

using namespace Qt::StringLiterals;

namespace launcher {

namespace {

// In the order of the Programs menu.
constexpr std::array<const char *, 12> AnalysisPrograms{
    "errcheck.exe", "fourier.exe", "noise.exe", "kinemati.exe", "momentum.exe", "muscle.exe",
    "energy.exe",   "torque.exe",  "force.exe", "powers.exe",   "interact.exe", "simulate.exe"};

} // namespace

void checkPresence(shell::Panel &panel)
{
    auto [kinovra, frm, platform] = panel.parts();

    const auto test = [&panel](const char *program) {
        panel.kinovra.Answer =
            browser::TestFile(panel, panel.kinovra.ProgDir, QLatin1String(program), browser::Silent);
        return panel.kinovra.Answer == 0;
    };
    if (!test("refila.exe")) {
        shell::MsgBox(panel, {u"KINOVRA programs were not found in the 'program' directory."_s + frm.LineBreak
                                  + u"KINOVRA programs and KVWIN must be in the same directory."_s
                                  + frm.LineBreak + u"The KINOVRA software needs to be reinstalled."_s,
                              platform::Icon::Critical});
    }
    for (size_t i = 0; i < AnalysisPrograms.size(); ++i)
        frm.mnuProg[i].Visible = test(AnalysisPrograms[i]);
}

} // namespace launcher
