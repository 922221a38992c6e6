#pragma once

#include "shell/panel.h"

namespace graphs {

using shell::Panel;

/// Chooses the device of listings: 0 disk file, 1 screen, 2 printer, 3 none. It clears the graphics switch.
void mnuListing_Click(Panel &panel, int index);

/// Chooses the device of graphics: 0 screen, 1 printer, 2 plotter, 3 disk file. No choice brings back the
/// start value "/A /Z "; that is meant.
void mnuGraphics_Click(Panel &panel, int index);

} // namespace graphs
