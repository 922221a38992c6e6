#pragma once

#include <filesystem>
#include <memory>
#include <string>

// What the tests need of the system they run on.

namespace practice_tests {

/// Whether any bytes make a name or an argument, text or not.
extern const bool AnyBytesAreNames;

/// Whether names that differ in letter case alone are different names.
extern const bool CaseTellsNamesApart;

/// What ends a line of a text.
extern const std::string LineEnd;

/// `name` (UTF-8, or any bytes where these are names) as a path.
std::filesystem::path pathOf(const std::string &name);

/// `path` as UTF-8, or as its bytes where any bytes are names.
std::string textOf(const std::filesystem::path &path);

/// Makes `link` lead to the file `target`. False where the system lets nobody, or not this user, make links.
bool makeLink(const std::filesystem::path &target, const std::filesystem::path &link);

/// Whether `path` is itself a link.
bool isLink(const std::filesystem::path &path);

/// Lets a started program that a sanitizer ends end with 99.
void tellSanitizersApart();

/// A terminal that can be the input of a started program.
class Terminal
{
public:
    Terminal();
    Terminal(const Terminal &) = delete;
    Terminal &operator=(const Terminal &) = delete;
    ~Terminal();

    /// False where the system has none to give.
    bool isThere() const;

    /// The path of the file that is its keyboard.
    std::filesystem::path keyboard() const;

    /// Presses Enter on it.
    void pressEnter() const;

private:
    struct Device;

    std::unique_ptr<Device> device_;
};

} // namespace practice_tests
