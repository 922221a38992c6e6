#include "platform/linux/directory_reader.h"

#include "platform/linux/file_descriptor.h"
#include "platform/linux/host_names.h"
#include "platform/linux/system_error.h"

#include <QString>

#include <array>
#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <ctime>
#include <memory>

#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <sys/vfs.h>
#include <unistd.h>

namespace platform::host {

namespace {

constexpr qint64 NanosecondsPerSecond = 1'000'000'000;

qint64 nanoseconds(const timespec &time)
{
    return qint64(time.tv_sec) * NanosecondsPerSecond + time.tv_nsec;
}

DirectoryStamp stamp(const struct stat &status)
{
    return {status.st_dev, status.st_ino, nanoseconds(status.st_mtim), nanoseconds(status.st_ctim)};
}

// The longest time that two changes may share a time stamp. Local file systems of Linux stamp with the
// kernel's tick; FAT counts in two seconds, and of network file systems nothing is known.
qint64 tickOf(int descriptor)
{
    constexpr std::array<long, 7> KernelTick{0xEF53 /* ext */,
                                             0x58465342 /* XFS */,
                                             0x9123683E /* Btrfs */,
                                             0x01021994 /* tmpfs */,
                                             0x794C7630 /* overlay */,
                                             0xF2F52010 /* F2FS */,
                                             0x2FC12FC1 /* ZFS */};
    struct statfs system = {};
    if (::fstatfs(descriptor, &system) == 0) {
        for (long type : KernelTick) {
            if (static_cast<long>(system.f_type) == type)
                return 20'000'000;
        }
    }
    return 2 * NanosecondsPerSecond;
}

Directory::Kind kindBehindLink(int descriptor, const char *name)
{
    struct stat status = {};
    if (::fstatat(descriptor, name, &status, 0) != 0)
        return Directory::Kind::Other;
    if (S_ISREG(status.st_mode))
        return Directory::Kind::File;
    return S_ISDIR(status.st_mode) ? Directory::Kind::Folder : Directory::Kind::Other;
}

Directory::Kind kindOf(int descriptor, unsigned char type, const char *name)
{
    switch (type) {
    case DT_REG:
        return Directory::Kind::File;
    case DT_DIR:
        return Directory::Kind::Folder;
    case DT_LNK:
    case DT_UNKNOWN:
        return kindBehindLink(descriptor, name);
    default:
        return Directory::Kind::Other;
    }
}

void addEntry(Directory &directory, int descriptor, unsigned char type, const char *name)
{
    const QByteArrayView bytes(name);
    if (bytes == "." || bytes == "..")
        return;
    const bool hidden = name[0] == '.';
    const Directory::Kind kind = kindOf(descriptor, type, name);
    if (isPlain(bytes))
        directory.addAscii(bytes, kind, hidden);
    else
        directory.add(fromHostName(bytes), kind, hidden);
}

} // namespace

std::optional<DirectoryStamp> stampOf(const QByteArray &hostPath)
{
    struct stat status = {};
    return ::stat(hostPath.constData(), &status) == 0 ? std::optional(stamp(status)) : std::nullopt;
}

DirectoryReading readDirectory(const QByteArray &hostPath, const QString &path)
{
    const FileDescriptor descriptor(::open(hostPath.constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    struct stat status = {};
    if (!descriptor.isValid() || ::fstat(descriptor.get(), &status) != 0)
        raise(errno);

    timespec now{};
    ::clock_gettime(CLOCK_REALTIME, &now);
    const auto directory = Directory::create(path);
    // One large buffer: a directory of 100,000 files is read in a few calls.
    constexpr size_t BufferSize = 256 * size_t(1024);
    const auto buffer = std::make_unique_for_overwrite<char[]>(BufferSize);
    for (;;) {
        const long size = ::syscall(SYS_getdents64, descriptor.get(), buffer.get(), BufferSize);
        if (size < 0)
            raise(errno);
        if (size == 0)
            break;
        for (long offset = 0; offset < size;) {
            dirent64 entry; // NOLINT(cppcoreguidelines-pro-type-member-init): filled by the copy
            std::memcpy(&entry, buffer.get() + offset, offsetof(dirent64, d_name));
            addEntry(*directory, descriptor.get(), entry.d_type,
                     buffer.get() + offset + offsetof(dirent64, d_name));
            offset += entry.d_reclen;
        }
    }
    const DirectoryStamp before = stamp(status);
    // FAT's root has no time at all; a server's clock may be ahead of this one.
    const qint64 age = std::abs(nanoseconds(now) - before.modified);
    return {directory, before, before.modified != 0 && age > tickOf(descriptor.get())};
}

} // namespace platform::host
