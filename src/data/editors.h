#pragma once

#include "shell/panel.h"

namespace data {

using shell::Panel;

/// Starts the model editor on the trial's model, or with ";", which means no file. The editor finds the data
/// directory in the settings.
void cmdEditor_Click(Panel &panel);

/// Opens the current graph type in Notepad.
void cmdEditGra_Click(Panel &panel);

} // namespace data
