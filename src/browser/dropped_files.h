#pragma once

#include "shell/panel.h"

namespace browser {

using shell::Panel;

/// A file was dropped on the window: a data or model file is chosen as a click in its list chooses it, after
/// its directory was opened where another one is shown. What is neither is told in the status bar.
void fileDropped(Panel &panel, const QString &path);

} // namespace browser
