#pragma once

#include "platform/file_system.h"
#include "platform/host_paths.h"
#include "platform/linux/drive_map.h"
#include "platform/linux/file_copy.h"
#include "platform/linux/path_lookup.h"
#include "platform/path_language.h"

namespace platform::host {

/// The host's file system in the panel's path language.
class LinuxFileSystem : public FileSystem, public HostPaths
{
public:
    /// `winePrefix` is the Wine prefix's directory, empty for none; `copying` makes the copies.
    explicit LinuxFileSystem(const QByteArray &winePrefix,
                             std::unique_ptr<SystemCalls> copying = std::make_unique<SystemCalls>());
    LinuxFileSystem(const LinuxFileSystem &) = delete;
    LinuxFileSystem &operator=(const LinuxFileSystem &) = delete;

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
    void beginMoment() override { lookup_.beginMoment(); }
    void endMoment() override { lookup_.endMoment(); }
    void nextMoment() override { lookup_.nextMoment(); }

    QString hostForm(const QString &directory) override;
    QString panelForm(const QString &hostFile) override;
    QString anyCase(const QString &pattern) const override;

    /// The path of a directory of the host, whose spelling is remembered: the panel is going to use it.
    QString adopt(const QByteArray &hostDirectory);

    /// The host's path of an existing directory; nothing where there is none.
    std::optional<QByteArray> hostDirectory(const QString &path);

    /// The host's path of a program, as PathLookup finds it; nothing where there is none.
    std::optional<QByteArray> hostProgram(const QString &path);

    /// The host's path of a document that need not exist yet: its true spelling where it exists, otherwise
    /// its name as it stands in its directory. Nothing where the directory does not exist.
    std::optional<QByteArray> hostDocument(const QString &path);

private:
    QByteArray openable(const QString &path);

    DriveMap drives_;
    PathLookup lookup_;
    CurrentDirectories current_;
    std::unique_ptr<SystemCalls> copying_;
};

} // namespace platform::host
