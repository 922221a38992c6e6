#include "platform/host.h"
#include "platform/linux/ini_settings.h"
#include "platform/linux/linux_environment.h"
#include "platform/linux/linux_file_system.h"
#include "platform/linux/linux_programs.h"
#include "platform/linux/linux_registry.h"
#include "platform/linux/process_preparation.h"
#include "platform/linux/session_bus.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QStandardPaths>

namespace platform {

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

class LinuxHost : public Host
{
public:
    LinuxHost(int argc, char *argv[]) : environment_(argumentsBehindName(argc, argv), files_) {}

    Settings &settings() override { return settings_; }
    Environment &environment() override { return environment_; }
    FileSystem &files() override { return files_; }
    HostPaths &paths() override { return files_; }
    Programs &programs() override { return programs_; }
    Registry &registry() override { return registry_; }

private:
    host::LinuxFileSystem files_{winePrefix()};
    host::IniSettings settings_{settingsDirectory()};
    host::LinuxEnvironment environment_;
    host::LinuxPrograms programs_{files_, QFile::encodeName(QCoreApplication::applicationDirPath())
                                              + "/kinovra-console"};
    host::LinuxRegistry registry_;
};

} // namespace

void prepareProcess()
{
    host::ignoreBrokenPipes();
    host::openStandardStreams();
    host::avoidSilentSessionBus();
}

std::unique_ptr<Host> openHost(int argc, char *argv[])
{
    return std::make_unique<LinuxHost>(argc, argv);
}

} // namespace platform
