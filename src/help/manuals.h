#pragma once

#include "shell/panel.h"

namespace help {

using shell::Panel;

/// The Manuals menu opens: manuals that are missing are greyed out.
void mnuManuals_Click(Panel &panel);

/// Opens a manual with whatever the operating system opens it with; "Select A Manual" opens their folder.
void mnuManual_Click(Panel &panel, int index);

/// The Guide button: opens the quick reference guide.
void cmdGuide_Click(Panel &panel);

/// The Manual button: opens the user's manual, or the text of it where there is no other.
void cmdManual_Click(Panel &panel);

} // namespace help
