#include "platform/linux/console_reports.h"

#include "platform/linux/process_starter.h"

#include <QList>
#include <QSocketNotifier>

#include <algorithm>
#include <array>

#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>

namespace platform::host {

namespace {

QByteArray socketIn(const QByteArray &directory)
{
    return directory + "/ended";
}

// The system knows only short names for sockets.
bool isShortEnough(const QByteArray &socket)
{
    return socket.size() < qsizetype(sizeof sockaddr_un::sun_path);
}

QByteArray privateDirectory()
{
    const QByteArray runtime = qgetenv("XDG_RUNTIME_DIR");
    for (const QByteArray &parent : {runtime, QByteArray("/tmp")}) {
        QByteArray path = parent + "/kinovra-XXXXXX";
        if (parent.startsWith('/') && isShortEnough(socketIn(path)) && ::mkdtemp(path.data()) != nullptr)
            return path;
    }
    return {};
}

} // namespace

ConsoleReports::ConsoleReports(std::function<void(int, const Ending &)> ended) : ended_(std::move(ended)) {}

ConsoleReports::~ConsoleReports()
{
    notifier_.reset();
    if (!directory_.isEmpty()) {
        ::unlink(socketIn(directory_).constData());
        ::rmdir(directory_.constData());
    }
}

QByteArray ConsoleReports::address()
{
    return socket_.isValid() || open() ? socketIn(directory_) : QByteArray();
}

bool ConsoleReports::open()
{
    if (directory_.isEmpty())
        directory_ = privateDirectory();
    sockaddr_un name{};
    name.sun_family = AF_UNIX;
    const QByteArray path = socketIn(directory_);
    if (directory_.isEmpty())
        return false;
    std::copy(path.begin(), path.end(), name.sun_path);
    FileDescriptor socket(::socket(AF_UNIX, SOCK_DGRAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0));
    if (!socket.isValid() || ::bind(socket.get(), reinterpret_cast<sockaddr *>(&name), sizeof name) != 0)
        return false;
    socket_ = std::move(socket);
    notifier_ = std::make_unique<QSocketNotifier>(socket_.get(), QSocketNotifier::Read);
    QObject::connect(notifier_.get(), &QSocketNotifier::activated, [this] { receive(); });
    return true;
}

// A report is "number exit code" or "number signal number".
void ConsoleReports::receive()
{
    std::array<char, 128> buffer{};
    for (;;) {
        const ssize_t size = ::recv(socket_.get(), buffer.data(), buffer.size(), 0);
        if (size < 0)
            return;
        const QList<QByteArray> words = QByteArray(buffer.data(), size).split(' ');
        if (words.size() == 3) {
            const int code = words[2].toInt();
            ended_(words[0].toInt(), words[1] == "signal" ? endedBySignal(code) : endedByItself(code));
        }
    }
}

} // namespace platform::host
