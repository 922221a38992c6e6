#pragma once

#include "shell/panel.h"

namespace graphs {

using shell::Panel;

/// Items of `mnuGraphOptions`. Their check marks are the only store of the options.
enum GraphOption {
    BlackOnWhite,
    WhiteOnBlack,
    FullScreenPreview,
    DebuggingInformation,
    BatchMode,
    ResetDefaults
};

/// Toggles an option; of the two colour schemes the one just chosen wins. 5 unchecks them all.
void mnuGraphOptions_Click(Panel &panel, int index);

} // namespace graphs
