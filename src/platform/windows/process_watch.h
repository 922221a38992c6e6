#pragma once

#include "platform/programs.h"
#include "platform/windows/windows_api.h"

#include <functional>
#include <map>
#include <memory>

class QWinEventNotifier;

namespace platform::host {

/// How a process with this exit code has ended.
Ending endingOf(quint32 exitCode);

/// Hears of the ends of started processes without waiting for them.
class ProcessWatch
{
public:
    ProcessWatch();
    ~ProcessWatch();
    ProcessWatch(const ProcessWatch &) = delete;
    ProcessWatch &operator=(const ProcessWatch &) = delete;

    /// `ended` is called from the event loop when the process has ended; its handle is kept until then.
    void watch(Handle process, std::function<void(const Ending &)> ended);

private:
    struct Child
    {
        Handle process;
        std::unique_ptr<QWinEventNotifier> notifier;
        std::function<void(const Ending &)> ended;
    };

    void hasEnded(int number);

    std::map<int, Child> children_;
    int lastNumber_ = 0;
};

} // namespace platform::host
