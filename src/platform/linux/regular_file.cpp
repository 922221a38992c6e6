#include "platform/linux/regular_file.h"

#include "platform/linux/system_error.h"

#include <cerrno>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

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

QByteArray readFrom(const FileDescriptor &file, qsizetype most)
{
    QByteArray result(most, Qt::Uninitialized);
    qsizetype size = 0;
    while (size < most) {
        const ssize_t count = ::read(file.get(), result.data() + size, static_cast<size_t>(most - size));
        if (count < 0 && errno == EINTR)
            continue;
        if (count < 0)
            raise(errno);
        if (count == 0)
            break;
        size += count;
    }
    result.truncate(size);
    return result;
}

} // namespace platform::host
