#pragma once

#include "platform/linux/console_reports.h"
#include "platform/linux/desktop_programs.h"
#include "platform/linux/linux_file_system.h"
#include "platform/linux/process_starter.h"
#include "platform/programs.h"

namespace platform::host {

/// Starts programs on the host: native ones and scripts as they are, Windows programs through Wine, DOS
/// programs through DOSBox, console programs in a terminal where there is one. Documents and addresses go to
/// the desktop's opener, whatever the verb; a directory that is to be explored goes to its file manager where
/// one is installed.
class LinuxPrograms : public Programs
{
public:
    /// `consoleHelper` is the host's path of kinovra-console; without it a console program runs in the
    /// terminal alone.
    LinuxPrograms(LinuxFileSystem &files, QByteArray consoleHelper);

    StartResult start(const Start &start) override;

private:
    struct Command;

    Command commandFor(const Start &start, const QByteArray &directory);
    Command documentCommand(const Start &start, const QByteArray &directory);
    static Command folderCommand(const QByteArray &directory);
    static Command addressCommand(const Start &start);
    static Command openerCommand(const QByteArray &argument);
    Command accessoryCommand(const Start &start);
    Command programCommand(const Start &start, const QByteArray &directory, const QByteArray &program);
    Command nativeCommand(const Start &start, const QByteArray &directory, const QByteArray &program);
    QStringList documentArguments(const Start &start);
    QList<QByteArray> inTerminal(const QList<QByteArray> &command, double value);
    void terminalEnded(double value, const Ending &ending);
    void tell(double value, const Ending &ending);

    LinuxFileSystem &files_;
    QByteArray consoleHelper_;
    ProcessStarter starter_;
    ConsoleReports reports_;
    double lastValue_ = 32;
    QList<double> inTerminals_; ///< started in a terminal and not yet reported
};

} // namespace platform::host
