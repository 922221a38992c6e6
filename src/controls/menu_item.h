#pragma once

#include "controls/control.h"

#include <array>

namespace controls {

/// An item of a menu, or a menu itself.
struct MenuItem
{
    QProperty<QString> Caption;
    QProperty<bool> Visible{true};
    QProperty<bool> Enabled{true};
    QProperty<QString> Hindrance; ///< of a greyed item: why it is greyed, a sentence for the user
    QProperty<bool> Checked{false};

    /// Enables the item where nothing hinders it, and greys it otherwise.
    void enableUnless(const QString &hindrance)
    {
        Hindrance = hindrance;
        Enabled = hindrance.isEmpty();
    }

    Event Click;
    Event Opening; ///< of a menu: it is about to open

    /// Of a menu: whether its Opening would raise a message box now. Such a menu opens only after the box is
    /// answered. Passing along the menu bar does not ask: the menu is shown, and runs Passed instead.
    std::function<bool()> AsksOnOpening;
    bool OpensAfterAsking = false; ///< whether the menu opens once that box is answered
    Event Passed;
};

/// A menu array: items of like commands, indexed from 0 in menu order.
template <int N>
using MenuArray = std::array<MenuItem, N>;

} // namespace controls
