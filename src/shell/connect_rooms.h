#pragma once

#include "shell/panel.h"

namespace shell {

/// Hangs the handlers of every room on the controls.
void connectRooms(Panel &panel);

} // namespace shell
