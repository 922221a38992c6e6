#include "platform/event_loop_clock.h"
#include "platform/host.h"
#include "shell/connect_rooms.h"
#include "shell/panel.h"
#include "views/message_boxes.h"
#include "views/panel_windows.h"
#include "views/stride_picture.h"

#include <QApplication>

#include <algorithm>

int main(int argc, char *argv[])
{
    platform::prepareProcess();
    // The command line is the panel's: no switch in it is one of Qt's.
    int nameAlone = std::min(argc, 1);
    // A bar of the desktop's own would be asked for on the session bus, before the window tells not to.
    QApplication::setAttribute(Qt::AA_DontUseNativeMenuBar);
    QApplication application(nameAlone, argv);
    QApplication::setApplicationName(QStringLiteral("kinovra"));
    QApplication::setWindowIcon(views::applicationIcon());
    // Only unloading the main window ends the program.
    QApplication::setQuitOnLastWindowClosed(false);

    const auto host = platform::openHost(argc, argv);
    views::MessageBoxes dialogs(host->paths());
    platform::EventLoopClock clock;
    platform::Platform machine{
        host->settings(), host->environment(), host->files(), host->programs(), dialogs, clock,
        host->registry()};

    shell::Panel panel(machine);
    shell::connectRooms(panel);
    views::PanelWindows windows(panel, host->paths());
    QMetaObject::invokeMethod(
        &windows.mainWindow(), [&windows] { windows.load(); }, Qt::QueuedConnection);
    return QApplication::exec();
}
