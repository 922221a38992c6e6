#pragma once

#include "platform/linux/file_descriptor.h"
#include "platform/programs.h"

#include <QByteArray>

#include <functional>
#include <memory>

class QSocketNotifier;

namespace platform::host {

/// Where the console helper reports how a program in a terminal has ended; the terminal itself does not tell.
/// A socket in a private directory, made when it is first asked for and removed with the object.
class ConsoleReports
{
public:
    /// `ended` is called from the event loop with the number that was given to the helper.
    explicit ConsoleReports(std::function<void(int number, const Ending &)> ended);
    ~ConsoleReports();
    ConsoleReports(const ConsoleReports &) = delete;
    ConsoleReports &operator=(const ConsoleReports &) = delete;

    /// The path of the socket; empty where it cannot be made.
    QByteArray address();

    /// Takes the reports that have come already.
    void receive();

private:
    bool open();

    std::function<void(int, const Ending &)> ended_;
    QByteArray directory_;
    FileDescriptor socket_;
    std::unique_ptr<QSocketNotifier> notifier_;
};

} // namespace platform::host
