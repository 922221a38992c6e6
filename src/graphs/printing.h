#pragma once

#include "shell/panel.h"

namespace graphs {

using shell::Panel;

/// Prints the selected graph: 0 Laserjet 4, 5, 6, 1 colour Deskjet, 2 Laserjet III, 3 black and white
/// Deskjet; 4 lets the user choose a printer and then the graph in the display program.
void mnuGraphPrint_Click(Panel &panel, int index);

/// Opens the selected file in Notepad, which prints it, after a question.
void mnuPrint_Click(Panel &panel);

/// Shows the box in which a printer is set up; nothing is read back from it.
void mnuPrintSetup_Click(Panel &panel);

} // namespace graphs
