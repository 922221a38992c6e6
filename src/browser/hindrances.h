#pragma once

#include "shell/panel.h"

namespace browser {

using shell::Panel;

/// What a greyed item that works on the trial says while there is none.
QString needsTrial();

/// Why the current trial's file with `extension`, dot included, cannot be used: TestFile's answer for it was
/// `error`. Empty where that is 0. Where a command makes the file, it says which.
QString trialFileHindrance(const Panel &panel, const QString &extension, qint16 error);

/// The same for two files of which one is enough, when neither can be used.
QString trialFilesHindrance(const Panel &panel, const QString &extension, const QString &other);

/// Why `file` cannot be used; `place` says where it should be, such as "the program directory".
QString fileHindrance(const QString &file, const QString &place, qint16 error);

} // namespace browser
