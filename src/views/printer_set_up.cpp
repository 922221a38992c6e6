#include "views/printer_set_up.h"

#include <QDialogButtonBox>
#include <QPrintDialog>
#include <QPrinter>
#include <QPrinterInfo>
#include <QPushButton>

using namespace Qt::StringLiterals;

namespace views {

bool showPrinterSetUp(QWidget *owner)
{
    if (QPrinterInfo::availablePrinterNames().isEmpty())
        return false;
    QPrinter printer;
    QPrintDialog dialog(&printer, owner);
    dialog.setWindowTitle(u"Print Setup"_s);
    dialog.setOptions({});
    // Nothing is printed here.
    if (auto *buttons = dialog.findChild<QDialogButtonBox *>())
        buttons->button(QDialogButtonBox::Ok)->setText(u"OK"_s);
    dialog.exec();
    return true;
}

} // namespace views
