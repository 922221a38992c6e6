#pragma once

#include "shell/panel.h"

namespace launcher {

using shell::Panel;

/// Items of the first group of the File menu.
enum DirectoryItem { OpenDirectory, MakeSubdirectory, RemoveDirectory, ExploreDirectory };

/// Shows the lists in which another directory is opened, and the models and data files of this one; then
/// makes a subdirectory of the data directory, removes the data directory where it is empty, or opens the
/// desktop's file manager on it, as `index` says. Raises what making a subdirectory raises.
void mnuOpen_Click(Panel &panel, int index);

} // namespace launcher
