#include "menu_fixture.h"

#include <QApplication>
#include <QTest>

namespace support {

namespace {

QWidget *keyboard()
{
    QWidget *popup = QApplication::activePopupWidget();
    return popup ? popup : QApplication::focusWidget();
}

} // namespace

void MenuFixture::SetUp()
{
    addData({"walk1.dg", "walk1.cfb", "walk1.cn", "run1.cfb"});
    show();
}

QMenu *MenuFixture::menu(const QString &caption) const
{
    const auto menus = window().findChildren<QMenu *>();
    for (QMenu *candidate : menus) {
        if (candidate->title() == caption)
            return candidate;
    }
    return nullptr;
}

void MenuFixture::openFromBar(const QString &caption) const
{
    bar()->setActiveAction(menu(caption)->menuAction());
    settle();
}

void MenuFixture::altAnd(Qt::Key key)
{
    QTest::keyPress(keyboard(), Qt::Key_Alt, Qt::AltModifier);
    QTest::keyClick(keyboard(), key, Qt::AltModifier);
    QTest::keyRelease(keyboard(), Qt::Key_Alt);
    settle();
}

void MenuFixture::press(Qt::Key key)
{
    QTest::keyClick(keyboard(), key);
    settle();
}

} // namespace support
