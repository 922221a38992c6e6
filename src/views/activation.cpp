#include "views/activation.h"

#include <QApplication>
#include <QEvent>
#include <QWidget>
#include <QWindow>

#include <utility>

namespace views {

namespace {

constexpr qint64 FollowsShowing = 5000; // milliseconds

// A box that was answered quickly may have closed by the time that it becomes active.
bool isBehindOwnBox()
{
    const QWidget *active = QApplication::activeWindow();
    return QApplication::activeModalWidget() != nullptr || (active != nullptr && active->isModal());
}

} // namespace

Activation::Activation(QWidget *window, std::function<void()> activated)
    : QObject(window), window_(window), activated_(std::move(activated))
{
    window->installEventFilter(this);
    // Once another window has been active in between, the box is history.
    connect(qApp, &QGuiApplication::focusWindowChanged, this, [this](const QWindow *active) {
        if (active != nullptr && active != window_->windowHandle() && active->modality() == Qt::NonModal)
            behindOwnBox_ = false;
    });
}

void Activation::beginLoading()
{
    loading_ = true;
}

void Activation::endLoading()
{
    loading_ = false;
    if (std::exchange(waiting_, false))
        announce();
}

void Activation::showAgain()
{
    if (!window_->isVisible())
        return;
    shown();
    window_->setWindowState(window_->windowState() & ~Qt::WindowMinimized);
    window_->raise();
    window_->activateWindow();
}

// The system's own activation follows; where it never comes, a later one is the user's return.
void Activation::shown()
{
    sinceShown_.start();
    announce();
}

void Activation::announce()
{
    if (loading_) {
        waiting_ = true;
        return;
    }
    if (std::exchange(announced_, true))
        return;
    QMetaObject::invokeMethod(
        this,
        [this] {
            announced_ = false;
            if (window_->isVisible())
                activated_();
        },
        Qt::QueuedConnection);
}

bool Activation::eventFilter(QObject *, QEvent *event)
{
    switch (event->type()) {
    case QEvent::Show:
        if (!event->spontaneous())
            shown();
        break;
    case QEvent::WindowActivate: {
        const bool isToldOf = sinceShown_.isValid() && !sinceShown_.hasExpired(FollowsShowing);
        const bool isOwnBoxs = std::exchange(behindOwnBox_, false);
        sinceShown_.invalidate();
        if (!isToldOf && !isOwnBoxs && window_->isVisible())
            announce();
        break;
    }
    case QEvent::WindowDeactivate:
        sinceShown_.invalidate();
        behindOwnBox_ = isBehindOwnBox();
        break;
    default:
        break;
    }
    return false;
}

} // namespace views
