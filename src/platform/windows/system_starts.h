#pragma once

#include "platform/command_text.h"
#include "platform/start_rules.h"
#include "platform/windows/windows_api.h"

#include <QString>

namespace platform::host {

/// What became of a start.
struct Started
{
    QString failure = {}; ///< why nothing was started, as a clause; empty on success
    double failureValue = open_failure::NotFound;
    Handle process = Handle(); ///< of what was started, where the system tells
};

/// The result of a start that failed with this error.
Started notStarted(quint32 systemError);

/// Starts the program with the full path `program` with exactly this command line. A console program gets a
/// console of its own.
Started createProcess(const QString &program, const QString &commandLine, const QString &directory,
                      Show show);

/// Lets the system perform the verb of `start` on the file, folder or address `file`; it shows no box of its
/// own.
Started openBySystem(const Start &start, const QString &file, const QString &parameters,
                     const QString &directory);

} // namespace platform::host
