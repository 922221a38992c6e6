// What is done to a process is done to one that was forked for it.

#include "platform/host.h"
#include "platform/linux/process_preparation.h"
#include "platform/linux/process_starter.h"
#include "scratch_directory.h"

#include <QCoreApplication>
#include <QEventLoop>
#include <gtest/gtest.h>

#include <array>
#include <cerrno>
#include <cstdlib>
#include <optional>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

using platform::host::ignoreBrokenPipes;
using platform::host::openStandardStreams;

namespace {

// Ends the process with 0 where all is as it should be.
[[noreturn]] void endWith(bool asExpected)
{
    ::_exit(asExpected ? 0 : 1);
}

bool isNull(int descriptor)
{
    struct stat null = {};
    struct stat found = {};
    return ::stat("/dev/null", &null) == 0 && ::fstat(descriptor, &found) == 0
           && found.st_rdev == null.st_rdev;
}

// Writing to a pipe that nobody reads fails, and the process goes on.
bool outlivesBrokenPipe()
{
    std::array<int, 2> ends{};
    return ::pipe(ends.data()) == 0 && ::close(ends[0]) == 0 && ::write(ends[1], "x", 1) < 0
           && errno == EPIPE;
}

} // namespace

TEST(ProcessPreparation, outlives_writing_to_a_pipe_that_nobody_reads)
{
    EXPECT_EXIT(
        {
            ignoreBrokenPipes();
            endWith(outlivesBrokenPipe());
        },
        testing::ExitedWithCode(0), "");
}

TEST(ProcessPreparation, leaves_broken_pipes_to_end_the_programs_that_it_starts)
{
    const auto startWriter = [] {
        ignoreBrokenPipes();
        platform::host::ProcessStarter starter;
        std::optional<platform::Ending> ending;
        if (starter.start({"/bin/sh", "-c", "kill -PIPE $$"}, "/",
                          [&ending](const platform::Ending &heard) { ending = heard; })
            != 0)
            endWith(false);
        while (!ending)
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        endWith(ending->kind == platform::Ending::Kind::Crashed && ending->code == SIGPIPE);
    };
    EXPECT_EXIT(startWriter(), testing::ExitedWithCode(0), "");
}

TEST(ProcessPreparation, fills_the_places_of_closed_streams)
{
    const auto openAll = [] {
        for (const int stream : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO})
            ::close(stream);
        openStandardStreams();
        const int next = ::open("/", O_RDONLY | O_CLOEXEC);
        endWith(isNull(STDIN_FILENO) && isNull(STDOUT_FILENO) && isNull(STDERR_FILENO)
                && next > STDERR_FILENO);
    };
    EXPECT_EXIT(openAll(), testing::ExitedWithCode(0), "");
}

TEST(ProcessPreparation, leaves_open_streams_as_they_are)
{
    const auto openMissing = [] {
        std::array<int, 2> ends{};
        if (::pipe(ends.data()) != 0 || ::dup2(ends[1], STDOUT_FILENO) < 0
            || ::dup2(ends[1], STDERR_FILENO) < 0)
            endWith(false);
        ::close(STDIN_FILENO);
        openStandardStreams();
        endWith(isNull(STDIN_FILENO) && !isNull(STDOUT_FILENO) && !isNull(STDERR_FILENO));
    };
    EXPECT_EXIT(openMissing(), testing::ExitedWithCode(0), "");
}

TEST(ProcessPreparation, is_what_the_panel_begins_with)
{
    const auto begin = [] {
        ::close(STDIN_FILENO);
        platform::prepareProcess();
        endWith(isNull(STDIN_FILENO) && outlivesBrokenPipe());
    };
    EXPECT_EXIT(begin(), testing::ExitedWithCode(0), "");
}
