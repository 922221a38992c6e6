#pragma once

#include "shell/panel.h"

namespace data {

using shell::Panel;

/// The commands on the trial's digitized data by index: 0 selects a data file, 1 scales and refines, 2
/// animates, 3 opens it in Notepad, 4 renumbers its points. They do not ask whether there is a trial: the
/// menu's enabling does.
void mnuDatafile_Click(Panel &panel, int index);

/// The Data menu opens: what cannot run is greyed out.
void mnuDatafiles_Click(Panel &panel);

} // namespace data
