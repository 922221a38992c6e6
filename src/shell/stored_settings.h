#pragma once

#include "shell/panel.h"

namespace shell {

/// Reads "Progdir", "Datadir" and "Lastfile". Called once, at start.
void LoadSettings(Panel &panel);

/// Writes the five settings of the Exit button: "Progdir", "Datadir", "LastGRA", "UserLevel", "Viewer".
void SaveSettings(Panel &panel);

/// Writes `DataDir` for a program that is about to start: for the package (application "Kinovra") or for the
/// signal-processing program (application "Ondex2").
void StoreDataDir(Panel &panel, const QString &application);

/// The stored text of `key`. Stored text is never trusted: what is too long for a path or holds control
/// characters counts as absent.
QString storedText(Panel &panel, const QString &key, const QString &fallback);

/// The stored user level: 0 Novice, 1 Expert; whatever else is stored counts as 0.
qint16 storedUserLevel(Panel &panel);

} // namespace shell
