// A copy under failures of every step: the source stays untouched, the destination is the old file or the new
// one and never anything between, and nothing is left beside them.

#include "failing_calls.h"
#include "platform/runtime_error.h"
#include "scratch_directory.h"

#include <gmock/gmock.h>

#include <cerrno>
#include <optional>
#include <vector>

#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

using platform::Replacing;
using platform::host::copyWholeFile;
using platform::host::SystemCalls;
using support::FailingCalls;
using testing::ElementsAre;

namespace {

class FileCopy : public testing::Test
{
protected:
    void SetUp() override
    {
        scratch.makeFile("walk1.cfb", fresh);
        scratch.makeFile("walk2.cfb", "old");
    }

    // The number of the error, 0 where there is none.
    static qint16 copy(const QByteArray &from, const QByteArray &to, SystemCalls &calls,
                       Replacing replacing = Replacing::Agreed)
    {
        try {
            copyWholeFile(from, to, replacing, calls);
        } catch (const platform::RuntimeError &error) {
            return error.Number;
        }
        return 0;
    }

    qint16 copy(const QByteArray &to, SystemCalls &calls, Replacing replacing = Replacing::Agreed) const
    {
        return copy(scratch.path("walk1.cfb"), scratch.path(to), calls, replacing);
    }

    std::optional<QByteArray> content(const QByteArray &name) const
    {
        return scratch.has(name) ? std::optional(scratch.read(name)) : std::nullopt;
    }

    const QByteArray fresh = QByteArray("0123456789").repeated(10'000);
    support::ScratchDirectory scratch{"models"};
};

// What is sent while the copy is made: open, create, two reads with eleven writes and the read that finds the
// end, flush, close, rename. The source is closed last, when nothing can go wrong any more.
constexpr int Steps = 19;

} // namespace

TEST_F(FileCopy, takes_these_steps)
{
    FailingCalls calls;
    EXPECT_EQ(copy("walk2.cfb", calls), 0);
    EXPECT_EQ(calls.made, Steps + 1);
    EXPECT_EQ(content("walk2.cfb"), fresh);
    EXPECT_THAT(scratch.names(), ElementsAre("walk1.cfb", "walk2.cfb"));
}

TEST_F(FileCopy, leaves_the_old_file_or_none_where_a_step_fails)
{
    const std::pair<int, qint16> errors[]{{EIO, 57},      {ENOSPC, 61},    {EDQUOT, 61},  {EACCES, 70},
                                          {EROFS, 70},    {EBUSY, 55},     {ETXTBSY, 55}, {EAGAIN, 55},
                                          {ENOTCONN, 68}, {ETIMEDOUT, 68}, {ESTALE, 76},  {EHOSTDOWN, 68},
                                          {EFBIG, 61},    {ENODEV, 68},    {EMFILE, 67}};
    for (const auto &[error, number] : errors) {
        for (int step = 0; step < Steps; ++step) {
            FailingCalls calls;
            calls.failing = step;
            calls.error = error;
            EXPECT_EQ(copy("walk2.cfb", calls), number) << error << " in step " << step;
            EXPECT_EQ(content("walk2.cfb"), "old") << error << " in step " << step;
            calls.made = 0;
            EXPECT_EQ(copy("walk3.cfb", calls, Replacing::Refused), number) << error << " in step " << step;
            EXPECT_EQ(content("walk1.cfb"), fresh) << error << " in step " << step;
            EXPECT_THAT(scratch.names(), ElementsAre("walk1.cfb", "walk2.cfb"))
                << error << " in step " << step;
        }
    }
}

TEST_F(FileCopy, says_why_nothing_can_be_called_so)
{
    FailingCalls calls;
    EXPECT_EQ(copy(QByteArray(300, 'x'), calls), 52);
    EXPECT_EQ(copy("walk2.cfb/walk3.cfb", calls), 76);
    EXPECT_EQ(calls.made, 4) << "the source is opened and closed, and nothing is written";
    EXPECT_THAT(scratch.names(), ElementsAre("walk1.cfb", "walk2.cfb"));
}

TEST_F(FileCopy, goes_on_after_an_interruption)
{
    // All but the first two and the last, which cannot be interrupted.
    for (int step = 2; step < Steps - 1; ++step) {
        FailingCalls calls;
        calls.failing = step;
        calls.error = EINTR;
        scratch.makeFile("walk2.cfb", "old");
        EXPECT_EQ(copy("walk2.cfb", calls), 0) << "step " << step;
        EXPECT_EQ(content("walk2.cfb"), fresh) << "step " << step;
    }
}

TEST_F(FileCopy, leaves_no_half_a_file_where_the_program_is_killed)
{
    for (int step = 0; step <= Steps; ++step) {
        scratch.makeFile("walk2.cfb", "old");
        const pid_t child = ::fork();
        ASSERT_GE(child, 0);
        if (child == 0) {
            FailingCalls calls;
            calls.failing = step;
            calls.dies = true;
            copy("walk2.cfb", calls);
            ::_exit(0);
        }
        int status = 0;
        ASSERT_EQ(::waitpid(child, &status, 0), child);
        ASSERT_TRUE(WIFEXITED(status) && WEXITSTATUS(status) == FailingCalls::Killed) << "step " << step;
        EXPECT_EQ(content("walk2.cfb"), step < Steps ? QByteArray("old") : fresh) << "step " << step;
        EXPECT_EQ(content("walk1.cfb"), fresh) << "step " << step;
    }
    // What such a program leaves is hidden and no model.
    for (const QByteArray &name : scratch.names()) {
        if (name != "walk1.cfb" && name != "walk2.cfb") {
            EXPECT_TRUE(name.startsWith(".kinovra-")) << name.toStdString();
        }
    }
    FailingCalls calls;
    EXPECT_EQ(copy("walk4.cfb", calls), 0) << "what was left is in nobody's way";
}

namespace {

/// Another program makes a file of the destination's name while the copy is written.
class ComesMeanwhile : public SystemCalls
{
public:
    explicit ComesMeanwhile(const support::ScratchDirectory &directory) : scratch(directory) {}

    int flush(int file) override
    {
        scratch.makeFile("walk3.cfb", "from another program");
        return SystemCalls::flush(file);
    }
    // What the file system cannot do; 0 for nothing.
    int renameNew(const QByteArray &from, const QByteArray &to) override
    {
        errno = cannotRename;
        return cannotRename != 0 ? -1 : SystemCalls::renameNew(from, to);
    }
    int link(const QByteArray &from, const QByteArray &to) override
    {
        errno = EPERM;
        return cannotLink ? -1 : SystemCalls::link(from, to);
    }

    const support::ScratchDirectory &scratch;
    int cannotRename = 0;
    bool cannotLink = false;
};

} // namespace

TEST_F(FileCopy, does_not_replace_what_has_come_meanwhile)
{
    for (int cannotRename : {0, EINVAL, ENOSYS, EOPNOTSUPP}) {
        for (bool cannotLink : {false, true}) {
            for (Replacing replacing : {Replacing::Refused, Replacing::Agreed}) {
                scratch.remove("walk3.cfb");
                ComesMeanwhile calls(scratch);
                calls.cannotRename = cannotRename;
                calls.cannotLink = cannotLink;
                EXPECT_EQ(copy("walk3.cfb", calls, replacing), 58) << "there was nothing to agree about";
                EXPECT_EQ(content("walk3.cfb"), "from another program");
                EXPECT_THAT(scratch.names(), ElementsAre("walk1.cfb", "walk2.cfb", "walk3.cfb"));
            }
        }
    }
}

TEST_F(FileCopy, becomes_new_on_every_file_system)
{
    class LimitedCalls : public SystemCalls
    {
    public:
        int renameNew(const QByteArray &, const QByteArray &) override
        {
            errno = EINVAL;
            return -1;
        }
        int link(const QByteArray &from, const QByteArray &to) override
        {
            errno = EPERM;
            return cannotLink ? -1 : SystemCalls::link(from, to);
        }
        bool cannotLink = false;
    } calls;
    for (bool cannotLink : {false, true}) {
        calls.cannotLink = cannotLink;
        EXPECT_EQ(copy("walk3.cfb", calls, Replacing::Refused), 0);
        EXPECT_EQ(content("walk3.cfb"), fresh);
        EXPECT_THAT(scratch.names(), ElementsAre("walk1.cfb", "walk2.cfb", "walk3.cfb"));
        struct stat status = {};
        ::stat(scratch.path("walk3.cfb").constData(), &status);
        EXPECT_EQ(status.st_nlink, 1U);
        scratch.remove("walk3.cfb");
    }
}

TEST_F(FileCopy, is_whole_where_the_file_system_knows_neither_groups_nor_modes_nor_flushing)
{
    class PoorCalls : public SystemCalls
    {
    public:
        int setGroup(int, gid_t) override { return fail(EPERM); }
        int setMode(int, mode_t) override { return fail(EPERM); }
        int flush(int) override { return fail(flushError); }
        int close(int file) override
        {
            SystemCalls::close(file);
            return fail(EINTR);
        }
        int flushError = EINVAL;

    private:
        static int fail(int error)
        {
            errno = error;
            return -1;
        }
    } calls;
    for (int error : {EINVAL, ENOSYS, EOPNOTSUPP}) {
        scratch.makeFile("walk2.cfb", "old");
        calls.flushError = error;
        EXPECT_EQ(copy("walk2.cfb", calls), 0) << error;
        EXPECT_EQ(content("walk2.cfb"), fresh) << error;
    }
}

TEST_F(FileCopy, gives_nobody_elses_group_what_the_group_might_do)
{
    class ForeignGroup : public SystemCalls
    {
    public:
        int setGroup(int, gid_t) override
        {
            errno = EPERM;
            return -1;
        }
    } calls;
    ::chmod(scratch.path("walk2.cfb").constData(), 0664);
    EXPECT_EQ(copy("walk2.cfb", calls), 0);
    struct stat status = {};
    ::stat(scratch.path("walk2.cfb").constData(), &status);
    EXPECT_EQ(status.st_mode & 0777U, 0604U);
}

TEST_F(FileCopy, fails_where_nothing_more_is_written)
{
    class StuckCalls : public SystemCalls
    {
    public:
        ssize_t write(int, const char *, size_t) override { return 0; }
    } calls;
    EXPECT_EQ(copy("walk2.cfb", calls), 57);
    EXPECT_EQ(content("walk2.cfb"), "old");
}

// A pipe without a writer would read as an empty file, or keep the panel waiting.
TEST_F(FileCopy, refuses_a_source_that_becomes_a_pipe_meanwhile)
{
    class SwappingCalls : public SystemCalls
    {
    public:
        explicit SwappingCalls(const support::ScratchDirectory &directory) : scratch(directory) {}
        int openSource(const QByteArray &path) override
        {
            scratch.remove("walk1.cfb");
            scratch.makePipe("walk1.cfb");
            return SystemCalls::openSource(path);
        }
        const support::ScratchDirectory &scratch;
    } calls(scratch);
    EXPECT_EQ(copy("walk2.cfb", calls), 75);
    EXPECT_EQ(content("walk2.cfb"), "old");
}

TEST_F(FileCopy, says_that_a_source_is_gone)
{
    class RemovingCalls : public SystemCalls
    {
    public:
        int openSource(const QByteArray &) override
        {
            errno = ENOENT;
            return -1;
        }
    } calls;
    EXPECT_EQ(copy("walk2.cfb", calls), 53);
}

TEST_F(FileCopy, leaves_other_copies_that_are_on_their_way)
{
    const QByteArray first = ".kinovra-" + QByteArray::number(::getpid()) + "-0";
    scratch.makeFile(first, "of another computer");
    SystemCalls calls;
    EXPECT_EQ(copy("walk2.cfb", calls), 0);
    EXPECT_EQ(content("walk2.cfb"), fresh);
    EXPECT_EQ(content(first), "of another computer");
}

TEST_F(FileCopy, gives_up_where_every_name_beside_is_taken)
{
    class TakenCalls : public SystemCalls
    {
    public:
        int create(const QByteArray &, mode_t) override
        {
            errno = EEXIST;
            return -1;
        }
    } calls;
    EXPECT_EQ(copy("walk2.cfb", calls), 58);
    EXPECT_EQ(content("walk2.cfb"), "old");
}

TEST_F(FileCopy, keeps_group_and_mode_of_what_it_replaces)
{
    // Of the groups that a user has, any but the first: only then can a file be given to it.
    gid_t groups[64];
    const int count = ::getgroups(64, groups);
    const gid_t group = ::geteuid() == 0 ? 1234 : (count > 1 ? groups[count - 1] : ::getegid());
    ASSERT_EQ(::chown(scratch.path("walk2.cfb").constData(), static_cast<uid_t>(-1), group), 0);
    ::chmod(scratch.path("walk2.cfb").constData(), 0664);
    ::chmod(scratch.path("walk1.cfb").constData(), 0400);
    class WatchingCalls : public SystemCalls
    {
    public:
        int create(const QByteArray &path, mode_t mode) override
        {
            modes.push_back(mode);
            return SystemCalls::create(path, mode);
        }
        std::vector<mode_t> modes;
    } calls;
    const mode_t before = ::umask(027);
    EXPECT_EQ(copy("walk2.cfb", calls), 0);
    EXPECT_EQ(copy("walk3.cfb", calls), 0);
    ::umask(before);
    EXPECT_THAT(calls.modes, ElementsAre(0600U, 0666U))
        << "nobody reads along before the copy is the original's";
    struct stat status = {};
    ::stat(scratch.path("walk2.cfb").constData(), &status);
    EXPECT_EQ(status.st_mode & 0777U, 0664U);
    EXPECT_EQ(status.st_gid, group);
    ::stat(scratch.path("walk3.cfb").constData(), &status);
    EXPECT_EQ(status.st_mode & 0777U, 0640U) << "as the user's new files are";
}

TEST_F(FileCopy, does_not_replace_what_its_owner_has_protected)
{
    ::chmod(scratch.path("walk2.cfb").constData(), 0444);
    ::chmod(scratch.path().constData(), 0777);
    scratch.makeDirectory("closed");
    ::chmod(scratch.path("closed").constData(), 0555);
    {
        const support::WithoutPrivileges nobody;
        SystemCalls calls;
        EXPECT_EQ(copy("walk2.cfb", calls), 70);
        EXPECT_EQ(content("walk2.cfb"), "old");
        EXPECT_EQ(copy("closed/walk3.cfb", calls), 70);
        EXPECT_THAT(scratch.names(), ElementsAre("closed", "walk1.cfb", "walk2.cfb"));
    }
    ::chmod(scratch.path("closed").constData(), 0755);
}

TEST_F(FileCopy, refuses_what_is_no_file_without_waiting)
{
    scratch.makePipe("pipe.cfb");
    scratch.makeLink("device.cfb", "/dev/zero");
    SystemCalls calls;
    EXPECT_EQ(copy(scratch.path("pipe.cfb"), scratch.path("new.cfb"), calls), 75);
    EXPECT_EQ(copy(scratch.path("device.cfb"), scratch.path("new.cfb"), calls), 75);
    EXPECT_EQ(copy("pipe.cfb", calls), 75);
    EXPECT_FALSE(scratch.has("new.cfb"));
    struct stat status = {};
    ASSERT_EQ(::lstat(scratch.path("pipe.cfb").constData(), &status), 0);
    EXPECT_TRUE(S_ISFIFO(status.st_mode));
}
