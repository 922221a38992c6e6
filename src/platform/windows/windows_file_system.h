#pragma once

#include "platform/file_system.h"
#include "platform/host_paths.h"
#include "platform/path_language.h"
#include "platform/windows/file_copy.h"

#include <optional>

namespace platform::host {

/// The system's files and directories, whose paths are the panel's own. Network names without a drive letter
/// are no part of the path language. The current directory is the panel's alone: the process stays in a
/// directory of the system, so that no data directory is kept from being removed.
class WindowsFileSystem : public FileSystem, public HostPaths
{
public:
    /// `copying` makes the copies.
    explicit WindowsFileSystem(std::unique_ptr<SystemCalls> copying = std::make_unique<SystemCalls>());
    WindowsFileSystem(const WindowsFileSystem &) = delete;
    WindowsFileSystem &operator=(const WindowsFileSystem &) = delete;

    QStringList drives() override;
    QString currentDirectory() override;
    void changeDrive(const QString &drive) override;
    void changeDirectory(const QString &path) override;
    std::shared_ptr<const Directory> directory(const QString &path, Reading reading) override;
    qint16 testReading(const QString &path) noexcept override;
    std::unique_ptr<OpenedFile> openFile(const QString &path) override;
    QString firstLine(const QString &path) override;
    QString shortName(const QString &path) override;
    std::optional<FileStamp> stamp(const QString &path) override;
    std::optional<QString> existingFile(const QString &path) override;
    void copyFile(const QString &source, const QString &destination, Replacing replacing) override;
    void makeDirectory(const QString &path) override;
    void removeDirectory(const QString &path) override;
    void beginMoment() override;
    void endMoment() override { --moments_; }
    void nextMoment() override;

    QString hostForm(const QString &directory) override;
    QString panelForm(const QString &hostFile) override;
    QString anyCase(const QString &pattern) const override { return pattern; }

    /// `path` as an absolute path. Raises as CurrentDirectories::absolute does, and DeviceUnavailable.
    QString absolute(const QString &path) const;

    /// The absolute path of an existing directory; nothing where there is none. Raises as absolute does.
    std::optional<QString> existingDirectory(const QString &path) const;

private:
    Handle opened(const QString &path) const;

    CurrentDirectories current_;
    std::unique_ptr<SystemCalls> copying_;
    std::shared_ptr<const Directory> lastRead_;
    quint64 readAt_ = 0; ///< the moment of that
    quint64 moment_ = 1;
    int moments_ = 0; ///< how many lie within each other now
};

} // namespace platform::host
