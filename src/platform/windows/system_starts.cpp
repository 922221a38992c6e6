#include "platform/windows/system_starts.h"

#include "platform/windows/system_error.h"

#include <shellapi.h>

using namespace Qt::StringLiterals;

namespace platform::host {

namespace {

// Not every set of headers has this one.
constexpr quint32 ElevationRequired = 740;

QString reason(quint32 systemError)
{
    switch (systemError) {
    case ERROR_FILE_NOT_FOUND:
    case ERROR_PATH_NOT_FOUND:
        return u"it was not found"_s;
    case ERROR_ACCESS_DENIED:
    case ERROR_SHARING_VIOLATION:
        return u"permission was denied"_s;
    case ERROR_BAD_EXE_FORMAT:
    case ERROR_EXE_MACHINE_TYPE_MISMATCH:
    case ERROR_INVALID_EXE_SIGNATURE:
        return u"it is not a program of this system"_s;
    case ElevationRequired:
        return u"it asks for the rights of an administrator"_s;
    case ERROR_NO_ASSOCIATION:
        return u"this system has nothing to open it with"_s;
    case ERROR_CANCELLED:
        return u"it was cancelled"_s;
    case ERROR_FILENAME_EXCED_RANGE:
        return u"its command line is too long"_s;
    default:
        return systemText(systemError);
    }
}

double valueOf(quint32 systemError)
{
    switch (systemError) {
    case ERROR_ACCESS_DENIED:
    case ERROR_SHARING_VIOLATION:
    case ElevationRequired:
    case ERROR_CANCELLED:
        return open_failure::AccessDenied;
    case ERROR_BAD_EXE_FORMAT:
    case ERROR_EXE_MACHINE_TYPE_MISMATCH:
    case ERROR_INVALID_EXE_SIGNATURE:
        return open_failure::BadFormat;
    case ERROR_NO_ASSOCIATION:
        return open_failure::NoProgramForIt;
    default:
        return open_failure::NotFound;
    }
}

HWND windowOf(qint64 handle)
{
    return reinterpret_cast<HWND>(handle); // NOLINT(performance-no-int-to-ptr): such is the system's handle
}

} // namespace

Started notStarted(quint32 systemError)
{
    return {.failure = reason(systemError), .failureValue = valueOf(systemError)};
}

Started createProcess(const QString &program, const QString &commandLine, const QString &directory, Show show)
{
    STARTUPINFOW startup = {};
    startup.cb = sizeof startup;
    startup.dwFlags = STARTF_USESHOWWINDOW;
    startup.wShowWindow = static_cast<WORD>(show);
    PROCESS_INFORMATION process = {};
    std::wstring text = wide(commandLine);
    // The program's name is given beside the command line: a blank in it can lead to no other program.
    if (::CreateProcessW(wide(program).c_str(), text.data(), nullptr, nullptr, FALSE,
                         CREATE_NEW_CONSOLE | CREATE_DEFAULT_ERROR_MODE, nullptr, wide(directory).c_str(),
                         &startup, &process)
        == 0)
        return notStarted(::GetLastError());
    const Handle thread(process.hThread);
    return {.process = Handle(process.hProcess)};
}

Started openBySystem(const Start &start, const QString &file, const QString &parameters,
                     const QString &directory)
{
    const std::wstring verb = wide(start.verb.isEmpty() ? u"open"_s : start.verb);
    const std::wstring path = wide(file);
    const std::wstring rest = wide(parameters);
    const std::wstring place = wide(directory);
    SHELLEXECUTEINFOW request = {};
    request.cbSize = sizeof request;
    request.fMask = SEE_MASK_NOCLOSEPROCESS | SEE_MASK_FLAG_NO_UI;
    request.hwnd = windowOf(start.owner);
    request.lpVerb = verb.c_str();
    request.lpFile = path.c_str();
    request.lpParameters = rest.empty() ? nullptr : rest.c_str();
    request.lpDirectory = place.empty() ? nullptr : place.c_str();
    request.nShow = static_cast<int>(start.show);
    if (::ShellExecuteExW(&request) == 0)
        return notStarted(::GetLastError());
    return {.process = Handle(request.hProcess)};
}

} // namespace platform::host
