#pragma once

#include "shell/panel.h"

#include <QStringList>

namespace shell {

/// Splits a command line into at most `maximum` arguments. Blanks and tabs separate, double quotes hold
/// together; text directly behind a closing quote begins a new argument. What follows the last allowed
/// argument is ignored.
QStringList splitCommandLine(const QString &commandLine, int maximum);

/// Takes the first argument that is no switch ("-" or "/") as `SelectedFile`. Each switch that is passed over
/// makes the current directory the data directory; that is meant.
void GetCommandLine(Panel &panel, int maximum = 10);

} // namespace shell
