#pragma once

#include "platform/clock.h"

#include <QElapsedTimer>

namespace platform {

/// The steady clock of the machine; pauses wait in the event loop.
class EventLoopClock : public Clock
{
public:
    EventLoopClock();

    double seconds() override;
    void letEventsRunUntil(double until) override;
    void letPendingEventsRun() override;

private:
    QElapsedTimer timer_;
};

} // namespace platform
