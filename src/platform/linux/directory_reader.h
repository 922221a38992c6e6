#pragma once

#include "platform/directory.h"

#include <QByteArray>

#include <memory>
#include <optional>

namespace platform::host {

/// What tells whether a directory has changed since it was read.
struct DirectoryStamp
{
    quint64 device = 0;
    quint64 node = 0;
    qint64 modified = 0; ///< nanoseconds
    qint64 changed = 0;  ///< nanoseconds

    bool operator==(const DirectoryStamp &other) const = default;
};

/// A directory as it was read, and its state before the reading.
struct DirectoryReading
{
    std::shared_ptr<const Directory> directory;
    DirectoryStamp stamp;
    /// Whether the directory had been quiet for longer than a tick of its file system's clock when it was
    /// read. A change within that tick would not show in its time stamps.
    bool settled = false;
};

/// The present state of the directory `hostPath`; nothing where there is none.
std::optional<DirectoryStamp> stampOf(const QByteArray &hostPath);

/// Reads the directory `hostPath`, which the panel knows as `path`, in one pass. Entries whose kind the
/// directory tells cost no call of their own. Raises what the system's error means.
DirectoryReading readDirectory(const QByteArray &hostPath, const QString &path);

} // namespace platform::host
