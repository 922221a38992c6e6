#include "platform/linux/desktop_programs.h"

#include "platform/letter_case.h"

#include <QtGlobal>

#include <algorithm>
#include <array>
#include <cstdlib>
#include <memory>
#include <vector>

#include <sys/stat.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace platform::host {

namespace {

struct Candidate
{
    const char *program;
    const char *desktop; ///< as XDG_CURRENT_DESKTOP names it, empty for any
    bool inTerminal = false;
};

struct Accessory
{
    const char *name;
    const char *kind;
    std::vector<Candidate> candidates;
};

const std::vector<Accessory> &accessories()
{
    static const std::vector<Accessory> table{
        {"notepad.exe",
         "text editor",
         {{"gnome-text-editor", "GNOME"},
          {"gedit", "GNOME"},
          {"kate", "KDE"},
          {"kwrite", "KDE"},
          {"mousepad", "XFCE"},
          {"pluma", "MATE"},
          {"xed", "X-Cinnamon"},
          {"featherpad", "LXQt"},
          {"l3afpad", ""},
          {"leafpad", ""},
          {"geany", ""},
          {"emacs", ""},
          {"nano", "", true},
          {"vi", "", true}}},
        {"calc.exe",
         "calculator",
         {{"gnome-calculator", "GNOME"},
          {"kcalc", "KDE"},
          {"mate-calc", "MATE"},
          {"galculator", ""},
          {"qalculate-gtk", ""},
          {"qalculate-qt", ""},
          {"xcalc", ""},
          {"bc", "", true}}},
        {"explorer.exe",
         "file manager",
         {{"nautilus", "GNOME"},
          {"dolphin", "KDE"},
          {"thunar", "XFCE"},
          {"caja", "MATE"},
          {"nemo", "X-Cinnamon"},
          {"pcmanfm-qt", "LXQt"},
          {"pcmanfm", ""}}},
        {"mplayer.exe",
         "media player",
         {{"totem", "GNOME"},
          {"dragon", "KDE"},
          {"parole", "XFCE"},
          {"vlc", ""},
          {"mpv", ""},
          {"celluloid", ""},
          {"mplayer", ""}}},
        {"msinfo32.exe",
         "system-information tool",
         {{"kinfocenter", "KDE"},
          {"mintreport", "X-Cinnamon"},
          {"hardinfo2", ""},
          {"hardinfo", ""},
          {"cpu-x", ""},
          {"lshw-gtk", ""},
          // Mainly processes and what they use: better than nothing.
          {"mate-system-monitor", "MATE"},
          {"gnome-system-monitor", ""}}},
        {"winhlp32.exe", "help viewer", {{"yelp", "GNOME"}, {"khelpcenter", "KDE"}, {"xman", ""}}},
        {"command.com", "terminal", {}},
    };
    return table;
}

struct Opener
{
    const char *program;
    const char *argument; ///< what stands before the document, null for nothing
};

constexpr std::array<Opener, 6> Openers{{
    {"xdg-open", nullptr},
    {"gio", "open"},
    {"kde-open", nullptr},
    {"kde-open5", nullptr},
    {"exo-open", nullptr},
    {"gnome-open", nullptr},
}};

constexpr std::array<const char *, 15> Terminals{"xdg-terminal-exec",
                                                 "x-terminal-emulator",
                                                 "gnome-terminal",
                                                 "konsole",
                                                 "xfce4-terminal",
                                                 "mate-terminal",
                                                 "kgx",
                                                 "qterminal",
                                                 "ptyxis",
                                                 "terminator",
                                                 "wezterm",
                                                 "alacritty",
                                                 "kitty",
                                                 "foot",
                                                 "xterm"};

const Accessory *find(const QString &name)
{
    const auto &table = accessories();
    const auto found = std::find_if(table.begin(), table.end(), [&name](const Accessory &accessory) {
        return sameIgnoringCase(name, QString(QLatin1String(accessory.name)));
    });
    return found == table.end() ? nullptr : &*found;
}

bool isExecutableFile(const QByteArray &path)
{
    struct stat status = {};
    return ::stat(path.constData(), &status) == 0 && S_ISREG(status.st_mode)
           && ::access(path.constData(), X_OK) == 0;
}

std::optional<DesktopProgram> firstInstalled(const std::vector<Candidate> &candidates,
                                             const QByteArray &desktop)
{
    for (const Candidate &candidate : candidates) {
        if (!desktop.isNull() && !desktop.split(':').contains(candidate.desktop))
            continue;
        const QByteArray path = findInPath(candidate.program);
        if (!path.isEmpty() && (!candidate.inTerminal || !findTerminal().isEmpty()))
            return DesktopProgram{path, candidate.inTerminal};
    }
    return std::nullopt;
}

} // namespace

QByteArray findInPath(const QByteArray &name)
{
    const QList<QByteArray> directories = qgetenv("PATH").split(':');
    for (const QByteArray &directory : directories) {
        QByteArray path = directory + '/' + name;
        if (directory.startsWith('/') && !name.contains('/') && isExecutableFile(path))
            return path;
    }
    return {};
}

QByteArray terminalItself(const QByteArray &program)
{
    const std::unique_ptr<char, decltype(&std::free)> resolved(::realpath(program.constData(), nullptr),
                                                               &std::free);
    QByteArray path(resolved ? resolved.get() : program.constData());
    if (!path.endsWith(".wrapper"))
        return path;
    const QByteArray wrapped = path.left(path.lastIndexOf('.'));
    const QByteArray installed = findInPath(wrapped.mid(wrapped.lastIndexOf('/') + 1));
    return installed.isEmpty() ? path : installed;
}

bool isAccessory(const QString &name)
{
    return find(name) != nullptr;
}

std::optional<DesktopProgram> desktopProgram(const QString &accessory)
{
    const Accessory *row = find(accessory);
    if (row == nullptr)
        return std::nullopt;
    if (row->candidates.empty()) {
        const QByteArray terminal = findTerminal();
        return terminal.isEmpty() ? std::nullopt : std::optional(DesktopProgram{terminal});
    }
    const QByteArray desktop = qgetenv("XDG_CURRENT_DESKTOP");
    if (!desktop.isEmpty()) {
        if (auto own = firstInstalled(row->candidates, desktop))
            return own;
    }
    return firstInstalled(row->candidates, QByteArray());
}

bool needsTerminal(const QByteArray &hostPath)
{
    const QByteArray name = hostPath.mid(hostPath.lastIndexOf('/') + 1);
    for (const Accessory &accessory : accessories()) {
        for (const Candidate &candidate : accessory.candidates) {
            if (candidate.inTerminal && name == candidate.program)
                return true;
        }
    }
    return false;
}

QString accessoryKind(const QString &accessory)
{
    const Accessory *row = find(accessory);
    return row == nullptr ? u"program"_s : QString(QLatin1String(row->kind));
}

QList<QByteArray> desktopOpener()
{
    for (const Opener &opener : Openers) {
        const QByteArray path = findInPath(opener.program);
        if (path.isEmpty())
            continue;
        QList<QByteArray> command(1, path);
        if (opener.argument != nullptr)
            command.append(opener.argument);
        return command;
    }
    return {};
}

QByteArray findTerminal()
{
    if (qEnvironmentVariableIsEmpty("DISPLAY") && qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY"))
        return {};
    for (const char *terminal : Terminals) {
        QByteArray path = findInPath(terminal);
        if (!path.isEmpty())
            return path;
    }
    return {};
}

} // namespace platform::host
