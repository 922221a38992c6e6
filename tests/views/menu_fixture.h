#pragma once

#include "view_fixture.h"

#include <QMenu>
#include <QMenuBar>

namespace support {

/// The main window with its menus, in a directory with a trial that is refined and has a model.
class MenuFixture : public ViewFixture
{
protected:
    void SetUp() override;

    QMenuBar *bar() const { return window().menuBar(); }

    /// The menu whose caption is `caption`, such as "&File".
    QMenu *menu(const QString &caption) const;

    /// Opens a menu of the bar.
    void openFromBar(const QString &caption) const;

    /// Presses Alt, then `key`, as on a keyboard: what has the keyboard by then gets the releases.
    static void altAnd(Qt::Key key);

    /// Presses and releases a key, wherever the keyboard is.
    static void press(Qt::Key key);
};

} // namespace support
