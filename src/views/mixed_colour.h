#pragma once

#include <QColor>

namespace views {

/// A colour between two: one part of `a`, two parts of `b`.
inline QColor mixed(const QColor &a, const QColor &b)
{
    const auto mix = [](int x, int y) { return (x + 2 * y) / 3; };
    return {mix(a.red(), b.red()), mix(a.green(), b.green()), mix(a.blue(), b.blue())};
}

} // namespace views
