#pragma once

class QWidget;

namespace views {

/// Draws the line around a framed widget that has been painted, one pixel wide and in the colour of the
/// selection where the widget has the focus. Styles lose sides of their own where a pixel is no whole number
/// of the screen's, as at 150 %.
void drawFrameLine(QWidget &framed);

} // namespace views
