#include "platform/linux/file_copy.h"

#include "platform/linux/regular_file.h"
#include "platform/linux/system_error.h"

#include <array>
#include <cerrno>
#include <cstdio>
#include <optional>
#include <utility>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace platform::host {

int SystemCalls::openSource(const QByteArray &path)
{
    return ::open(path.constData(), O_RDONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC);
}

int SystemCalls::create(const QByteArray &path)
{
    constexpr mode_t LeftToTheUsersMask = 0666;
    return ::open(path.constData(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, LeftToTheUsersMask);
}

ssize_t SystemCalls::read(int file, char *buffer, size_t size)
{
    return ::read(file, buffer, size);
}

ssize_t SystemCalls::write(int file, const char *bytes, size_t size)
{
    return ::write(file, bytes, size);
}

int SystemCalls::setMode(int file, mode_t mode)
{
    return ::fchmod(file, mode);
}

int SystemCalls::flush(int file)
{
    return ::fsync(file);
}

int SystemCalls::close(int file)
{
    return ::close(file);
}

int SystemCalls::rename(const QByteArray &from, const QByteArray &to, bool mayReplace)
{
    if (mayReplace)
        return ::rename(from.constData(), to.constData());
    const int result = ::renameat2(AT_FDCWD, from.constData(), AT_FDCWD, to.constData(), RENAME_NOREPLACE);
    if (result == 0 || errno != EINVAL)
        return result;
    // A file system that cannot do both in one step, such as a share.
    struct stat status = {};
    if (::lstat(to.constData(), &status) == 0) {
        errno = EEXIST;
        return -1;
    }
    return ::rename(from.constData(), to.constData());
}

namespace {

/// An open file of the copy. Closing it may fail: a share tells a full disk only then.
class OpenFile
{
public:
    OpenFile(SystemCalls &calls, int file) : calls_(calls), file_(file)
    {
        if (file < 0)
            raise(errno);
    }
    ~OpenFile()
    {
        if (file_ >= 0)
            calls_.close(file_);
    }
    OpenFile(const OpenFile &) = delete;
    OpenFile &operator=(const OpenFile &) = delete;

    int get() const { return file_; }

    void close()
    {
        if (calls_.close(std::exchange(file_, -1)) != 0)
            raise(errno);
    }

private:
    SystemCalls &calls_;
    int file_;
};

/// The name beside the destination under which the copy is written. Unless it has taken the destination's
/// name, it is removed.
class NameBeside
{
public:
    explicit NameBeside(QByteArray path) : path_(std::move(path)) {}
    ~NameBeside()
    {
        if (!path_.isEmpty())
            ::unlink(path_.constData());
    }
    NameBeside(const NameBeside &) = delete;
    NameBeside &operator=(const NameBeside &) = delete;

    const QByteArray &path() const { return path_; }
    void isTaken() { path_.clear(); }

private:
    QByteArray path_;
};

// Hidden, and no model by its extension: no list shows what a killed panel leaves behind.
QByteArray nameBeside(const QByteArray &path, int number)
{
    return path.left(path.lastIndexOf('/') + 1) + ".kinovra-" + QByteArray::number(::getpid()) + '-'
           + QByteArray::number(number);
}

QByteArray freeNameBeside(const QByteArray &path)
{
    struct stat status = {};
    int number = 0;
    while (::lstat(nameBeside(path, number).constData(), &status) == 0)
        ++number;
    return nameBeside(path, number);
}

// The mode of the file that is to be replaced; nothing where there is none.
std::optional<mode_t> replacedMode(const QByteArray &path, Replacing replacing)
{
    struct stat status = {};
    if (::lstat(path.constData(), &status) != 0) {
        if (errno == ENOENT)
            return std::nullopt;
        raise(errno);
    }
    if (!S_ISREG(status.st_mode))
        throw RuntimeError(ErrorNumber::PathFileAccess);
    if (replacing == Replacing::Refused)
        throw RuntimeError(ErrorNumber::FileAlreadyExists);
    // Renaming would replace even what its owner has protected.
    if (::euidaccess(path.constData(), W_OK) != 0)
        raise(errno);
    constexpr mode_t Permissions = 0777;
    return status.st_mode & Permissions;
}

void writeAll(SystemCalls &calls, int file, const char *bytes, size_t size)
{
    while (size > 0) {
        const ssize_t written = calls.write(file, bytes, size);
        if (written < 0 && errno == EINTR)
            continue;
        if (written < 0)
            raise(errno);
        bytes += written;
        size -= static_cast<size_t>(written);
    }
}

void copyContent(SystemCalls &calls, int from, int to)
{
    constexpr size_t BufferSize = 64 * size_t(1024);
    std::array<char, BufferSize> buffer;
    for (;;) {
        const ssize_t count = calls.read(from, buffer.data(), buffer.size());
        if (count < 0 && errno == EINTR)
            continue;
        if (count < 0)
            raise(errno);
        if (count == 0)
            return;
        writeAll(calls, to, buffer.data(), static_cast<size_t>(count));
    }
}

} // namespace

void copyWholeFile(const QByteArray &from, const QByteArray &to, Replacing replacing, SystemCalls &calls)
{
    requireRegularFile(from);
    const OpenFile source(calls, calls.openSource(from));
    const std::optional<mode_t> mode = replacedMode(to, replacing);
    const QByteArray beside = freeNameBeside(to);
    OpenFile copy(calls, calls.create(beside));
    NameBeside name(beside);
    copyContent(calls, source.get(), copy.get());
    // A file system without permissions refuses this; the copy is whole all the same.
    if (mode)
        calls.setMode(copy.get(), *mode);
    if (calls.flush(copy.get()) != 0)
        raise(errno);
    copy.close();
    if (calls.rename(beside, to, mode.has_value()) != 0)
        raise(errno);
    name.isTaken();
}

} // namespace platform::host
