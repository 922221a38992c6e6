#include "views/shared_place.h"

#include <QEvent>

namespace views {

void SharedPlace::share(QWidget *widget)
{
    widgets_.append(widget);
    widget->installEventFilter(this);
}

bool SharedPlace::eventFilter(QObject *watched, QEvent *event)
{
    const bool isHidden = event->type() == QEvent::HideToParent;
    if (event->type() == QEvent::FocusOut && !static_cast<QWidget *>(watched)->isVisibleTo(this))
        focusLost_ = true;
    if (isHidden && (focusLost_ || watched == window()->focusWidget())) {
        focusLost_ = false;
        // Once the others have appeared.
        QMetaObject::invokeMethod(this, &SharedPlace::passFocusOn, Qt::QueuedConnection);
    }
    return false;
}

void SharedPlace::passFocusOn()
{
    for (QWidget *widget : std::as_const(widgets_)) {
        if (widget->isVisibleTo(this) && widget->isEnabled() && widget->focusPolicy() != Qt::NoFocus) {
            widget->setFocus(Qt::OtherFocusReason);
            return;
        }
    }
}

} // namespace views
