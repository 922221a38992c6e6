#include "platform/windows/windows_environment.h"

#include "platform/windows/windows_api.h"

#include <QCoreApplication>

namespace platform::host {

namespace {

bool isBlank(QChar c)
{
    return c == u' ' || c == u'\t';
}

} // namespace

// A quote around the name ends only with the next one; nothing escapes it.
QString textBehindProgram(QStringView commandLine)
{
    qsizetype i = 0;
    for (bool isQuoted = false; i < commandLine.size() && (isQuoted || !isBlank(commandLine[i])); ++i) {
        if (commandLine[i] == u'"')
            isQuoted = !isQuoted;
    }
    while (i < commandLine.size() && isBlank(commandLine[i]))
        ++i;
    return commandLine.mid(i).toString();
}

QString WindowsEnvironment::commandLine()
{
    return textBehindProgram(QString::fromWCharArray(::GetCommandLineW()));
}

QString WindowsEnvironment::variable(const QString &name)
{
    const std::wstring key = wide(name);
    QString value = textOf(
        [&key](wchar_t *buffer, DWORD size) { return ::GetEnvironmentVariableW(key.c_str(), buffer, size); });
    value.replace(u'/', u'\\');
    const qsizetype root = value.size() > 1 && value[1] == u':' ? 3 : 1;
    while (value.size() > root && value.endsWith(u'\\'))
        value.chop(1);
    return value;
}

QString WindowsEnvironment::programFolder()
{
    const QString program =
        textOf([](wchar_t *buffer, DWORD size) { return ::GetModuleFileNameW(nullptr, buffer, size); });
    // A root, too, goes without its backslash.
    return program.left(program.lastIndexOf(u'\\'));
}

void WindowsEnvironment::endProgram()
{
    QCoreApplication::exit(0);
}

} // namespace platform::host
