#pragma once

#include <QString>

namespace platform::host {

/// The program `name`, a name without a directory, in the directories of the system and then in those of the
/// PATH; null where it is in none. The current directory is not among them, nor is `dataDirectory`, even
/// where the PATH names it; relative directories of the PATH are passed over.
QString findProgram(const QString &name, const QString &dataDirectory);

/// The program that today's system has in place of the accessory `name` (any case), which it lacks; null
/// where there is none: the command processor for "command.com", the present help viewer for "winhlp32.exe".
QString successorOf(const QString &name);

/// Whether the accessory `name` (any case) is one that shows films, so that whatever program is associated
/// with a film may take its place.
bool showsFilms(const QString &name);

/// What a file is that is to be started.
enum class ProgramKind {
    None,       ///< no program by its name or its first bytes, such as text for the command processor
    Windows,    ///< one that this system can start
    OtherSystem ///< one of DOS and its like, or a damaged one
};

/// The kind of the file `path`. Raises as openForReading does.
ProgramKind programKind(const QString &path);

/// Whether the system would run a file of this name rather than show it.
bool isDangerousToOpen(const QString &path);

} // namespace platform::host
