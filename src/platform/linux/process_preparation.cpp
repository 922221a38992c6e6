#include "platform/linux/process_preparation.h"

#include <cerrno>
#include <csignal>

#include <fcntl.h>
#include <unistd.h>

namespace platform::host {

void ignoreBrokenPipes()
{
    std::signal(SIGPIPE, SIG_IGN);
}

void openStandardStreams()
{
    // From the lowest: what is opened gets the lowest number that is free.
    for (int stream = STDIN_FILENO; stream <= STDERR_FILENO; ++stream) {
        if (::fcntl(stream, F_GETFD) < 0 && errno == EBADF)
            ::open("/dev/null", O_RDWR); // NOLINT(cppcoreguidelines-pro-type-vararg): the system's own
    }
}

} // namespace platform::host
