#pragma once

#include "controls/file_list.h"
#include "views/bindings.h"
#include "views/classic_list.h"
#include "views/names_model.h"

#include <QBasicTimer>

namespace views {

/// What is special about a file list's way of being used.
struct FileListManners
{
    /// A click ends a choice: arrow keys only highlight, Enter chooses, Esc cancels as the right button does.
    bool choosing = false;
    /// A click on the blank area clears the selection.
    bool blankClears = false;
};

/// A classic file list. A click on a row is a Click even where the row is selected already; an empty list
/// clicks anywhere; keys that move or find click where they come to rest; Enter is a double-click.
class FileListView : public ClassicList
{
    Q_OBJECT

public:
    FileListView(controls::FileList &list, EventRunner &events, FileListManners manners = {},
                 QWidget *parent = nullptr);

    /// Whether an arrow key has come to rest on a row and will click it in a moment.
    bool isAboutToClick() const { return rest_.isActive(); }

protected:
    void currentChanged(const QModelIndex &current, const QModelIndex &previous) override;
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void keyReleaseEvent(QKeyEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void timerEvent(QTimerEvent *event) override;

private:
    enum class Press { None, Row, Empty };

    void showNames();
    void showSelection();
    void press(QMouseEvent *event, bool twice);
    void pressSpace();
    void pressEnter();
    void click();
    void selectByUser(int row);
    void holdBackClick();
    void arrowKeyIsUp();
    int restTime() const;
    void runHeldBack();

    controls::FileList &list_;
    EventRunner &events_;
    FileListManners manners_;
    NamesModel model_;
    Bindings bindings_;
    QBasicTimer rest_;          ///< runs while an arrow key's click is waiting for the key to come to rest
    bool heldBack_ = false;     ///< a click is waiting
    bool isClicked_ = false;    ///< the selected row was clicked, and nothing but this list was used since
    bool typing_ = false;       ///< the last key was of a name that is being typed
    bool keyDown_ = false;      ///< an arrow key is held down
    bool showing_ = false;      ///< the selection changes because the control's did
    bool twice_ = false;        ///< the press was the second one of a double-click
    Press press_ = Press::None; ///< where the left button went down
    QString pressedName_;       ///< the row's name where it went down
};

} // namespace views
