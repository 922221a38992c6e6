#include "shell/command_line.h"

namespace shell {

QStringList splitCommandLine(const QString &commandLine, int maximum)
{
    QStringList arguments;
    bool inArgument = false;
    bool inQuotes = false;
    for (QChar c : commandLine) {
        const bool separates = (c == u' ' || c == u'\t') && !inQuotes;
        if (c == u'"') {
            inQuotes = !inQuotes;
            if (!inQuotes)
                inArgument = false;
        } else if (separates) {
            inArgument = false;
        } else {
            if (!inArgument) {
                if (arguments.size() == maximum)
                    break;
                arguments.append(QString());
                inArgument = true;
            }
            arguments.last() += c;
        }
    }
    return arguments;
}

void GetCommandLine(Panel &panel, int maximum)
{
    auto [kinovra, frm, platform] = panel.parts();

    const QStringList arguments = splitCommandLine(platform.environment.commandLine(), maximum);
    for (const QString &argument : arguments) {
        if (!argument.startsWith(u'-') && !argument.startsWith(u'/')) {
            kinovra.SelectedFile = argument;
            return;
        }
        kinovra.DataDir = platform.files.currentDirectory();
    }
}

} // namespace shell
