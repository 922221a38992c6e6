#pragma once

#include <QChar>
#include <QStringList>

namespace platform::host {

/// Whether there is a drive of this letter (upper case).
bool hasDrive(QChar drive);

/// The drive texts in letter order: "c: [label]" (fixed), "x: \\\\server\\share" (network), "d:" (no label).
QStringList driveTexts();

/// The current directory that the process was given for `drive` (upper-case letter), as the command processor
/// hands it on; empty where it was given none.
QString inheritedDirectory(QChar drive);

/// Hands `directory` on to started programs as the current directory of its drive.
void bequeathDirectory(const QString &directory);

/// The current directory in which the process was started, on a drive; the root of the system's drive where
/// it is a network name without a letter.
QString startDirectory();

/// Makes a directory of the system the process's own, so that it keeps no data directory from being removed,
/// and nothing is loaded or started from there by its bare name. The panel's current directory is its own
/// affair.
void stayInSystemDirectory();

} // namespace platform::host
