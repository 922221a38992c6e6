#pragma once

#include "shell/panel.h"

namespace launcher {

using shell::Panel;

/// Starts an accessory of the operating system by its name alone: 0 calculator, 1 command prompt, which alone
/// is maximized, 2 file manager, 3 text editor.
void mnuDOS_Click(Panel &panel, int index);

/// Lets the user pick any program and starts it in the program directory.
void mnuRun_Click(Panel &panel);

/// Lets the user pick any program and starts it with its help switches.
void mnuProgHelp_Click(Panel &panel);

/// Starts the control-options program on the current trial, where there is one.
void mnuOptions_Click(Panel &panel);

} // namespace launcher
