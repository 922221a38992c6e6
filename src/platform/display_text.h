#pragma once

#include <QString>

namespace platform {

/// `text` as it is to be shown, one character for one: the private characters in which a host hides what the
/// path language cannot spell appear as what they stand for, control characters as their pictures, and marks
/// that would turn the reading direction as replacement characters. Hostile names cannot disguise themselves.
QString displayText(const QString &text);

/// The same for a text of several lines: "\n" and "\r\n" end a line, in every other way the text is as
/// displayText gives it.
QString displayLines(const QString &text);

} // namespace platform
