#pragma once

#include "controls/control.h"

namespace controls {

/// The screen's size in twips; a view fills it in before a window is loaded.
struct Screen
{
    int Width = 0;
    int Height = 0;
};

/// A window. Places and sizes are in twips, 15 to a logical pixel.
struct Window
{
    QProperty<QString> Caption;
    QProperty<bool> Visible{false};
    QProperty<int> Left{0};
    QProperty<int> Top{0};
    QProperty<int> Width{0};
    QProperty<int> Height{0};
    qint64 hWnd = 0;         ///< the system's handle, filled in by the view
    bool KeyPreview = false; ///< the window sees keys before its controls
    Event ToFront; ///< filled in by the view: raises the window above the others while it is visible

    Event Load;
    Event Unload; ///< the user closes the window
    Event Resize;
    Event Activate;
    Event DblClick;                                    ///< on the background
    std::function<void(int keyCode, int shift)> KeyUp; ///< shift: 1 Shift, 2 Ctrl, 4 Alt, added up
};

} // namespace controls
