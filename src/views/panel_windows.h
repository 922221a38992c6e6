#pragma once

#include "views/about_window.h"
#include "views/event_runner.h"
#include "views/main_window.h"

namespace views {

/// The windows of a panel.
class PanelWindows
{
public:
    explicit PanelWindows(shell::Panel &panel);

    /// Loads the main window: the panel starts.
    void load();

    MainWindow &mainWindow() { return mainWindow_; }
    AboutWindow &aboutWindow() { return aboutWindow_; }

private:
    EventRunner events_;
    MainWindow mainWindow_;
    AboutWindow aboutWindow_;
};

} // namespace views
