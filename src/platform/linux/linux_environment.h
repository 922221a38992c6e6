#pragma once

#include "platform/environment.h"
#include "platform/linux/linux_file_system.h"

#include <QByteArray>
#include <QList>

namespace platform::host {

/// The command line of the panel from the host's arguments (without the program's name). An argument that
/// names an existing file in the host's form is taken as that file with its absolute path, even when it
/// begins with "/"; a relative one whose directory exists becomes absolute; anything else stands as it is.
/// Arguments with blanks are quoted again.
QString commandLineOf(const QList<QByteArray> &arguments, LinuxFileSystem &files);

/// The process's environment on the host.
class LinuxEnvironment : public Environment
{
public:
    LinuxEnvironment(const QList<QByteArray> &arguments, LinuxFileSystem &files);

    QString commandLine() override { return commandLine_; }
    QString variable(const QString &name) override;
    QString programFolder() override;
    void endProgram() override;

private:
    LinuxFileSystem &files_;
    QString commandLine_;
};

} // namespace platform::host
