#include "platform/windows/program_search.h"

#include "platform/letter_case.h"
#include "platform/path_language.h"
#include "platform/windows/host_files.h"

#include <QtEndian>

#include <shlwapi.h>

using namespace Qt::StringLiterals;

namespace platform::host {

namespace {

QString systemDirectory()
{
    return textOf([](wchar_t *buffer, DWORD size) { return ::GetSystemDirectoryW(buffer, size); });
}

QString windowsDirectory()
{
    return textOf([](wchar_t *buffer, DWORD size) { return ::GetSystemWindowsDirectoryW(buffer, size); });
}

bool isAbsolute(const QString &directory)
{
    const char16_t letter = directory.isEmpty() ? u'\0' : upperCase(directory[0].unicode());
    return letter >= u'A' && letter <= u'Z' && directory.mid(1, 2) == u":\\"
           && directory.indexOf(u':', 2) < 0;
}

QStringList searchedDirectories()
{
    const QString path =
        textOf([](wchar_t *buffer, DWORD size) { return ::GetEnvironmentVariableW(L"PATH", buffer, size); });
    QStringList directories{systemDirectory(), windowsDirectory()};
    const QStringList named = path.split(u';');
    const CurrentDirectories none;
    for (const QString &entry : named) {
        const QString directory = QString(entry).remove(u'"').trimmed().replace(u'/', u'\\');
        if (isAbsolute(directory))
            directories.append(none.absolute(directory));
    }
    return directories;
}

bool isFile(const QString &path)
{
    const DWORD attributes = attributesOf(path);
    return attributes != INVALID_FILE_ATTRIBUTES && !isDirectory(attributes);
}

// The same directory may have many names: in another case, short, on another drive.
bool areTheSame(const QString &one, const QString &other)
{
    if (sameIgnoringCase(trueSpelling(one), trueSpelling(other)))
        return true;
    const auto opened = [](const QString &directory) {
        return Handle(::CreateFileW(systemPath(directory).c_str(), FILE_READ_ATTRIBUTES,
                                    FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr,
                                    OPEN_EXISTING, FILE_FLAG_BACKUP_SEMANTICS, nullptr));
    };
    const Handle first = opened(one);
    const Handle second = opened(other);
    return first.isValid() && second.isValid() && stampOf(first, one).isOfSameFile(stampOf(second, other));
}

QString extensionOf(const QString &path)
{
    const QString name = withoutEndOfName(nameOf(path));
    const qsizetype dot = name.lastIndexOf(u'.');
    return dot < 0 ? QString() : UCase(name.mid(dot + 1));
}

QString firstFileIn(const QString &directory, std::initializer_list<const char *> names)
{
    for (const char *name : names) {
        QString path = joinPath(directory, QString::fromLatin1(name));
        if (isFile(path))
            return path;
    }
    return {};
}

} // namespace

QString findProgram(const QString &name, const QString &dataDirectory)
{
    const QStringList directories = searchedDirectories();
    for (const QString &directory : directories) {
        QString path = joinPath(directory, name);
        if (isFile(path) && !areTheSame(directory, dataDirectory))
            return path;
    }
    return {};
}

QString successorOf(const QString &name)
{
    if (sameIgnoringCase(name, u"command.com"))
        return firstFileIn(systemDirectory(), {"cmd.exe"});
    if (sameIgnoringCase(name, u"winhlp32.exe"))
        return firstFileIn(windowsDirectory(), {"HelpPane.exe", "hh.exe"});
    return {};
}

bool showsFilms(const QString &name)
{
    return sameIgnoringCase(name, u"mplayer.exe");
}

ProgramKind programKind(const QString &path)
{
    constexpr DWORD AliasOfApplication = 0x8000001B;
    const QString extension = extensionOf(path);
    if (extension != u"EXE" && extension != u"COM")
        return ProgramKind::None;
    if (reparseTagOf(path) == AliasOfApplication)
        return ProgramKind::Windows;
    constexpr qsizetype MostBeforeHead = 64 * qsizetype(1024);
    constexpr qsizetype PlaceOfHead = 0x3C;
    const QByteArray start = readFrom(openForReading(path), MostBeforeHead);
    if (!start.startsWith("MZ"))
        return ProgramKind::None;
    if (start.size() < PlaceOfHead + 4)
        return ProgramKind::OtherSystem;
    const auto head = qsizetype(qFromLittleEndian<quint32>(start.constData() + PlaceOfHead));
    // The signature, the kind of machine, and what form the rest has.
    constexpr qsizetype ShortestHead = 26;
    const bool isWindows =
        head <= start.size() - ShortestHead && start.mid(head, 4) == QByteArrayView("PE\0\0", 4);
    return isWindows ? ProgramKind::Windows : ProgramKind::OtherSystem;
}

bool isDangerousToOpen(const QString &path)
{
    // Beside what the system knows of, which not every version does.
    static const QStringList runs{u"EXE"_s, u"COM"_s, u"SCR"_s, u"PIF"_s, u"BAT"_s, u"CMD"_s,
                                  u"JS"_s,  u"JSE"_s, u"VBS"_s, u"VBE"_s, u"WSF"_s, u"WSH"_s,
                                  u"HTA"_s, u"LNK"_s, u"URL"_s, u"MSI"_s, u"MSP"_s, u"MSC"_s,
                                  u"REG"_s, u"CPL"_s, u"PS1"_s, u"JAR"_s, u"SCF"_s, u"CHM"_s};
    const QString extension = extensionOf(path);
    return runs.contains(extension) || extension.startsWith(u'{')
           || (!extension.isEmpty() && ::AssocIsDangerous(wide(u'.' + extension).c_str()) != 0);
}

} // namespace platform::host
