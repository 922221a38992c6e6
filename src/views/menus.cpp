#include "views/menus.h"

#include "platform/display_text.h"
#include "views/plain_text.h"

#include <QApplication>
#include <QKeyEvent>
#include <QKeySequence>
#include <QMenu>
#include <QMenuBar>
#include <QPainter>
#include <QProxyStyle>
#include <QScopedValueRollback>
#include <QShortcutEvent>
#include <QStyleOption>
#include <QTimer>

#include <chrono>
#include <utility>

using namespace Qt::StringLiterals;

namespace views {

namespace {

constexpr std::chrono::milliseconds Rest{400};

/// Lets greyed items be pointed at, with the keyboard too, so that they can say why they are greyed, and
/// shows which title of the bar has the keyboard.
class MenuStyle : public QProxyStyle
{
public:
    int styleHint(StyleHint hint, const QStyleOption *option, const QWidget *widget,
                  QStyleHintReturn *returned) const override
    {
        return hint == SH_Menu_AllowActiveAndDisabled
                   ? 1
                   : QProxyStyle::styleHint(hint, option, widget, returned);
    }

    // Most styles do not show which greyed item is pointed at.
    void drawControl(ControlElement element, const QStyleOption *option, QPainter *painter,
                     const QWidget *widget) const override
    {
        const bool isGreyed = !option->state.testFlag(State_Enabled);
        if (element == CE_MenuItem && isGreyed && option->state.testFlag(State_Selected)) {
            QColor shade = option->palette.color(QPalette::Active, QPalette::Highlight);
            constexpr int Faint = 50;
            shade.setAlpha(Faint);
            painter->fillRect(option->rect, shade);
        }
        const auto *title = qstyleoption_cast<const QStyleOptionMenuItem *>(option);
        if (element == CE_MenuBarItem && title && title->state.testFlag(State_Selected) && widget
            && widget->hasFocus()) {
            // Most styles mark the title of an open menu only.
            QStyleOptionMenuItem marked(*title);
            marked.state |= State_Sunken;
            QProxyStyle::drawControl(element, &marked, painter, widget);
            return;
        }
        QProxyStyle::drawControl(element, option, painter, widget);
    }
};

QChar accessKey(const QString &caption)
{
    const QKeySequence mnemonic = QKeySequence::mnemonic(caption);
    return mnemonic.isEmpty() ? QChar() : QChar(mnemonic[0].key());
}

} // namespace

void closeMenus()
{
    while (QWidget *popup = QApplication::activePopupWidget()) {
        if (!popup->close())
            return;
    }
}

Menus::Menus(QMenuBar *bar, EventRunner &events, std::vector<MenuLine> lines)
    : QObject(bar)
    , bar_(bar)
    , events_(events)
    , lines_(std::move(lines))
    , style_(new MenuStyle)
    , rest_(new QTimer(this))
{
    style_->setParent(this);
    rest_->setObjectName(u"rest"_s);
    rest_->setSingleShot(true);
    rest_->setInterval(Rest);
    rest_->callOnTimeout(this, &Menus::askWhereTheUserRests);
    bar_->setStyle(style_);
    bar_->installEventFilter(this);
    connect(qApp, &QApplication::focusChanged, this, &Menus::focusMoves);
    build();
}

// The menu bar alone: what a menu holds is made when it is first opened, so that the window appears sooner.
void Menus::build()
{
    for (size_t line = 0; line < lines_.size(); ++line) {
        if (lines_[line].depth > 0)
            continue;
        const QString caption = lines_[line].item->Caption;
        QMenu *menu = bar_->addMenu(caption);
        accessKeys_ += accessKey(caption);
        bindMenu(menu, line);
    }
}

bool Menus::isMenu(size_t line) const
{
    return line + 1 < lines_.size() && lines_[line + 1].depth > lines_[line].depth;
}

void Menus::fill(QMenu *menu, size_t menuLine)
{
    const int depth = lines_[menuLine].depth + 1;
    for (size_t line = menuLine + 1; line < lines_.size() && lines_[line].depth >= depth; ++line) {
        if (lines_[line].depth > depth)
            continue;
        controls::MenuItem *item = lines_[line].item;
        if (item == nullptr)
            menu->addSeparator();
        else if (isMenu(line))
            bindMenu(menu->addMenu(item->Caption), line);
        else
            bindItem(menu->addAction(item->Caption), *item);
    }
}

void Menus::bindItem(QAction *action, controls::MenuItem &item)
{
    bind(action, item);
    connect(action, &QAction::triggered, this, [this, action, &item] {
        events_.run(item.Click);
        // The widget has toggled its mark by itself; the mark is the command's.
        action->setChecked(item.Checked);
    });
}

void Menus::bind(QAction *action, controls::MenuItem &item)
{
    bindings_.follow(item.Caption, [action, &item] { action->setText(item.Caption); });
    bindings_.follow(item.Visible, [action, &item] { action->setVisible(item.Visible); });
    bindings_.follow(item.Enabled, [action, &item] { action->setEnabled(item.Enabled); });
    bindings_.follow(item.Hindrance, [action, &item] {
        const QString hindrance = platform::displayText(item.Hindrance);
        action->setStatusTip(hindrance);
        action->setToolTip(hindrance.isEmpty() ? QString() : plainToolTip(hindrance));
    });
    bindings_.follow(item.Checked, [action, &item] {
        if (item.Checked)
            action->setCheckable(true);
        action->setChecked(item.Checked);
    });
}

void Menus::bindMenu(QMenu *menu, size_t menuLine)
{
    controls::MenuItem &item = *lines_[menuLine].item;
    bind(menu->menuAction(), item);
    menu->setToolTipsVisible(true);
    menu->setStyle(style_);
    connect(menu, &QMenu::aboutToShow, this, [this, menu, menuLine, &item] {
        if (menu->isEmpty())
            fill(menu, menuLine);
        opens(menu, item);
    });
    connect(menu, &QMenu::aboutToHide, this, [this] {
        passing_ = true;
        returnFocusLater();
        QMetaObject::invokeMethod(
            this, [this] { passing_ = false; }, Qt::QueuedConnection);
    });
}

void Menus::opens(QMenu *menu, controls::MenuItem &item)
{
    if (reopening_)
        return;
    events_.runPending();
    if (!item.AsksOnOpening || !item.AsksOnOpening()) {
        events_.run(item.Opening);
        return;
    }
    if (passing_) {
        events_.run(item.Passed);
        return;
    }
    if (qobject_cast<QMenu *>(menu->parentWidget())) {
        submenu_ = menu;
        submenuItem_ = &item;
        rest_->start();
        return;
    }
    // Not from here: the menu is about to appear, and must be closed again before the box is shown.
    QMetaObject::invokeMethod(
        menu, [this, menu, &item] { asks(menu, item); }, Qt::QueuedConnection);
}

// A submenu opens under a pointer that is only on its way to another item; its question waits until the
// pointer has stayed.
void Menus::askWhereTheUserRests()
{
    const auto *above = qobject_cast<QMenu *>(submenu_->parentWidget());
    if (!submenu_->isVisible())
        return;
    if (above->activeAction() == submenu_->menuAction())
        asks(submenu_, *submenuItem_);
    else
        rest_->start();
}

void Menus::asks(QMenu *menu, controls::MenuItem &item)
{
    closeMenus();
    leaveBar();
    events_.run(item.Opening);
    if (!item.OpensAfterAsking || events_.panel().unloading)
        return;
    const QScopedValueRollback reopening(reopening_, true);
    openAlone(menu->menuAction());
}

void Menus::openAlone(QAction *title)
{
    // The window may not be active again yet, and the focus then comes from nowhere.
    if (!bar_->hasFocus())
        returnTo_ = bar_->window()->focusWidget();
    bar_->setActiveAction(title);
}

void Menus::focusMoves(QWidget *from, QWidget *to)
{
    if (to != bar_)
        return;
    if (from)
        returnTo_ = from;
    returnFocusLater();
}

// Once it is known which title is active then.
void Menus::returnFocusLater()
{
    QMetaObject::invokeMethod(this, &Menus::returnFocus, Qt::QueuedConnection);
}

// The bar itself forgets whom it has the focus from where a second menu is opened from the keyboard.
void Menus::returnFocus()
{
    if (!returnTo_ || !bar_->hasFocus() || bar_->activeAction() != nullptr)
        return;
    // The command may have hidden it: then its next neighbour.
    QWidget *heir = returnTo_;
    do {
        if (heir->isVisible() && heir->isEnabled() && heir->focusPolicy() != Qt::NoFocus) {
            heir->setFocus(Qt::MenuBarFocusReason);
            return;
        }
        heir = heir->nextInFocusChain();
    } while (heir != returnTo_);
}

// Titles share letters. The first one is meant, each time; and the next one where the keyboard is on the
// first.
bool Menus::openFirstOf(const QKeySequence &key)
{
    QList<QAction *> titles;
    const auto actions = bar_->actions();
    for (QAction *title : actions) {
        if (title->isVisible() && title->isEnabled() && QKeySequence::mnemonic(title->text()) == key)
            titles.append(title);
    }
    if (titles.isEmpty())
        return false;
    const qsizetype next = (titles.indexOf(bar_->activeAction()) + 1) % titles.size();
    openAlone(titles[next]);
    titles[next]->menu()->setActiveAction(titles[next]->menu()->actions().value(0));
    return true;
}

bool Menus::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::Shortcut) {
        const auto *shortcut = static_cast<QShortcutEvent *>(event);
        if (shortcut->isAmbiguous() && openFirstOf(shortcut->key()))
            return true;
    }
    if (event->type() == QEvent::FocusIn || event->type() == QEvent::FocusOut)
        bar_->update();
    // Escape leaves the bar, and Alt by itself does.
    if (event->type() == QEvent::KeyPress || event->type() == QEvent::KeyRelease)
        returnFocusLater();
    return QObject::eventFilter(watched, event);
}

// The bar gives the focus back to where it was for the Escape key alone.
void Menus::leaveBar()
{
    QKeyEvent escape(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier);
    QCoreApplication::sendEvent(bar_, &escape);
}

} // namespace views
