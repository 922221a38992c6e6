#include "platform/windows/drives.h"

#include "platform/letter_case.h"
#include "platform/path_language.h"
#include "platform/windows/host_files.h"

#include <winnetwk.h>

using namespace Qt::StringLiterals;

namespace platform::host {

namespace {

QString labelOf(const std::wstring &root)
{
    constexpr DWORD Longest = MAX_PATH + 1;
    std::wstring label(Longest, L'\0');
    if (::GetVolumeInformationW(root.c_str(), label.data(), Longest, nullptr, nullptr, nullptr, nullptr, 0)
        == 0)
        return {};
    return QString::fromWCharArray(label.c_str());
}

QString shareOf(const std::wstring &drive)
{
    constexpr DWORD Longest = 1024;
    std::wstring share(Longest, L'\0');
    DWORD size = Longest;
    if (::WNetGetConnectionW(drive.c_str(), share.data(), &size) != NO_ERROR)
        return {};
    return QString::fromWCharArray(share.c_str());
}

// Only a fixed drive is asked for its label: others may have to be woken up first, or hold nothing.
QString driveText(QChar drive)
{
    QString text = QChar(lowerCase(drive.unicode())) + u":"_s;
    const std::wstring root = wide(rootOf(drive));
    switch (::GetDriveTypeW(root.c_str())) {
    case DRIVE_FIXED: {
        const QString label = labelOf(root);
        return label.isEmpty() ? text : text + u" ["_s + label + u']';
    }
    case DRIVE_REMOTE: {
        const QString share = shareOf(wide(text));
        return share.isEmpty() ? text : text + u' ' + share;
    }
    default:
        return text;
    }
}

// The name of the hidden variable that keeps a drive's current directory, such as "=C:".
std::wstring directoryVariable(QChar drive)
{
    return wide(u'=' + QString(drive) + u':');
}

bool isOnDrive(const QString &directory)
{
    return directory.size() >= 3 && directory[1] == u':' && directory[2] == u'\\'
           && upperCase(directory[0].unicode()) >= u'A' && upperCase(directory[0].unicode()) <= u'Z';
}

QString systemDirectory()
{
    return textOf([](wchar_t *buffer, DWORD size) { return ::GetSystemDirectoryW(buffer, size); });
}

} // namespace

bool hasDrive(QChar drive)
{
    return drive >= u'A' && drive <= u'Z'
           && (::GetLogicalDrives() & (DWORD(1) << unsigned(drive.unicode() - u'A'))) != 0;
}

QStringList driveTexts()
{
    const QuietDrives quiet;
    QStringList texts;
    for (char16_t letter = u'A'; letter <= u'Z'; ++letter) {
        if (hasDrive(letter))
            texts.append(driveText(letter));
    }
    return texts;
}

QString inheritedDirectory(QChar drive)
{
    const std::wstring name = directoryVariable(drive);
    const QString directory = textOf([&name](wchar_t *buffer, DWORD size) {
        return ::GetEnvironmentVariableW(name.c_str(), buffer, size);
    });
    return isOnDrive(directory) && QChar(upperCase(directory[0].unicode())) == drive ? directory : QString();
}

void bequeathDirectory(const QString &directory)
{
    ::SetEnvironmentVariableW(directoryVariable(directory.at(0)).c_str(), wide(directory).c_str());
}

QString startDirectory()
{
    const QString directory =
        textOf([](wchar_t *buffer, DWORD size) { return ::GetCurrentDirectoryW(size, buffer); });
    return isOnDrive(directory) ? directory : systemDirectory().left(3);
}

void stayInSystemDirectory()
{
    ::SetCurrentDirectoryW(wide(systemDirectory()).c_str());
}

} // namespace platform::host
