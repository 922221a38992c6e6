#include "views/classic_list.h"

#include "views/frame_line.h"
#include "views/plain_text.h"
#include "views/row_delegate.h"

#include <QEvent>
#include <QHelpEvent>
#include <QToolTip>

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
    if (event->type() == QEvent::Paint)
        drawFrameLine(*this);
    return handled;
}

bool ClassicList::viewportEvent(QEvent *event)
{
    if (event->type() == QEvent::ToolTip) {
        const auto *help = static_cast<QHelpEvent *>(event);
        const QModelIndex row = indexAt(help->pos());
        if (row.isValid() && sizeHintForIndex(row).width() > viewport()->width()) {
            QToolTip::showText(help->globalPos(), plainToolTip(row.data().toString()), viewport());
            return true;
        }
    }
    return QListView::viewportEvent(event);
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
