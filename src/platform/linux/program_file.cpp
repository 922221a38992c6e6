#include "platform/linux/program_file.h"

#include "platform/linux/file_descriptor.h"

#include <QtEndian>

#include <algorithm>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace platform::host {

namespace {

constexpr size_t HeaderSize = 16'384;

template <typename T>
T littleEndian(QByteArrayView bytes, qsizetype offset)
{
    return offset + qsizetype(sizeof(T)) <= bytes.size() ? qFromLittleEndian<T>(bytes.data() + offset) : T(0);
}

ProgramKind windowsKind(QByteArrayView start, qsizetype header)
{
    constexpr qsizetype OptionalHeader = 24;
    constexpr qsizetype Subsystem = OptionalHeader + 68;
    constexpr quint16 Console = 3;
    return littleEndian<quint16>(start, header + Subsystem) == Console ? ProgramKind::WindowsConsole
                                                                       : ProgramKind::WindowsGui;
}

// The first bytes of a file; empty where it cannot be read.
QByteArray startOf(const QByteArray &hostPath)
{
    struct stat status = {};
    if (::stat(hostPath.constData(), &status) != 0 || !S_ISREG(status.st_mode))
        return {};
    const FileDescriptor file(::open(hostPath.constData(), O_RDONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC));
    if (!file.isValid())
        return {};
    QByteArray start(HeaderSize, Qt::Uninitialized);
    const ssize_t size = ::read(file.get(), start.data(), HeaderSize);
    start.truncate(size < 0 ? 0 : size);
    return start;
}

} // namespace

ProgramKind programKind(QByteArrayView start)
{
    if (start.startsWith("\x7F"
                         "ELF")
        || start.startsWith("#!"))
        return ProgramKind::Native;
    if (!start.startsWith("MZ"))
        return ProgramKind::Unknown;
    constexpr qsizetype NewHeaderOffset = 0x3C;
    const qsizetype header = littleEndian<quint32>(start, NewHeaderOffset);
    const QByteArrayView signature =
        header > 0 && header < start.size() ? start.sliced(header) : QByteArrayView();
    if (signature.startsWith(QByteArrayView("PE\0\0", 4)))
        return windowsKind(start, header);
    // 16-bit Windows programs run through Wine as well.
    return signature.startsWith("NE") ? ProgramKind::WindowsGui : ProgramKind::Dos;
}

ProgramKind programKindOf(const QByteArray &hostPath)
{
    return programKind(startOf(hostPath));
}

QByteArray interpreterOf(const QByteArray &hostPath)
{
    const QByteArray start = startOf(hostPath);
    if (!start.startsWith("#!"))
        return {};
    // As the system reads it: a carriage return is part of the name.
    const auto isBlank = [](char c) { return c == ' ' || c == '\t'; };
    const auto isBehindName = [isBlank](char c) { return isBlank(c) || c == '\n' || c == '\0'; };
    const auto name = std::find_if_not(start.begin() + 2, start.end(), isBlank);
    return {name, std::find_if(name, start.end(), isBehindName) - name};
}

} // namespace platform::host
