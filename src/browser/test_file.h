#pragma once

#include "shell/panel.h"

namespace browser {

using shell::Panel;

/// Values of `showMsg`: whether TestFile tells the user why a file cannot be opened.
constexpr qint16 Silent = 0;
constexpr qint16 ShowMessage = 1;

/// Opens `path` + "\" + `file` (or `file` alone where `path` is empty) for reading and closes it at once. 0
/// when that worked, otherwise the error's number, never 0. The name is upper-cased first. Never raises.
qint16 TestFile(Panel &panel, const QString &path, const QString &file, qint16 showMsg);

} // namespace browser
