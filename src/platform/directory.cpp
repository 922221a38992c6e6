#include "platform/directory.h"

#include "platform/letter_case.h"

#include <algorithm>

namespace platform {

namespace {

/// The first sixteen characters in upper case as two numbers whose order is theirs, as far as they are ASCII;
/// from the first other one on, every character counts as the last. Names that share a key are settled by
/// whole names.
struct SortKey
{
    quint64 high = 0;
    quint64 low = 0;
    quint32 entry;

    SortKey(QStringView name, quint32 itsEntry) : entry(itsEntry)
    {
        constexpr quint64 Last = 0xFF;
        bool isAscii = true;
        for (qsizetype i = 0; i < 16; ++i) {
            const char16_t unit = i < name.size() ? upperCase(name[i].unicode()) : u'\0';
            isAscii = isAscii && unit < 0x80;
            quint64 &half = i < 8 ? high : low;
            half = (half << 8U) | (isAscii ? unit : Last);
        }
    }
};

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
    for (quint32 entry : data_->entries)
        keys.emplace_back(directory.nameOf(entry), entry);
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

void Directory::add(QStringView name, Kind kind, bool hidden)
{
    const auto offset = static_cast<quint32>(text_.size());
    text_.append(name.utf16(), static_cast<size_t>(name.size()));
    finish(offset, kind, hidden);
}

void Directory::addAscii(QByteArrayView name, Kind kind, bool hidden)
{
    const auto offset = static_cast<quint32>(text_.size());
    text_.resize(offset + static_cast<size_t>(name.size()));
    std::copy(name.begin(), name.end(), text_.begin() + offset);
    finish(offset, kind, hidden);
}

// The name has been appended to the text, from `offset` on.
void Directory::finish(quint32 offset, Kind kind, bool hidden)
{
    const auto length = static_cast<quint16>(text_.size() - offset);
    entries_.push_back({offset, length, kind, hidden});
    const QStringView name = nameOf(static_cast<quint32>(entries_.size() - 1));
    const qsizetype dot = name.lastIndexOf(u'.');
    extensions_.push_back(dot < 0 ? 0 : extensionKey(name.mid(dot + 1)));
}

FileNames Directory::files(const QString &patterns) const
{
    const FilePattern pattern(patterns);
    std::vector<quint32> matching = select(pattern);
    const auto isNoFile = [this](quint32 entry) {
        return entries_[entry].kind != Kind::File || entries_[entry].hidden;
    };
    matching.erase(std::remove_if(matching.begin(), matching.end(), isNoFile), matching.end());
    return names(std::move(matching));
}

std::vector<quint32> Directory::select(const FilePattern &pattern) const
{
    std::vector<quint32> matching;
    const auto count = static_cast<quint32>(entries_.size());
    for (quint32 entry = 0; entry < count; ++entry) {
        const quint64 key = extensions_[entry];
        if (pattern.isByExtension() ? pattern.matchesExtension(key) : pattern.matches(nameOf(entry), key))
            matching.push_back(entry);
    }
    return matching;
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

QString Directory::find(QStringView name) const
{
    if (entries_.empty())
        return {};
    if (index_.empty())
        buildIndex();
    const size_t mask = index_.size() - 1;
    const quint32 hash = foldedHash(name);
    const quint32 none = 0;
    quint32 best = none;
    for (size_t i = hash & mask; index_[i].entry != none; i = (i + 1) & mask) {
        if (index_[i].hash != hash)
            continue;
        const quint32 entry = index_[i].entry - 1;
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
    return {text_.data() + entries_[entry].offset, qsizetype(entries_[entry].length)};
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
    index_.assign(size, {0, 0});
    for (quint32 entry = 0; entry < entries_.size(); ++entry) {
        const quint32 hash = foldedHash(nameOf(entry));
        size_t i = hash & (size - 1);
        while (index_[i].entry != 0)
            i = (i + 1) & (size - 1);
        index_[i] = {hash, entry + 1};
    }
}

} // namespace platform
