#pragma once

#include "platform/command_text.h"

#include <QString>
#include <QStringList>

// How a start becomes what a target system wants to have. Pure code: every target is tested on every system.

namespace platform {

/// The command line of a direct start for Windows: the program in quotes where it holds blanks (so that
/// C:\Program.exe is never taken for "C:\Program Files\..."), documents in quotes where they hold blanks,
/// everything else as it was composed.
QString windowsCommandLine(const Start &start);

/// The parameters of an "open" for Windows.
QString windowsParameters(const Start &start);

/// The program and the argument list for a native program of the host. `program` is the host's path.
QStringList nativeArguments(const QString &program, const Start &start);

/// The argument list that runs the Windows program with the host's path `program` through `wine`.
QStringList wineArguments(const QString &wine, const QString &program, const Start &start);

/// The argument list that runs the DOS program `name` of the host's directory `programDirectory` in `dosbox`,
/// with the host's directory `dataDirectory` as its drive D: and working directory. Raises
/// InvalidProcedureCall for text that the DOS command processor would act on, and for names with blanks.
QStringList dosboxArguments(const QString &dosbox, const QString &programDirectory, const QString &name,
                            const QString &dataDirectory, const Start &start);

/// The argument list that shows `command` in a window of the terminal program `terminal` (a host's path; its
/// name says how it takes a command).
QStringList terminalArguments(const QString &terminal, const QStringList &command);

/// The arguments that let the terminal program `terminal` begin with a maximized window; none where it is not
/// known to understand any. It is the host's path of the program itself: a link may be called as it likes,
/// and a wrapper takes another one's options.
QStringList maximizedWindow(const QString &terminal);

} // namespace platform
