#pragma once

#include "shell/panel.h"

namespace launcher {

/// Hangs the launcher's handlers on the controls.
void connect(shell::Panel &panel);

} // namespace launcher
