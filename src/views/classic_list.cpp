#include "views/classic_list.h"

#include "views/row_delegate.h"

#include <QEvent>
#include <QPainter>

namespace views {

ClassicList::ClassicList(QWidget *parent) : QListView(parent)
{
    setItemDelegate(new RowDelegate(this));
    setUniformItemSizes(true);
    setEditTriggers(NoEditTriggers);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setFrameStyle(QFrame::StyledPanel);
}

bool ClassicList::event(QEvent *event)
{
    const bool handled = QListView::event(event);
    if (event->type() == QEvent::Paint && hasFocus()) {
        QPainter painter(this);
        painter.setPen(palette().color(QPalette::Highlight));
        painter.drawRect(rect().adjusted(0, 0, -1, -1));
    }
    return handled;
}

void ClassicList::focusInEvent(QFocusEvent *event)
{
    QListView::focusInEvent(event);
    update();
}

void ClassicList::focusOutEvent(QFocusEvent *event)
{
    QListView::focusOutEvent(event);
    update();
}

} // namespace views
