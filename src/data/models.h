#pragma once

#include "shell/panel.h"

namespace data {

/// The commands of the Model menu by index: 4 opens the trial's model in the text editor, where a missing one
/// can be written.
void mnuModel_Click(shell::Panel &panel, int index);

/// Hangs the room's handlers on the controls.
void connect(shell::Panel &panel);

} // namespace data
