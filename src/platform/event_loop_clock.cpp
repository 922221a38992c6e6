#include "platform/event_loop_clock.h"

#include <QCoreApplication>
#include <QEventLoop>
#include <QTimer>

#include <cmath>

namespace platform {

namespace {

constexpr double MillisecondsPerSecond = 1000;

} // namespace

EventLoopClock::EventLoopClock()
{
    timer_.start();
}

double EventLoopClock::seconds()
{
    return static_cast<double>(timer_.elapsed()) / MillisecondsPerSecond;
}

void EventLoopClock::letEventsRunUntil(double until)
{
    const double wait = until - seconds();
    if (wait <= 0)
        return;
    QEventLoop loop;
    QTimer timer;
    timer.setSingleShot(true);
    timer.setTimerType(Qt::PreciseTimer);
    // A timer may be early, and the difference of two times a hair too small.
    QObject::connect(&timer, &QTimer::timeout, &loop, [this, until, &timer, &loop] {
        if (seconds() < until)
            timer.start(1);
        else
            loop.quit();
    });
    timer.start(static_cast<int>(std::ceil(wait * MillisecondsPerSecond)));
    // The end of the program leaves this loop too.
    loop.exec();
}

void EventLoopClock::letPendingEventsRun()
{
    QCoreApplication::processEvents();
}

} // namespace platform
