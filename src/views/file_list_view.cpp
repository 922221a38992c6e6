#include "views/file_list_view.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QScopedValueRollback>
#include <QScrollBar>
#include <QTimerEvent>

namespace views {

namespace {

// How long an arrow key must be at rest, in milliseconds, before its row is clicked.
constexpr int RestTime = 200;
constexpr int RightButton = 2;

bool isEnter(const QKeyEvent *event)
{
    return event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
}

bool isMove(const QKeyEvent *event)
{
    switch (event->key()) {
    case Qt::Key_Home:
    case Qt::Key_End:
    case Qt::Key_PageUp:
    case Qt::Key_PageDown:
        return true;
    default:
        return false;
    }
}

// The focus has come to the list itself, not back to its window.
bool isOwnFocus(const QFocusEvent *event)
{
    switch (event->reason()) {
    case Qt::MouseFocusReason:
    case Qt::TabFocusReason:
    case Qt::BacktabFocusReason:
    case Qt::ShortcutFocusReason:
    case Qt::OtherFocusReason:
        return true;
    default:
        return false;
    }
}

} // namespace

FileListView::FileListView(controls::FileList &list, EventRunner &events, FileListManners manners,
                           QWidget *parent)
    : ClassicList(parent), list_(list), events_(events), manners_(manners)
{
    setModel(&model_);
    // The mouse gives the focus itself, once it knows what was aimed at.
    setFocusPolicy(Qt::TabFocus);
    bindings_.bind(this, list);
    bindings_.follow(list.Names, [this] { showNames(); });
    bindings_.follow(list.ListIndex, [this] { showSelection(); });
    events.addHolder([this] { runHeldBack(); });
}

// Names that come or go above the rows in sight do not move these.
void FileListView::showNames()
{
    const QScopedValueRollback showing(showing_, true);
    const int scrolled = verticalScrollBar()->value();
    const bool isScrolled = scrolled > 0 && scrolled < model_.names().count();
    const QString uppermost = isScrolled ? model_.names().at(scrolled) : QString();
    model_.show(list_.Names);
    executeDelayedItemsLayout();
    const int row = isScrolled ? list_.Names.value().indexOf(uppermost) : 0;
    verticalScrollBar()->setValue(row >= 0 ? row : scrolled);
}

void FileListView::showSelection()
{
    const QScopedValueRollback showing(showing_, true);
    const int row = list_.ListIndex;
    if (row == currentIndex().row() && selectionModel()->isSelected(currentIndex()) == (row >= 0))
        return;
    // Keep the view where it is; rows that the user chooses are in sight already.
    const int scrolled = verticalScrollBar()->value();
    if (row < 0)
        selectionModel()->clear();
    else
        selectionModel()->setCurrentIndex(model_.index(row), QItemSelectionModel::ClearAndSelect);
    verticalScrollBar()->setValue(scrolled);
}

void FileListView::currentChanged(const QModelIndex &current, const QModelIndex &previous)
{
    ClassicList::currentChanged(current, previous);
    if (showing_ || !current.isValid())
        return;
    isClicked_ = false;
    list_.ListIndex = current.row();
    holdBackClick();
}

void FileListView::focusInEvent(QFocusEvent *event)
{
    if (isOwnFocus(event))
        events_.run(list_.GotFocus);
    const QScopedValueRollback showing(showing_, true);
    ClassicList::focusInEvent(event);
}

// A key that is still down will be released elsewhere.
void FileListView::focusOutEvent(QFocusEvent *event)
{
    arrowKeyIsUp();
    isClicked_ = false;
    ClassicList::focusOutEvent(event);
}

void FileListView::keyPressEvent(QKeyEvent *event)
{
    const bool isSpace = event->key() == Qt::Key_Space;
    if (isEnter(event) || isSpace) {
        // A key that is held down acts once.
        if (event->isAutoRepeat())
            return;
        if (isSpace)
            pressSpace();
        else
            pressEnter();
        return;
    }
    if (manners_.choosing && event->key() == Qt::Key_Escape) {
        events_.run([this] { list_.MouseUp(RightButton); });
        return;
    }
    rest_.stop();
    keyDown_ = true;
    typing_ = !event->text().isEmpty() && event->text().front().isPrint();
    const bool enters = event->key() == Qt::Key_Down || event->key() == Qt::Key_Up;
    if (!enters || list_.ListIndex >= 0)
        ClassicList::keyPressEvent(event);
    // The row that has the focus may be the one that the key leads to, though nothing is selected yet.
    const bool leads = enters || isMove(event) || selectionModel()->isSelected(currentIndex());
    if (leads && list_.ListIndex < 0 && list_.ListCount() > 0) {
        selectByUser(std::max(currentIndex().row(), 0));
        holdBackClick();
    }
}

// Space clicks the row that has the focus, once.
void FileListView::pressSpace()
{
    if (manners_.choosing || !currentIndex().isValid())
        return;
    list_.ListIndex = currentIndex().row();
    heldBack_ = true;
    runHeldBack();
}

// As a double-click, whose first click chooses the row; one that arrow keys have clicked is not clicked
// again.
void FileListView::pressEnter()
{
    if (list_.ListIndex < 0 && currentIndex().isValid())
        selectByUser(currentIndex().row());
    if (manners_.choosing) {
        events_.run(list_.Click);
        return;
    }
    if (list_.ListIndex >= 0 && !heldBack_ && !isClicked_)
        click();
    events_.run(list_.DblClick);
}

void FileListView::click()
{
    isClicked_ = true;
    events_.run(list_.Click);
}

void FileListView::keyReleaseEvent(QKeyEvent *event)
{
    if (!event->isAutoRepeat())
        arrowKeyIsUp();
    ClassicList::keyReleaseEvent(event);
}

void FileListView::arrowKeyIsUp()
{
    keyDown_ = false;
    if (heldBack_)
        rest_.start(restTime(), this);
}

// Who types a name looks for the next letter meanwhile.
int FileListView::restTime() const
{
    return typing_ ? std::max(RestTime, QApplication::keyboardInputInterval()) : RestTime;
}

void FileListView::holdBackClick()
{
    if (manners_.choosing)
        return;
    heldBack_ = true;
    if (!keyDown_)
        rest_.start(restTime(), this);
}

void FileListView::runHeldBack()
{
    rest_.stop();
    if (!heldBack_)
        return;
    heldBack_ = false;
    click();
}

void FileListView::timerEvent(QTimerEvent *event)
{
    if (event->timerId() == rest_.timerId())
        runHeldBack();
    else
        ClassicList::timerEvent(event);
}

void FileListView::mousePressEvent(QMouseEvent *event)
{
    press(event, false);
}

void FileListView::mouseDoubleClickEvent(QMouseEvent *event)
{
    press(event, true);
}

void FileListView::press(QMouseEvent *event, bool twice)
{
    press_ = Press::None;
    if (event->button() != Qt::LeftButton)
        return;
    // What counts is the name that was aimed at. Commands that have waited, and the refresh on getting the
    // focus, may change the list under the pointer, between the two presses of a double-click as well.
    const bool wasEmpty = list_.ListCount() == 0;
    const QModelIndex aimed = indexAt(event->position().toPoint());
    const QString underPointer = aimed.isValid() ? model_.names().at(aimed.row()) : QString();
    const QString name = twice && !pressedName_.isEmpty() ? pressedName_ : underPointer;
    const int scrolled = verticalScrollBar()->value();
    const Qt::MouseButtons down = QApplication::mouseButtons();
    events_.runPending();
    // A box came between, and took the release.
    if (QApplication::mouseButtons() != down)
        return;
    setFocus(Qt::MouseFocusReason);

    twice_ = twice;
    pressedName_ = name;
    if (wasEmpty) {
        press_ = list_.ListCount() == 0 ? Press::Empty : Press::None;
    } else if (!name.isEmpty()) {
        const int row = model_.names().indexOf(name);
        if (row >= 0) {
            if (aimed.isValid())
                verticalScrollBar()->setValue(scrolled + row - aimed.row());
            selectByUser(row);
            press_ = Press::Row;
        }
    } else if (manners_.blankClears) {
        list_.ListIndex = -1;
    }
}

void FileListView::selectByUser(int row)
{
    list_.ListIndex = row;
    const QScopedValueRollback showing(showing_, true);
    scrollTo(model_.index(row));
}

void FileListView::mouseMoveEvent(QMouseEvent *)
{
    // A row that was pressed stays the chosen one until the button is released.
}

void FileListView::mouseReleaseEvent(QMouseEvent *event)
{
    if (event->button() == Qt::RightButton) {
        if (list_.MouseUp)
            events_.run([this] { list_.MouseUp(RightButton); });
        return;
    }
    if (event->button() != Qt::LeftButton || press_ == Press::None)
        return;
    press_ = Press::None;
    if (twice_)
        events_.run(list_.DblClick);
    else
        click();
}

} // namespace views
