#include "launcher/companions.h"

#include "browser/test_file.h"
#include "launcher/starting.h"
#include "shell/dispatch.h"
#include "shell/stored_settings.h"

using namespace Qt::StringLiterals;

namespace launcher {

namespace {

using platform::Show;

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
        shell::MsgBox(panel, {u"Press Yes to view Reduced Forces file (.rf), No to open Ondex2 or Cancel"_s,
                              platform::Icon::Question, platform::Buttons::YesNoCancel,
                              u"View .RF file or open Ondex2?"_s});
    kinovra.TaskId = answer;
    // Yes and No both start the program; that is meant, whatever the question suggests.
    if (answer == platform::Yes)
        startCompanion(panel, "ondex2.exe", fileOfTrial(panel, ".rf"));
    else if (answer == platform::No)
        startCompanion(panel, "ondex2.exe", noFile());
}

void connectCompanions(Panel &panel)
{
    auto &frm = panel.frm;
    frm.cmdForces.Click = [&panel] { cmdForces_Click(panel); };
    frm.cmdSkelvo.Click = [&panel] { cmdSkelvo_Click(panel); };
    frm.cmdOndex.Click = [&panel] { cmdOndex_Click(panel); };
}

} // namespace launcher
