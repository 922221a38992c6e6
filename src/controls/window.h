#pragma once

#include "controls/control.h"

#include <utility>

namespace controls {

/// The screen's size in twips, and the desktop's colours of a page of text; a view fills them in before a
/// window is loaded.
struct Screen
{
    int Width = 0;
    int Height = 0;
    platform::Colour PageColour = platform::White;
    platform::Colour TextColour = platform::Black;
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
    bool Minimized = false;  ///< filled in by the view
    qint64 hWnd = 0;         ///< the system's handle, filled in by the view
    bool KeyPreview = false; ///< the window sees keys before its controls
    Event ToFront; ///< filled in by the view: raises the window above the others while it is visible

    Event Load;
    Event Unload; ///< the user closes the window
    Event Resize;
    Event Activate;
    Event DblClick;                                    ///< on the background
    std::function<void(int keyCode, int shift)> KeyUp; ///< shift: 1 Shift, 2 Ctrl, 4 Alt, added up

    /// Shows the window in front of the others, and loads it before where that has not been done. A window
    /// that is made on its first use is shown so.
    void show()
    {
        load();
        Visible = true;
        if (ToFront)
            ToFront();
    }

    /// Loads the window where that has not been done.
    void load()
    {
        if (!std::exchange(isLoaded_, true) && Load)
            Load();
    }

    /// Hides the window and forgets it: its next showing loads it anew.
    void unload()
    {
        Visible = false;
        isLoaded_ = false;
    }

private:
    bool isLoaded_ = false;
};

} // namespace controls
