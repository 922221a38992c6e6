#pragma once

#include "platform/file_pattern.h"

#include <QByteArrayView>
#include <QString>
#include <QStringList>

#include <memory>
#include <string>
#include <vector>

namespace platform {

class Directory;

/// Some names of a directory in the order of a classic list: alphabetical without regard to case. Copies are
/// cheap; nothing is allocated for a single name, and the order is made when the first name is asked for.
class FileNames
{
public:
    FileNames() = default;

    int count() const { return static_cast<int>(data_ ? data_->entries.size() : 0); }
    bool isEmpty() const { return count() == 0; }

    /// The name in row `row` (0 to count() - 1), spelled as it is on disk.
    QString at(int row) const;

    /// The row of the name that is spelled exactly so; -1 where there is none.
    int indexOf(const QString &name) const;

    /// All names, in order.
    QStringList toList() const;

    bool operator==(const FileNames &other) const { return data_ == other.data_; }

private:
    friend class Directory;

    struct Data
    {
        std::shared_ptr<const Directory> directory;
        std::vector<quint32> entries;
        bool sorted = false;
    };

    void sort() const;

    std::shared_ptr<Data> data_;
};

/// What one pass over a directory found. It feeds all file lists, the directory list and the lookups that
/// ignore case until the directory changes; it is never changed after it was read.
class Directory : public std::enable_shared_from_this<Directory>
{
public:
    enum class Kind : quint8 {
        File,
        Folder,
        Other ///< neither: a device, a pipe, a link that leads nowhere
    };

    /// An empty directory with the absolute path `path`, to be filled with add().
    static std::shared_ptr<Directory> create(const QString &path);

    /// The absolute path, spelled as it is on disk; a trailing backslash only at a root.
    QString path() const { return path_; }

    /// Adds a name while the directory is being read. `hidden` names (hidden and system files) are found by
    /// lookups but shown in no list.
    void add(QStringView name, Kind kind, bool hidden);

    /// The same for a name in plain ASCII, as nearly all names are.
    void addAscii(QByteArrayView name, Kind kind, bool hidden);

    /// The files that match any pattern of `patterns`, a list such as "*.plt;*.hpg", in any letter case.
    FileNames files(const QString &patterns) const;

    /// The sub-directories.
    FileNames folders() const;

    /// The name as it is spelled on disk of whatever is called `name`: the exact one, else the first in order
    /// among those that differ in case alone, else null.
    QString find(QStringView name) const;

private:
    friend class FileNames;

    struct Entry
    {
        quint32 offset;
        quint16 length;
        Kind kind;
        bool hidden;
    };

    struct Slot
    {
        quint32 hash;
        quint32 entry; ///< its number + 1, 0 for a free slot
    };

    Directory() = default;

    void finish(quint32 offset, Kind kind, bool hidden);
    std::vector<quint32> select(const FilePattern &pattern) const;
    QStringView nameOf(quint32 entry) const;
    bool before(quint32 a, quint32 b) const;
    FileNames names(std::vector<quint32> entries) const;
    void buildIndex() const;

    QString path_;
    std::u16string text_; ///< all names behind each other
    std::vector<Entry> entries_;
    std::vector<quint64> extensions_; ///< the key of each entry's extension
    mutable std::vector<Slot> index_; ///< hash table by folded name; made by the first lookup
};

} // namespace platform
