#include "platform/event_loop_clock.h"

#include <QCoreApplication>
#include <QTimer>
#include <gtest/gtest.h>

#ifdef _WIN32
#include <windows.h>
#else
#include <ctime>
#endif

namespace {

#ifdef _WIN32
// The clock of the C library is the time of day there.
double processorSeconds()
{
    FILETIME begun{};
    FILETIME ended{};
    FILETIME inSystem{};
    FILETIME inProgram{};
    ::GetProcessTimes(::GetCurrentProcess(), &begun, &ended, &inSystem, &inProgram);
    return (inSystem.dwLowDateTime + inProgram.dwLowDateTime) / 1e7;
}
#else
double processorSeconds()
{
    return double(std::clock()) / CLOCKS_PER_SEC;
}
#endif

} // namespace

TEST(EventLoopClock, never_goes_back)
{
    platform::EventLoopClock clock;
    const double first = clock.seconds();
    EXPECT_GE(clock.seconds(), first);
}

TEST(EventLoopClock, waits_while_events_run_and_does_not_spin)
{
    platform::EventLoopClock clock;
    bool ran = false;
    QTimer::singleShot(20, [&ran] { ran = true; });
    const double before = clock.seconds();
    const double processorBefore = processorSeconds();
    clock.letEventsRunUntil(before + 0.2);
    EXPECT_GE(clock.seconds(), before + 0.2);
    EXPECT_TRUE(ran);
    EXPECT_LT(processorSeconds() - processorBefore, 0.1);
}

TEST(EventLoopClock, does_not_wait_for_the_past)
{
    platform::EventLoopClock clock;
    bool ran = false;
    QTimer::singleShot(0, [&ran] { ran = true; });
    clock.letEventsRunUntil(clock.seconds() - 1);
    EXPECT_FALSE(ran);
    clock.letPendingEventsRun();
    EXPECT_TRUE(ran);
}

TEST(EventLoopClock, may_pause_within_a_pause)
{
    platform::EventLoopClock clock;
    double innerEnd = 0;
    double innerUntil = 0;
    QTimer::singleShot(10, [&] {
        innerUntil = clock.seconds() + 0.1;
        clock.letEventsRunUntil(innerUntil);
        innerEnd = clock.seconds();
    });
    const double until = clock.seconds() + 0.05;
    clock.letEventsRunUntil(until);
    EXPECT_GE(clock.seconds(), until);
    EXPECT_GT(innerUntil, 0);
    EXPECT_GE(innerEnd, innerUntil) << "the inner pause lasts longer, and the outer one waits for it";
}

// 0.001 and 0.035 make a hair more than 0.036, as do the other three here.
TEST(EventLoopClock, ends_no_pause_a_hair_too_early)
{
    for (const double begin : {0.001, 0.002, 0.003, 0.004}) {
        platform::EventLoopClock clock;
        while (clock.seconds() < begin)
            continue;
        const double until = clock.seconds() + 0.035;
        clock.letEventsRunUntil(until);
        EXPECT_GE(clock.seconds(), until);
    }
}

TEST(EventLoopClock, leaves_its_pauses_when_the_program_ends)
{
    platform::EventLoopClock clock;
    bool inner = false;
    QTimer::singleShot(0, [&] {
        QTimer::singleShot(10, [] { QCoreApplication::exit(0); });
        clock.letEventsRunUntil(clock.seconds() + 30);
        inner = true;
    });
    const double before = clock.seconds();
    EXPECT_EQ(QCoreApplication::exec(), 0);
    EXPECT_TRUE(inner);
    EXPECT_LT(clock.seconds(), before + 20);
}
