#include "memory_file_system.h"

#include "platform/letter_case.h"
#include "platform/text_decoding.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace support {

using platform::ErrorNumber;
using platform::RuntimeError;
using platform::UCase;

namespace {

class MemoryFile : public platform::OpenedFile
{
public:
    MemoryFile(QByteArray content, std::function<void(const QString &call)> beforeCall, int &filesOpen)
        : content_(std::move(content)), beforeCall_(std::move(beforeCall)), filesOpen_(filesOpen)
    {
        ++filesOpen_;
    }
    ~MemoryFile() override { --filesOpen_; }
    MemoryFile(const MemoryFile &) = delete;
    MemoryFile &operator=(const MemoryFile &) = delete;

    QByteArray read(qsizetype most) override
    {
        if (beforeCall_)
            beforeCall_(u"read"_s);
        QByteArray result = content_.left(most);
        content_.remove(0, result.size());
        return result;
    }

private:
    QByteArray content_;
    std::function<void(const QString &call)> beforeCall_;
    int &filesOpen_;
};

// A drive, "." and ".." mean another directory as soon as the current one does.
bool endsWithName(const QString &path)
{
    const QStringList names = platform::splitPath(path).Names;
    return !names.isEmpty() && names.last() != u"." && names.last() != u"..";
}

// No system's names hold a slash.
void requireSpellable(const QString &absolutePath)
{
    if (absolutePath.contains(u'/'))
        throw RuntimeError(ErrorNumber::BadFileName);
}

} // namespace

MemoryFileSystem::MemoryFileSystem()
{
    addDrive(u"c: [data]"_s);
}

void MemoryFileSystem::addDrive(const QString &text)
{
    drives_.append(text);
    drives_.sort();
    addDirectory(platform::rootOf(UCase(text).at(0)));
}

void MemoryFileSystem::removeDrive(QChar drive)
{
    drives_.removeIf([drive](const QString &text) { return UCase(text).at(0) == drive; });
    remove(platform::rootOf(drive));
}

MemoryFileSystem::Node &MemoryFileSystem::makeNode(const QString &path)
{
    const QString parent = platform::parentOf(path);
    if (parent != path && !nodes_.contains(UCase(parent)))
        addDirectory(parent);
    Node &node = nodes_[UCase(path)];
    if (node.path.isEmpty())
        node.path =
            parent == path ? path : platform::joinPath(nodes_[UCase(parent)].path, platform::nameOf(path));
    if (node.number == 0)
        node.number = ++numbers_;
    node.version = ++version_;
    return node;
}

void MemoryFileSystem::addDirectory(const QString &path)
{
    makeNode(path).isDirectory = true;
}

void MemoryFileSystem::addFile(const QString &path, const QByteArray &content)
{
    makeNode(path).content = content;
}

void MemoryFileSystem::hide(const QString &path)
{
    nodes_[UCase(path)].hidden = true;
}

void MemoryFileSystem::forbid(const QString &path, ErrorNumber error)
{
    nodes_[UCase(path)].error = error;
}

void MemoryFileSystem::addSecondName(const QString &path, const QString &secondName)
{
    const Node file = nodes_[UCase(path)];
    Node &second = makeNode(secondName);
    second.content = file.content;
    second.number = file.number;
}

std::optional<QByteArray> MemoryFileSystem::content(const QString &path) const
{
    const auto found = nodes_.constFind(UCase(path));
    return found == nodes_.constEnd() || found->isDirectory ? std::nullopt : std::optional(found->content);
}

void MemoryFileSystem::makeLink(const QString &path)
{
    addDirectory(path);
    nodes_[UCase(path)].isLink = true;
}

void MemoryFileSystem::setShortName(const QString &path, const QString &shortName)
{
    nodes_[UCase(path)].shortName = shortName;
}

void MemoryFileSystem::remove(const QString &path)
{
    const QString upper = UCase(path);
    const QString below = platform::joinPath(upper, QString());
    nodes_.removeIf([&](std::pair<const QString &, Node &> entry) {
        return entry.first == upper || entry.first.startsWith(below);
    });
}

void MemoryFileSystem::announce(const char *call) const
{
    if (beforeCall)
        beforeCall(QLatin1String(call));
}

QString MemoryFileSystem::absolute(const QString &path) const
{
    QString result = current_.absolute(path);
    if (!visible().contains(UCase(result.left(3))))
        throw RuntimeError(ErrorNumber::DeviceUnavailable);
    return result;
}

void MemoryFileSystem::beginMoment()
{
    ++moments_;
    seen_ = nodes_;
}

const MemoryFileSystem::Node *MemoryFileSystem::find(const QString &absolutePath) const
{
    const auto found = visible().constFind(UCase(absolutePath));
    return found == visible().constEnd() ? nullptr : &*found;
}

QStringList MemoryFileSystem::drives()
{
    return drives_;
}

QString MemoryFileSystem::currentDirectory()
{
    return current_.current();
}

void MemoryFileSystem::changeDrive(const QString &drive)
{
    announce("changeDrive");
    const QChar letter = UCase(drive.left(1)).isEmpty() ? QChar() : UCase(drive).at(0);
    if (letter < u'A' || letter > u'Z')
        throw RuntimeError(ErrorNumber::InvalidProcedureCall);
    if (find(platform::rootOf(letter)) == nullptr)
        throw RuntimeError(ErrorNumber::DeviceUnavailable);
    const Node *kept = find(current_.of(letter));
    if (kept == nullptr || kept->error)
        current_.set(platform::rootOf(letter));
    current_.setDrive(letter);
}

void MemoryFileSystem::changeDirectory(const QString &path)
{
    announce("changeDirectory");
    const Node *node = find(absolute(path));
    if (node == nullptr || !node->isDirectory)
        throw RuntimeError(ErrorNumber::PathNotFound);
    if (node->error)
        throw RuntimeError(*node->error);
    current_.set(node->path);
}

std::shared_ptr<const platform::Directory> MemoryFileSystem::directory(const QString &path,
                                                                       platform::Reading reading)
{
    announce("directory");
    ++directoriesRead;
    if (reading == platform::Reading::Anew) {
        ++directoriesReadAnew;
        nextMoment();
    }
    const Node *node = find(absolute(path));
    if (node == nullptr || !node->isDirectory)
        throw RuntimeError(ErrorNumber::PathNotFound);
    if (node->error)
        throw RuntimeError(*node->error);
    auto result = platform::Directory::create(node->path);
    for (const Node &entry : visible()) {
        if (platform::parentOf(entry.path) == node->path && entry.path != node->path) {
            result->add(platform::nameOf(entry.path),
                        entry.isDirectory ? platform::Directory::Kind::Folder
                                          : platform::Directory::Kind::File,
                        entry.hidden);
        }
    }
    return result;
}

const MemoryFileSystem::Node &MemoryFileSystem::openable(const QString &path) const
{
    const QString full = absolute(path);
    const Node *node = find(full);
    if (node != nullptr && node->error)
        throw RuntimeError(*node->error);
    return existing(path);
}

const MemoryFileSystem::Node &MemoryFileSystem::existing(const QString &path) const
{
    const QString full = absolute(path);
    const Node *node = find(full);
    if (node == nullptr) {
        const Node *parent = find(platform::parentOf(full));
        throw RuntimeError(parent != nullptr ? ErrorNumber::FileNotFound : ErrorNumber::PathNotFound);
    }
    if (node->isDirectory)
        throw RuntimeError(ErrorNumber::PathFileAccess);
    return *node;
}

qint16 MemoryFileSystem::testReading(const QString &path) noexcept
{
    tested.append(path);
    try {
        announce("testReading");
        openable(path);
        return 0;
    } catch (const RuntimeError &error) {
        return error.Number;
    }
}

std::unique_ptr<platform::OpenedFile> MemoryFileSystem::openFile(const QString &path)
{
    announce("openFile");
    return std::make_unique<MemoryFile>(openable(path).content, beforeCall, filesOpen);
}

QString MemoryFileSystem::firstLine(const QString &path)
{
    announce("firstLine");
    const Node &node = openable(path);
    if (node.content.isEmpty())
        throw RuntimeError(ErrorNumber::InputPastEnd);
    const auto end =
        std::find_if(node.content.begin(), node.content.end(), [](char c) { return c == '\r' || c == '\n'; });
    return platform::decodeText(node.content.left(end - node.content.begin()));
}

QString MemoryFileSystem::shortName(const QString &path)
{
    announce("shortName");
    const Node &node = existing(path);
    return node.shortName.isEmpty() ? platform::nameOf(node.path) : node.shortName;
}

std::optional<platform::FileStamp> MemoryFileSystem::stamp(const QString &path)
{
    if (beforeStamp)
        beforeStamp();
    const Node *node = find(current_.absolute(path));
    if (node == nullptr)
        return std::nullopt;
    return platform::FileStamp{.node = node->number,
                               .size = node->content.size(),
                               .modified = node->version,
                               .changed = node->version};
}

std::optional<QString> MemoryFileSystem::existingFile(const QString &path)
{
    announce("existingFile");
    const Node *node = find(absolute(path));
    return node == nullptr || node->isDirectory ? std::nullopt : std::optional(node->path);
}

void MemoryFileSystem::copyFile(const QString &source, const QString &destination,
                                platform::Replacing replacing)
{
    announce("copyFile");
    nextMoment();
    const QByteArray content = openable(source).content;
    const QString full = absolute(destination);
    if (find(platform::parentOf(full)) == nullptr)
        throw RuntimeError(ErrorNumber::PathNotFound);
    if (const Node *present = find(full)) {
        if (present->isDirectory)
            throw RuntimeError(ErrorNumber::PathFileAccess);
        if (present->error)
            throw RuntimeError(*present->error);
        if (replacing == platform::Replacing::Refused)
            throw RuntimeError(ErrorNumber::FileAlreadyExists);
    }
    makeNode(full).content = content;
    nextMoment();
}

void MemoryFileSystem::makeDirectory(const QString &path)
{
    announce("makeDirectory");
    nextMoment();
    const QString full = absolute(path);
    requireSpellable(full);
    const Node *parent = find(platform::parentOf(full));
    if (parent == nullptr || !parent->isDirectory)
        throw RuntimeError(ErrorNumber::PathNotFound);
    if (parent->error)
        throw RuntimeError(*parent->error);
    if (find(full) != nullptr || !endsWithName(path))
        throw RuntimeError(ErrorNumber::PathFileAccess, u"There is something of this name already"_s);
    addDirectory(full);
    nextMoment();
}

void MemoryFileSystem::removeDirectory(const QString &path)
{
    announce("removeDirectory");
    nextMoment();
    const QString full = absolute(path);
    if (platform::splitPath(path).Names.isEmpty())
        throw RuntimeError(ErrorNumber::PathFileAccess, u"A drive cannot be removed"_s);
    if (!endsWithName(path))
        throw RuntimeError(ErrorNumber::PathFileAccess, u"It must be called by its own name"_s);
    requireSpellable(full);
    const Node *node = find(full);
    if (node == nullptr || node->path != full)
        throw RuntimeError(ErrorNumber::PathNotFound);
    if (node->error)
        throw RuntimeError(*node->error);
    if (!node->isDirectory || node->isLink)
        throw RuntimeError(ErrorNumber::PathFileAccess, u"It is not a directory of its own"_s);
    const QString below = UCase(full) + u'\\';
    if (std::any_of(nodes_.keyBegin(), nodes_.keyEnd(),
                    [&below](const QString &key) { return key.startsWith(below); }))
        throw RuntimeError(ErrorNumber::PathFileAccess, u"It is not empty"_s);
    nodes_.remove(UCase(full));
    nextMoment();
}

} // namespace support
