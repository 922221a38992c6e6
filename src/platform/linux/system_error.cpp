#include "platform/linux/system_error.h"

#include <cerrno>

namespace platform::host {

ErrorNumber errorNumber(int systemError)
{
    switch (systemError) {
    case ENOENT:
    case ENOTDIR:
    case ESTALE:
        return ErrorNumber::PathNotFound;
    case EACCES:
    case EPERM:
    case EROFS:
        return ErrorNumber::PermissionDenied;
    case ENAMETOOLONG:
    case EILSEQ:
        return ErrorNumber::BadFileName;
    case EBUSY:
    case ETXTBSY:
    case EAGAIN:
        return ErrorNumber::FileAlreadyOpen;
    case EEXIST:
        return ErrorNumber::FileAlreadyExists;
    case EIO:
        return ErrorNumber::DeviceError;
    case ENOSPC:
    case EDQUOT:
    case EFBIG:
        return ErrorNumber::DiskFull;
    case EMFILE:
    case ENFILE:
        return ErrorNumber::TooManyFiles;
    case ENODEV:
    case ENXIO:
    case EHOSTDOWN:
    case EHOSTUNREACH:
    case ENETUNREACH:
    case ENOTCONN:
    case ETIMEDOUT:
        return ErrorNumber::DeviceUnavailable;
    case ENOMEDIUM:
        return ErrorNumber::DiskNotReady;
    default:
        return ErrorNumber::PathFileAccess;
    }
}

void raise(int systemError)
{
    throw RuntimeError(errorNumber(systemError));
}

} // namespace platform::host
