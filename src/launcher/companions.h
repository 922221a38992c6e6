#pragma once

#include "shell/panel.h"

namespace launcher {

using shell::Panel;

/// Starts the force-plate program on the trial's reduced force file, or with ";", which means no file.
void cmdForces_Click(Panel &panel);

/// Starts the animation program on the trial's digitized data, or with ";".
void cmdSkelvo_Click(Panel &panel);

/// Starts the signal-processing program, after asking whether to hand it the trial's reduced force file.
void cmdOndex_Click(Panel &panel);

/// Hangs the handlers of the three buttons on them.
void connectCompanions(Panel &panel);

} // namespace launcher
