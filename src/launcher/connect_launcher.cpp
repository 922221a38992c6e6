#include "launcher/connect_launcher.h"

#include "launcher/companions.h"
#include "launcher/directory_commands.h"
#include "launcher/endings.h"
#include "launcher/program_runner.h"
#include "launcher/programs_menu.h"
#include "launcher/progress_chart.h"
#include "launcher/tools.h"
#include "shell/connect_items.h"

namespace launcher {

namespace {

void connectPrograms(Panel &panel)
{
    auto &frm = panel.frm;
    shell::connectItems(panel, frm.mnuProg, mnuProg_Click);
    frm.mnuProgs.Opening = [&panel] { mnuProgs_Click(panel); };
    frm.mnuProgs.Passed = [&panel] { mnuProgs_Passed(panel); };
    frm.mnuProgs.AsksOnOpening = [&panel] { return mnuProgs_asks(panel); };
    frm.mnuProgs.OpensAfterAsking = true;
    frm.mnuOptions.Click = [&panel] { mnuOptions_Click(panel); };
    frm.mnuPause.Click = [&panel] { mnuPause_Click(panel); };
    frm.mnuPrompt.Click = [&panel] { mnuPrompt_Click(panel); };
    frm.mnuReset.Click = [&panel] { mnuReset_Click(panel); };
    panel.platform.programs.ended = [&panel](double value, const platform::Ending &ending) {
        programEnded(panel, value, ending);
    };
}

void connectTools(Panel &panel)
{
    auto &frm = panel.frm;
    shell::connectItems(panel, frm.mnuOpen, mnuOpen_Click);
    shell::connectItems(panel, frm.mnuDOS, mnuDOS_Click);
    frm.mnuRun.Click = [&panel] { mnuRun_Click(panel); };
    frm.mnuProgHelp.Click = [&panel] { mnuProgHelp_Click(panel); };
}

void connectCompanions(Panel &panel)
{
    auto &frm = panel.frm;
    shell::connectItems(panel, frm.mnuForce, mnuForce_Click);
    shell::connectItems(panel, frm.mnuSkelvo, mnuSkelvo_Click);
    frm.mnuImages.Opening = [&panel] { mnuImages_Click(panel); };
    frm.mnuImages.Passed = [&panel] { mnuImages_Passed(panel); };
    frm.mnuImages.AsksOnOpening = [&panel] { return panel.kinovra.CurrentTrial.isEmpty(); };
    frm.cmdForces.Click = [&panel] { cmdForces_Click(panel); };
    frm.cmdSkelvo.Click = [&panel] { cmdSkelvo_Click(panel); };
    frm.cmdOndex.Click = [&panel] { cmdOndex_Click(panel); };
}

} // namespace

void connect(Panel &panel)
{
    connectPrograms(panel);
    connectTools(panel);
    connectCompanions(panel);
}

} // namespace launcher
