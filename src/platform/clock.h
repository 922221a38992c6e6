#pragma once

namespace platform {

/// A steady clock, and pauses that let window events run.
class Clock
{
public:
    virtual ~Clock() = default;

    /// Seconds since some fixed moment; never jumps, not even at midnight.
    virtual double seconds() = 0;

    /// Lets window events run until seconds() has reached `until` or the program is ending. Waits without
    /// spinning.
    virtual void letEventsRunUntil(double until) = 0;

    /// Lets the events that are pending now run.
    virtual void letPendingEventsRun() = 0;
};

} // namespace platform
