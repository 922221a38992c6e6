#pragma once

#include "shell/panel.h"

namespace graphs {

/// Shows the graph-type list in place of the three graph buttons. It says nothing.
void cmdSelectGra_Click(shell::Panel &panel);

/// Hangs the room's handlers on the controls.
void connect(shell::Panel &panel);

} // namespace graphs
