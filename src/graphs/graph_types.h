#pragma once

#include "shell/panel.h"

namespace graphs {

using shell::Panel;

/// Shows the graph-type list in place of the three graph buttons. It says nothing.
void cmdSelectGra_Click(Panel &panel);

/// Hides the three graph buttons, in whose place the graph types are shown. Where none are shown, the status
/// bar says how the buttons come back.
void hideGraphButtons(Panel &panel);

} // namespace graphs
