#pragma once

#include "shell/panel.h"

namespace launcher {

using shell::Panel;

/// Runs the analysis program of item `index` on the current trial.
void mnuProg_Click(Panel &panel, int index);

} // namespace launcher
