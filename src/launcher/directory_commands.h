#pragma once

#include "shell/panel.h"

namespace launcher {

using shell::Panel;

/// Shows the lists in which another directory is opened, and the models and data files of this one.
void mnuOpen_Click(Panel &panel);

/// Hangs the handlers of the directory commands on their items.
void connectDirectoryCommands(Panel &panel);

} // namespace launcher
