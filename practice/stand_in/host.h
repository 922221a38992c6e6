#pragma once

#include <filesystem>
#include <string>
#include <string_view>

// What each system does in its own way. Names are UTF-8 everywhere else.

namespace practice {

/// Whether somebody sits at the standard input.
bool inputIsTerminal();

/// The path of the file `name` in the working directory.
std::filesystem::path pathOf(std::string_view name);

/// The name at the end of `path`.
std::string nameOf(const std::filesystem::path &path);

/// Whether `path` is a link to another place, even to one where nothing is.
bool isLink(const std::filesystem::path &path);

/// Moves the file `from` to `to` in the same directory. False where that cannot be, and where `to` is taken.
bool moveToFreePlace(const std::filesystem::path &from, const std::filesystem::path &to);

} // namespace practice
