#include "scratch_directory.h"

#include <algorithm>
#include <atomic>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <stdexcept>
#include <string>

#include <windows.h>

namespace fs = std::filesystem;

namespace support {

namespace {

void require(bool done, const char *what)
{
    if (!done)
        throw std::runtime_error(what);
}

// Beyond 260 characters the system takes a path in this form alone.
fs::path hostPath(const QByteArray &path)
{
    const std::u8string text(path.begin(), path.end());
    return LR"(\\?\)" + fs::path(text).make_preferred().wstring();
}

QByteArray utf8(const fs::path &path)
{
    const std::u8string text = path.u8string();
    return {reinterpret_cast<const char *>(text.data()), static_cast<qsizetype>(text.size())};
}

// Removes all that can be removed: the system keeps what is open, and what is read-only unless that is
// changed.
void removeAll(const std::wstring &path)
{
    const DWORD attributes = ::GetFileAttributesW(path.c_str());
    if (attributes == INVALID_FILE_ATTRIBUTES)
        return;
    ::SetFileAttributesW(path.c_str(), FILE_ATTRIBUTE_NORMAL);
    if ((attributes & FILE_ATTRIBUTE_DIRECTORY) == 0) {
        ::DeleteFileW(path.c_str());
        return;
    }
    WIN32_FIND_DATAW found = {};
    HANDLE finding = ::FindFirstFileW((path + L"\\*").c_str(), &found);
    if (finding != INVALID_HANDLE_VALUE) {
        do {
            const std::wstring name = found.cFileName;
            if (name != L"." && name != L"..")
                removeAll(path + L'\\' + name);
        } while (::FindNextFileW(finding, &found) != 0);
        ::FindClose(finding);
    }
    ::RemoveDirectoryW(path.c_str());
}

} // namespace

ScratchDirectory::ScratchDirectory(const QByteArray &name)
{
    static std::atomic<int> number = 0;
    wchar_t temporary[MAX_PATH];
    wchar_t spelled[MAX_PATH];
    require(::GetTempPathW(MAX_PATH, temporary) != 0, "no temporary directory");
    require(::GetLongPathNameW(temporary, spelled, MAX_PATH) != 0, "no temporary directory");
    // A process of an earlier run may have had the same number.
    do {
        root_ = utf8(spelled) + "kinovra-test-" + QByteArray::number(qint64(::GetCurrentProcessId())) + '-'
                + QByteArray::number(++number);
    } while (!fs::create_directory(hostPath(root_)));
    path_ = root_ + '\\' + name;
    require(fs::create_directory(hostPath(path_)), "no scratch directory");
}

ScratchDirectory::~ScratchDirectory()
{
    removeAll(hostPath(root_).wstring());
}

void ScratchDirectory::makeDirectory(const QByteArray &name) const
{
    fs::create_directories(hostPath(path(name)));
}

void ScratchDirectory::makeFile(const QByteArray &name, const QByteArray &content) const
{
    std::ofstream file(hostPath(path(name)), std::ios::binary);
    file.write(content.constData(), content.size());
    require(file.good(), "file not written");
}

void ScratchDirectory::remove(const QByteArray &name) const
{
    removeAll(hostPath(path(name)).wstring());
}

QByteArray ScratchDirectory::read(const QByteArray &name) const
{
    std::ifstream file(hostPath(path(name)), std::ios::binary);
    const std::string content{std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
    return QByteArray::fromStdString(content);
}

bool ScratchDirectory::has(const QByteArray &name) const
{
    std::error_code ignored;
    return fs::exists(fs::symlink_status(hostPath(path(name)), ignored));
}

QList<QByteArray> ScratchDirectory::names(const QByteArray &directory) const
{
    QList<QByteArray> result;
    for (const auto &entry : fs::directory_iterator(hostPath(directory == "." ? path_ : path(directory))))
        result.append(utf8(entry.path().filename()));
    std::sort(result.begin(), result.end());
    return result;
}

KeptDirectory::KeptDirectory()
{
    path_ = utf8(fs::current_path());
}

KeptDirectory::~KeptDirectory()
{
    std::error_code ignored;
    fs::current_path(hostPath(path_), ignored);
}

} // namespace support
