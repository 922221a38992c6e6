#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace practice {

/// The names in the working directory, read once, and found in any letter case.
class DataDirectory
{
public:
    DataDirectory();

    /// All names that differ from `name` in letter case at most; the exact one first, then those
    /// that only spell the extension otherwise, then the rest, each in order.
    std::vector<std::string> spellings(std::string_view name) const;

    /// The first spelling of `name` that is a file and can be read.
    std::optional<std::string> readable(std::string_view name) const;

private:
    struct Entry
    {
        std::u32string folded;
        std::string name;
    };
    std::vector<Entry> entries_;
};

} // namespace practice
