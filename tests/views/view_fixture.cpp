#include "view_fixture.h"

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QEventLoop>
#include <QMouseEvent>
#include <QTest>

namespace support {

void ViewFixture::show()
{
    windows = std::make_unique<views::PanelWindows>(panel, paths);
    windows->load();
    panel.about.Visible = false;
    settle();
    window().activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window()));
    forget();
}

QListView *ViewFixture::list(const QString &name) const
{
    const auto views = window().findChildren<QListView *>();
    for (QListView *view : views) {
        if (view->accessibleName() == name)
            return view;
    }
    return nullptr;
}

QPushButton *ViewFixture::button(const QString &name) const
{
    const auto buttons = window().findChildren<QPushButton *>();
    for (QPushButton *candidate : buttons) {
        if (candidate->accessibleName() == name)
            return candidate;
    }
    return nullptr;
}

void ViewFixture::doubleClickAt(QWidget *widget, const QPoint &position)
{
    QTest::mouseClick(widget, Qt::LeftButton, Qt::NoModifier, position);
    QMouseEvent second(QEvent::MouseButtonDblClick, position, widget->mapToGlobal(position), Qt::LeftButton,
                       Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(widget, &second);
    QMouseEvent release(QEvent::MouseButtonRelease, position, widget->mapToGlobal(position), Qt::LeftButton,
                        Qt::NoButton, Qt::NoModifier);
    QCoreApplication::sendEvent(widget, &release);
}

QPoint ViewFixture::middleOf(QListView *view, int row)
{
    return view->visualRect(view->model()->index(row, 0)).center();
}

void ViewFixture::clickRow(QListView *view, int row) const
{
    QTest::mouseClick(view->viewport(), Qt::LeftButton, Qt::NoModifier, middleOf(view, row));
}

void ViewFixture::settle()
{
    for (int i = 0; i < 5; ++i) {
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QCoreApplication::processEvents();
    }
}

bool waitUntil(const std::function<bool()> &done)
{
    QDeadlineTimer deadline(10'000);
    while (!done() && !deadline.hasExpired())
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents | QEventLoop::AllEvents, 50);
    return done();
}

} // namespace support
