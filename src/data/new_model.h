#pragma once

#include "shell/panel.h"

namespace data {

/// Copies a model, from wherever it is, to a new name in the data directory, whatever folder that name was
/// given in, and makes it the current trial. A model that is there is replaced only after a question.
void mnuNewModel_Click(shell::Panel &panel);

} // namespace data
