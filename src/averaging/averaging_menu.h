#pragma once

#include "shell/panel.h"

namespace averaging {

/// Enables the averaging items by the chosen binary file and the running average "average.sss". Done when the
/// Average menu opens, and when the Programs menu does.
void enableAveraging(shell::Panel &panel);

/// Hangs the room's handlers on the controls.
void connect(shell::Panel &panel);

} // namespace averaging
