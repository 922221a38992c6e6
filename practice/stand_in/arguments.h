#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace practice {

/// A command line, read as the package's programs read theirs.
struct Arguments
{
    std::vector<std::string> given; ///< each argument exactly as it came
    std::string letters;            ///< the switches' letters in upper case, in their order, glued ones too
    std::string file;               ///< the last argument that is a file; empty for none and for ";"
    bool wantsUsage = false;        ///< "/?" or "/HELP" is among the switches
};

/// Reads the arguments behind the program's own name.
Arguments readArguments(std::span<const std::string> given);

/// A file named on the command line, cut into its parts.
struct NamedFile
{
    std::string base;          ///< the trial's name
    std::string extension;     ///< with its dot, as given; empty where there is none
    bool hasDirectory = false; ///< it names a directory or a drive, too
};

/// Cuts `file` where one of the package's extensions begins; any other dot belongs to the trial's name.
NamedFile trialNamed(std::string_view file);

/// Cuts `file` at its last dot.
NamedFile fileNamed(std::string_view file);

} // namespace practice
