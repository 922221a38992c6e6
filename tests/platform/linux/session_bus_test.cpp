#include "platform/host.h"
#include "platform/linux/file_descriptor.h"
#include "platform/linux/process_starter.h"
#include "platform/linux/session_bus.h"
#include "printing.h"
#include "scratch_directory.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QEventLoop>
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <optional>
#include <stdexcept>
#include <thread>
#include <vector>

#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

using platform::host::avoidSilentSessionBus;
using platform::host::environmentOfPrograms;
using platform::host::FileDescriptor;

namespace {

enum class Bus { Silent, Refusing, Answering, Closing };

void require(bool done)
{
    if (!done)
        throw std::runtime_error("no socket");
}

/// A socket that is to be taken for a bus. An abstract name begins with NUL.
class FakeBus
{
public:
    FakeBus(const QByteArray &name, Bus kind, int mostWaiting = 5)
    {
        address_.sun_family = AF_UNIX;
        std::copy(name.begin(), name.end(), address_.sun_path);
        size_ = static_cast<socklen_t>(offsetof(sockaddr_un, sun_path) + size_t(name.size()));
        require(::bind(socket_.get(), reinterpret_cast<sockaddr *>(&address_), size_) == 0);
        if (kind != Bus::Refusing)
            require(::listen(socket_.get(), mostWaiting) == 0);
        if (kind == Bus::Answering || kind == Bus::Closing)
            server_ = std::thread([this, kind] { serve(kind); });
    }
    ~FakeBus()
    {
        if (server_.joinable()) {
            ::shutdown(socket_.get(), SHUT_RDWR);
            server_.join();
        }
    }
    FakeBus(const FakeBus &) = delete;
    FakeBus &operator=(const FakeBus &) = delete;

    /// Takes the place of a connection that waits, if there is one.
    void connectOnce()
    {
        waiting_.emplace_back(::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0));
        static_cast<void>(::connect(waiting_.back().get(), reinterpret_cast<sockaddr *>(&address_), size_));
    }

    QByteArray heard() const { return heard_; }

private:
    void serve(Bus kind)
    {
        const FileDescriptor connection(::accept(socket_.get(), nullptr, nullptr));
        std::array<char, 7> greeting{};
        if (!connection.isValid() || kind == Bus::Closing)
            return;
        const ssize_t size = ::recv(connection.get(), greeting.data(), greeting.size(), MSG_WAITALL);
        heard_ = QByteArray(greeting.data(), std::max<ssize_t>(size, 0));
        ::send(connection.get(), "REJECTED EXTERNAL\r\n", 19, MSG_NOSIGNAL);
    }

    FileDescriptor socket_{::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0)};
    sockaddr_un address_{};
    socklen_t size_ = 0;
    std::vector<FileDescriptor> waiting_;
    std::thread server_;
    QByteArray heard_;
};

class SessionBus : public testing::Test
{
protected:
    /// What the panel's own variable is when the bus that `chosen` names has been tried.
    QByteArray variableAfterwards(const QByteArray &chosen)
    {
        chosen.isNull() ? qunsetenv("DBUS_SESSION_BUS_ADDRESS") : qputenv("DBUS_SESSION_BUS_ADDRESS", chosen);
        QElapsedTimer timer;
        timer.start();
        avoidSilentSessionBus();
        milliseconds = timer.elapsed();
        return qgetenv("DBUS_SESSION_BUS_ADDRESS");
    }

    /// The variable of the programs that are started; null where it has none.
    static QByteArray handedOn()
    {
        const QByteArray name = "DBUS_SESSION_BUS_ADDRESS=";
        for (const char *entry : environmentOfPrograms()) {
            if (entry != nullptr && QByteArray(entry).startsWith(name))
                return QByteArray(entry).mid(name.size());
        }
        return {};
    }

    support::ScratchDirectory scratch;
    support::ScopedVariable address{"DBUS_SESSION_BUS_ADDRESS", QByteArray()};
    support::ScopedVariable runtime{"XDG_RUNTIME_DIR", scratch.path()};
    qint64 milliseconds = 0;
};

} // namespace

TEST_F(SessionBus, that_says_nothing_is_avoided_after_a_second)
{
    const FakeBus bus(scratch.path("silent"), Bus::Silent);
    EXPECT_EQ(variableAfterwards("unix:path=" + scratch.path("silent")), QByteArray("disabled:"));
    EXPECT_GE(milliseconds, 900);
    EXPECT_LT(milliseconds, 1'500);
}

TEST_F(SessionBus, that_takes_no_more_connections_is_avoided_after_a_second)
{
    FakeBus bus(scratch.path("full"), Bus::Silent, 0);
    bus.connectOnce();
    bus.connectOnce();
    EXPECT_EQ(variableAfterwards("unix:path=" + scratch.path("full")), QByteArray("disabled:"));
    EXPECT_LT(milliseconds, 1'500);
}

TEST_F(SessionBus, that_answers_is_used_without_delay)
{
    const QByteArray chosen = "unix:path=" + scratch.path("healthy") + ",guid=0123";
    {
        const FakeBus bus(scratch.path("healthy"), Bus::Answering);
        EXPECT_EQ(variableAfterwards(chosen), chosen);
        EXPECT_LT(milliseconds, 300);
        EXPECT_EQ(handedOn(), chosen);
        EXPECT_EQ(bus.heard(), QByteArray("\0AUTH\r\n", 7));
    }
    const FakeBus bus(scratch.path("closing"), Bus::Closing);
    const QByteArray closing = "unix:path=" + scratch.path("closing");
    EXPECT_EQ(variableAfterwards(closing), closing);
    EXPECT_LT(milliseconds, 300);
}

TEST_F(SessionBus, that_is_missing_or_refuses_is_left_alone)
{
    const FakeBus bus(scratch.path("refusing"), Bus::Refusing);
    for (const QByteArray &chosen :
         {QByteArray("unix:path=" + scratch.path("refusing")), QByteArray("unix:path=/no/such/bus"),
          QByteArray("unix:path=" + QByteArray(200, 'x')), QByteArray("tcp:host=localhost,port=1"),
          QByteArray("autolaunch:"), QByteArray("unix:"), QByteArray(";;"), QByteArray(""), QByteArray()}) {
        EXPECT_EQ(variableAfterwards(chosen), chosen);
        EXPECT_LT(milliseconds, 300);
        EXPECT_EQ(handedOn(), chosen);
    }
}

TEST_F(SessionBus, is_the_first_of_a_list_that_takes_a_connection)
{
    const FakeBus silent(scratch.path("silent bus"), Bus::Silent);
    const QByteArray silentAddress =
        "unix:guid=0123,path=" + scratch.path("silent bus").replace(" ", "%20") + ",x=y";
    EXPECT_EQ(variableAfterwards("unix:path=/no/such/bus;" + silentAddress), QByteArray("disabled:"));

    const FakeBus healthy(scratch.path("healthy"), Bus::Answering);
    const QByteArray list = "unix:path=" + scratch.path("healthy") + ';' + silentAddress;
    EXPECT_EQ(variableAfterwards(list), list);
}

TEST_F(SessionBus, may_have_an_abstract_name)
{
    const FakeBus bus('\0' + scratch.path("abstract"), Bus::Silent);
    EXPECT_EQ(variableAfterwards("unix:abstract=" + scratch.path("abstract")), QByteArray("disabled:"));
}

TEST_F(SessionBus, is_the_users_own_where_none_is_named)
{
    const FakeBus bus(scratch.path("bus"), Bus::Silent);
    EXPECT_EQ(variableAfterwards(QByteArray()), QByteArray("disabled:"));
    EXPECT_TRUE(handedOn().isNull()) << "not even an empty one";
    EXPECT_EQ(variableAfterwards(""), QByteArray("disabled:"));
    EXPECT_EQ(handedOn(), QByteArray(""));
    EXPECT_FALSE(handedOn().isNull());
}

TEST_F(SessionBus, of_the_user_may_be_in_a_directory_of_any_name)
{
    scratch.makeDirectory("odd, 100%41");
    const support::ScopedVariable odd("XDG_RUNTIME_DIR", scratch.path("odd, 100%41"));
    const FakeBus bus(scratch.path("odd, 100%41/bus"), Bus::Silent);
    EXPECT_EQ(variableAfterwards(QByteArray()), QByteArray("disabled:"));
}

TEST_F(SessionBus, that_says_nothing_is_avoided_when_the_panel_begins)
{
    const FakeBus bus(scratch.path("silent"), Bus::Silent);
    qputenv("DBUS_SESSION_BUS_ADDRESS", "unix:path=" + scratch.path("silent"));
    const auto begin = [] {
        platform::prepareProcess();
        ::_exit(qgetenv("DBUS_SESSION_BUS_ADDRESS") == "disabled:" ? 0 : 1);
    };
    EXPECT_EXIT(begin(), testing::ExitedWithCode(0), "");
}

TEST_F(SessionBus, that_is_avoided_is_still_handed_on_to_programs)
{
    const FakeBus bus(scratch.path("silent"), Bus::Silent);
    const QByteArray chosen = "unix:path=" + scratch.path("silent") + ",guid=0123";
    const support::ScopedVariable file("RECORD", scratch.path("record"));
    variableAfterwards(chosen);
    EXPECT_EQ(handedOn(), chosen);

    platform::host::ProcessStarter starter;
    std::optional<platform::Ending> ending;
    ASSERT_EQ(starter.start({"/bin/sh", "-c", "printf %s \"$DBUS_SESSION_BUS_ADDRESS\" >\"$RECORD\""}, "/",
                            [&ending](const platform::Ending &heard) { ending = heard; }),
              0);
    while (!ending)
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    EXPECT_EQ(scratch.read("record"), chosen);
}
