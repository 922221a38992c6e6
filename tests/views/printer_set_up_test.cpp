#include "views/printer_set_up.h"

#include <QDialogButtonBox>
#include <QPrintDialog>
#include <QPrinter>
#include <QPushButton>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

TEST(PrinterSetUp, has_the_words_of_a_set_up)
{
    QPrinter printer;
    const auto dialog = views::makePrinterSetUp(printer, nullptr);
    EXPECT_EQ(dialog->windowTitle(), u"Print Setup"_s);
    EXPECT_EQ(dialog->options(), QAbstractPrintDialog::PrintDialogOptions());
    const auto *buttons = dialog->findChild<QDialogButtonBox *>();
    ASSERT_NE(buttons, nullptr);
    EXPECT_EQ(buttons->button(QDialogButtonBox::Ok)->text(), u"OK"_s);
}
