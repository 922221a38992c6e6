#include "test_host.h"

#include <cstdlib>
#include <stdexcept>

#include <fcntl.h>
#include <unistd.h>

namespace fs = std::filesystem;

namespace practice_tests {

const bool AnyBytesAreNames = true;
const bool CaseTellsNamesApart = true;
const std::string LineEnd = "\n";

fs::path pathOf(const std::string &name)
{
    return name;
}

std::string textOf(const fs::path &path)
{
    return path.native();
}

bool makeLink(const fs::path &target, const fs::path &link)
{
    fs::create_symlink(target, link);
    return true;
}

bool isLink(const fs::path &path)
{
    return fs::is_symlink(path);
}

void tellSanitizersApart()
{
    setenv("ASAN_OPTIONS", "exitcode=99", 1);
    setenv("UBSAN_OPTIONS", "exitcode=99", 1);
}

struct Terminal::Device
{
    int descriptor = -1;
};

Terminal::Terminal() : device_(std::make_unique<Device>())
{
    device_->descriptor = posix_openpt(O_RDWR | O_NOCTTY | O_CLOEXEC);
    if (device_->descriptor < 0 || grantpt(device_->descriptor) != 0 || unlockpt(device_->descriptor) != 0)
        throw std::runtime_error("no terminal");
}

Terminal::~Terminal()
{
    close(device_->descriptor);
}

bool Terminal::isThere() const
{
    return true;
}

fs::path Terminal::keyboard() const
{
    return ptsname(device_->descriptor);
}

void Terminal::pressEnter() const
{
    if (write(device_->descriptor, "\n", 1) != 1)
        throw std::runtime_error("no Enter");
}

} // namespace practice_tests
