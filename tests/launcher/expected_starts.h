#pragma once

#include "platform/dialogs.h"

#include <QByteArray>
#include <QList>
#include <QString>

#include <ostream>
#include <vector>

namespace launcher_tests {

/// What the user does, and the one process that must come of it. The panel has begun with the trial Walk1 of
/// the directory "data"; the package is in "package", the desktop's programs are in "bin".
struct ExpectedStart
{
    /// Sentences for RealPanel::act; the last one starts the program.
    std::vector<const char *> steps;
    QByteArray program; ///< the started file
    /// What it receives; "host:" stands before what the host must find, "panel:" before what is written in
    /// the panel's path language, both seen from the scratch directory.
    QList<QByteArray> arguments;
    QByteArray directory = "data";              ///< where it runs
    std::vector<platform::Answer> answers = {}; ///< to the boxes that come up meanwhile, all of them
    QByteArray chosen = {};                     ///< in the file dialog that comes up meanwhile
};

/// The starts of the package's own programs: every one, and every switch.
const std::vector<ExpectedStart> &packageStarts();

/// The starts of the desktop's programs.
const std::vector<ExpectedStart> &desktopStarts();

/// Names a row in a test's report.
std::ostream &operator<<(std::ostream &stream, const ExpectedStart &expected);

} // namespace launcher_tests
