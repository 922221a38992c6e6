#pragma once

#include "shell/panel.h"

namespace launcher {

using shell::Panel;

/// Remembers that the program started as `value` may write `listing`, so that its end can be told.
void watchListing(Panel &panel, double value, const QString &listing,
                  const std::optional<platform::FileStamp> &before);

/// A started program has ended: the status bar says when that was with an error, or that its listing is
/// ready. One that ended well may have left files, so the lists are refreshed; no handler runs.
void programEnded(Panel &panel, double value, const platform::Ending &ending);

} // namespace launcher
