#include "platform/linux/session_bus.h"

#include "platform/linux/file_descriptor.h"

#include <QByteArray>
#include <QDeadlineTimer>
#include <QList>

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <cstring>
#include <optional>
#include <thread>

#include <poll.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>

using namespace std::chrono_literals;

extern char **environ; // NOLINT(readability-redundant-declaration): not declared everywhere

namespace platform::host {

namespace {

constexpr const char *Variable = "DBUS_SESSION_BUS_ADDRESS";
constexpr const char *NoBus = "disabled:";

enum class Answer { None, Refused, Given };

/// The variable's entry before the bus was avoided; null where there was none.
std::optional<QByteArray> &avoidedEntry()
{
    static std::optional<QByteArray> entry;
    return entry;
}

// The addresses that libraries try one after the other.
QList<QByteArray> sessionAddresses()
{
    const QByteArray chosen = qgetenv(Variable);
    if (!chosen.isEmpty())
        return chosen.split(';');
    const QByteArray own = qgetenv("XDG_RUNTIME_DIR") + "/bus";
    struct stat status = {};
    if (own.startsWith('/') && ::stat(own.constData(), &status) == 0 && S_ISSOCK(status.st_mode))
        return {"unix:path=" + own.toPercentEncoding("/")};
    return {};
}

// The socket's name for the system; empty for what is no address of a socket of this machine. An abstract
// name begins with NUL.
QByteArray socketName(const QByteArray &address)
{
    constexpr QByteArrayView Local = "unix:";
    if (!address.startsWith(Local))
        return {};
    for (const QByteArray &pair : address.mid(Local.size()).split(',')) {
        QByteArray value = QByteArray::fromPercentEncoding(pair.mid(pair.indexOf('=') + 1));
        if (pair.startsWith("path="))
            return value;
        if (pair.startsWith("abstract="))
            return '\0' + value;
    }
    return {};
}

Answer connectBefore(const QDeadlineTimer &deadline, int socket, const QByteArray &name)
{
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    if (name.size() >= qsizetype(sizeof address.sun_path))
        return Answer::Refused;
    std::copy(name.begin(), name.end(), address.sun_path);
    const auto size = static_cast<socklen_t>(offsetof(sockaddr_un, sun_path) + size_t(name.size()));
    while (::connect(socket, reinterpret_cast<sockaddr *>(&address), size) != 0) {
        // As many connections wait already as may.
        if (errno != EAGAIN && errno != EINTR)
            return Answer::Refused;
        if (deadline.hasExpired())
            return Answer::None;
        std::this_thread::sleep_for(10ms);
    }
    return Answer::Given;
}

// What is said to a greeting, be it only the end of the connection, is an answer.
Answer answerOf(const QByteArray &name)
{
    const QDeadlineTimer deadline(1s);
    const FileDescriptor bus(::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0));
    if (!bus.isValid())
        return Answer::Refused;
    const Answer connected = connectBefore(deadline, bus.get(), name);
    if (connected != Answer::Given)
        return connected;
    constexpr QByteArrayView Greeting("\0AUTH\r\n", 7);
    ::send(bus.get(), Greeting.data(), size_t(Greeting.size()), MSG_NOSIGNAL);
    pollfd waiting{bus.get(), POLLIN, 0};
    int count = 0;
    do
        count = ::poll(&waiting, 1, static_cast<int>(deadline.remainingTime()));
    while (count < 0 && errno == EINTR);
    return count == 0 ? Answer::None : Answer::Given;
}

bool isSessionBusSilent()
{
    for (const QByteArray &address : sessionAddresses()) {
        const QByteArray name = socketName(address);
        const Answer answer = name.isEmpty() ? Answer::Refused : answerOf(name);
        if (answer != Answer::Refused)
            return answer == Answer::None;
    }
    return false;
}

} // namespace

void avoidSilentSessionBus()
{
    if (!isSessionBusSilent())
        return;
    avoidedEntry() =
        qEnvironmentVariableIsSet(Variable) ? Variable + ("=" + qgetenv(Variable)) : QByteArray();
    qputenv(Variable, NoBus);
}

std::vector<char *> environmentOfPrograms()
{
    std::vector<char *> entries;
    std::optional<QByteArray> &avoided = avoidedEntry();
    const QByteArray withoutBus = QByteArray(Variable) + '=' + NoBus;
    for (char **entry = environ; *entry != nullptr; ++entry) {
        if (!avoided || *entry != withoutBus)
            entries.push_back(*entry);
        else if (!avoided->isNull())
            entries.push_back(avoided->data());
    }
    entries.push_back(nullptr);
    return entries;
}

} // namespace platform::host
