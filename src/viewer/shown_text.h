#pragma once

#include <QString>

namespace viewer {

/// The text of a file as a reader shows it: line ends of every kind are "\n", a form feed ends a line and
/// takes no line of its own, a carriage return left over at the end is gone, and control characters appear as
/// their pictures. Tabs stay.
QString shownText(const QString &text);

} // namespace viewer
