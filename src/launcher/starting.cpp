#include "launcher/starting.h"

#include "browser/file_lists.h"
#include "platform/path_language.h"
#include "shell/dispatch.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace launcher {

namespace {

using platform::Ending;
using platform::Target;
using shell::RunningProgram;

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

QString endingText(const RunningProgram &program, const Ending &ending)
{
    // What opens a document may hand it on and end; only that it could not is worth telling.
    if (!program.isProgram)
        return ending.kind == Ending::Kind::Exited && ending.code == 0
                   ? QString()
                   : u"%1 could not be opened."_s.arg(program.name);
    if (ending.kind == Ending::Kind::Crashed)
        return u"%1 was stopped by an error (%2)."_s.arg(program.name, ending.reason);
    if (ending.kind == Ending::Kind::TerminalFailed)
        return u"%1 may not have run: its terminal failed."_s.arg(program.name);
    if (ending.code != 0)
        return u"%1 ended with error %2."_s.arg(
            program.name,
            QString::number(ending.code) + (ending.reason.isEmpty() ? QString() : u": "_s) + ending.reason);
    return {};
}

bool listingIsNew(Panel &panel, const RunningProgram &program)
{
    if (program.listing.isEmpty())
        return false;
    const auto now = panel.platform.files.stamp(program.listing);
    return now && now != program.listingBefore;
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

void watchListing(Panel &panel, double value, const QString &listing,
                  const std::optional<platform::FileStamp> &before)
{
    for (RunningProgram &program : panel.running) {
        if (program.value == value) {
            program.listing = listing;
            program.listingBefore = before;
        }
    }
}

void programEnded(Panel &panel, double value, const Ending &ending)
{
    // It may have ended while a handler waits, and left files behind.
    panel.platform.files.nextMoment();
    const auto found =
        std::find_if(panel.running.begin(), panel.running.end(),
                     [value](const RunningProgram &program) { return program.value == value; });
    if (found == panel.running.end())
        return;
    const RunningProgram program = *found;
    panel.running.erase(found);
    const QString error = endingText(program, ending);
    if (!error.isEmpty())
        shell::say(panel, error);
    else if (program.isProgram)
        browser::refreshResultLists(panel);
    if (error.isEmpty() && listingIsNew(panel, program))
        shell::say(panel, u"%1 is ready."_s.arg(platform::nameOf(program.listing)));
}

} // namespace launcher
