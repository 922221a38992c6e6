#include "views/copyable_text.h"

#include "views/plain_text.h"

#include <QEvent>
#include <QHelpEvent>
#include <QStylePainter>
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
    // Where there is nothing to copy, the focus would be lost to the eye.
    setFocusPolicy(text.isEmpty() ? Qt::NoFocus : Qt::StrongFocus);
}

bool CopyableText::isCut() const
{
    return fontMetrics().horizontalAdvance(text()) > contentsRect().width();
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
    if (event->type() == QEvent::ToolTip && isCut()) {
        QToolTip::showText(static_cast<QHelpEvent *>(event)->globalPos(), plainToolTip(text()), this);
        return true;
    }
    return QLineEdit::event(event);
}

void CopyableText::focusOutEvent(QFocusEvent *event)
{
    QLineEdit::focusOutEvent(event);
    if (!hasSelectedText())
        setCursorPosition(0);
    update();
}

// A text that ends at the edge would name another trial.
void CopyableText::paintEvent(QPaintEvent *event)
{
    if (hasFocus() || hasSelectedText() || !isCut()) {
        QLineEdit::paintEvent(event);
        return;
    }
    QStylePainter painter(this);
    const QString shown = fontMetrics().elidedText(text(), Qt::ElideMiddle, contentsRect().width());
    painter.drawItemText(contentsRect(), Qt::AlignLeft | Qt::AlignVCenter, palette(), isEnabled(), shown,
                         QPalette::Text);
}

} // namespace views
