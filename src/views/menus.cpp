#include "views/menus.h"

#include "shell/menu_tree.h"

#include <QApplication>
#include <QKeySequence>
#include <QMenu>
#include <QMenuBar>
#include <QScopedValueRollback>
#include <QTimer>

#include <vector>

namespace views {

namespace {

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

Menus::Menus(QMenuBar *bar, EventRunner &events) : QObject(bar), bar_(bar), events_(events)
{
    build();
}

void Menus::build()
{
    auto &frm = events_.panel().frm;
    const auto &rows = shell::menuTree();
    std::vector<QMenu *> open; // the menus that the next row may belong to, from the menu bar down
    for (size_t i = 0; i < rows.size(); ++i) {
        const shell::MenuRow &row = rows[i];
        open.resize(static_cast<size_t>(row.depth));
        QMenu *parent = open.empty() ? nullptr : open.back();
        if (row.isSeparator()) {
            parent->addSeparator();
            continue;
        }
        controls::MenuItem &item = row.item(frm);
        if (i + 1 < rows.size() && rows[i + 1].depth > row.depth) {
            QMenu *menu = parent ? parent->addMenu(row.caption) : bar_->addMenu(row.caption);
            if (!parent)
                accessKeys_ += accessKey(row.caption);
            bind(menu->menuAction(), item);
            bindMenu(menu, item);
            open.push_back(menu);
        } else {
            QAction *action = parent->addAction(row.caption);
            bind(action, item);
            connect(action, &QAction::triggered, this, [this, action, &item] {
                events_.run(item.Click);
                // The widget has toggled its mark by itself; the mark is the command's.
                action->setChecked(item.Checked);
            });
        }
    }
}

void Menus::bind(QAction *action, controls::MenuItem &item)
{
    bindings_.follow(item.Caption, [action, &item] { action->setText(item.Caption); });
    bindings_.follow(item.Visible, [action, &item] { action->setVisible(item.Visible); });
    bindings_.follow(item.Enabled, [action, &item] { action->setEnabled(item.Enabled); });
    bindings_.follow(item.Checked, [action, &item] {
        if (item.Checked)
            action->setCheckable(true);
        action->setChecked(item.Checked);
    });
}

void Menus::bindMenu(QMenu *menu, controls::MenuItem &item)
{
    connect(menu, &QMenu::aboutToShow, this, [this, menu, &item] { opens(menu, item); });
    connect(menu, &QMenu::aboutToHide, this, [this] {
        passing_ = true;
        QTimer::singleShot(0, this, [this] { passing_ = false; });
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
    if (passing_)
        return;
    // Not from here: the menu is about to appear, and must be closed again before the box is shown.
    QTimer::singleShot(0, menu, [this, menu, &item] { asks(menu, item); });
}

void Menus::asks(QMenu *menu, controls::MenuItem &item)
{
    closeMenus();
    bar_->setActiveAction(nullptr);
    events_.run(item.Opening);
    if (!item.OpensAfterAsking || events_.panel().unloading)
        return;
    const QScopedValueRollback reopening(reopening_, true);
    bar_->setActiveAction(menu->menuAction());
}

} // namespace views
