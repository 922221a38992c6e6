#include "launcher/tools.h"

#include "browser/test_file.h"
#include "launcher/starting.h"
#include "platform/runtime_error.h"
#include "shell/dispatch.h"

using namespace Qt::StringLiterals;

namespace launcher {

namespace {

using platform::ErrorNumber;
using platform::Show;

struct Accessory
{
    const char *program;
    Show show;
};

// In menu order.
constexpr std::array<Accessory, 4> Accessories{{
    {"calc.exe", Show::Normal},
    {"command.com", Show::Maximized},
    {"explorer.exe", Show::Normal},
    {"notepad.exe", Show::Normal},
}};

// What the dialog proposes, and keeps as the file's name when it is cancelled.
QString anyProgram()
{
    return u"*.exe"_s;
}

platform::OpenFileRequest programRequest(const Panel &panel, const QString &title)
{
    return {.initialDirectory = panel.kinovra.ProgDir,
            .fileName = anyProgram(),
            .filter = anyProgram(),
            .title = title};
}

void goBackToDataDir(Panel &panel)
{
    auto [kinovra, frm, platform] = panel.parts();

    frm.dlgOpen.InitDir = kinovra.DataDir;
    platform.files.changeDrive(kinovra.DataDir);
    platform.files.changeDirectory(kinovra.DataDir);
}

} // namespace

void mnuDOS_Click(Panel &panel, int index)
{
    if (index < 0 || static_cast<size_t>(index) >= Accessories.size())
        return;
    const Accessory &accessory = Accessories[static_cast<size_t>(index)];
    panel.kinovra.TaskId = startDirectly(panel, QLatin1String(accessory.program), {}, accessory.show);
}

void mnuRun_Click(Panel &panel)
{
    auto [kinovra, frm, platform] = panel.parts();

    frm.dlgOpen.InitDir = kinovra.ProgDir;
    QString chosen =
        shell::askForFile(panel, programRequest(panel, u"Select program to run"_s)).value_or(QString());
    if (chosen == anyProgram())
        chosen.clear();
    showCommand(panel, chosen);
    if (!chosen.isEmpty()) {
        kinovra.ProgName = chosen;
        frm.ProgPath = chosen;
        // Meant: the full path behind the program directory is a bad file name, so the start is tried.
        kinovra.Answer = browser::TestFile(panel, kinovra.ProgDir, chosen, browser::Silent);
        if (kinovra.Answer == static_cast<qint16>(ErrorNumber::FileNotFound))
            return;
        kinovra.TaskId = openWithSystem(panel, frm.ProgPath, {}, kinovra.ProgDir, Show::Shown);
    }
    goBackToDataDir(panel);
}

void mnuProgHelp_Click(Panel &panel)
{
    auto [kinovra, frm, platform] = panel.parts();

    const QString helpSwitches = u" /? /HELP"_s;
    frm.dlgOpen.InitDir = kinovra.ProgDir;
    auto request = programRequest(panel, u"Select a program to view its help."_s);
    request.mustExist = true;
    request.hideReadOnly = true;
    const QString chosen = shell::askForFile(panel, request).value_or(anyProgram());
    showCommand(panel, chosen + helpSwitches);
    if (chosen != anyProgram()) {
        frm.ProgPath = chosen;
        kinovra.ProgName = chosen;
        kinovra.TaskId = startDirectly(panel, frm.ProgPath, helpSwitches, Show::Shown);
    }
    goBackToDataDir(panel);
}

void mnuOptions_Click(Panel &panel)
{
    auto [kinovra, frm, platform] = panel.parts();

    // The program's name carries its extension here, and its path the switches; both are meant.
    const QString switches = u" /C/R/M/F/G "_s;
    kinovra.ProgName = u"Options.exe"_s;
    const QString program = kinovra.ProgDir + u'\\' + kinovra.ProgName;
    frm.ProgPath = program + switches;
    showCommand(panel, frm.ProgPath + u"  "_s + kinovra.CurrentTrial);
    kinovra.TaskId =
        startDirectly(panel, program, switches + CommandText::document(kinovra.CurrentTrial), Show::Shown);
}

} // namespace launcher
