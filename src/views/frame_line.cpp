#include "views/frame_line.h"

#include "views/mixed_colour.h"

#include <QPainter>
#include <QWidget>

namespace views {

void drawFrameLine(QWidget &framed)
{
    const QPalette palette = framed.palette();
    const QColor colour = framed.hasFocus()
                              ? palette.color(QPalette::Highlight)
                              : mixed(palette.color(QPalette::WindowText), palette.color(QPalette::Window));
    const QRectF around = framed.rect();
    QPainter painter(&framed);
    painter.fillRect(QRectF(around.left(), around.top(), around.width(), 1), colour);
    painter.fillRect(QRectF(around.left(), around.bottom() - 1, around.width(), 1), colour);
    painter.fillRect(QRectF(around.left(), around.top(), 1, around.height()), colour);
    painter.fillRect(QRectF(around.right() - 1, around.top(), 1, around.height()), colour);
}

} // namespace views
