#pragma once

#include "shell/panel.h"

namespace graphs {

using shell::Panel;

/// The graph menu: 0 select a binary file, 1 select a graph type, 2 create graphs, 3 and 4 show the selected
/// graph in a window or on the full screen, 5 open the windowed display without a file.
void mnuGraph_Click(Panel &panel, int index);

/// Creates graphs, as the menu does.
void cmdGraph_Click(Panel &panel);

/// Shows the graph-type list in place of the three graph buttons. It says nothing.
void cmdSelectGra_Click(Panel &panel);

} // namespace graphs
