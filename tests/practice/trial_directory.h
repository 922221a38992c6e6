#pragma once

#include "started_program.h"
#include "test_host.h"

#include <filesystem>
#include <string>
#include <vector>

namespace practice_tests {

/// The sentence that begins all that the practice program `title` says and leaves.
std::string sentenceOf(const std::string &title);

/// The first line of `text`, without its end.
std::string firstLineOf(const std::string &text);

/// The lines of `text`, without their ends.
std::vector<std::string> linesOf(const std::string &text);

/// All of a file's bytes.
std::string contentOf(const std::filesystem::path &path);

/// The text in a file, with "\n" at the ends of lines.
std::string textIn(const std::filesystem::path &path);

/// The names in a directory, in order.
std::vector<std::string> namesIn(const std::filesystem::path &directory);

/// An empty directory for one test, which goes with it. Practice programs are run in its folder "data".
class TrialDirectory
{
public:
    TrialDirectory();
    TrialDirectory(const TrialDirectory &) = delete;
    TrialDirectory &operator=(const TrialDirectory &) = delete;
    ~TrialDirectory();

    std::filesystem::path path() const { return root_ / "data"; }
    std::filesystem::path path(const std::string &name) const { return path() / pathOf(name); }

    /// A place outside of "data".
    std::filesystem::path outside(const std::string &name) const { return root_ / pathOf(name); }

    void write(const std::string &name, const std::string &text) const;
    std::string read(const std::string &name) const { return textIn(path(name)); }
    std::vector<std::string> names() const { return namesIn(path()); }

    /// Runs the stand-in under the name `program` with `arguments`.
    Ended run(const std::string &program, std::vector<std::string> arguments) const;

private:
    std::filesystem::path root_;
};

} // namespace practice_tests
