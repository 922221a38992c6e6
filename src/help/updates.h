#pragma once

#include "shell/panel.h"

namespace help {

using shell::Panel;

/// "Update from Internet": asks, opens the download address in the browser, and ends the program at once
/// where the user wants to exit. Nothing is downloaded here.
void checkForUpdate(Panel &panel);

/// The about window's Update button: the same with a wording and buttons of its own, which is meant.
void cmdUpgrade_Click(Panel &panel);

/// The about window's Website button: opens the package's home page.
void cmdWebsite_Click(Panel &panel);

} // namespace help
