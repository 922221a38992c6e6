#include "stand_in/own_files.h"

#include "stand_in/host.h"
#include "stand_in/program_table.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <filesystem>
#include <fstream>
#include <random>
#include <sstream>
#include <system_error>

namespace fs = std::filesystem;

namespace practice {

namespace {

// What tells a practice program's files from all others. The sample trials' results carry it, too.
constexpr std::string_view Marker = " is a Kinovra practice program: nothing was analysed.";

std::string beginOf(std::ifstream &file)
{
    std::array<char, 256> bytes{};
    file.read(bytes.data(), bytes.size());
    std::string text(bytes.data(), static_cast<std::size_t>(file.gcount()));
    return text.substr(0, text.find('\n'));
}

// Whether a practice program writes `line` first: the title of one and the marker, nothing before or behind.
bool isFirstLine(std::string_view line)
{
    if (line.ends_with('\r'))
        line.remove_suffix(1);
    if (!line.ends_with(Marker))
        return false;
    line.remove_suffix(Marker.size());
    const auto programs = allPrograms();
    return std::any_of(programs.begin(), programs.end(),
                       [line](const Program &program) { return program.title == line; });
}

fs::path placeBeside()
{
    std::random_device random;
    fs::path place;
    std::error_code error;
    do {
        std::ostringstream name;
        name << "practice-" << std::hex << random() << random() << ".tmp";
        place = name.str();
    } while (fs::exists(fs::symlink_status(place, error)));
    return place;
}

bool write(const fs::path &place, std::string_view text)
{
    std::ofstream file(place);
    file << text << std::flush;
    return file.good();
}

} // namespace

std::string firstLine(std::string_view title)
{
    return std::string(title) += Marker;
}

std::optional<std::string> whyForeign(const std::string &name)
{
    const fs::path path = pathOf(name);
    if (isLink(path))
        return "is a link";
    std::error_code error;
    const fs::file_status status = fs::symlink_status(path, error);
    if (fs::is_directory(status))
        return "is a directory";
    if (!fs::is_regular_file(status))
        return "is not a plain file";
    if ((status.permissions() & fs::perms::owner_write) == fs::perms::none)
        return "is write-protected";
    std::ifstream file(path, std::ios::binary);
    if (!file.is_open())
        return "cannot be read";
    if (!isFirstLine(beginOf(file)))
        return "was not made by a practice program";
    return std::nullopt;
}

OwnFile ownFile(const DataDirectory &directory, const std::string &name)
{
    const auto spellings = directory.spellings(name);
    return spellings.empty() ? OwnFile{name, false} : OwnFile{spellings.front(), true};
}

bool leave(const OwnFile &file, std::string_view text)
{
    const fs::path beside = placeBeside();
    const fs::path place = pathOf(file.name);
    std::error_code error;
    bool done = write(beside, text);
    if (done && file.replaces) {
        fs::rename(beside, place, error);
        done = !error;
    } else if (done) {
        done = moveToFreePlace(beside, place);
    }
    fs::remove(beside, error);
    return done;
}

} // namespace practice
