#include "platform/windows/system_error.h"

#include "platform/windows/windows_api.h"

namespace platform::host {

namespace {

// Not every set of headers has these.
constexpr quint32 NoSuchDevice = 433;
constexpr quint32 DiskQuotaExceeded = 1295;

} // namespace

ErrorNumber errorNumber(quint32 systemError)
{
    switch (systemError) {
    case ERROR_FILE_NOT_FOUND:
        return ErrorNumber::FileNotFound;
    case ERROR_PATH_NOT_FOUND:
    case ERROR_BAD_NETPATH:
    case ERROR_BAD_NET_NAME:
    case ERROR_DIRECTORY:
        return ErrorNumber::PathNotFound;
    case ERROR_ACCESS_DENIED:
    case ERROR_WRITE_PROTECT:
    case ERROR_NETWORK_ACCESS_DENIED:
    case ERROR_PRIVILEGE_NOT_HELD:
    case ERROR_CANT_ACCESS_FILE:
        return ErrorNumber::PermissionDenied;
    case ERROR_SHARING_VIOLATION:
    case ERROR_LOCK_VIOLATION:
    case ERROR_USER_MAPPED_FILE:
    case ERROR_BUSY:
        return ErrorNumber::FileAlreadyOpen;
    case ERROR_INVALID_NAME:
    case ERROR_BAD_PATHNAME:
    case ERROR_FILENAME_EXCED_RANGE:
        return ErrorNumber::BadFileName;
    case ERROR_ALREADY_EXISTS:
    case ERROR_FILE_EXISTS:
        return ErrorNumber::FileAlreadyExists;
    case ERROR_DISK_FULL:
    case ERROR_HANDLE_DISK_FULL:
    case DiskQuotaExceeded:
    case ERROR_FILE_TOO_LARGE:
        return ErrorNumber::DiskFull;
    case ERROR_TOO_MANY_OPEN_FILES:
    case ERROR_NO_SYSTEM_RESOURCES:
        return ErrorNumber::TooManyFiles;
    case ERROR_NOT_READY:
    case ERROR_WRONG_DISK:
    case ERROR_NO_MEDIA_IN_DRIVE:
    case ERROR_MEDIA_CHANGED:
    case ERROR_UNRECOGNIZED_VOLUME:
        return ErrorNumber::DiskNotReady;
    case ERROR_INVALID_DRIVE:
    case ERROR_BAD_UNIT:
    case ERROR_DEV_NOT_EXIST:
    case NoSuchDevice:
    case ERROR_DEVICE_NOT_CONNECTED:
    case ERROR_NETNAME_DELETED:
    case ERROR_UNEXP_NET_ERR:
    case ERROR_SEM_TIMEOUT:
    case ERROR_CONNECTION_UNAVAIL:
    case ERROR_NETWORK_UNREACHABLE:
    case ERROR_HOST_UNREACHABLE:
        return ErrorNumber::DeviceUnavailable;
    case ERROR_CRC:
    case ERROR_SEEK:
    case ERROR_SECTOR_NOT_FOUND:
    case ERROR_WRITE_FAULT:
    case ERROR_READ_FAULT:
    case ERROR_GEN_FAILURE:
    case ERROR_IO_DEVICE:
    case ERROR_FILE_CORRUPT:
    case ERROR_DISK_CORRUPT:
        return ErrorNumber::DeviceError;
    default:
        return ErrorNumber::PathFileAccess;
    }
}

void raise(quint32 systemError)
{
    throw RuntimeError(errorNumber(systemError));
}

void raiseForDirectory(quint32 systemError)
{
    const ErrorNumber number = errorNumber(systemError);
    throw RuntimeError(number == ErrorNumber::FileNotFound ? ErrorNumber::PathNotFound : number);
}

void raiseForReading(quint32 systemError)
{
    const ErrorNumber number = errorNumber(systemError);
    throw RuntimeError(number == ErrorNumber::FileAlreadyOpen ? ErrorNumber::PermissionDenied : number);
}

QString systemText(quint32 systemError)
{
    constexpr DWORD Longest = 1024;
    std::wstring text(Longest, L'\0');
    const DWORD length = ::FormatMessageW(FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS
                                              | FORMAT_MESSAGE_MAX_WIDTH_MASK,
                                          nullptr, systemError, 0, text.data(), Longest, nullptr);
    QString sentence = QString::fromWCharArray(text.data(), static_cast<qsizetype>(length)).trimmed();
    while (sentence.endsWith(u'.'))
        sentence.chop(1);
    return sentence.isEmpty() ? QStringLiteral("error %1").arg(systemError) : sentence;
}

} // namespace platform::host
