#include "views/copyable_text.h"

#include "views/plain_text.h"

#include <QEvent>
#include <QHelpEvent>
#include <QToolTip>

namespace views {

CopyableText::CopyableText(QWidget *parent) : QLineEdit(parent)
{
    setReadOnly(true);
    setFrame(false);
    // What is dropped here is meant for the window.
    setAcceptDrops(false);
    setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    QPalette colours = palette();
    colours.setBrush(QPalette::Base, Qt::transparent);
    setPalette(colours);
    // Begins where the labels above it do.
    constexpr int OwnMargin = 2;
    setTextMargins(-OwnMargin, 0, 0, 0);
}

void CopyableText::show(const QString &text)
{
    setText(text);
    setCursorPosition(0);
}

QSize CopyableText::minimumSizeHint() const
{
    return {0, sizeHint().height()};
}

QSize CopyableText::sizeHint() const
{
    return {QLineEdit::sizeHint().width(), fontMetrics().height()};
}

bool CopyableText::event(QEvent *event)
{
    if (event->type() == QEvent::ToolTip && fontMetrics().horizontalAdvance(text()) > width()) {
        QToolTip::showText(static_cast<QHelpEvent *>(event)->globalPos(), plainToolTip(text()), this);
        return true;
    }
    return QLineEdit::event(event);
}

} // namespace views
