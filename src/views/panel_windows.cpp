#include "views/panel_windows.h"

#include "views/twips.h"

#include <QGuiApplication>
#include <QPalette>
#include <QScreen>
#include <QTimer>

namespace views {

namespace {

controls::Screen screenOf()
{
    const QScreen *screen = QGuiApplication::primaryScreen();
    const QSize size = screen ? screen->size() : QSize();
    const QPalette palette = QGuiApplication::palette();
    return {toTwips(size.width()), toTwips(size.height()),
            palette.color(QPalette::Base).rgb() & platform::White,
            palette.color(QPalette::Text).rgb() & platform::White};
}

} // namespace

PanelWindows::PanelWindows(shell::Panel &panel, platform::HostPaths &paths)
    : events_(panel), mainWindow_(events_, paths)
{
    panel.screen = screenOf();
    const auto onFirstShowing = [this](controls::Window &window, const std::function<void()> &make) {
        notifiers_.push_back(window.Visible.addNotifier([&window, make] {
            if (window.Visible)
                make();
        }));
    };
    // The splash comes with the main window, whose first picture must not wait for it.
    onFirstShowing(panel.about, [this, &panel] {
        QTimer::singleShot(0, &mainWindow_, [this, &panel] {
            if (!aboutWindow_ && panel.about.Visible)
                aboutWindow_ = std::make_unique<AboutWindow>(events_, &mainWindow_);
        });
    });
    onFirstShowing(panel.viewer, [this] {
        if (!textViewer_)
            textViewer_ = std::make_unique<TextViewerWindow>(events_);
    });
    onFirstShowing(panel.newAverage, [this] {
        if (!averageDialog_)
            averageDialog_ = std::make_unique<AverageDialog>(events_, &mainWindow_);
    });
}

void PanelWindows::load()
{
    mainWindow_.load();
}

} // namespace views
