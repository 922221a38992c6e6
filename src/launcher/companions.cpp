#include "launcher/companions.h"

#include "browser/current_trial.h"
#include "browser/hindrances.h"
#include "browser/test_file.h"
#include "browser/trial_files.h"
#include "launcher/program_runner.h"
#include "launcher/starting.h"
#include "platform/letter_case.h"
#include "shell/dispatch.h"
#include "shell/stored_settings.h"

using namespace Qt::StringLiterals;

namespace launcher {

namespace {

using platform::Icon;
using platform::Show;
using shell::MsgBox;

struct ForceRow
{
    const char *program;
    const char *switches;
};

// In menu order.
constexpr std::array<ForceRow, 4> ForcePrograms{{
    {"FPAnalyz", "/F/I "},
    {"FPHist", "/A/C "},
    {"FPSig", "/A/C/D/2 "},
    {"FPSig", "/A/C/D/3 "},
}};

// Extensions of what the animation program shows, in menu order.
constexpr std::array<const char *, 4> AnimatedData{".dg", ".cn", ".km", ".sn"};
constexpr int FilteredData = 2;

// The companions take a lone ";" as "no file".
CommandText noFile()
{
    return u" ;"_s;
}

CommandText fileOfTrial(const Panel &panel, const char *extension)
{
    return u" "_s + CommandText::document(panel.kinovra.CurrentTrial + QLatin1String(extension));
}

void startCompanion(Panel &panel, const char *program, const CommandText &parameters)
{
    panel.kinovra.TaskId = startDirectly(panel, panel.kinovra.ProgDir + u'\\' + QLatin1String(program),
                                         parameters, Show::Normal);
}

void startOnTrial(Panel &panel, const char *program, const char *extension)
{
    shell::StoreDataDir(panel, u"Kinovra"_s);
    startCompanion(panel, program,
                   panel.kinovra.CurrentTrial.isEmpty() ? noFile() : fileOfTrial(panel, extension));
}

} // namespace

void cmdForces_Click(Panel &panel)
{
    startOnTrial(panel, "forces.exe", ".rf");
}

void cmdSkelvo_Click(Panel &panel)
{
    startOnTrial(panel, "skelvo98.exe", ".dg");
}

void cmdOndex_Click(Panel &panel)
{
    auto [kinovra, frm, platform] = panel.parts();

    shell::StoreDataDir(panel, u"Ondex2"_s);
    kinovra.Answer =
        browser::TestFile(panel, kinovra.DataDir, kinovra.CurrentTrial + u".rf"_s, browser::ShowMessage);
    if (kinovra.Answer != 0) {
        startCompanion(panel, "ondex2.exe", noFile());
        return;
    }
    const platform::Answer answer =
        MsgBox(panel, {u"Press Yes to view Reduced Forces file (.rf), No to open Ondex2 or Cancel"_s,
                       platform::Icon::Question, platform::Buttons::YesNoCancel,
                       u"View .RF file or open Ondex2?"_s});
    kinovra.TaskId = answer;
    // Yes and No both start the program; that is meant, whatever the question suggests.
    if (answer == platform::Yes)
        startCompanion(panel, "ondex2.exe", fileOfTrial(panel, ".rf"));
    else if (answer == platform::No)
        startCompanion(panel, "ondex2.exe", noFile());
}

void mnuForce_Click(Panel &panel, int index)
{
    auto [kinovra, frm, platform] = panel.parts();

    if (kinovra.CurrentTrial.isEmpty()) {
        MsgBox(panel, {u"Select a trial from the Select trial menu."_s, Icon::Exclamation});
        return;
    }
    if (!browser::TrialFiles(panel).hasByAnswer(".rf")) {
        MsgBox(panel, {u"No force data files (.rf) were found for this trial."_s + frm.LineBreak
                           + u"Trial is: "_s + kinovra.CurrentTrial,
                       Icon::Exclamation});
        return;
    }
    if (index < 0 || static_cast<size_t>(index) >= ForcePrograms.size()) {
        MsgBox(panel, {u"Invalid case in mnuForce."_s, Icon::Exclamation});
        return;
    }
    const ForceRow &row = ForcePrograms[static_cast<size_t>(index)];
    kinovra.ProgName = QLatin1String(row.program);
    frm.ProgPath = packageProgram(panel, kinovra.ProgName);
    frm.Comm = CommandText(row.switches) + CommandText::document(kinovra.CurrentTrial + u".rf"_s);
    kinovra.Answer = RunProgram(panel, frm.ProgPath, frm.Comm, 0);
}

void mnuSkelvo_Click(Panel &panel, int index)
{
    auto [kinovra, frm, platform] = panel.parts();

    const bool known = index >= 0 && static_cast<size_t>(index) < AnimatedData.size();
    const char *extension = known ? AnimatedData[static_cast<size_t>(index)] : "";
    // Behind the program's own blank it makes two; that is meant.
    const bool withSegments = index == FilteredData && browser::TrialFiles(panel).hasByAnswer(".ks");
    const CommandText file = CommandText(withSegments ? " /g " : "")
                             + CommandText::document(kinovra.CurrentTrial + QLatin1String(extension));
    kinovra.ProgName = u"Skelvo"_s;
    frm.ProgPath = packageProgram(panel, kinovra.ProgName);
    kinovra.SelectedFile = file.text();
    showCommand(panel, platform::LCase(frm.ProgPath + u' ' + kinovra.SelectedFile));
    kinovra.TaskId = startDirectly(panel, frm.ProgPath, u" "_s + file, Show::Shown);
}

void mnuImages_Passed(Panel &panel)
{
    for (controls::MenuItem &item : panel.frm.mnuSkelvo)
        item.enableUnless(browser::needsTrial());
}

void mnuImages_Click(Panel &panel)
{
    if (browser::TestTrial(panel))
        return;
    browser::TrialFiles trial(panel);
    for (size_t i = 0; i < AnimatedData.size(); ++i) {
        trial.has(AnimatedData[i]);
        panel.frm.mnuSkelvo[i].enableUnless(trial.hindrance());
    }
}

} // namespace launcher
