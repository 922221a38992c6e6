#include "scratch_directory.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <stdexcept>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace support {

namespace {

void require(bool done, const char *what)
{
    if (!done)
        throw std::runtime_error(what);
}

// Any user but root; nobody on every Linux.
constexpr uid_t Nobody = 65534;

} // namespace

ScratchDirectory::ScratchDirectory(const QByteArray &name) : root_("/tmp/kinovra-test-XXXXXX")
{
    require(::mkdtemp(root_.data()) != nullptr, "no scratch directory");
    require(::chmod(root_.constData(), 0755) == 0, "scratch directory not opened");
    path_ = root_ + '/' + name;
    require(::mkdir(path_.constData(), 0755) == 0, "no scratch directory");
}

ScratchDirectory::~ScratchDirectory()
{
    std::error_code ignored;
    std::filesystem::remove_all(root_.toStdString(), ignored);
}

void ScratchDirectory::makeDirectory(const QByteArray &name) const
{
    std::filesystem::create_directories(path(name).toStdString());
}

void ScratchDirectory::makeFile(const QByteArray &name, const QByteArray &content) const
{
    std::ofstream file(path(name).toStdString(), std::ios::binary);
    file.write(content.constData(), content.size());
    require(file.good(), "file not written");
}

void ScratchDirectory::makeExecutable(const QByteArray &name, const QByteArray &content) const
{
    makeFile(name, content);
    require(::chmod(path(name).constData(), 0755) == 0, "file not made executable");
}

void ScratchDirectory::makeLink(const QByteArray &name, const QByteArray &target) const
{
    require(::symlink(target.constData(), path(name).constData()) == 0, "link not made");
}

void ScratchDirectory::makePipe(const QByteArray &name) const
{
    require(::mkfifo(path(name).constData(), 0644) == 0, "pipe not made");
}

void ScratchDirectory::remove(const QByteArray &name) const
{
    std::filesystem::remove_all(path(name).toStdString());
}

QByteArray ScratchDirectory::read(const QByteArray &name) const
{
    std::ifstream file(path(name).toStdString(), std::ios::binary);
    const std::string content{std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
    return QByteArray::fromStdString(content);
}

bool ScratchDirectory::has(const QByteArray &name) const
{
    std::error_code ignored;
    return std::filesystem::exists(std::filesystem::symlink_status(path(name).toStdString(), ignored));
}

QList<QByteArray> ScratchDirectory::names(const QByteArray &directory) const
{
    QList<QByteArray> result;
    for (const auto &entry : std::filesystem::directory_iterator(path(directory).toStdString()))
        result.append(QByteArray::fromStdString(entry.path().filename().string()));
    std::sort(result.begin(), result.end());
    return result;
}

WithoutPrivileges::WithoutPrivileges()
{
    if (::geteuid() == 0)
        require(::seteuid(Nobody) == 0, "privileges not given up");
}

WithoutPrivileges::~WithoutPrivileges()
{
    if (::getuid() == 0 && ::seteuid(0) != 0)
        std::terminate();
}

KeptDirectory::KeptDirectory() : descriptor_(::open(".", O_RDONLY | O_DIRECTORY | O_CLOEXEC)) {}

KeptDirectory::~KeptDirectory()
{
    if (::fchdir(descriptor_) != 0)
        std::terminate();
    ::close(descriptor_);
}

} // namespace support
