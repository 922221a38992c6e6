#pragma once

#include "shell/panel.h"

namespace help {

using shell::Panel;

/// The Help menu opens: topics whose text is missing are greyed out.
void mnuHelp_Click(Panel &panel);

/// Shows a help topic in the text viewer; TestFile tells of a text that is missing.
void mnuHelpItem_Click(Panel &panel, int index);

/// The about window, the operating system's help, the update check, the website.
void mnuAbout_Click(Panel &panel, int index);

/// Shows the about window without blocking; one that is shown already comes to the front.
void showAbout(Panel &panel);

} // namespace help
