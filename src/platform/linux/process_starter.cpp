#include "platform/linux/process_starter.h"

#include "platform/linux/file_descriptor.h"
#include "platform/linux/session_bus.h"

#include <QSocketNotifier>

#include <csignal>
#include <vector>

#include <fcntl.h>
#include <spawn.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

namespace platform::host {

namespace {

/// What a new process does before it becomes the program.
class SpawnSettings
{
public:
    explicit SpawnSettings(const QByteArray &directory)
    {
        posix_spawn_file_actions_init(&actions_);
        posix_spawn_file_actions_addchdir_np(&actions_, directory.constData());
        posix_spawn_file_actions_addopen(&actions_, STDIN_FILENO, "/dev/null", O_RDONLY, 0);
        posix_spawn_file_actions_addopen(&actions_, STDOUT_FILENO, "/dev/null", O_WRONLY, 0);
        posix_spawn_file_actions_adddup2(&actions_, STDOUT_FILENO, STDERR_FILENO);
        posix_spawn_file_actions_addclosefrom_np(&actions_, STDERR_FILENO + 1);

        sigset_t signals;
        posix_spawnattr_init(&attributes_);
        posix_spawnattr_setflags(&attributes_,
                                 POSIX_SPAWN_SETSID | POSIX_SPAWN_SETSIGMASK | POSIX_SPAWN_SETSIGDEF);
        sigemptyset(&signals);
        posix_spawnattr_setsigmask(&attributes_, &signals);
        sigfillset(&signals);
        posix_spawnattr_setsigdefault(&attributes_, &signals);
    }
    ~SpawnSettings()
    {
        posix_spawnattr_destroy(&attributes_);
        posix_spawn_file_actions_destroy(&actions_);
    }
    SpawnSettings(const SpawnSettings &) = delete;
    SpawnSettings &operator=(const SpawnSettings &) = delete;

    const posix_spawn_file_actions_t *actions() const { return &actions_; }
    const posix_spawnattr_t *attributes() const { return &attributes_; }

private:
    posix_spawn_file_actions_t actions_{};
    posix_spawnattr_t attributes_{};
};

} // namespace

Ending endedBySignal(int signal)
{
    return {Ending::Kind::Crashed, signal, QStringLiteral("signal %1").arg(signal)};
}

Ending endedByItself(int code)
{
    constexpr int SomethingIsMissing = 127;
    return {Ending::Kind::Exited, code,
            code == SomethingIsMissing ? QStringLiteral("a library or program that it needs may be missing")
                                       : QString()};
}

ProcessStarter::ProcessStarter() = default;

ProcessStarter::~ProcessStarter()
{
    for (auto &[descriptor, child] : children_) {
        child.notifier.reset();
        ::close(descriptor);
    }
}

int ProcessStarter::start(const QList<QByteArray> &arguments, const QByteArray &directory,
                          std::function<void(const Ending &)> ended)
{
    reapUnwatched();
    std::vector<char *> argv;
    for (const QByteArray &argument : arguments)
        argv.push_back(
            const_cast<char *>(argument.constData())); // NOLINT: posix_spawn does not write to them
    argv.push_back(nullptr);

    const SpawnSettings settings(directory);
    const std::vector<char *> environment = environmentOfPrograms();
    pid_t process = 0;
    const int error = ::posix_spawn(&process, argv[0], settings.actions(), settings.attributes(), argv.data(),
                                    environment.data());
    if (error == 0)
        watch(process, std::move(ended));
    return error;
}

void ProcessStarter::watch(pid_t process, std::function<void(const Ending &)> ended)
{
    const int descriptor = static_cast<int>(::syscall(SYS_pidfd_open, process, 0));
    if (descriptor < 0) {
        unwatched_.append(process);
        return;
    }
    auto notifier = std::make_unique<QSocketNotifier>(descriptor, QSocketNotifier::Read);
    QObject::connect(notifier.get(), &QSocketNotifier::activated, [this, descriptor] { reap(descriptor); });
    children_.emplace(descriptor, Child{process, descriptor, std::move(notifier), std::move(ended)});
}

void ProcessStarter::reap(int descriptor)
{
    const auto found = children_.find(descriptor);
    int status = 0;
    if (found == children_.end() || ::waitpid(found->second.process, &status, WNOHANG) == 0)
        return;
    Child child = std::move(found->second);
    children_.erase(found);
    child.notifier->setEnabled(false);
    // The notifier is still delivering the event that led here.
    child.notifier.release()->deleteLater();
    ::close(descriptor);
    if (WIFSIGNALED(status))
        child.ended(endedBySignal(WTERMSIG(status)));
    else
        child.ended(endedByItself(WEXITSTATUS(status)));
}

void ProcessStarter::reapUnwatched()
{
    unwatched_.removeIf([](pid_t process) {
        int status = 0;
        return ::waitpid(process, &status, WNOHANG) != 0;
    });
}

} // namespace platform::host
