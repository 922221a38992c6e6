#pragma once

#include "stand_in/arguments.h"

#include <iosfwd>
#include <string_view>

namespace practice {

/// How a practice program ends.
enum class ExitCode {
    Done = 0,
    SomethingMissing = 1, ///< no file was named, or a file that is needed is not there
    ForeignFile = 2,      ///< a file that is not its own is in the way
    UnknownName = 3,      ///< the program file does not carry the name of one of the package's programs
    NotWritten = 4        ///< a file could not be written
};

/// Runs the practice program that was started as `path`, and tells on `out` and `err` what it did.
ExitCode run(std::string_view path, const Arguments &arguments, std::ostream &out, std::ostream &err);

} // namespace practice
