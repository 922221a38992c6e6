#pragma once

#include <QString>

namespace platform {

/// What the process was started with, and its end.
class Environment
{
public:
    virtual ~Environment() = default;

    /// The command line behind the program's own name, in the panel's path language.
    virtual QString commandLine() = 0;

    /// The value of an environment variable; empty where it is not set. A variable that names a directory
    /// comes in the panel's path language, without a trailing separator.
    virtual QString variable(const QString &name) = 0;

    /// The folder that holds the running program, without a trailing backslash.
    virtual QString programFolder() = 0;

    /// Ends the program once the running handlers have returned; event loops that wait inside them are left.
    virtual void endProgram() = 0;
};

} // namespace platform
