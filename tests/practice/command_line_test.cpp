// What the practice programs make of their command lines.

#include "expected_programs.h"
#include "trial_directory.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <set>

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

namespace practice_tests {

namespace {

TEST(CommandLine, sendsTheListingWhereItWasTold)
{
    TrialDirectory directory;
    directory.write("walk1.dg", "");
    for (const std::string device : {"/T", "/L", "/N", "-T", "/t", "/T/D"}) {
        const Ended ended = directory.run("refila.exe", {device, "WALK1.dg"});
        EXPECT_EQ(ended.exitCode, 0);
        EXPECT_FALSE(exists(directory.path("Refila.out"))) << device;
        const std::string listing = sentenceOf("Refila") + "\n" + device + "\nWALK1.dg\n";
        const bool toScreen = device.find_first_of("Tt") != std::string::npos;
        EXPECT_EQ(ended.out.starts_with(listing), toScreen) << device;
    }
}

TEST(CommandLine, takesSwitchesForTheListingOnlyWhereTheProgramHasThem)
{
    const std::set<std::string> obeying{"Refila",   "Errcheck", "Fourier", "Noise",  "Kinemati",
                                        "Momentum", "Muscle",   "Energy",  "Torque", "Force",
                                        "Powers",   "Simulate", "Average", "Graph"};
    for (const Expected &expected : expectedPrograms()) {
        if (expected.listing.empty())
            continue;
        for (const std::string device : {"/T", "/L", "/N"}) {
            const TrialDirectory directory;
            for (const std::string &name : expected.needs)
                directory.write(name, "");
            auto arguments = expected.arguments;
            arguments.insert(arguments.begin(), device);
            EXPECT_EQ(directory.run(expected.program, arguments).exitCode, 0) << expected.program << device;
            EXPECT_EQ(exists(directory.path(expected.listing)), !obeying.contains(expected.title))
                << expected.program << device;
        }
    }
}

TEST(CommandLine, listsEachArgumentExactlyAsItCame)
{
    TrialDirectory directory;
    directory.write("walk1.dg", "");
    std::vector<std::string> arguments{"",  " two  blanks ", "-x/Y",     "\"q'", "q\\\"", "end\\",
                                       "*", "%PATH%",        "Größe ☂ 𝄞"};
    if (AnyBytesAreNames)
        arguments.emplace_back("\xff\xfe");
    arguments.emplace_back("WALK1");
    EXPECT_EQ(directory.run("refila.exe", arguments).exitCode, 0);
    std::string listing = sentenceOf("Refila") + "\n";
    for (const std::string &argument : arguments)
        listing += argument + "\n";
    EXPECT_EQ(directory.read("Refila.out"), listing);
}

TEST(CommandLine, pausesOnlyForSomebodyAtATerminal)
{
    TrialDirectory directory;
    directory.write("walk1.cn", "");
    directory.write("walk1.cfb", "");
    directory.write("walk1.rf", "");

    EXPECT_THAT(directory.run("kinemati.exe", {"/D", "WALK1"}).out, Not(HasSubstr("Press Enter")));

    const Terminal terminal;
    if (!terminal.isThere())
        GTEST_SKIP() << "There is no terminal here.";
    const auto startAtTerminal = [&](std::vector<std::string> words) {
        return Start{STAND_IN_PROGRAM, std::move(words), directory.path(), terminal.keyboard()};
    };

    StartedProgram waiting(startAtTerminal({"kinemati.exe", "/D", "WALK1"}));
    ASSERT_TRUE(waiting.says("Press Enter to go on."));
    EXPECT_TRUE(waiting.isRunning());
    EXPECT_TRUE(exists(directory.path("walk1.km")));
    terminal.pressEnter();
    EXPECT_EQ(waiting.end().exitCode, 0);

    const Ended notAsked = runToEnd(startAtTerminal({"kinemati.exe", "WALK1"}));
    EXPECT_THAT(notAsked.out, Not(HasSubstr("Press Enter")));
    const Ended otherMeaning = runToEnd(startAtTerminal({"fpsig.exe", "/A/C/D/2", "WALK1.RF"}));
    EXPECT_EQ(otherMeaning.exitCode, 0);
    EXPECT_THAT(otherMeaning.out, Not(HasSubstr("Press Enter")));
}

TEST(CommandLine, survivesEveryArgument)
{
    tellSanitizersApart();
    const std::vector<std::vector<std::string>> odd{{},
                                                    {""},
                                                    {std::string(10000, 'x')},
                                                    {"\xff\xfe\xc3"},
                                                    {"\xed\xa0\x80\xf4\x90\x80\x80"},
                                                    {"/"},
                                                    {"-"},
                                                    {"//"},
                                                    {";"},
                                                    {"..", "/A"},
                                                    {"."},
                                                    {".dg"},
                                                    {"../walk1"},
                                                    {"a/b\\c"},
                                                    {"C:\\x\\walk1.cn"},
                                                    {"\n\r"},
                                                    {"*"},
                                                    {"[", "]", "|"},
                                                    {"/C", "/S"},
                                                    {std::string(10000, '/')},
                                                    {"walk1"},
                                                    {"x.gra"},
                                                    {std::string(5000, '.')},
                                                    {"/A", "..."},
                                                    {"/M", "\t"}};
    const TrialDirectory directory;
    for (const std::string &program : programNames()) {
        for (const auto &arguments : odd) {
            const Ended ended = directory.run(program, arguments);
            EXPECT_TRUE(ended.exitCode == 0 || ended.exitCode == 1)
                << program << ' ' << ended.exitCode << ended.err;
            EXPECT_THAT(firstLineOf(ended.out), HasSubstr("nothing was analysed."));
            EXPECT_EQ(linesOf(ended.err).size(), ended.exitCode == 0 ? 0U : 1U) << ended.err;
            EXPECT_LT(ended.err.size(), 1200U);
        }
    }
    EXPECT_THAT(directory.names(), IsEmpty());
}

TEST(CommandLine, takesNoTrialOfAnotherDirectory)
{
    TrialDirectory directory;
    directory.write("../walk1.dg", "");
    directory.write("walk1.dg", "");
    for (const std::string trial : {"../walk1.dg", "..\\walk1", "C:walk1.dg"}) {
        const Ended ended = directory.run("refila.exe", {trial});
        EXPECT_EQ(ended.exitCode, 1) << trial;
        EXPECT_THAT(ended.err, HasSubstr("without a path"));
    }
    EXPECT_THAT(directory.names(), ElementsAre("walk1.dg"));
    EXPECT_THAT(namesIn(directory.outside("")), ElementsAre("data", "walk1.dg"));
}

TEST(CommandLine, believesAViewersFileWithAPath)
{
    const TrialDirectory directory;
    EXPECT_EQ(directory.run("grafow.exe", {"Z:\\HOME\\ANNA\\WALK1.PLT"}).exitCode, 0);
    EXPECT_EQ(directory.run("grafow.exe", {"WALK1.PLT"}).exitCode, 1);
}

} // namespace

} // namespace practice_tests
