#include "platform/linux/file_copy.h"

#include "platform/linux/regular_file.h"
#include "platform/linux/system_error.h"

#include <cerrno>
#include <cstdio>
#include <optional>
#include <utility>
#include <vector>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace platform::host {

int SystemCalls::openSource(const QByteArray &path)
{
    return ::open(path.constData(), O_RDONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC);
}

int SystemCalls::create(const QByteArray &path, mode_t mode)
{
    return ::open(path.constData(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, mode);
}

ssize_t SystemCalls::read(int file, char *buffer, size_t size)
{
    return ::read(file, buffer, size);
}

ssize_t SystemCalls::write(int file, const char *bytes, size_t size)
{
    return ::write(file, bytes, size);
}

int SystemCalls::setGroup(int file, gid_t group)
{
    constexpr auto SameUser = static_cast<uid_t>(-1);
    return ::fchown(file, SameUser, group);
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

int SystemCalls::rename(const QByteArray &from, const QByteArray &to)
{
    return ::rename(from.constData(), to.constData());
}

int SystemCalls::renameNew(const QByteArray &from, const QByteArray &to)
{
    return ::renameat2(AT_FDCWD, from.constData(), AT_FDCWD, to.constData(), RENAME_NOREPLACE);
}

int SystemCalls::link(const QByteArray &from, const QByteArray &to)
{
    return ::link(from.constData(), to.constData());
}

namespace {

bool isUnsupported(int systemError)
{
    return systemError == EINVAL || systemError == ENOSYS || systemError == EOPNOTSUPP;
}

/// The file that is copied, open for reading.
class Source
{
public:
    Source(SystemCalls &calls, const QByteArray &path) : calls_(calls), file_(calls.openSource(path))
    {
        if (file_ < 0)
            raiseForFile(errno);
    }
    ~Source() { calls_.close(file_); }
    Source(const Source &) = delete;
    Source &operator=(const Source &) = delete;

    int file() const { return file_; }

private:
    SystemCalls &calls_;
    int file_;
};

/// The copy while it is written, beside its destination. Unless it has taken the destination's name it is
/// removed, and closed before: some shares do not remove an open file.
class CopyBeside
{
public:
    CopyBeside(SystemCalls &calls, const QByteArray &destination, mode_t mode) : calls_(calls)
    {
        // Hidden, and no model by its extension: no list shows what a killed panel leaves behind.
        const QByteArray start = destination.left(destination.lastIndexOf('/') + 1) + ".kinovra-"
                                 + QByteArray::number(::getpid()) + '-';
        constexpr int MostNames = 1000;
        for (int number = 0; file_ < 0 && number < MostNames; ++number) {
            path_ = start + QByteArray::number(number);
            file_ = calls.create(path_, mode);
            if (file_ < 0 && errno != EEXIST)
                break;
        }
        if (file_ < 0)
            raise(errno);
    }
    ~CopyBeside()
    {
        if (file_ >= 0)
            calls_.close(file_);
        if (!path_.isEmpty())
            ::unlink(path_.constData());
    }
    CopyBeside(const CopyBeside &) = delete;
    CopyBeside &operator=(const CopyBeside &) = delete;

    int file() const { return file_; }

    // A file system without groups or modes refuses this; the copy is whole all the same. What the group may
    // do is not given to another one.
    void takeOver(const struct stat &replaced)
    {
        constexpr mode_t Permissions = 0777;
        constexpr mode_t OfGroup = 0070;
        const bool hasGroup = calls_.setGroup(file_, replaced.st_gid) == 0;
        calls_.setMode(file_, replaced.st_mode & (hasGroup ? Permissions : Permissions & ~OfGroup));
    }

    // Writing has succeeded only when the file is closed: a share may tell a full disk only then.
    void finish()
    {
        int flushed = 0;
        do
            flushed = calls_.flush(file_);
        while (flushed != 0 && errno == EINTR);
        if (flushed != 0 && !isUnsupported(errno))
            raise(errno);
        // An interrupted close has closed the file.
        if (calls_.close(std::exchange(file_, -1)) != 0 && errno != EINTR)
            raise(errno);
    }

    void replace(const QByteArray &destination)
    {
        if (calls_.rename(path_, destination) != 0)
            raise(errno);
        path_.clear();
    }

    void becomeNew(const QByteArray &destination)
    {
        if (calls_.renameNew(path_, destination) == 0) {
            path_.clear();
            return;
        }
        if (!isUnsupported(errno))
            raise(errno);
        // A second name replaces nothing either; the first one is removed with this object.
        if (calls_.link(path_, destination) == 0)
            return;
        struct stat status = {};
        if (errno == EEXIST || ::lstat(destination.constData(), &status) == 0)
            raise(EEXIST);
        replace(destination);
    }

private:
    SystemCalls &calls_;
    QByteArray path_;
    int file_ = -1;
};

// The file that is to be replaced; nothing where there is none.
std::optional<struct stat> replacedFile(const QByteArray &path, Replacing replacing)
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
    return status;
}

void writeAll(SystemCalls &calls, int file, const char *bytes, size_t size)
{
    while (size > 0) {
        const ssize_t written = calls.write(file, bytes, size);
        if (written < 0 && errno == EINTR)
            continue;
        if (written <= 0)
            raise(written < 0 ? errno : EIO);
        bytes += written;
        size -= static_cast<size_t>(written);
    }
}

void copyContent(SystemCalls &calls, int from, int to)
{
    constexpr size_t BufferSize = 64 * size_t(1024);
    std::vector<char> buffer(BufferSize);
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
    constexpr mode_t LeftToTheUsersMask = 0666;
    // Until the copy has the group and the mode of what it replaces.
    constexpr mode_t Private = 0600;

    requireRegularFile(from);
    const Source source(calls, from);
    requireRegularFile(source.file());
    const std::optional<struct stat> replaced = replacedFile(to, replacing);
    CopyBeside copy(calls, to, replaced ? Private : LeftToTheUsersMask);
    copyContent(calls, source.file(), copy.file());
    if (replaced)
        copy.takeOver(*replaced);
    copy.finish();
    if (replaced)
        copy.replace(to);
    else
        copy.becomeNew(to);
}

} // namespace platform::host
