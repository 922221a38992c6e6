#include "started_program.h"

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

StartedProgram::StartedProgram(const Start &start)
{
    const Pipe out = openPipe();
    const Pipe err = openPipe();

    posix_spawn_file_actions_t actions{};
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_addchdir_np(&actions, start.directory.c_str());
    posix_spawn_file_actions_addopen(&actions, STDIN_FILENO, start.input.c_str(), O_RDWR | O_NOCTTY, 0);
    posix_spawn_file_actions_adddup2(&actions, out.writeEnd, STDOUT_FILENO);
    posix_spawn_file_actions_adddup2(&actions, err.writeEnd, STDERR_FILENO);

    std::vector<std::string> words = start.words;
    std::vector<char *> argumentList;
    argumentList.reserve(words.size() + 1);
    for (std::string &word : words)
        argumentList.push_back(word.data());
    argumentList.push_back(nullptr);

    const int failure =
        posix_spawn(&id_, start.program.c_str(), &actions, nullptr, argumentList.data(), environ);
    posix_spawn_file_actions_destroy(&actions);
    close(out.writeEnd);
    close(err.writeEnd);
    out_ = out.readEnd;
    err_ = err.readEnd;
    if (failure != 0)
        throw std::runtime_error("cannot start " + start.program.string());
}

StartedProgram::~StartedProgram()
{
    if (id_ > 0) {
        kill(id_, SIGKILL);
        waitpid(id_, nullptr, 0);
    }
    for (const int end : {out_, err_}) {
        if (end >= 0)
            close(end);
    }
}

bool StartedProgram::isRunning() const
{
    siginfo_t information{};
    return waitid(P_PID, static_cast<id_t>(id_), &information, WEXITED | WNOHANG | WNOWAIT) == 0
           && information.si_pid == 0;
}

bool StartedProgram::says(const std::string &text)
{
    while (ended_.out.find(text) == std::string::npos) {
        if (!readSome())
            return false;
    }
    return true;
}

Ended StartedProgram::end()
{
    while (readSome())
        continue;
    int status = 0;
    waitpid(id_, &status, 0);
    id_ = 0;
    ended_.exitCode = exitCodeOf(status);
    return ended_;
}

// False where nothing more will come.
bool StartedProgram::readSome()
{
    constexpr int LongestSilence = 60'000;
    std::array<pollfd, 2> ends{pollfd{out_, POLLIN, 0}, pollfd{err_, POLLIN, 0}};
    if (out_ < 0 && err_ < 0)
        return false;
    if (poll(ends.data(), ends.size(), LongestSilence) <= 0)
        throw std::runtime_error("the program said nothing for too long");
    if (ends[0].revents != 0)
        readInto(ended_.out, out_);
    if (ends[1].revents != 0)
        readInto(ended_.err, err_);
    return true;
}

Ended runToEnd(const Start &start)
{
    return StartedProgram(start).end();
}

} // namespace practice_tests
