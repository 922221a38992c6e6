#pragma once

#include "shell/panel.h"

namespace launcher {

using platform::CommandText;
using shell::Panel;

/// The full path of the package's program `name`.
QString packageProgram(const Panel &panel, const QString &name);

/// Asks the operating system to "open" `file` with `parameters` in `directory`, the main window being the
/// owner. The result is more than 32 on success. A failure is told in the status bar and nowhere else.
double openWithSystem(Panel &panel, const QString &file, const CommandText &parameters,
                      const QString &directory, platform::Show show);

/// Asks the operating system to "open" the user's text viewer with `document`, a full path or a name in
/// `directory`. The result is that of openWithSystem.
double openInTextViewer(Panel &panel, const QString &document, const QString &directory, platform::Show show);

/// Asks the operating system to open the document `name` of `directory`, which is looked for nowhere else; an
/// empty name is that directory itself. The result is that of openWithSystem.
double openDocument(Panel &panel, const QString &name, const QString &directory);

/// Asks the operating system to "explore" the folder `directory` in its file manager. The result is that of
/// openWithSystem.
double exploreFolder(Panel &panel, const QString &directory);

/// Asks the operating system to open the web address `address`, with `directory` as the working directory.
/// The result is that of openWithSystem.
double openAddress(Panel &panel, const QString &address, const QString &directory);

/// Whether the value of an "open" means that it succeeded.
constexpr bool isStarted(double value)
{
    return value > 32;
}

/// Starts `program` directly, `parameters` following it as they stand; bare file names in them mean files of
/// the data directory. The result is a task number, 0 on failure, which the status bar tells.
double startDirectly(Panel &panel, const QString &program, const CommandText &parameters,
                     platform::Show show);

/// Shows `command` as the command line.
void showCommand(Panel &panel, const QString &command);

/// Starts directly at the window's current size and position, after the whole command was shown; the
/// task number stays in `TaskId`.
void showAndStart(Panel &panel, const QString &program, const CommandText &parameters);

} // namespace launcher
