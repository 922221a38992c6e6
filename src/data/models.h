#pragma once

#include "shell/panel.h"

namespace data {

using shell::Panel;

/// The commands on the trial's model by index: 0 selects a model, 1 writes the digitized data's information
/// into it, 2 adds the forces, 3 starts the model editor without a file, 4 opens it in Notepad, where a
/// missing one can be written, 5 merges the second forces. Another index does nothing.
void mnuModel_Click(Panel &panel, int index);

/// The Model menu opens: what cannot run is greyed out.
void mnuModels_Click(Panel &panel);

} // namespace data
