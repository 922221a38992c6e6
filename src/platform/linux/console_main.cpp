// The console helper. It runs a console program inside a terminal window, keeps the window open when the
// program has failed, so that its last words can be read, and tells the panel how it ended.
//
//     kinovra-console SOCKET NUMBER PROGRAM [ARGUMENT...]

#include <cerrno>
#include <csignal>
#include <cstdio>
#include <cstring>
#include <string>

#include <spawn.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <sys/wait.h>
#include <unistd.h>

extern char **environ; // NOLINT(readability-redundant-declaration): not declared everywhere

namespace {

constexpr int FirstProgramArgument = 3;
constexpr int CannotStart = 127;

void report(const std::string &address, const std::string &text)
{
    sockaddr_un name{};
    name.sun_family = AF_UNIX;
    if (address.empty() || address.size() >= sizeof name.sun_path)
        return;
    std::memcpy(name.sun_path, address.data(), address.size());
    const int descriptor = ::socket(AF_UNIX, SOCK_DGRAM | SOCK_CLOEXEC, 0);
    if (descriptor < 0)
        return;
    // The panel may have been closed meanwhile; then nobody is told.
    ::sendto(descriptor, text.data(), text.size(), MSG_DONTWAIT, reinterpret_cast<sockaddr *>(&name),
             sizeof name);
    ::close(descriptor);
}

void waitForEnter(const std::string &message)
{
    if (::isatty(STDIN_FILENO) == 0)
        return;
    std::printf("\n%s\nPress Enter to close this window.\n", message.c_str());
    std::fflush(stdout);
    int c = 0;
    do
        c = std::getchar();
    while (c != '\n' && c != EOF);
}

/// Starts the program with the signals of the terminal as they are by default.
int startProgram(pid_t &process, char **arguments)
{
    posix_spawnattr_t attributes{};
    sigset_t keyboard;
    sigemptyset(&keyboard);
    sigaddset(&keyboard, SIGINT);
    sigaddset(&keyboard, SIGQUIT);
    sigaddset(&keyboard, SIGHUP);
    posix_spawnattr_init(&attributes);
    posix_spawnattr_setflags(&attributes, POSIX_SPAWN_SETSIGDEF);
    posix_spawnattr_setsigdefault(&attributes, &keyboard);
    const int error = ::posix_spawn(&process, arguments[0], nullptr, &attributes, arguments, environ);
    posix_spawnattr_destroy(&attributes);
    return error;
}

int waitFor(pid_t process)
{
    int status = 0;
    while (::waitpid(process, &status, 0) < 0 && errno == EINTR) {
    }
    return status;
}

} // namespace

int main(int argc, char *argv[])
{
    if (argc <= FirstProgramArgument) {
        std::fputs("usage: kinovra-console SOCKET NUMBER PROGRAM [ARGUMENT...]\n", stderr);
        return 2;
    }
    const std::string address = argv[1];
    const std::string number = argv[2];
    const std::string program = argv[FirstProgramArgument];
    // Ctrl+C and the closing of the window are for the program; how it ends is still to be told. Ctrl+Z is
    // for nobody: there is no shell to wake it up again.
    for (int signal : {SIGINT, SIGQUIT, SIGHUP, SIGTSTP})
        std::signal(signal, SIG_IGN);

    pid_t process = 0;
    const int error = startProgram(process, argv + FirstProgramArgument);
    if (error != 0) {
        report(address, number + " exit " + std::to_string(CannotStart));
        waitForEnter(program + " could not be started: " + std::strerror(error) + '.');
        return CannotStart;
    }
    const int status = waitFor(process);
    if (WIFSIGNALED(status)) {
        const std::string signal = std::to_string(WTERMSIG(status));
        report(address, number + " signal " + signal);
        waitForEnter(program + " was stopped by signal " + signal + '.');
        return CannotStart + 1;
    }
    const std::string code = std::to_string(WEXITSTATUS(status));
    report(address, number + " exit " + code);
    if (WEXITSTATUS(status) != 0)
        waitForEnter(program + " ended with error " + code + '.');
    return WEXITSTATUS(status);
}
