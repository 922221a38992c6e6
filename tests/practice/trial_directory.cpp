#include "trial_directory.h"

#include <algorithm>
#include <fstream>
#include <ios>
#include <iterator>
#include <random>
#include <stdexcept>
#include <system_error>
#include <utility>

namespace fs = std::filesystem;

namespace practice_tests {

namespace {

std::string readAll(const fs::path &path, std::ios::openmode mode)
{
    std::ifstream file(path, mode);
    if (!file.is_open())
        throw std::runtime_error("cannot read " + textOf(path));
    return {std::istreambuf_iterator<char>(file), {}};
}

} // namespace

std::string sentenceOf(const std::string &title)
{
    return title + " is a Kinovra practice program: nothing was analysed.";
}

std::string firstLineOf(const std::string &text)
{
    std::string line = text.substr(0, text.find('\n'));
    if (line.ends_with('\r'))
        line.pop_back();
    return line;
}

std::vector<std::string> linesOf(const std::string &text)
{
    std::vector<std::string> lines;
    for (std::size_t begin = 0; begin < text.size();) {
        const std::size_t end = std::min(text.find('\n', begin), text.size());
        lines.push_back(text.substr(begin, end - begin));
        begin = end + 1;
    }
    return lines;
}

std::string contentOf(const fs::path &path)
{
    return readAll(path, std::ios::in | std::ios::binary);
}

std::string textIn(const fs::path &path)
{
    return readAll(path, std::ios::in);
}

std::vector<std::string> namesIn(const fs::path &directory)
{
    std::vector<std::string> names;
    for (const auto &entry : fs::directory_iterator(directory))
        names.push_back(textOf(entry.path().filename()));
    std::sort(names.begin(), names.end());
    return names;
}

TrialDirectory::TrialDirectory()
{
    std::random_device random;
    do {
        root_ = fs::temp_directory_path() / ("practice-test-" + std::to_string(random()));
    } while (!fs::create_directory(root_));
    fs::create_directory(path());
}

TrialDirectory::~TrialDirectory()
{
    std::error_code error;
    fs::remove_all(root_, error);
}

void TrialDirectory::write(const std::string &name, const std::string &text) const
{
    std::ofstream file(path(name), std::ios::binary);
    file << text << std::flush;
    if (!file.good())
        throw std::runtime_error("cannot write " + name);
}

Ended TrialDirectory::run(const std::string &program, std::vector<std::string> arguments) const
{
    arguments.insert(arguments.begin(), program);
    return runToEnd({STAND_IN_PROGRAM, std::move(arguments), path()});
}

} // namespace practice_tests
