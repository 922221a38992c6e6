// What the practice programs say and leave, under all their names.

#include "expected_programs.h"
#include "trial_directory.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
using testing::UnorderedElementsAreArray;

namespace practice_tests {

namespace {

std::string inCase(std::string text, int (*letterCase)(int))
{
    std::transform(text.begin(), text.end(), text.begin(),
                   [letterCase](unsigned char c) { return static_cast<char>(letterCase(c)); });
    return text;
}

std::vector<std::string> all(std::vector<std::string> names, const std::vector<std::string> &more,
                             const std::string &last)
{
    names.insert(names.end(), more.begin(), more.end());
    if (!last.empty())
        names.push_back(last);
    return names;
}

std::string listingOf(const Expected &expected)
{
    std::string text = sentenceOf(expected.title) + '\n';
    for (const std::string &argument : expected.arguments)
        text += argument + '\n';
    return text;
}

// Puts all files that a start needs into `directory`, but for one.
void provide(const TrialDirectory &directory, const std::vector<std::string> &needs,
             const std::string &allBut = "")
{
    for (const std::string &name : needs) {
        if (name != allBut)
            directory.write(name, "something\n");
    }
}

class EveryStart : public testing::TestWithParam<Expected>
{
protected:
    Ended runIn(const TrialDirectory &directory) const
    {
        return directory.run(GetParam().program, GetParam().arguments);
    }
};

TEST_P(EveryStart, saysThatNothingWasAnalysedAndLeavesWhatItsNamesakeWould)
{
    const Expected &expected = GetParam();
    const TrialDirectory directory;
    provide(directory, expected.needs);

    const Ended ended = runIn(directory);

    EXPECT_EQ(ended.exitCode, 0);
    EXPECT_EQ(firstLineOf(ended.out), sentenceOf(expected.title));
    EXPECT_THAT(ended.err, IsEmpty());
    EXPECT_THAT(directory.names(),
                UnorderedElementsAreArray(all(expected.needs, expected.leaves, expected.listing)));
    for (const std::string &name : expected.needs)
        EXPECT_EQ(directory.read(name), "something\n") << name;
    for (const std::string &name : expected.leaves)
        EXPECT_EQ(firstLineOf(directory.read(name)), sentenceOf(expected.title)) << name;
    if (!expected.listing.empty()) {
        EXPECT_EQ(directory.read(expected.listing), listingOf(expected));
    }
}

TEST_P(EveryStart, refusesInOneSentenceWhereAFileIsMissing)
{
    for (const std::string &missing : GetParam().needs) {
        const TrialDirectory directory;
        provide(directory, GetParam().needs, missing);
        const auto before = directory.names();

        const Ended ended = runIn(directory);

        EXPECT_EQ(ended.exitCode, 1) << missing;
        EXPECT_EQ(firstLineOf(ended.out), sentenceOf(GetParam().title));
        EXPECT_THAT(linesOf(inCase(ended.err, std::tolower)), ElementsAre(HasSubstr(missing)));
        EXPECT_EQ(directory.names(), before);
    }
}

TEST_P(EveryStart, replacesWhatAPracticeProgramLeftBefore)
{
    const Expected &expected = GetParam();
    const TrialDirectory directory;
    provide(directory, expected.needs);
    for (const std::string &name : all(expected.leaves, {}, expected.listing))
        directory.write(name, sentenceOf("Powers") + "\r\nolder\n");

    EXPECT_EQ(runIn(directory).exitCode, 0);

    for (const std::string &name : all(expected.leaves, {}, expected.listing))
        EXPECT_THAT(directory.read(name), Not(HasSubstr("older"))) << name;
    EXPECT_THAT(directory.names(),
                UnorderedElementsAreArray(all(expected.needs, expected.leaves, expected.listing)));
}

TEST_P(EveryStart, leavesEverythingWhereAFileIsNotItsOwn)
{
    const Expected &expected = GetParam();
    // A practice program knows its own by the whole first line.
    const std::vector<std::string> contents{"weeks of work\n", "Notes: " + sentenceOf("Kinemati") + '\n',
                                            sentenceOf("Kinemati") + " Mine!\n",
                                            sentenceOf("Another") + '\n'};
    for (const std::string &foreign : all(expected.leaves, {}, expected.listing)) {
        for (const std::string &content : contents) {
            const TrialDirectory directory;
            provide(directory, expected.needs);
            const std::string name = &content == &contents[0] ? inCase(foreign, std::toupper) : foreign;
            directory.write(name, content);
            const auto before = directory.names();

            const Ended ended = runIn(directory);

            EXPECT_EQ(ended.exitCode, 2) << name;
            EXPECT_THAT(linesOf(ended.err), ElementsAre(HasSubstr(name)));
            EXPECT_EQ(directory.read(name), content);
            EXPECT_EQ(directory.names(), before);
        }
    }
}

TEST_P(EveryStart, printsItsUsageAndWritesNothing)
{
    const std::string name = GetParam().program.substr(0, GetParam().program.find('.'));
    const TrialDirectory directory;
    provide(directory, GetParam().needs);
    const auto before = directory.names();
    for (const std::vector<std::string> &asking :
         {std::vector<std::string>{"/?", "/HELP"}, {"-?"}, {"/help"}, {"/A/?"}}) {
        auto arguments = GetParam().arguments;
        arguments.insert(arguments.begin(), asking.begin(), asking.end());

        const Ended ended = directory.run(GetParam().program, arguments);

        EXPECT_EQ(ended.exitCode, 0);
        EXPECT_EQ(firstLineOf(ended.out), sentenceOf(GetParam().title));
        EXPECT_THAT(ended.out, HasSubstr("Usage: " + name + " "));
        EXPECT_THAT(ended.err, IsEmpty());
        EXPECT_EQ(directory.names(), before);
    }
}

INSTANTIATE_TEST_SUITE_P(All, EveryStart, testing::ValuesIn(expectedPrograms()));

TEST(StandIn, standsInForThirtyOnePrograms)
{
    EXPECT_EQ(programNames().size(), 31U);
}

TEST(StandIn, usageTellsNeedsLeavingsAndSwitches)
{
    const TrialDirectory directory;
    const std::string usage = directory.run("powers.exe", {"/?"}).out;
    EXPECT_THAT(usage, HasSubstr("trial.km, trial.cfb, trial.fo or trial.jp"));
    EXPECT_THAT(usage, HasSubstr("trial.ps, trial.pj"));
    EXPECT_THAT(usage, HasSubstr("Powers.out"));
    EXPECT_THAT(usage, HasSubstr("/D  pause"));

    const std::string other = directory.run("skelvo.exe", {"/?"}).out;
    EXPECT_THAT(other, HasSubstr("With /A: Its namesake converts"));
    EXPECT_THAT(other, HasSubstr("the named file (.dg), if any"));
    EXPECT_THAT(other, HasSubstr("Listing: none"));
}

TEST(StandIn, knowsItsNameInEverySpelling)
{
    for (const std::string name : {"KINEMATI.EXE", "Kinemati.Exe", "kinemati", "Z:\\PACKAGE\\KINEMATI.EXE",
                                   "/opt/kinovra/kinemati.exe", "C:kinemati.exe", "./Kinemati.exe"}) {
        TrialDirectory directory;
        directory.write("walk1.cn", "");
        directory.write("walk1.cfb", "");
        EXPECT_EQ(directory.run(name, {"WALK1"}).exitCode, 0) << name;
        EXPECT_TRUE(exists(directory.path("Kinemati.out"))) << name;
    }
}

TEST(StandIn, refusesANameThatIsNotInThePackage)
{
    const TrialDirectory directory;
    for (const std::string name :
         {"frobnicate.exe", "practice_stand_in", "kinematix", "", ".exe", "/", "\x1b[2J"}) {
        const Ended ended = directory.run(name, {"WALK1", "/?"});
        EXPECT_EQ(ended.exitCode, 3) << name;
        EXPECT_THAT(firstLineOf(ended.out),
                    HasSubstr("is a Kinovra practice program: nothing was analysed."));
        EXPECT_THAT(linesOf(ended.err), ElementsAre(HasSubstr("is no name of a program")));
        EXPECT_THAT(ended.out + ended.err, Not(HasSubstr("\x1b")));
    }
    EXPECT_EQ(runToEnd({STAND_IN_PROGRAM, {}, directory.path()}).exitCode, 3);
    EXPECT_THAT(directory.names(), IsEmpty());
}

TEST(StandIn, spellsResultsAsTheTrialsFilesAreSpelled)
{
    struct Row
    {
        std::string file;
        std::string argument;
        std::string result;
    };
    for (const Row &row : {Row{"walk1.dg", "WALK1.DG", "walk1.cn"}, Row{"WALK1.DG", "walk1.dg", "WALK1.cn"},
                           Row{"Walk1.Dg", "WALK1", "Walk1.cn"}, Row{"a.b.dg", "A.B", "a.b.cn"},
                           Row{"a.b.dg", "A.B.DG", "a.b.cn"}, Row{"my walk.dg", "MY WALK.DG", "my walk.cn"},
                           Row{"läufer1.dg", "LÄUFER1", "läufer1.cn"}, Row{"ŁÓDŹ.dg", "łódź.DG", "ŁÓDŹ.cn"},
                           Row{"δρόμος.dg", "ΔΡΌΜΟς", "δρόμος.cn"}, Row{"бег.dg", "БЕГ", "бег.cn"},
                           Row{"straße.dg", "STRAßE", "straße.cn"}, Row{"𝄞 1.dg", "𝄞 1.DG", "𝄞 1.cn"},
                           Row{"a\xff.dg", "A\xff", "a\xff.cn"}}) {
        if (row.file.find('\xff') != std::string::npos && !AnyBytesAreNames)
            continue;
        TrialDirectory directory;
        directory.write(row.file, "title\n");
        EXPECT_EQ(directory.run("refila.exe", {row.argument}).exitCode, 0) << row.file;
        EXPECT_TRUE(exists(directory.path(row.result))) << row.result;
        EXPECT_EQ(directory.names().size(), 3U);
    }
}

TEST(StandIn, prefersTheExactSpellingWhereNamesDifferInCaseAlone)
{
    if (!CaseTellsNamesApart)
        GTEST_SKIP() << "No names differ in case alone here.";
    TrialDirectory directory;
    directory.write("WALK1.DG", "");
    directory.write("walk1.DG", "");
    EXPECT_EQ(directory.run("refila.exe", {"walk1.DG"}).exitCode, 0);
    EXPECT_THAT(directory.names(),
                UnorderedElementsAreArray({"Refila.out", "WALK1.DG", "walk1.DG", "walk1.cn"}));
}

TEST(StandIn, replacesItsOwnFileUnderTheNameThatItHas)
{
    TrialDirectory directory;
    directory.write("walk1.dg", "");
    directory.write("WALK1.CN", sentenceOf("Refila") + "\r\nolder\r\n");
    directory.write("REFILA.OUT", sentenceOf("Refila") + "\r\nolder\r\n");
    EXPECT_EQ(directory.run("refila.exe", {"WALK1"}).exitCode, 0);
    EXPECT_THAT(directory.names(), UnorderedElementsAreArray({"REFILA.OUT", "WALK1.CN", "walk1.dg"}));
    EXPECT_THAT(directory.read("WALK1.CN"), Not(HasSubstr("older")));
}

TEST(StandIn, endsItsLinesAsTheSystemDoes)
{
    TrialDirectory directory;
    directory.write("walk1.dg", "");
    EXPECT_EQ(directory.run("refila.exe", {"WALK1"}).exitCode, 0);
    EXPECT_EQ(contentOf(directory.path("Refila.out")), sentenceOf("Refila") + LineEnd + "WALK1" + LineEnd);
}

TEST(StandIn, renewsASimulationAndSubtractsFromAnAverage)
{
    TrialDirectory directory;
    directory.write("walk1.cfb", "");
    directory.write("walk1.pj", "");
    EXPECT_EQ(directory.run("interact.exe", {"WALK1"}).exitCode, 1);
    EXPECT_EQ(directory.run("interact.exe", {"/L", "/C", "/D", "WALK1"}).exitCode, 0);
    EXPECT_EQ(directory.run("interact.exe", {"WALK1"}).exitCode, 0);
    EXPECT_EQ(directory.run("average.exe", {"/S", "WALK1.PJ"}).exitCode, 1);
    EXPECT_EQ(directory.run("average.exe", {"WALK1.PJ"}).exitCode, 0);
    EXPECT_EQ(directory.run("average.exe", {"/S", "WALK1"}).exitCode, 0);
    EXPECT_THAT(directory.names(), UnorderedElementsAreArray({"Average.out", "average.av", "average.sss",
                                                              "walk1.cfb", "walk1.pj", "walk1.sim"}));
}

} // namespace

} // namespace practice_tests
