#pragma once

#include "platform/file_system.h"
#include "platform/windows/windows_api.h"

#include <QByteArray>
#include <QString>

namespace platform::host {

/// The system's calls that make a copy. Each does what the system's own does, its last error included; tests
/// let them fail.
class SystemCalls
{
public:
    virtual ~SystemCalls() = default;

    /// Makes a new hidden file; never opens one that is there.
    virtual HANDLE create(const std::wstring &path);
    virtual bool write(HANDLE file, const char *bytes, DWORD size, DWORD &written);
    virtual bool flush(HANDLE file);
    virtual bool close(HANDLE file);
    /// Makes the file one that lists show.
    virtual bool reveal(const std::wstring &path);
    /// Gives the file the name `to`; what has it already is replaced only where that is asked for.
    virtual bool rename(const std::wstring &from, const std::wstring &to, bool replacing);
};

/// Copies the file `from` to `to`: it is written beside the destination under a hidden name and takes its
/// place when it is complete. Raises what FileSystem::copyFile raises.
void copyWholeFile(const QString &from, const QString &to, Replacing replacing, SystemCalls &calls);

} // namespace platform::host
