#pragma once

#include "platform/linux/file_copy.h"

#include <algorithm>
#include <cerrno>

#include <unistd.h>

namespace support {

/// The system's calls, one of which fails. The group and the mode of the copy are not among them: they may
/// fail.
class FailingCalls : public platform::host::SystemCalls
{
public:
    /// Of all calls in order, the one that fails; -1 for none.
    int failing = -1;
    /// What is done instead of that call; its errno.
    int error = EIO;
    bool dies = false; ///< the whole process ends there
    int made = 0;

    /// The most bytes that a write takes.
    size_t mostWritten = 10'000;

    int openSource(const QByteArray &path) override { return fails() ? -1 : SystemCalls::openSource(path); }
    int create(const QByteArray &path, mode_t mode) override
    {
        return fails() ? -1 : SystemCalls::create(path, mode);
    }
    ssize_t read(int file, char *buffer, size_t size) override
    {
        return fails() ? -1 : SystemCalls::read(file, buffer, size);
    }
    ssize_t write(int file, const char *bytes, size_t size) override
    {
        return fails() ? -1 : SystemCalls::write(file, bytes, std::min(size, mostWritten));
    }
    int flush(int file) override { return fails() ? -1 : SystemCalls::flush(file); }
    int close(int file) override
    {
        const int closed = SystemCalls::close(file);
        return fails() ? -1 : closed;
    }
    int rename(const QByteArray &from, const QByteArray &to) override
    {
        return fails() ? -1 : SystemCalls::rename(from, to);
    }
    int renameNew(const QByteArray &from, const QByteArray &to) override
    {
        return fails() ? -1 : SystemCalls::renameNew(from, to);
    }

    /// How a program ends that dies.
    static constexpr int Killed = 7;

private:
    bool fails()
    {
        if (made++ != failing)
            return false;
        if (dies)
            ::_exit(Killed);
        errno = error;
        return true;
    }
};

} // namespace support
