// What a practice program makes of files that another program keeps open, which Windows lets it do.

#include "trial_directory.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <windows.h>

using testing::ElementsAre;
using testing::HasSubstr;

namespace practice_tests {

namespace {

/// Keeps a file open as long as this lives, and lets others do with it what `sharing` says.
class KeptOpen
{
public:
    KeptOpen(const std::filesystem::path &path, DWORD sharing)
        : handle_(CreateFileW(path.c_str(), GENERIC_READ, sharing, nullptr, OPEN_EXISTING, 0, nullptr))
    {
        EXPECT_NE(handle_, INVALID_HANDLE_VALUE);
    }
    KeptOpen(const KeptOpen &) = delete;
    KeptOpen &operator=(const KeptOpen &) = delete;
    ~KeptOpen() { CloseHandle(handle_); }

private:
    HANDLE handle_;
};

TEST(OpenFile, isKeptWhereItIsOnlyReadElsewhere)
{
    const std::string text = sentenceOf("Refila") + "\nolder\n";
    TrialDirectory directory;
    directory.write("walk1.dg", "");
    directory.write("walk1.cn", text);
    const KeptOpen reader(directory.path("walk1.cn"), FILE_SHARE_READ | FILE_SHARE_WRITE);

    const Ended ended = directory.run("refila.exe", {"WALK1"});

    EXPECT_EQ(ended.exitCode, 4);
    EXPECT_THAT(linesOf(ended.err), ElementsAre("Refila could not write walk1.cn."));
    EXPECT_THAT(directory.names(), ElementsAre("walk1.cn", "walk1.dg"));
    EXPECT_EQ(directory.read("walk1.cn"), text);
}

TEST(OpenFile, isKeptWhereNobodyElseMayReadIt)
{
    TrialDirectory directory;
    directory.write("walk1.dg", "");
    directory.write("walk1.cn", sentenceOf("Refila") + "\n");
    const KeptOpen owner(directory.path("walk1.cn"), 0);

    const Ended ended = directory.run("refila.exe", {"WALK1"});

    EXPECT_EQ(ended.exitCode, 2);
    EXPECT_THAT(linesOf(ended.err), ElementsAre(HasSubstr("walk1.cn cannot be read")));
    EXPECT_THAT(directory.names(), ElementsAre("walk1.cn", "walk1.dg"));
}

TEST(OpenFile, isNoInputWhereNobodyElseMayReadIt)
{
    TrialDirectory directory;
    directory.write("walk1.dg", "");
    const KeptOpen owner(directory.path("walk1.dg"), 0);

    const Ended ended = directory.run("refila.exe", {"WALK1"});

    EXPECT_EQ(ended.exitCode, 1);
    EXPECT_THAT(linesOf(ended.err), ElementsAre(HasSubstr("needs WALK1.dg")));
    EXPECT_THAT(directory.names(), ElementsAre("walk1.dg"));
}

} // namespace

} // namespace practice_tests
