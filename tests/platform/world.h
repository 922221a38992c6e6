#pragma once

#include "platform/file_system.h"

#include <QByteArray>
#include <QString>

#include <memory>

namespace platform_tests {

/// A file system with a fresh directory in which a test makes files.
class World
{
public:
    virtual ~World() = default;
    virtual platform::FileSystem &files() = 0;
    virtual QString base() = 0;
    virtual void makeDirectory(const QString &name) = 0;
    virtual void makeFile(const QString &name, const QByteArray &content) = 0;
    virtual void makeHidden(const QString &name) = 0;
    /// Something that is neither a file nor a directory that could be listed or removed, such as a pipe.
    virtual void makePipe(const QString &name) = 0;
    /// Keeps the user from reading a file; the last thing that a test prepares.
    virtual void forbid(const QString &name) = 0;
    virtual void remove(const QString &name) = 0;
    /// Whether this system has directories of such a name.
    virtual bool canBeCalled(const QString &name) const = 0;
    /// What the file holds; "(none)" where there is no such file by exactly this name.
    virtual QByteArray content(const QString &name) = 0;
};

/// A world on the machine's own file system.
std::unique_ptr<World> makeHostWorld();

} // namespace platform_tests
