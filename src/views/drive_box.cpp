#include "views/drive_box.h"

#include <QKeyEvent>
#include <QWheelEvent>

namespace views {

DriveBox::DriveBox(controls::DriveList &list, EventRunner &events, QWidget *parent)
    : QComboBox(parent), list_(list), events_(events)
{
    setSizeAdjustPolicy(AdjustToMinimumContentsLengthWithIcon);
    setMinimumContentsLength(3);
    bindings_.bind(this, list);
    bindings_.follow(list.Drives, [this] { showDrives(); });
    bindings_.follow(list.Drive, [this] { showChosen(); });
    connect(this, &QComboBox::activated, this, &DriveBox::choose);
}

void DriveBox::showDrives()
{
    clear();
    addItems(list_.Drives);
    showChosen();
}

void DriveBox::showChosen()
{
    setCurrentIndex(findText(list_.Drive));
}

void DriveBox::choose(int index)
{
    if (itemText(index) == list_.Drive)
        return;
    events_.runPending();
    list_.Drive = itemText(index);
    events_.run(list_.Change);
}

// Stepping through the drives with the arrow keys would wake each of them; the keys open the list instead.
void DriveBox::keyPressEvent(QKeyEvent *event)
{
    switch (event->key()) {
    case Qt::Key_Up:
    case Qt::Key_Down:
    case Qt::Key_PageUp:
    case Qt::Key_PageDown:
    case Qt::Key_Home:
    case Qt::Key_End:
        showPopup();
        break;
    default:
        QComboBox::keyPressEvent(event);
    }
}

void DriveBox::wheelEvent(QWheelEvent *event)
{
    event->ignore();
}

} // namespace views
