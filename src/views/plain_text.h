#pragma once

#include <QString>

namespace views {

/// `text` as a tool tip that shows it as it stands, whatever looks like markup in it.
QString plainToolTip(const QString &text);

/// A window title that shows `text` as it is: a place-holder for changed documents stays characters in it.
QString plainTitle(const QString &text);

} // namespace views
