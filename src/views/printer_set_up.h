#pragma once

#include <memory>

class QPrintDialog;
class QPrinter;
class QWidget;

namespace views {

/// The box in which `printer` is set up.
std::unique_ptr<QPrintDialog> makePrinterSetUp(QPrinter &printer, QWidget *owner);

/// Shows the desktop's box in which a printer is chosen and set up; nothing is read back from it. False, and
/// no box, where the machine has no printer.
bool showPrinterSetUp(QWidget *owner);

} // namespace views
