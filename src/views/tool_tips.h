#pragma once

#include <QString>

namespace views {

/// `text` as a tool tip that shows it as it stands, whatever looks like markup in it.
QString plainToolTip(const QString &text);

} // namespace views
