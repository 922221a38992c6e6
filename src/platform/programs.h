#pragma once

#include "platform/command_text.h"

#include <QString>

#include <functional>

namespace platform {

/// What became of a request to start a program.
struct StartResult
{
    /// Of an "open": more than 32 on success. Of a direct start: a task number, 0 when it failed.
    double value = 0;
    /// Why nothing was started, as a clause such as "it was not found"; empty on success.
    QString failure;
};

/// How a started program ended.
struct Ending
{
    enum class Kind {
        Exited,
        Crashed,
        TerminalFailed ///< the terminal that was to show it has ended, and nothing is known of the program
    };
    Kind kind = Kind::Exited;
    int code = 0; ///< exit code, or the system's number for a crash
    QString reason =
        {}; ///< what the system says of it, where that is more than a number, such as "signal 11"
};

/// Starts programs, never through a shell and never waiting for them. A bare name is looked for where the
/// system keeps programs, never in the current directory or the data directory.
class Programs
{
public:
    virtual ~Programs() = default;

    /// Starts what `start` says. The value of a start that worked is its own in this run. Never raises: a
    /// start that fails says why in its result.
    virtual StartResult start(const Start &start) = 0;

    /// Called when a started program has ended, with the value that its start gave, wherever that can be
    /// known.
    std::function<void(double value, const Ending &ending)> ended;
};

} // namespace platform
