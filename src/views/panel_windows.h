#pragma once

#include "views/about_window.h"
#include "views/average_dialog.h"
#include "views/event_runner.h"
#include "views/main_window.h"
#include "views/text_viewer_window.h"

#include <memory>
#include <vector>

namespace views {

/// The windows of a panel. All but the main window are made when they are first shown.
class PanelWindows
{
public:
    PanelWindows(shell::Panel &panel, platform::HostPaths &paths);

    /// Loads the main window: the panel starts.
    void load();

    MainWindow &mainWindow() { return mainWindow_; }
    /// The other windows; nothing where they have not been shown yet.
    AboutWindow *aboutWindow() { return aboutWindow_.get(); }
    TextViewerWindow *textViewer() { return textViewer_.get(); }
    AverageDialog *averageDialog() { return averageDialog_.get(); }

private:
    EventRunner events_;
    MainWindow mainWindow_;
    std::unique_ptr<AboutWindow> aboutWindow_;
    std::unique_ptr<TextViewerWindow> textViewer_;
    std::unique_ptr<AverageDialog> averageDialog_;
    std::vector<QPropertyNotifier> notifiers_;
};

} // namespace views
