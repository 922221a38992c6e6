#include "views/elided_label.h"

#include "views/plain_text.h"

#include <QEvent>
#include <QHelpEvent>
#include <QStyle>
#include <QStylePainter>
#include <QToolTip>

namespace views {

namespace {

// A title of 64 Ki characters is not measured whole.
constexpr qsizetype MostMeasured = 1000;

} // namespace

ElidedLabel::ElidedLabel(Qt::TextElideMode mode, QWidget *parent) : QLabel(parent), mode_(mode)
{
    setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
}

QSize ElidedLabel::minimumSizeHint() const
{
    return {0, fontMetrics().height()};
}

QString ElidedLabel::shownText() const
{
    return fontMetrics().elidedText(text().left(MostMeasured), mode_, contentsRect().width());
}

bool ElidedLabel::event(QEvent *event)
{
    if (event->type() == QEvent::ToolTip && shownText() != text()) {
        QToolTip::showText(static_cast<QHelpEvent *>(event)->globalPos(),
                           plainToolTip(text().left(MostMeasured)), this);
        return true;
    }
    return QLabel::event(event);
}

void ElidedLabel::paintEvent(QPaintEvent *)
{
    QStylePainter painter(this);
    painter.drawItemText(contentsRect(), static_cast<int>(alignment()), palette(), isEnabled(), shownText(),
                         foregroundRole());
}

} // namespace views
