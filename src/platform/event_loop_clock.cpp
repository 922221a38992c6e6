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
    QObject::connect(&timer, &QTimer::timeout, &loop, &QEventLoop::quit);
    // A millisecond more than the whole ones: the difference of two times may be a hair too small.
    timer.start(static_cast<int>(std::floor(wait * MillisecondsPerSecond)) + 1);
    // The end of the program leaves this loop too.
    loop.exec();
}

void EventLoopClock::letPendingEventsRun()
{
    QCoreApplication::processEvents();
}

} // namespace platform
