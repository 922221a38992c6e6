#pragma once

#include <QByteArray>
#include <QList>
#include <QString>

#include <optional>

namespace platform::host {

/// A program of the host's desktop.
struct DesktopProgram
{
    QByteArray path;         ///< full path on the host
    bool inTerminal = false; ///< it needs a terminal
};

/// The program `name` in the directories of the host's PATH; null where it is in none. Relative directories
/// of the PATH are passed over: nothing is started from the directory that happens to be current.
QByteArray findInPath(const QByteArray &name);

/// The terminal itself behind a path, as names such as x-terminal-emulator are links, often to a wrapper
/// (such as gnome-terminal.wrapper) that does not take the terminal's own options.
QByteArray terminalItself(const QByteArray &program);

/// Whether `name` (any case) names one of the accessories that the package starts by a bare name:
/// "notepad.exe", "calc.exe", "command.com", "explorer.exe", "mplayer.exe", "msinfo32.exe", "winhlp32.exe".
bool isAccessory(const QString &name);

/// The desktop's own program for an accessory: those of the running desktop first, then any; nothing where
/// none is installed.
std::optional<DesktopProgram> desktopProgram(const QString &accessory);

/// Whether a program of the desktop, by its file name, needs a terminal.
bool needsTerminal(const QByteArray &hostPath);

/// What the accessory is, such as "text editor".
QString accessoryKind(const QString &accessory);

/// The program with which the desktop opens documents and addresses, by its full path, and the arguments that
/// stand before what is to be opened; empty where none is installed.
QList<QByteArray> desktopOpener();

/// The terminal in which console programs are shown; null where there is no display or no terminal.
QByteArray findTerminal();

} // namespace platform::host
