#include "platform/linux/process_starter.h"
#include "without_descriptors.h"

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QEventLoop>
#include <gtest/gtest.h>

#include <cerrno>

#include <sys/wait.h>

using platform::Ending;
using platform::host::ProcessStarter;

namespace {

void runAndWait(ProcessStarter &starter)
{
    bool ended = false;
    EXPECT_EQ(starter.start({"/bin/true"}, "/", [&ended](const Ending &) { ended = true; }), 0);
    QDeadlineTimer deadline(20'000);
    while (!ended && !deadline.hasExpired())
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents | QEventLoop::AllEvents, 100);
    EXPECT_TRUE(ended);
}

} // namespace

TEST(ProcessStarter, leaves_no_zombie_where_nothing_can_tell_of_the_end)
{
    // What other tests have left.
    while (::wait(nullptr) > 0) {
    }
    ProcessStarter starter;
    // The sanitizer needs a descriptor where it meets a type for the first time.
    runAndWait(starter);
    {
        const support::WithoutDescriptors allButTheNewProcesssOwn(3);
        EXPECT_EQ(starter.start({"/bin/true"}, "/", [](const Ending &) { ADD_FAILURE(); }), 0);
    }
    siginfo_t zombie{};
    EXPECT_EQ(::waitid(P_ALL, 0, &zombie, WEXITED | WNOWAIT), 0);
    runAndWait(starter);
    EXPECT_EQ(::waitpid(-1, nullptr, WNOHANG), -1);
    EXPECT_EQ(errno, ECHILD);
}
