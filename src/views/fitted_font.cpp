#include "views/fitted_font.h"

#include <QApplication>
#include <QFontInfo>

namespace views {

namespace {

constexpr qreal SmallestFont = 6;

} // namespace

void useFittedFont(const std::function<void(const QFont &font)> &use, const std::function<bool()> &fits)
{
    // A font may have its size in pixels.
    qreal size = QFontInfo(QApplication::font()).pointSizeF();
    use(QFont());
    while (!fits() && size > SmallestFont) {
        size -= 0.5;
        QFont fitted = QApplication::font();
        fitted.setPointSizeF(size);
        use(fitted);
    }
}

} // namespace views
