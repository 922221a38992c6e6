#pragma once

#include <QString>

namespace platform {

/// Paths in the host's own form, for dialogs of the desktop.
class HostPaths
{
public:
    virtual ~HostPaths() = default;

    /// The host's form of a directory; empty where there is no such directory.
    virtual QString hostForm(const QString &directory) = 0;

    /// The path language's form of a file that the user has chosen. The spelling of its directory is
    /// remembered.
    virtual QString panelForm(const QString &hostFile) = 0;

    /// A pattern such as "*.cfb" for the desktop's dialogs, in a form that matches names in any case.
    virtual QString anyCase(const QString &pattern) const = 0;
};

} // namespace platform
