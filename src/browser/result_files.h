#pragma once

#include "shell/panel.h"

namespace browser {

using shell::Panel;

/// A click in the binary list chooses the binary file for graphing or averaging.
void filBinaries_Click(Panel &panel);

/// A double-click in the binary list opens the text-like kinds (.DR, .SIM) after a warning and refuses the
/// others.
void filBinaries_DblClick(Panel &panel);

/// A double-click in the output list opens the listing in the text viewer.
void filOutputs_DblClick(Panel &panel);

/// A click in the plot list remembers the plot for printing and display.
void filPlots_Click(Panel &panel);

/// A double-click in the plot list shows the plot: Acrospin for .ACD, else GrafoD or GrafoW as the graph
/// options say.
void filPlots_DblClick(Panel &panel);

} // namespace browser
