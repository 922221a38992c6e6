// What stands in a practice program's way, and what it must never touch.

#include "trial_directory.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <fstream>

namespace fs = std::filesystem;

using testing::ElementsAre;
using testing::HasSubstr;
using testing::UnorderedElementsAre;

namespace practice_tests {

namespace {

constexpr const char *NoLinks = "This user can make no symbolic links here.";

class StrayFile : public testing::Test
{
protected:
    StrayFile() { directory.write("walk1.dg", "title\n"); }

    // Runs Refila, which would leave walk1.cn and Refila.out, and expects that it touches nothing.
    void expectRefusal(const std::string &why) const
    {
        const auto before = directory.names();
        const Ended ended = directory.run("refila.exe", {"WALK1.DG"});
        EXPECT_EQ(ended.exitCode, 2);
        EXPECT_THAT(ended.err, HasSubstr(why));
        EXPECT_EQ(directory.names(), before);
    }

    TrialDirectory directory;
};

TEST_F(StrayFile, isKeptWhereItIsEmpty)
{
    directory.write("walk1.cn", "");
    expectRefusal("walk1.cn was not made by a practice program");
}

TEST_F(StrayFile, isKeptWhereTheSentenceIsNotInItsFirstLine)
{
    const std::string text = "mine\n" + sentenceOf("Refila") + "\n";
    directory.write("walk1.cn", text);
    expectRefusal("walk1.cn was not made by a practice program");
    EXPECT_EQ(directory.read("walk1.cn"), text);
}

TEST_F(StrayFile, isKeptWhereItsFirstLineIsEndless)
{
    const std::string text(100'000, 'x');
    directory.write("walk1.cn", text);
    expectRefusal("walk1.cn was not made by a practice program");
    EXPECT_EQ(directory.read("walk1.cn"), text);
}

TEST_F(StrayFile, isKeptWhereItIsALinkEvenToAnOwnFile)
{
    const std::string text = sentenceOf("Refila") + "\nelsewhere\n";
    directory.write("../elsewhere.cn", text);
    if (!makeLink(directory.outside("elsewhere.cn"), directory.path("walk1.cn")))
        GTEST_SKIP() << NoLinks;
    expectRefusal("walk1.cn is a link");
    EXPECT_TRUE(isLink(directory.path("walk1.cn")));
    EXPECT_EQ(contentOf(directory.outside("elsewhere.cn")), text);
}

TEST_F(StrayFile, isKeptWhereItIsALinkToNothing)
{
    if (!makeLink(directory.outside("elsewhere.cn"), directory.path("WALK1.CN")))
        GTEST_SKIP() << NoLinks;
    expectRefusal("WALK1.CN is a link");
    EXPECT_FALSE(fs::exists(directory.outside("elsewhere.cn")));
}

TEST_F(StrayFile, isKeptWhereTheListingIsALink)
{
    directory.write("../elsewhere.out", "mine\n");
    if (!makeLink(directory.outside("elsewhere.out"), directory.path("Refila.out")))
        GTEST_SKIP() << NoLinks;
    expectRefusal("Refila.out is a link");
    EXPECT_EQ(contentOf(directory.outside("elsewhere.out")), "mine\n");
}

TEST_F(StrayFile, isKeptWhereItIsADirectory)
{
    fs::create_directory(directory.path("walk1.CN"));
    expectRefusal("walk1.CN is a directory");
}

TEST_F(StrayFile, isKeptWhereItIsWriteProtected)
{
    directory.write("walk1.cn", sentenceOf("Refila") + "\n");
    fs::permissions(directory.path("walk1.cn"), fs::perms::owner_read);
    expectRefusal("walk1.cn is write-protected");
    fs::permissions(directory.path("walk1.cn"), fs::perms::owner_all);
}

TEST_F(StrayFile, isKeptInEverySpelling)
{
    if (!CaseTellsNamesApart)
        GTEST_SKIP() << "There is but one spelling of a name here.";
    directory.write("walk1.cn", sentenceOf("Refila") + "\n");
    directory.write("Walk1.CN", "mine\n");
    expectRefusal("Walk1.CN was not made by a practice program");
    EXPECT_EQ(directory.read("walk1.cn"), sentenceOf("Refila") + "\n");
}

TEST_F(StrayFile, isTheDataFileThatWouldBeConvertedToItself)
{
    EXPECT_EQ(directory.run("conv2dg.exe", {"walk1.dg"}).exitCode, 2);
    EXPECT_THAT(directory.names(), ElementsAre("walk1.dg"));
    EXPECT_EQ(directory.read("walk1.dg"), "title\n");
}

TEST_F(StrayFile, withAnotherHardLinkIsNotWrittenThrough)
{
    const std::string text = sentenceOf("Refila") + "\nolder\n";
    directory.write("walk1.cn", text);
    fs::create_hard_link(directory.path("walk1.cn"), directory.outside("copy.cn"));
    EXPECT_EQ(directory.run("refila.exe", {"WALK1.DG"}).exitCode, 0);
    EXPECT_NE(directory.read("walk1.cn"), text);
    EXPECT_EQ(contentOf(directory.outside("copy.cn")), text);
}

TEST_F(StrayFile, isNoInputWhereItIsADirectory)
{
    fs::create_directory(directory.path("jump1.dg"));
    EXPECT_EQ(directory.run("refila.exe", {"JUMP1.DG"}).exitCode, 1);
}

TEST_F(StrayFile, mayBeALinkWhereItIsOnlyRead)
{
    directory.write("../elsewhere.dg", "title\n");
    if (!makeLink(directory.outside("elsewhere.dg"), directory.path("jump1.dg")))
        GTEST_SKIP() << NoLinks;
    EXPECT_EQ(directory.run("refila.exe", {"JUMP1.DG"}).exitCode, 0);
    EXPECT_THAT(directory.names(), UnorderedElementsAre("Refila.out", "jump1.cn", "jump1.dg", "walk1.dg"));
}

TEST_F(StrayFile, isNotLeftBehindWhereAResultCannotBeWritten)
{
    // The longest name that a file can have: with ".cfb" in the place of ".dg" it is too long.
    const std::string longest = std::string(252, 'x') + ".dg";
    if (!std::ofstream(directory.path(longest)).is_open())
        GTEST_SKIP() << "The longest name is too long for a path here.";
    const auto before = directory.names();
    const Ended ended = directory.run("dg2cfb.exe", {longest});
    EXPECT_EQ(ended.exitCode, 4);
    EXPECT_THAT(ended.err, HasSubstr("DG2CFB could not write"));
    EXPECT_EQ(directory.names(), before);
}

} // namespace

} // namespace practice_tests
