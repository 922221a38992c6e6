#pragma once

#include <QString>

namespace platform {

/// The upper-case form of one UTF-16 unit beyond ASCII.
char16_t upperCaseBeyondAscii(char16_t unit);

/// The upper-case form of one UTF-16 unit, by a file system's rule: one character becomes one character that
/// lower-cases back to it, so that "straße.dg" or "ılgaz.dg" are still found after UCase.
inline char16_t upperCase(char16_t unit)
{
    if (unit >= 0x80) [[unlikely]]
        return upperCaseBeyondAscii(unit);
    const bool isSmall = static_cast<unsigned>(unit - u'a') < 26U;
    return static_cast<char16_t>(unit - (isSmall ? 0x20U : 0U));
}

/// The lower-case form of one UTF-16 unit, by the same rule.
char16_t lowerCase(char16_t unit);

/// `text` in upper case, character by character; the length never changes.
QString UCase(QStringView text);

/// `directory` + "\" + `name` in upper case.
QString UCasePath(QStringView directory, QStringView name);

/// `text` in lower case, character by character; the length never changes.
QString LCase(QStringView text);

/// Whether two names differ in nothing but letter case.
bool sameIgnoringCase(QStringView a, QStringView b);

} // namespace platform
