#include "stand_in/host.h"

#include <system_error>

#include <unistd.h>

namespace fs = std::filesystem;

namespace practice {

bool inputIsTerminal()
{
    return isatty(STDIN_FILENO) != 0;
}

fs::path pathOf(std::string_view name)
{
    return std::u8string(name.begin(), name.end());
}

std::string nameOf(const fs::path &path)
{
    const auto name = path.filename().u8string();
    return {name.begin(), name.end()};
}

bool isLink(const fs::path &path)
{
    std::error_code error;
    return fs::is_symlink(path, error);
}

bool moveToFreePlace(const fs::path &from, const fs::path &to)
{
    // Unlike a renaming, a link leaves what appeared there in the meantime, and so does a copy where the
    // disk knows no links.
    std::error_code error;
    fs::create_hard_link(from, to, error);
    if (error && !fs::copy_file(from, to, fs::copy_options::none, error))
        return false;
    fs::remove(from, error);
    return true;
}

} // namespace practice
