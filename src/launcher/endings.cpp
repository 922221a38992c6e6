#include "launcher/endings.h"

#include "browser/file_lists.h"
#include "platform/path_language.h"
#include "shell/dispatch.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace launcher {

namespace {

using platform::Ending;
using shell::RunningProgram;

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
        browser::readChangedDirectories(panel);
    if (error.isEmpty() && listingIsNew(panel, program))
        shell::say(panel, u"%1 is ready."_s.arg(platform::nameOf(program.listing)));
}

} // namespace launcher
