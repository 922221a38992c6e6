#pragma once

#include <QIcon>

class QPainter;
class QPalette;
class QRectF;

namespace views {

/// Draws a walking stride as a stick figure into `field`, on a background of its own: phases of the stride
/// from left to right, the earlier ones lighter, in colours of `palette`.
void drawStride(QPainter &painter, const QRectF &field, const QPalette &palette);

/// The program's icon: one phase of the stride on a background that shows on any panel. Nothing is drawn
/// before a size of it is asked for.
QIcon applicationIcon();

} // namespace views
