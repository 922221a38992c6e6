#pragma once

#include "shell/panel.h"

namespace launcher {

using shell::Panel;

/// Runs the analysis program of item `index` on the current trial.
void mnuProg_Click(Panel &panel, int index);

/// Lets the user pick any program and starts it with its help switches.
void mnuProgHelp_Click(Panel &panel);

/// Hangs the launcher's handlers on the controls.
void connect(Panel &panel);

} // namespace launcher
