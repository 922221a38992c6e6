#include "views/panel_windows.h"

#include "views/twips.h"

#include <QGuiApplication>
#include <QScreen>

namespace views {

namespace {

controls::Screen screenSize()
{
    const QScreen *screen = QGuiApplication::primaryScreen();
    const QSize size = screen ? screen->size() : QSize();
    return {toTwips(size.width()), toTwips(size.height())};
}

} // namespace

PanelWindows::PanelWindows(shell::Panel &panel)
    : events_(panel), mainWindow_(events_), aboutWindow_(events_, &mainWindow_)
{
    panel.screen = screenSize();
}

void PanelWindows::load()
{
    mainWindow_.load();
}

} // namespace views
