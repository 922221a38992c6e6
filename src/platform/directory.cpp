#include "platform/directory.h"

#include "platform/file_pattern.h"
#include "platform/letter_case.h"

#include <algorithm>

namespace platform {

namespace {

/// The first eight characters in upper case as one number whose order is theirs; ties are settled by whole
/// names.
struct SortKey
{
    quint64 high;
    quint64 low;
    quint32 entry;
};

quint64 fourUnits(QStringView name, qsizetype from)
{
    quint64 key = 0;
    for (qsizetype i = from; i < from + 4; ++i)
        key = (key << 16) | (i < name.size() ? upperCase(name[i].unicode()) : 0U);
    return key;
}

quint32 foldedHash(QStringView name)
{
    quint32 hash = 2166136261U;
    for (QChar unit : name)
        hash = (hash ^ upperCase(unit.unicode())) * 16777619U;
    return hash;
}

int compareFolded(QStringView a, QStringView b)
{
    const qsizetype shared = std::min(a.size(), b.size());
    for (qsizetype i = 0; i < shared; ++i) {
        const int difference = upperCase(a[i].unicode()) - upperCase(b[i].unicode());
        if (difference != 0)
            return difference;
    }
    return a.size() < b.size() ? -1 : (a.size() > b.size() ? 1 : 0);
}

} // namespace

QString FileNames::at(int row) const
{
    sort();
    return data_->directory->nameOf(data_->entries[static_cast<size_t>(row)]).toString();
}

int FileNames::indexOf(const QString &name) const
{
    if (isEmpty())
        return -1;
    sort();
    const auto &entries = data_->entries;
    const Directory &directory = *data_->directory;
    const auto found =
        std::lower_bound(entries.begin(), entries.end(), name, [&](quint32 entry, const QString &n) {
            const int order = compareFolded(directory.nameOf(entry), n);
            return order != 0 ? order < 0 : directory.nameOf(entry) < n;
        });
    if (found == entries.end() || directory.nameOf(*found) != name)
        return -1;
    return static_cast<int>(found - entries.begin());
}

QStringList FileNames::toList() const
{
    QStringList names;
    for (int row = 0; row < count(); ++row)
        names.append(at(row));
    return names;
}

void FileNames::sort() const
{
    if (data_->sorted)
        return;
    const Directory &directory = *data_->directory;
    std::vector<SortKey> keys;
    keys.reserve(data_->entries.size());
    for (quint32 entry : data_->entries) {
        const QStringView name = directory.nameOf(entry);
        keys.push_back({fourUnits(name, 0), fourUnits(name, 4), entry});
    }
    std::sort(keys.begin(), keys.end(), [&directory](const SortKey &a, const SortKey &b) {
        if (a.high != b.high)
            return a.high < b.high;
        if (a.low != b.low)
            return a.low < b.low;
        return directory.before(a.entry, b.entry);
    });
    std::transform(keys.begin(), keys.end(), data_->entries.begin(),
                   [](const SortKey &key) { return key.entry; });
    data_->sorted = true;
}

std::shared_ptr<Directory> Directory::create(const QString &path)
{
    struct Made : Directory
    {};
    auto directory = std::make_shared<Made>();
    directory->path_ = path;
    return directory;
}

void Directory::reserve(qsizetype count)
{
    entries_.reserve(static_cast<size_t>(count));
}

void Directory::add(QStringView name, Kind kind, bool hidden)
{
    const auto offset = static_cast<quint32>(text_.size());
    const qsizetype dot = name.lastIndexOf(u'.');
    const auto extension = static_cast<quint32>(dot < 0 ? name.size() : dot + 1);
    text_.append(name.utf16(), static_cast<size_t>(name.size()));
    entries_.push_back({offset, offset + extension, static_cast<quint16>(name.size()), kind, hidden});
}

FileNames Directory::files(const QString &patterns) const
{
    const FilePattern pattern(patterns);
    std::vector<quint32> matching;
    for (size_t i = 0; i < entries_.size(); ++i) {
        const Entry &entry = entries_[i];
        if (entry.kind != Kind::File || entry.hidden)
            continue;
        const QStringView name = nameOf(static_cast<quint32>(i));
        if (pattern.matches(name, name.mid(entry.extension - entry.offset)))
            matching.push_back(static_cast<quint32>(i));
    }
    return names(std::move(matching));
}

FileNames Directory::folders() const
{
    std::vector<quint32> matching;
    for (size_t i = 0; i < entries_.size(); ++i) {
        if (entries_[i].kind == Kind::Folder && !entries_[i].hidden)
            matching.push_back(static_cast<quint32>(i));
    }
    return names(std::move(matching));
}

QString Directory::find(const QString &name) const
{
    if (entries_.empty())
        return {};
    if (index_.empty())
        buildIndex();
    const size_t mask = index_.size() - 1;
    const quint32 none = 0;
    quint32 best = none;
    for (size_t slot = foldedHash(name) & mask; index_[slot] != none; slot = (slot + 1) & mask) {
        const quint32 entry = index_[slot] - 1;
        const QStringView candidate = nameOf(entry);
        if (candidate == name)
            return candidate.toString();
        if (sameIgnoringCase(candidate, name) && (best == none || before(entry, best - 1)))
            best = entry + 1;
    }
    return best == none ? QString() : nameOf(best - 1).toString();
}

QStringView Directory::nameOf(quint32 entry) const
{
    return QStringView(text_.data() + entries_[entry].offset, entries_[entry].length);
}

// Names that differ in case alone stand in the order of their spelling, so that the order is always the same.
bool Directory::before(quint32 a, quint32 b) const
{
    const int order = compareFolded(nameOf(a), nameOf(b));
    return order != 0 ? order < 0 : nameOf(a) < nameOf(b);
}

FileNames Directory::names(std::vector<quint32> entries) const
{
    FileNames result;
    result.data_ = std::make_shared<FileNames::Data>();
    result.data_->directory = shared_from_this();
    result.data_->entries = std::move(entries);
    return result;
}

void Directory::buildIndex() const
{
    size_t size = 16;
    while (size < entries_.size() * 2)
        size *= 2;
    index_.assign(size, 0);
    for (quint32 entry = 0; entry < entries_.size(); ++entry) {
        size_t slot = foldedHash(nameOf(entry)) & (size - 1);
        while (index_[slot] != 0)
            slot = (slot + 1) & (size - 1);
        index_[slot] = entry + 1;
    }
}

} // namespace platform
