#pragma once

#include "shell/panel.h"

namespace shell {

/// The whole shut-down: restores the directory of the start and ends the program. Nothing is saved here.
void Form_Unload(Panel &panel);

/// The Exit button: saves the five settings, then unloads the main window.
void cmdExit_Click(Panel &panel);

/// The Exit item of the File menu: only unloads. The difference is meant.
void mnuExit_Click(Panel &panel);

} // namespace shell
