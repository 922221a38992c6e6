#pragma once

#include "shell/panel.h"

namespace shell {

/// The whole start-up: version, place of the window, settings, command line, directories, viewer, lists,
/// banner, presence check, and at last the command line's file as the trial, or the splash.
void Form_Load(Panel &panel);

/// The version text, such as "3.05 (build 012)".
QString versionText(int major, int minor, int build);

/// Shows the about window over the main window for `seconds`, letting window events run.
void ShowSplash(Panel &panel, int seconds);

} // namespace shell
