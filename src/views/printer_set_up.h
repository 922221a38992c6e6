#pragma once

class QWidget;

namespace views {

/// Shows the desktop's box in which a printer is chosen and set up; nothing is read back from it. False, and
/// no box, where the machine has no printer.
bool showPrinterSetUp(QWidget *owner);

} // namespace views
