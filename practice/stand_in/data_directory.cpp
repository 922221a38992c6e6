#include "stand_in/data_directory.h"

#include "stand_in/host.h"
#include "stand_in/unicode_text.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <system_error>
#include <utility>

namespace practice {

namespace {

std::string_view withoutExtension(std::string_view name)
{
    return name.substr(0, name.rfind('.'));
}

bool canBeRead(const std::filesystem::path &path)
{
    std::error_code error;
    return std::filesystem::is_regular_file(path, error) && std::ifstream(path).is_open();
}

} // namespace

DataDirectory::DataDirectory()
{
    std::error_code error;
    std::filesystem::directory_iterator entry(std::filesystem::path("."), error);
    for (; !error && entry != std::filesystem::directory_iterator(); entry.increment(error)) {
        std::string name = nameOf(entry->path());
        entries_.push_back({foldedCase(name), std::move(name)});
    }
}

std::vector<std::string> DataDirectory::spellings(std::string_view name) const
{
    const auto folded = foldedCase(name);
    std::vector<std::string> found;
    for (const Entry &entry : entries_) {
        if (entry.folded == folded)
            found.push_back(entry.name);
    }
    const auto rank = [name](const std::string &spelling) {
        if (spelling == name)
            return 0;
        return withoutExtension(spelling) == withoutExtension(name) ? 1 : 2;
    };
    std::sort(found.begin(), found.end(), [&rank](const std::string &a, const std::string &b) {
        return rank(a) != rank(b) ? rank(a) < rank(b) : a < b;
    });
    return found;
}

std::optional<std::string> DataDirectory::readable(std::string_view name) const
{
    for (const std::string &spelling : spellings(name)) {
        if (canBeRead(pathOf(spelling)))
            return spelling;
    }
    return std::nullopt;
}

} // namespace practice
