#pragma once

#include "shell/panel.h"

namespace launcher {

using shell::Panel;

/// Runs the analysis program of item `index` on the current trial.
void mnuProg_Click(Panel &panel, int index);

/// The Programs menu opens: enables what the trial's files allow and checks what has results, so that the
/// menu is the trial's progress chart.
void mnuProgs_Click(Panel &panel);

/// Whether opening the Programs menu will ask for a new model.
bool mnuProgs_asks(const Panel &panel);

/// Lets the user pick any program and starts it with its help switches.
void mnuProgHelp_Click(Panel &panel);

/// Hangs the launcher's handlers on the controls.
void connect(Panel &panel);

} // namespace launcher
