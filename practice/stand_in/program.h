#pragma once

#include <span>
#include <string>

namespace practice {

/// The whole program, for the command line `words` in UTF-8 with its own name first. What it returns is the
/// exit code.
int runProgram(std::span<const std::string> words);

} // namespace practice
