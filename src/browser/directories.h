#pragma once

#include "shell/panel.h"

namespace browser {

using shell::Panel;

/// Makes `path` the open directory of the directory list and runs its change handler, always, even where it
/// was open already. Raises what the platform raises for a path that cannot be opened.
void openDirectory(Panel &panel, const QString &path);

/// The same; a path that cannot be opened is told, and nothing changes. Whether it was opened.
bool goToDirectory(Panel &panel, const QString &path);

/// Opens row `row` of the directory list as the user does. The open directory itself is not opened again:
/// that would lose the trial.
void openRow(Panel &panel, int row);

/// Another drive was chosen: opens its current directory. After an error the old drive is shown again.
void drvDrives_Change(Panel &panel);

/// The open directory has changed: it becomes the data directory, the trial is forgotten and the file lists
/// are filled.
void dirSelect_Change(Panel &panel);

/// Hangs the browser's handlers on the controls.
void connect(Panel &panel);

} // namespace browser
