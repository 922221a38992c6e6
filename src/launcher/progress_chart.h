#pragma once

#include "shell/panel.h"

namespace launcher {

using shell::Panel;

/// The Programs menu opens: enables what the trial's files allow and checks what has results, so that the
/// menu is the trial's progress chart. Without any model it first asks for one.
void mnuProgs_Click(Panel &panel);

/// The user passes along the menu bar, in a directory without models: greyed items say that they need one.
void mnuProgs_Passed(Panel &panel);

/// Whether opening the Programs menu will ask for a new model.
bool mnuProgs_asks(const Panel &panel);

} // namespace launcher
