#include "views/printer_set_up.h"

#include <QDialogButtonBox>
#include <QPrintDialog>
#include <QPrinter>
#include <QPrinterInfo>
#include <QPushButton>

using namespace Qt::StringLiterals;

namespace views {

std::unique_ptr<QPrintDialog> makePrinterSetUp(QPrinter &printer, QWidget *owner)
{
    auto dialog = std::make_unique<QPrintDialog>(&printer, owner);
    dialog->setWindowTitle(u"Print Setup"_s);
    dialog->setOptions({});
    // Nothing is printed here.
    if (auto *buttons = dialog->findChild<QDialogButtonBox *>())
        buttons->button(QDialogButtonBox::Ok)->setText(u"OK"_s);
    return dialog;
}

bool showPrinterSetUp(QWidget *owner)
{
    if (QPrinterInfo::availablePrinterNames().isEmpty())
        return false;
    QPrinter printer;
    makePrinterSetUp(printer, owner)->exec();
    return true;
}

} // namespace views
