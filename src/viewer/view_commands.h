#pragma once

#include "shell/panel.h"

namespace viewer {

using shell::Panel;

/// Items of `mnuView`.
enum ViewItem { BinaryFiles, PlotFiles, GraphTypes, OutputFiles, Films };

/// Shows the binary files or the graph types in the main window, or lets the user choose a plot, a text or a
/// film and hands it to its viewer.
void mnuView_Click(Panel &panel, int index);

/// The View menu opens: its force commands need the trial's reduced force file.
void mnuViews_Click(Panel &panel);

} // namespace viewer
