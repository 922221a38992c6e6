#pragma once

#include "shell/panel.h"

namespace launcher {

/// Looks for the package's programs in the program directory: tells the user once when the data scaler is
/// missing, and hides the Programs items whose program is missing. "Create A New Simulation" is never hidden;
/// that is meant.
void checkPresence(shell::Panel &panel);

} // namespace launcher
