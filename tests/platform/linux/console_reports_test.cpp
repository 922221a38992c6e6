#include "platform/linux/console_reports.h"
#include "printing.h"
#include "scratch_directory.h"
#include "without_descriptors.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <optional>
#include <utility>
#include <vector>

#include <sys/socket.h>
#include <sys/un.h>

using namespace Qt::StringLiterals;
using platform::Ending;
using platform::host::ConsoleReports;
using testing::IsEmpty;

namespace {

class ConsoleReportsTest : public testing::Test
{
protected:
    /// Sends what the console helper would send.
    void send(const QByteArray &report)
    {
        const QByteArray path = reports->address();
        sockaddr_un name{};
        name.sun_family = AF_UNIX;
        std::copy(path.begin(), path.end(), name.sun_path);
        const platform::host::FileDescriptor socket(::socket(AF_UNIX, SOCK_DGRAM, 0));
        EXPECT_EQ(::sendto(socket.get(), report.constData(), static_cast<size_t>(report.size()), 0,
                           reinterpret_cast<const sockaddr *>(&name), sizeof name),
                  report.size());
    }

    support::ScratchDirectory scratch{"run"};
    support::ScopedVariable runtime{"XDG_RUNTIME_DIR", scratch.path()};
    std::vector<std::pair<int, Ending>> told;
    std::optional<ConsoleReports> reports{
        std::in_place, [this](int number, const Ending &ending) { told.emplace_back(number, ending); }};
};

} // namespace

TEST_F(ConsoleReportsTest, come_to_a_place_of_the_users_own_that_is_removed_again)
{
    EXPECT_THAT(scratch.names(), IsEmpty());
    const QByteArray address = reports->address();
    EXPECT_TRUE(address.startsWith(scratch.path("kinovra-")));
    EXPECT_TRUE(address.endsWith("/ended"));
    EXPECT_EQ(reports->address(), address);
    EXPECT_EQ(scratch.names().size(), 1);
    reports.reset();
    EXPECT_THAT(scratch.names(), IsEmpty());
}

TEST_F(ConsoleReportsTest, tell_how_a_program_ended)
{
    send("7 exit 3");
    send("8 signal 9");
    reports->receive();
    ASSERT_EQ(told.size(), 2U);
    EXPECT_EQ(told[0].first, 7);
    EXPECT_EQ(told[0].second.kind, Ending::Kind::Exited);
    EXPECT_EQ(told[0].second.code, 3);
    EXPECT_EQ(told[1].first, 8);
    EXPECT_EQ(told[1].second.kind, Ending::Kind::Crashed);
    EXPECT_EQ(told[1].second.code, 9);
}

TEST_F(ConsoleReportsTest, that_are_none_are_passed_over)
{
    for (const char *text : {"", "7", "7 exit", "7 exit 3 4"})
        send(text);
    send("8 exit 0");
    reports->receive();
    ASSERT_EQ(told.size(), 1U);
    EXPECT_EQ(told[0].first, 8);
}

TEST_F(ConsoleReportsTest, come_elsewhere_where_the_user_has_no_such_place)
{
    const QByteArray tooLong(90, 'x');
    scratch.makeDirectory(tooLong);
    for (const QByteArray &place :
         {QByteArray(), QByteArray("run"), scratch.path("gone"), scratch.path(tooLong)}) {
        const support::ScopedVariable variable("XDG_RUNTIME_DIR", place);
        ConsoleReports others([](int, const Ending &) {});
        EXPECT_TRUE(others.address().startsWith("/tmp/kinovra-")) << place.toStdString();
        EXPECT_FALSE(others.address().startsWith(scratch.path())) << place.toStdString();
    }
}

TEST_F(ConsoleReportsTest, have_no_address_while_nothing_can_be_opened)
{
    {
        const support::WithoutDescriptors none;
        EXPECT_EQ(reports->address(), QByteArray());
    }
    send("7 exit 0");
    reports->receive();
    EXPECT_EQ(told.size(), 1U);
    EXPECT_EQ(scratch.names().size(), 1);
}

TEST_F(ConsoleReportsTest, have_no_address_where_their_place_is_gone)
{
    {
        const support::WithoutDescriptors none;
        EXPECT_EQ(reports->address(), QByteArray());
    }
    scratch.remove(scratch.names().value(0));
    EXPECT_EQ(reports->address(), QByteArray());
}
