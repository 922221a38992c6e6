#include "views/activation.h"

#include <QApplication>
#include <QEvent>
#include <QWidget>

#include <utility>

namespace views {

namespace {

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
}

void Activation::beginLoading()
{
    loading_ = true;
}

void Activation::endLoading()
{
    loading_ = false;
    if (std::exchange(waiting_, false) && window_->isVisible())
        tell();
}

void Activation::tell()
{
    if (loading_)
        waiting_ = true;
    else
        activated_();
}

bool Activation::eventFilter(QObject *, QEvent *event)
{
    switch (event->type()) {
    case QEvent::Show:
        if (event->spontaneous())
            break;
        showing_ = true;
        tell();
        break;
    case QEvent::WindowActivate: {
        const bool isToldOf = std::exchange(showing_, false);
        const bool isOwnBoxs = std::exchange(behindOwnBox_, false);
        if (!isToldOf && !isOwnBoxs && window_->isVisible())
            tell();
        break;
    }
    case QEvent::WindowDeactivate:
        showing_ = false;
        behindOwnBox_ = isBehindOwnBox();
        break;
    default:
        break;
    }
    return false;
}

} // namespace views
