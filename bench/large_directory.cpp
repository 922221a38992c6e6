#include "large_directory.h"

#include <array>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <stdexcept>

#include <dirent.h>
#include <fcntl.h>
#include <unistd.h>

namespace bench {

namespace {

constexpr std::array<const char *, 10> Extensions{"dg",  "cn",  "km", "ks", "out",
                                                  "plt", "cfb", "fo", "pj", "txt"};

void makeFile(const std::string &path)
{
    const int file = ::open(path.c_str(), O_WRONLY | O_CREAT | O_CLOEXEC, 0644);
    if (file < 0)
        throw std::runtime_error("cannot make " + path);
    ::close(file);
}

} // namespace

LargeDirectory::LargeDirectory(Kind kind, int files)
    : path_((std::filesystem::temp_directory_path() / "kinovra-bench-XXXXXX").string())
{
    if (::mkdtemp(path_.data()) == nullptr)
        throw std::runtime_error("cannot make a directory to measure");
    for (int i = 0; i < files; ++i) {
        // Not in the order of their names.
        const int number = static_cast<int>(i * 7919L % files);
        const char *extension =
            kind == Kind::DataFiles ? "dg" : Extensions[static_cast<size_t>(number) % Extensions.size()];
        makeFile(path_ + "/Trial" + std::to_string(100'000 + number) + '.' + extension);
    }
}

LargeDirectory::~LargeDirectory()
{
    std::error_code ignored;
    std::filesystem::remove_all(path_, ignored);
}

int readPlainly(const std::string &path)
{
    int count = 0;
    DIR *directory = ::opendir(path.c_str());
    if (directory == nullptr)
        throw std::runtime_error("cannot read " + path);
    while (::readdir(directory) != nullptr)
        ++count;
    ::closedir(directory);
    return count;
}

} // namespace bench
