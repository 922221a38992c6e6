#pragma once

#include <QString>

namespace platform {

/// `text` as it is to be shown, one character for one: the private characters in which a host hides what the
/// path language cannot spell appear as what they stand for, control characters as their pictures, and marks
/// that would turn the reading direction as replacement characters. Hostile names cannot disguise themselves.
QString displayText(const QString &text);

} // namespace platform
