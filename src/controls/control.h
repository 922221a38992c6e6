#pragma once

#include <QProperty>
#include <QString>

#include <functional>

// What a window shows, as observable values. A view binds to them; commands read and set them. An event is
// empty until a room hangs its handler on it.

namespace controls {

using Event = std::function<void()>;

/// What all controls have in common.
struct Control
{
    QProperty<bool> Visible{true};
    QProperty<bool> Enabled{true};
    QString ToolTip;
};

struct Label : Control
{
    QProperty<QString> Caption;
};

struct Button : Control
{
    QProperty<QString> Caption;
    Event Click;
};

/// A status bar: panel 1 is the panel's voice, panel 2 shows the version.
struct StatusBar : Control
{
    QProperty<QString> Panel1;
    QProperty<QString> Panel2;
};

/// The common dialog of a window. Each command passes a complete request; only the initial directory stays.
struct CommonDialog
{
    QString InitDir;
};

} // namespace controls
