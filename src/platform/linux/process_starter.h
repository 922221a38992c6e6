#pragma once

#include "platform/programs.h"

#include <QByteArray>
#include <QList>

#include <functional>
#include <map>
#include <memory>

#include <sys/types.h>

class QSocketNotifier;

namespace platform::host {

/// How a program ended that a signal has stopped.
Ending endedBySignal(int signal);

/// How a program ended by itself. The system's loader and its interpreters have a number for what they miss.
Ending endedByItself(int code);

/// Starts processes of the host that outlive the panel, and hears of their ends without waiting.
class ProcessStarter
{
public:
    ProcessStarter();
    ~ProcessStarter();
    ProcessStarter(const ProcessStarter &) = delete;
    ProcessStarter &operator=(const ProcessStarter &) = delete;

    /// Starts `arguments` (the program first, with its full path) in `directory`, in a session of its own and
    /// with no input. `ended` is called from the event loop when it has ended. The result is 0, or the
    /// system's error.
    int start(const QList<QByteArray> &arguments, const QByteArray &directory,
              std::function<void(const Ending &)> ended);

private:
    struct Child
    {
        pid_t process;
        int descriptor;
        std::unique_ptr<QSocketNotifier> notifier;
        std::function<void(const Ending &)> ended;
    };

    void watch(pid_t process, std::function<void(const Ending &)> ended);
    void reap(int descriptor);
    void reapUnwatched();

    std::map<int, Child> children_; ///< by the descriptor that tells of the end
    QList<pid_t> unwatched_;        ///< whose end the kernel cannot tell; reaped at the next start
};

} // namespace platform::host
