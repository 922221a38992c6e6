#pragma once

#include "platform/file_system.h"
#include "platform/path_language.h"
#include "platform/runtime_error.h"

#include <QByteArray>
#include <QMap>

#include <functional>

namespace support {

/// A file system in memory: a real implementation of the platform's interface beside the host's. Names keep
/// the case in which they were made, and case does not count.
class MemoryFileSystem : public platform::FileSystem
{
public:
    MemoryFileSystem();

    /// Adds a drive; `text` is its drive text, such as "d:" or "c: [data]".
    void addDrive(const QString &text);
    void removeDrive(QChar drive);

    /// Makes the directory `path` and all above it.
    void addDirectory(const QString &path);
    /// Makes or replaces a file and the directories above it.
    void addFile(const QString &path, const QByteArray &content = "x");
    void hide(const QString &path);
    void forbid(const QString &path, platform::ErrorNumber error);
    /// Makes a second name for the file `path`, which then has two.
    void addSecondName(const QString &path, const QString &secondName);
    void setShortName(const QString &path, const QString &shortName);
    /// Makes the directory `path` a link to another one.
    void makeLink(const QString &path);
    /// Removes a file, or a directory with all that it holds.
    void remove(const QString &path);

    /// What the file `path` holds; nothing where there is no such file.
    std::optional<QByteArray> content(const QString &path) const;

    QStringList drives() override;
    QString currentDirectory() override;
    void changeDrive(const QString &drive) override;
    void changeDirectory(const QString &path) override;
    std::shared_ptr<const platform::Directory> directory(const QString &path,
                                                         platform::Reading reading) override;
    qint16 testReading(const QString &path) noexcept override;
    std::unique_ptr<platform::OpenedFile> openFile(const QString &path) override;
    QString firstLine(const QString &path) override;
    QString shortName(const QString &path) override;
    std::optional<platform::FileStamp> stamp(const QString &path) override;
    std::optional<QString> existingFile(const QString &path) override;
    void copyFile(const QString &source, const QString &destination, platform::Replacing replacing) override;
    void makeDirectory(const QString &path) override;
    void removeDirectory(const QString &path) override;
    // As on a host at its laziest: within a moment nothing that changes is seen.
    void beginMoment() override;
    void endMoment() override { --moments_; }
    void nextMoment() override { seen_ = nodes_; }

    /// Called before each call that may fail, with its name; it may raise a RuntimeError.
    std::function<void(const QString &call)> beforeCall;

    /// Called before the state of a file is looked at.
    std::function<void()> beforeStamp;
    /// What was tested for reading, as it was asked for.
    QStringList tested;
    /// How many directories were read, and how many of them anew.
    int directoriesRead = 0;
    int directoriesReadAnew = 0;
    /// How many files are open now.
    int filesOpen = 0;

private:
    struct Node
    {
        QString path; ///< spelled as it was made
        bool isDirectory = false;
        bool isLink = false;
        bool hidden = false;
        QByteArray content;
        QString shortName;
        std::optional<platform::ErrorNumber> error;
        qint64 version = 0;
        quint64 number = 0; ///< names of one file share it
    };

    void announce(const char *call) const;
    QString absolute(const QString &path) const;
    const QMap<QString, Node> &visible() const { return moments_ > 0 ? seen_ : nodes_; }
    const Node *find(const QString &absolutePath) const;
    const Node &existing(const QString &path) const;
    const Node &openable(const QString &path) const;
    Node &makeNode(const QString &path);

    QStringList drives_;
    platform::CurrentDirectories current_;
    QMap<QString, Node> nodes_; ///< by upper-case path
    QMap<QString, Node> seen_;  ///< what is seen within a moment
    int moments_ = 0;
    qint64 version_ = 0;
    quint64 numbers_ = 0;
};

} // namespace support
