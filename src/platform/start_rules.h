#pragma once

#include <QString>

// What every system asks of a start before it is made.

namespace platform {

/// What an "open" that fails is worth, by what is missing.
namespace open_failure {
constexpr double NotFound = 2;
constexpr double AccessDenied = 5;
constexpr double BadFormat = 11;
constexpr double NoProgramForIt = 31;
} // namespace open_failure

/// Whether a program is called by its name alone, so that it is looked for where the system keeps programs.
bool isBareName(const QString &file);

/// Whether `name` is that of one file: nothing that leads out of its directory, in the path language or a
/// host's.
bool isPlainName(const QString &name);

/// Whether `text` is an address of the web, and one argument: blanks, quotes and control characters have no
/// place in it.
bool isWebAddress(const QString &text);

} // namespace platform
