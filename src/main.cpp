#include "platform/event_loop_clock.h"
#include "platform/linux/ini_settings.h"
#include "platform/linux/linux_environment.h"
#include "platform/linux/linux_file_system.h"
#include "platform/linux/linux_programs.h"
#include "platform/linux/linux_registry.h"
#include "shell/connect_rooms.h"
#include "shell/panel.h"
#include "views/message_boxes.h"
#include "views/panel_windows.h"
#include "views/stride_picture.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QStandardPaths>

namespace {

// The Wine prefix whose drive letters are the panel's too.
QByteArray winePrefix()
{
    const QByteArray chosen = qgetenv("WINEPREFIX");
    return chosen.isEmpty() ? QFile::encodeName(QDir::homePath()) + "/.wine" : chosen;
}

// The user's configuration directory, unless KINOVRA_SETTINGS names another one.
QString settingsDirectory()
{
    const QString chosen = qEnvironmentVariable("KINOVRA_SETTINGS");
    return chosen.isEmpty() ? QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation)
                            : chosen;
}

QList<QByteArray> argumentsBehindName(int argc, char *argv[])
{
    QList<QByteArray> arguments;
    for (int i = 1; i < argc; ++i)
        arguments.append(argv[i]);
    return arguments;
}

} // namespace

int main(int argc, char *argv[])
{
    QApplication application(argc, argv);
    QApplication::setApplicationName(QStringLiteral("kinovra"));
    QApplication::setWindowIcon(views::applicationIcon());
    // Only unloading the main window ends the program.
    QApplication::setQuitOnLastWindowClosed(false);

    platform::host::LinuxFileSystem files(winePrefix());
    platform::host::IniSettings settings(settingsDirectory());
    platform::host::LinuxEnvironment environment(argumentsBehindName(argc, argv), files);
    platform::host::LinuxPrograms programs(files, QFile::encodeName(QApplication::applicationDirPath())
                                                      + "/kinovra-console");
    views::MessageBoxes dialogs(files);
    platform::EventLoopClock clock;
    platform::host::LinuxRegistry registry;
    platform::Platform machine{settings, environment, files, programs, dialogs, clock, registry};

    shell::Panel panel(machine);
    shell::connectRooms(panel);
    views::PanelWindows windows(panel);
    QMetaObject::invokeMethod(
        &windows.mainWindow(), [&windows] { windows.load(); }, Qt::QueuedConnection);
    return QApplication::exec();
}
