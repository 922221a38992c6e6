// The console helper in a terminal.

#include "printing.h"

#include <QByteArray>
#include <gtest/gtest.h>

#include <array>

#include <pty.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

class ConsoleHelperTest : public testing::Test
{
protected:
    void run(const char *program)
    {
        child_ = ::forkpty(&terminal_, nullptr, nullptr, nullptr);
        ASSERT_GE(child_, 0);
        if (child_ == 0) {
            ::execl(KINOVRA_CONSOLE_HELPER, KINOVRA_CONSOLE_HELPER, "", "1", program, nullptr);
            ::_exit(126);
        }
    }

    // All that is shown until `text` is, or until the end.
    QByteArray shownUntil(const QByteArray &text)
    {
        QByteArray shown;
        std::array<char, 256> buffer{};
        while (!shown.contains(text)) {
            const ssize_t size = ::read(terminal_, buffer.data(), buffer.size());
            if (size <= 0)
                break;
            shown.append(buffer.data(), size);
        }
        return shown;
    }

    void pressEnter() const { EXPECT_EQ(::write(terminal_, "\n", 1), 1); }

    int exitCode() const
    {
        int status = 0;
        ::waitpid(child_, &status, 0);
        return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
    }

    void TearDown() override { ::close(terminal_); }

private:
    int terminal_ = -1;
    pid_t child_ = -1;
};

} // namespace

TEST_F(ConsoleHelperTest, keeps_the_window_open_where_the_program_has_failed)
{
    run("/bin/false");
    EXPECT_TRUE(shownUntil("to close this window.").contains("/bin/false ended with error 1."));
    pressEnter();
    EXPECT_EQ(exitCode(), 1);
}

TEST_F(ConsoleHelperTest, keeps_it_open_where_there_was_nothing_to_start)
{
    run("/no/such/program");
    EXPECT_TRUE(shownUntil("to close this window.").contains("/no/such/program could not be started"));
    pressEnter();
    EXPECT_EQ(exitCode(), 127);
}

TEST_F(ConsoleHelperTest, closes_it_where_all_went_well)
{
    run("/bin/true");
    EXPECT_FALSE(shownUntil("Enter").contains("Enter"));
    EXPECT_EQ(exitCode(), 0);
}
