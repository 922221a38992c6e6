#pragma once

#include <filesystem>
#include <memory>
#include <string>
#include <vector>

namespace practice_tests {

/// A program to start: no shell, no look at the PATH.
struct Start
{
    std::filesystem::path program;
    std::vector<std::string> words; ///< its whole argument list in UTF-8, its own name first
    std::filesystem::path directory;
    std::filesystem::path input{}; ///< nothing comes in where it is empty
};

/// How a program ended and what it said, with "\n" at the ends of lines.
struct Ended
{
    int exitCode = -1; ///< 1000 + the signal where one ended it
    std::string out;
    std::string err;
};

/// A program that runs until `end` is called.
class StartedProgram
{
public:
    explicit StartedProgram(const Start &start);
    StartedProgram(const StartedProgram &) = delete;
    StartedProgram &operator=(const StartedProgram &) = delete;
    ~StartedProgram();

    /// Whether it has not ended yet.
    bool isRunning() const;

    /// Waits until it has said `text` or has ended; true where it said it.
    bool says(const std::string &text);

    /// Waits for its end.
    Ended end();

private:
    struct Process;

    bool readSome();
    int waitForExit();

    std::unique_ptr<Process> process_;
    Ended ended_;
};

/// Starts a program and waits for its end.
Ended runToEnd(const Start &start);

} // namespace practice_tests
