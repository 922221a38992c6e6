#pragma once

#include "platform/file_system.h"

#include <QByteArray>

#include <sys/types.h>

namespace platform::host {

/// The system's calls that make a copy. Each does what the system's own does, errno included; tests let them
/// fail.
class SystemCalls
{
public:
    virtual ~SystemCalls() = default;

    virtual int openSource(const QByteArray &path);
    /// Makes a new file; never opens one that is there.
    virtual int create(const QByteArray &path, mode_t mode);
    virtual ssize_t read(int file, char *buffer, size_t size);
    virtual ssize_t write(int file, const char *bytes, size_t size);
    virtual int setGroup(int file, gid_t group);
    virtual int setMode(int file, mode_t mode);
    virtual int flush(int file);
    virtual int close(int file);
    /// Replaces what is called `to`.
    virtual int rename(const QByteArray &from, const QByteArray &to);
    /// Replaces nothing: what is called `to` is EEXIST. Not every file system can do both in one step.
    virtual int renameNew(const QByteArray &from, const QByteArray &to);
    /// Gives a file a second name; replaces nothing either.
    virtual int link(const QByteArray &from, const QByteArray &to);
};

/// Copies the file `from` to `to`: it is written beside the destination under a hidden name and takes its
/// place when it is complete, with the group and the mode of the file that it replaces. Raises what
/// FileSystem::copyFile raises.
void copyWholeFile(const QByteArray &from, const QByteArray &to, Replacing replacing, SystemCalls &calls);

} // namespace platform::host
