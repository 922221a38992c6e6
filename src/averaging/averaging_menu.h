#pragma once

#include "shell/panel.h"

namespace averaging {

using shell::Panel;

/// Enables the averaging items by the chosen binary file and the running average "average.sss". Done when the
/// Average menu opens, and when the Programs menu does.
void enableAveraging(Panel &panel);

/// The averaging commands. Help on averaging goes on with adding the trial where its text is missing; that is
/// meant.
void mnuAverage_Click(Panel &panel, int index);

} // namespace averaging
