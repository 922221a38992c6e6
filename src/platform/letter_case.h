#pragma once

#include <QString>

namespace platform {

/// The upper-case form of one UTF-16 unit, by a file system's rule: one character becomes one character that
/// lower-cases back to it, so that "straße.dg" or "ılgaz.dg" are still found after UCase.
char16_t upperCase(char16_t unit);

/// The lower-case form of one UTF-16 unit, by the same rule.
char16_t lowerCase(char16_t unit);

/// `text` in upper case, character by character; the length never changes.
QString UCase(const QString &text);

/// `text` in lower case, character by character; the length never changes.
QString LCase(const QString &text);

/// Whether two names differ in nothing but letter case.
bool sameIgnoringCase(QStringView a, QStringView b);

} // namespace platform
