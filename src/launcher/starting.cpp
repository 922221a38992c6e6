#include "launcher/starting.h"

#include "platform/path_language.h"
#include "shell/dispatch.h"

using namespace Qt::StringLiterals;

namespace launcher {

namespace {

using platform::Target;

QString nameForUser(const platform::Start &request)
{
    if (request.target != Target::Document || !request.file.isEmpty())
        return platform::nameOf(request.file);
    return platform::shortFormOf(request.directory);
}

double start(Panel &panel, const platform::Start &request)
{
    const platform::StartResult result = panel.platform.programs.start(request);
    const QString name = nameForUser(request);
    const bool isProgram = request.target == Target::Program;
    if (result.failure.isEmpty()) {
        panel.running.push_back({result.value, name, isProgram, QString(), std::nullopt});
        shell::say(panel, QString());
    } else {
        shell::say(panel, (isProgram ? u"%1 was not started: %2."_s : u"%1 was not opened: %2."_s)
                              .arg(name, result.failure));
    }
    return result.value;
}

} // namespace

QString packageProgram(const Panel &panel, const QString &name)
{
    return panel.kinovra.ProgDir + u'\\' + name + u".exe"_s;
}

double openWithSystem(Panel &panel, const QString &file, const CommandText &parameters,
                      const QString &directory, platform::Show show)
{
    return start(panel, {.verb = u"open"_s,
                         .file = file,
                         .parameters = parameters,
                         .directory = directory,
                         .show = show,
                         .owner = panel.kinovra.MainWindowHandle});
}

double openInTextViewer(Panel &panel, const QString &document, const QString &directory, platform::Show show)
{
    return start(panel, {.verb = u"open"_s,
                         .file = panel.kinovra.TextViewer,
                         .parameters = CommandText::document(document),
                         .directory = directory,
                         .show = show,
                         .owner = panel.kinovra.MainWindowHandle,
                         .isViewer = true});
}

double openDocument(Panel &panel, const QString &name, const QString &directory)
{
    return start(panel, {.verb = u"open"_s,
                         .file = name,
                         .directory = directory,
                         .show = platform::Show::Normal,
                         .owner = panel.kinovra.MainWindowHandle,
                         .target = Target::Document});
}

double exploreFolder(Panel &panel, const QString &directory)
{
    return start(panel, {.verb = u"explore"_s,
                         .directory = directory,
                         .show = platform::Show::Normal,
                         .owner = panel.kinovra.MainWindowHandle,
                         .target = Target::Document});
}

double openAddress(Panel &panel, const QString &address, const QString &directory)
{
    return start(panel, {.verb = u"Open"_s,
                         .file = address,
                         .directory = directory,
                         .show = platform::Show::Shown,
                         .owner = panel.kinovra.MainWindowHandle,
                         .target = Target::Address});
}

double startDirectly(Panel &panel, const QString &program, const CommandText &parameters, platform::Show show)
{
    return start(panel, {.verb = QString(),
                         .file = program,
                         .parameters = parameters,
                         .directory = panel.kinovra.DataDir,
                         .show = show,
                         .owner = 0});
}

void showCommand(Panel &panel, const QString &command)
{
    panel.frm.lblCommand.Caption = command;
    panel.frm.lblCommand.Visible = true;
}

void showAndStart(Panel &panel, const QString &program, const CommandText &parameters)
{
    showCommand(panel, program + parameters.text());
    panel.kinovra.TaskId = startDirectly(panel, program, parameters, platform::Show::Shown);
}

} // namespace launcher
