#include "started_program.h"
#include "test_host.h"

#include <array>
#include <csignal>
#include <cstddef>
#include <stdexcept>

#include <fcntl.h>
#include <poll.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

namespace practice_tests {

namespace {

struct Pipe
{
    int readEnd = -1;
    int writeEnd = -1;
};

Pipe openPipe()
{
    std::array<int, 2> ends{};
    if (pipe2(ends.data(), O_CLOEXEC) != 0)
        throw std::runtime_error("no pipe");
    return {ends[0], ends[1]};
}

void readInto(std::string &text, int &end)
{
    std::array<char, 4096> bytes{};
    const ssize_t count = read(end, bytes.data(), bytes.size());
    if (count > 0) {
        text.append(bytes.data(), static_cast<std::size_t>(count));
        return;
    }
    close(end);
    end = -1;
}

int exitCodeOf(int status)
{
    return WIFEXITED(status) ? WEXITSTATUS(status) : 1000 + WTERMSIG(status);
}

} // namespace

struct StartedProgram::Process
{
    pid_t id = 0;
    int out = -1;
    int err = -1;
};

StartedProgram::StartedProgram(const Start &start) : process_(std::make_unique<Process>())
{
    const std::filesystem::path input = start.input.empty() ? "/dev/null" : start.input;
    const Pipe out = openPipe();
    const Pipe err = openPipe();

    posix_spawn_file_actions_t actions{};
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_addchdir_np(&actions, start.directory.c_str());
    posix_spawn_file_actions_addopen(&actions, STDIN_FILENO, input.c_str(), O_RDWR | O_NOCTTY, 0);
    posix_spawn_file_actions_adddup2(&actions, out.writeEnd, STDOUT_FILENO);
    posix_spawn_file_actions_adddup2(&actions, err.writeEnd, STDERR_FILENO);

    std::vector<std::string> words = start.words;
    std::vector<char *> argumentList;
    argumentList.reserve(words.size() + 1);
    for (std::string &word : words)
        argumentList.push_back(word.data());
    argumentList.push_back(nullptr);

    const int failure =
        posix_spawn(&process_->id, start.program.c_str(), &actions, nullptr, argumentList.data(), environ);
    posix_spawn_file_actions_destroy(&actions);
    close(out.writeEnd);
    close(err.writeEnd);
    process_->out = out.readEnd;
    process_->err = err.readEnd;
    if (failure != 0)
        throw std::runtime_error("cannot start " + textOf(start.program));
}

StartedProgram::~StartedProgram()
{
    if (process_->id > 0) {
        kill(process_->id, SIGKILL);
        waitpid(process_->id, nullptr, 0);
    }
    for (const int end : {process_->out, process_->err}) {
        if (end >= 0)
            close(end);
    }
}

bool StartedProgram::isRunning() const
{
    siginfo_t information{};
    return waitid(P_PID, static_cast<id_t>(process_->id), &information, WEXITED | WNOHANG | WNOWAIT) == 0
           && information.si_pid == 0;
}

int StartedProgram::waitForExit()
{
    int status = 0;
    waitpid(process_->id, &status, 0);
    process_->id = 0;
    return exitCodeOf(status);
}

// False where nothing more will come.
bool StartedProgram::readSome()
{
    constexpr int LongestSilence = 60'000;
    std::array<pollfd, 2> ends{pollfd{process_->out, POLLIN, 0}, pollfd{process_->err, POLLIN, 0}};
    if (process_->out < 0 && process_->err < 0)
        return false;
    if (poll(ends.data(), ends.size(), LongestSilence) <= 0)
        throw std::runtime_error("the program said nothing for too long");
    if (ends[0].revents != 0)
        readInto(ended_.out, process_->out);
    if (ends[1].revents != 0)
        readInto(ended_.err, process_->err);
    return true;
}

} // namespace practice_tests
