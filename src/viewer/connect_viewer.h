#pragma once

#include "shell/panel.h"

namespace viewer {

/// Hangs the room's handlers on the controls.
void connect(shell::Panel &panel);

} // namespace viewer
