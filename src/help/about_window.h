#pragma once

#include "shell/panel.h"

namespace help {

/// Shows the about window without blocking; one that is shown already comes to the front.
void showAbout(shell::Panel &panel);

/// Hangs the room's handlers on the controls.
void connect(shell::Panel &panel);

} // namespace help
