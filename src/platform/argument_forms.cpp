#include "platform/argument_forms.h"

#include "platform/runtime_error.h"

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace platform {

namespace {

struct TerminalForm
{
    const char *name;
    const char *command;        ///< what stands between the terminal and a command
    const char *maximized = ""; ///< what lets it begin with a maximized window, where it can
};

constexpr std::array<TerminalForm, 14> TerminalForms{{
    {"xdg-terminal-exec", ""},
    {"gnome-terminal", "--", "--maximize"},
    {"kgx", "--"},
    {"ptyxis", "--"},
    {"xfce4-terminal", "-x", "--maximize"},
    {"mate-terminal", "-x", "--maximize"},
    {"terminator", "-x", "--maximise"},
    {"kitty", "", "--start-as=maximized"},
    {"foot", "", "--maximized"},
    {"wezterm", "start --"},
    {"alacritty", "-e", "-o window.startup_mode=\"Maximized\""},
    {"xterm", "-e", "-maximized"},
    {"uxterm", "-e", "-maximized"},
    {"lxterm", "-e", "-maximized"},
}};

// Every other terminal follows the oldest one: everything behind "-e" is the command.
constexpr TerminalForm OtherTerminal{"", "-e"};

TerminalForm terminalForm(const QString &terminal)
{
    const QString name = terminal.mid(terminal.lastIndexOf(u'/') + 1);
    const auto form = std::find_if(TerminalForms.begin(), TerminalForms.end(),
                                   [&name](const TerminalForm &f) { return name == QLatin1String(f.name); });
    return form == TerminalForms.end() ? OtherTerminal : *form;
}

QStringList pieces(const char *options)
{
    return QString(QLatin1String(options)).split(u' ', Qt::SkipEmptyParts);
}

bool hasBlank(const QString &text)
{
    return text.contains(u' ') || text.contains(u'\t');
}

[[noreturn]] void refuseForDos(const QString &text)
{
    throw RuntimeError(ErrorNumber::InvalidProcedureCall,
                       u"\"%1\" cannot be given to a DOS program"_s.arg(text));
}

void refuseDosSyntax(const QString &text)
{
    const auto isSyntax = [](QChar c) { return c < u' ' || QStringView(u"<>|%\"&^").contains(c); };
    if (std::any_of(text.begin(), text.end(), isSyntax))
        refuseForDos(text);
}

// DOS knows no quotes: what holds a blank would be several names.
void refuseBlanks(const QString &name)
{
    if (hasBlank(name))
        refuseForDos(name);
}

} // namespace

QString windowsCommandLine(const Start &start)
{
    return (hasBlank(start.file) ? u'"' + start.file + u'"' : start.file) + start.parameters.quoted();
}

QString windowsParameters(const Start &start)
{
    return start.parameters.quoted();
}

QStringList nativeArguments(const QString &program, const Start &start)
{
    return QStringList(program) + start.parameters.arguments();
}

QStringList wineArguments(const QString &wine, const QString &program, const Start &start)
{
    return QStringList{wine, program} + start.parameters.arguments();
}

QStringList dosboxArguments(const QString &dosbox, const QString &programDirectory, const QString &name,
                            const QString &dataDirectory, const Start &start)
{
    for (const QString &text : {programDirectory, name, dataDirectory, start.parameters.text()})
        refuseDosSyntax(text);
    refuseBlanks(name);
    const QList<CommandText::Range> documents = start.parameters.documents();
    for (const CommandText::Range &document : documents)
        refuseBlanks(start.parameters.text().mid(document.from, document.length));
    const auto mount = [](QChar drive, const QString &directory) {
        return u"MOUNT %1 \"%2\""_s.arg(drive).arg(directory);
    };
    const QString parameters = start.parameters.arguments().join(u' ');
    return {dosbox,
            u"-c"_s,
            mount(u'C', programDirectory),
            u"-c"_s,
            mount(u'D', dataDirectory),
            u"-c"_s,
            u"D:"_s,
            u"-c"_s,
            (u"C:\\"_s + name + u' ' + parameters).trimmed(),
            u"-c"_s,
            u"EXIT"_s};
}

QStringList terminalArguments(const QString &terminal, const QStringList &command)
{
    return QStringList(terminal) + pieces(terminalForm(terminal).command) + command;
}

QStringList maximizedWindow(const QString &terminal)
{
    return pieces(terminalForm(terminal).maximized);
}

} // namespace platform
