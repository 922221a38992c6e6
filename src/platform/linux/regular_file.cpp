#include "platform/linux/regular_file.h"

#include "platform/linux/system_error.h"

#include <cerrno>

#include <fcntl.h>
#include <sys/stat.h>

namespace platform::host {

void raiseForFile(int systemError)
{
    throw RuntimeError(systemError == ENOENT ? ErrorNumber::FileNotFound : errorNumber(systemError));
}

void requireRegularFile(const QByteArray &hostPath)
{
    struct stat status = {};
    if (::stat(hostPath.constData(), &status) != 0)
        raiseForFile(errno);
    if (!S_ISREG(status.st_mode))
        throw RuntimeError(ErrorNumber::PathFileAccess);
}

void requireRegularFile(int descriptor)
{
    struct stat status = {};
    if (::fstat(descriptor, &status) != 0)
        raiseForFile(errno);
    if (!S_ISREG(status.st_mode))
        throw RuntimeError(ErrorNumber::PathFileAccess);
}

FileDescriptor openForReading(const QByteArray &hostPath)
{
    requireRegularFile(hostPath);
    FileDescriptor descriptor(::open(hostPath.constData(), O_RDONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC));
    if (!descriptor.isValid())
        raiseForFile(errno);
    requireRegularFile(descriptor.get());
    return descriptor;
}

} // namespace platform::host
