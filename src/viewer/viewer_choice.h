#pragma once

#include "shell/panel.h"

namespace viewer {

using shell::Panel;

/// The Text viewer menu opens: Notepad+ is the one of the program directory, where there is one.
void mnuTextViewers_Click(Panel &panel);

/// Chooses the text viewer: 0 Notepad+, 1 Windows Notepad, 2 any program. One that cannot be opened gives way
/// to Windows Notepad.
void mnuTextViewer_Click(Panel &panel, int index);

} // namespace viewer
