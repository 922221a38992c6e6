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
    const char *option; ///< what stands between the terminal and the command
};

constexpr std::array<TerminalForm, 10> TerminalForms{{
    {"xdg-terminal-exec", ""},
    {"gnome-terminal", "--"},
    {"kgx", "--"},
    {"ptyxis", "--"},
    {"xfce4-terminal", "-x"},
    {"mate-terminal", "-x"},
    {"terminator", "-x"},
    {"kitty", ""},
    {"foot", ""},
    {"wezterm", "start --"},
}};

bool hasBlank(const QString &text)
{
    return text.contains(u' ') || text.contains(u'\t');
}

void refuseDosSyntax(const QString &text)
{
    const auto isSyntax = [](QChar c) { return c < u' ' || QStringView(u"<>|%\"&^").contains(c); };
    if (std::any_of(text.begin(), text.end(), isSyntax)) {
        throw RuntimeError(ErrorNumber::InvalidProcedureCall,
                           u"\"%1\" cannot be given to a DOS program"_s.arg(text));
    }
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
    const QString name = terminal.mid(terminal.lastIndexOf(u'/') + 1);
    const auto form = std::find_if(TerminalForms.begin(), TerminalForms.end(),
                                   [&name](const TerminalForm &f) { return name == QLatin1String(f.name); });
    // Every other terminal follows the oldest one: everything behind "-e" is the command.
    const QString option = QLatin1String(form == TerminalForms.end() ? "-e" : form->option);
    return QStringList(terminal) + option.split(u' ', Qt::SkipEmptyParts) + command;
}

} // namespace platform
