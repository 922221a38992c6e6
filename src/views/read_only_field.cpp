#include "views/read_only_field.h"

#include <QKeyEvent>
#include <QMouseEvent>

namespace views {

ReadOnlyField::ReadOnlyField(QWidget *parent) : QLineEdit(parent)
{
    setReadOnly(true);
}

void ReadOnlyField::keyPressEvent(QKeyEvent *event)
{
    const QString typed = event->text();
    const bool isShortcut =
        (event->modifiers() & (Qt::AltModifier | Qt::ControlModifier | Qt::MetaModifier)) != 0;
    if (!isShortcut && !typed.isEmpty() && typed.at(0).isPrint())
        Q_EMIT clicked();
    else
        QLineEdit::keyPressEvent(event);
}

void ReadOnlyField::mouseReleaseEvent(QMouseEvent *event)
{
    QLineEdit::mouseReleaseEvent(event);
    if (event->button() == Qt::LeftButton && rect().contains(event->position().toPoint()))
        Q_EMIT clicked();
}

} // namespace views
