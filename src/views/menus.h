#pragma once

#include "controls/menu_item.h"
#include "views/bindings.h"

#include <QObject>
#include <QPointer>

#include <vector>

class QAction;
class QKeySequence;
class QMenu;
class QMenuBar;
class QStyle;
class QTimer;

namespace views {

/// Closes all open menus, so that a box can be shown.
void closeMenus();

/// One line of a menu tree in menu order; a line whose successor is deeper is a menu.
struct MenuLine
{
    int depth;                ///< 0 in the menu bar
    controls::MenuItem *item; ///< nothing for a separator
};

/// Renders a menu tree in a menu bar.
class Menus : public QObject
{
    Q_OBJECT

public:
    Menus(QMenuBar *bar, EventRunner &events, std::vector<MenuLine> lines);

    /// The access keys of the menu bar, in upper case.
    QString accessKeys() const { return accessKeys_; }

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void build();
    bool isMenu(size_t line) const;
    void fill(QMenu *menu, size_t menuLine);
    void bind(QAction *action, controls::MenuItem &item);
    void bindItem(QAction *action, controls::MenuItem &item);
    void bindMenu(QMenu *menu, size_t menuLine);
    void opens(QMenu *menu, controls::MenuItem &item);
    void askWhereTheUserRests();
    void asks(QMenu *menu, controls::MenuItem &item);
    void leaveBar();
    void openAlone(QAction *title);
    bool openFirstOf(const QKeySequence &key);
    void focusMoves(QWidget *from, QWidget *to);
    void returnFocusLater();
    void returnFocus();

    QMenuBar *bar_;
    EventRunner &events_;
    const std::vector<MenuLine> lines_;
    Bindings bindings_;
    QString accessKeys_;
    QStyle *style_;            ///< of the menus
    QTimer *rest_;             ///< until a submenu that has opened is meant
    QMenu *submenu_ = nullptr; ///< that submenu
    controls::MenuItem *submenuItem_ = nullptr;
    bool passing_ = false;       ///< another menu has just closed: the user passes along the menu bar
    bool reopening_ = false;     ///< a menu opens again after its question
    QPointer<QWidget> returnTo_; ///< what had the focus before the bar
};

} // namespace views
