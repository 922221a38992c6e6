#pragma once

#include "stand_in/data_directory.h"

#include <optional>
#include <string>
#include <string_view>

namespace practice {

/// The sentence that begins everything that the practice program `title` says or leaves.
std::string firstLine(std::string_view title);

/// A file that a practice program is about to leave in the working directory.
struct OwnFile
{
    std::string name;      ///< as an earlier one of its own is spelled, where there is one
    bool replaces = false; ///< there is an earlier one
};

/// Why the existing file `name` must stay as it is, such as "is a link"; nothing where it is a practice
/// program's own.
std::optional<std::string> whyForeign(const std::string &name);

/// The file to write for the result `name`. Only for names of which no spelling is foreign.
OwnFile ownFile(const DataDirectory &directory, const std::string &name);

/// Writes `file` beside its place and moves it there; an earlier one is replaced, anything else stays. False
/// where it could not be written.
bool leave(const OwnFile &file, std::string_view text);

} // namespace practice
