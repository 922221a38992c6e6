// Whether the practice package is complete, and how it is put together.

#include "trial_directory.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>
#include <chrono>
#include <sstream>

namespace fs = std::filesystem;

using testing::ElementsAre;
using testing::Gt;
using testing::HasSubstr;
using testing::IsSupersetOf;
using testing::Not;
using testing::SizeIs;
using testing::UnorderedElementsAreArray;

namespace practice_tests {

namespace {

const fs::path Package = PACKAGE_DIRECTORY;
const fs::path Source = PRACTICE_SOURCE;

const std::vector<std::string> Programs{
    "acrospin.exe", "average.exe",  "conv2dg.exe",  "dg2cfb.exe",   "energy.exe",   "errcheck.exe",
    "force.exe",    "forces.exe",   "fourier.exe",  "fpanalyz.exe", "fphist.exe",   "fplate.exe",
    "fpsig.exe",    "grafod.exe",   "grafow.exe",   "graph.exe",    "interact.exe", "kinemati.exe",
    "modlex.exe",   "momentum.exe", "muscle.exe",   "noise.exe",    "ondex2.exe",   "options.exe",
    "powers.exe",   "refila.exe",   "renumber.exe", "simulate.exe", "skelvo.exe",   "skelvo98.exe",
    "torque.exe"};

const std::vector<std::string> HelpTexts{"average.txt", "dg_file.txt",  "energy.txt",   "force.txt",
                                         "fplate.txt",  "kinemati.txt", "momentum.txt", "muscle.txt",
                                         "ondex.txt",   "options.txt",  "overview.txt", "powers.txt",
                                         "readme.txt",  "refila.txt",   "simulate.txt", "skelvo.txt",
                                         "torque.txt",  "updatekv.txt", "work.txt"};

const std::vector<std::string> TrialFiles{"JUMP1.CFB", "JUMP1.CN",  "JUMP1.DG",  "JUMP1.KM",  "JUMP1.KS",
                                          "LIFT1.CFB", "LIFT1.CN",  "LIFT1.DG",  "LIFT1.km",  "LIFT1.ks",
                                          "LIFT1.rf",  "LIFT1.rf2", "WALK1.CFB", "WALK1.CN",  "WALK1.DG",
                                          "kick1.1t",  "kick1.3d",  "kick1.cf",  "one_model", "peak1.cda",
                                          "run1.dg",   "run1.ren",  "walk2.cfb", "walk2.cn",  "walk2.dg"};

std::string extensionOf(const fs::path &path)
{
    std::string extension = textOf(path.extension());
    std::transform(extension.begin(), extension.end(), extension.begin(),
                   [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
    return extension;
}

std::vector<std::string> visibleNamesIn(const fs::path &directory)
{
    auto names = namesIn(directory);
    std::erase_if(names, [](const std::string &name) { return name.starts_with('.'); });
    return names;
}

std::vector<fs::path> trialFiles()
{
    std::vector<fs::path> files;
    for (const auto &entry : fs::recursive_directory_iterator(Source / "trials")) {
        if (entry.is_regular_file() && !textOf(entry.path().filename()).starts_with('.'))
            files.push_back(entry.path());
    }
    return files;
}

TEST(Package, holdsEveryProgramUnderItsName)
{
    const TrialDirectory directory;
    EXPECT_THAT(namesIn(Package), IsSupersetOf(Programs));
    for (const std::string &program : Programs) {
        const Ended ended =
            runToEnd({Package / program, {textOf(Package / program), "/?"}, directory.path()});
        EXPECT_EQ(ended.exitCode, 0) << program;
        EXPECT_THAT(firstLineOf(ended.out), HasSubstr(" is a Kinovra practice program")) << program;
    }
}

TEST(Package, holdsATextForEveryHelpTopic)
{
    EXPECT_THAT(namesIn(Source / "help"), UnorderedElementsAreArray(HelpTexts));
    for (const std::string &name : HelpTexts) {
        const std::string text = contentOf(Source / "help" / name);
        EXPECT_EQ(contentOf(Package / name), text) << name;
        std::istringstream lines(text);
        std::size_t count = 0;
        for (std::string line; std::getline(lines, line); ++count)
            EXPECT_LE(line.size(), 76U) << name << ": " << line;
        EXPECT_GE(count, 15U) << name;
        EXPECT_LE(count, 45U) << name;
        EXPECT_TRUE(std::all_of(text.begin(), text.end(), [](char c) {
            return c == '\n' || (c >= ' ' && c <= '~');
        })) << name;
        EXPECT_TRUE(text.ends_with(".\n")) << name;
    }
}

TEST(Package, saysThatItsProgramsAnalyseNothing)
{
    EXPECT_THAT(contentOf(Package / "overview.txt"), HasSubstr("its programs analyse nothing"));
    EXPECT_THAT(contentOf(Package / "readme.txt"), HasSubstr("THEY ANALYSE NOTHING"));
}

TEST(Package, holdsGraphTypesThatSayWhatTheyDraw)
{
    const auto names = namesIn(Source / "graphs");
    EXPECT_THAT(names, IsSupersetOf({"RUN.GRA", "STICK.GRA", "POWERS.GRA", "FORCES.GRA"}));
    for (const std::string &name : names) {
        const std::string text = contentOf(Package / "graphs" / name);
        EXPECT_EQ(text, contentOf(Source / "graphs" / name));
        EXPECT_TRUE(text.starts_with("; ")) << name;
        EXPECT_THAT(firstLineOf(text), SizeIs(Gt(20U))) << name;
    }
}

TEST(Package, holdsTheManualsUnderTheNamesThatThePanelKnows)
{
    if (!HAS_MANUALS)
        GTEST_SKIP() << "What makes the user's guide was not there when the build was set up.";
    for (const std::string name : {"kinovra.pdf", "kv_qrg.pdf", "kv_win.pdf"}) {
        const std::string text = contentOf(Package / "manuals" / name);
        EXPECT_TRUE(text.starts_with("%PDF-")) << name;
        EXPECT_GT(text.size(), 20'000U) << name;
    }
    EXPECT_EQ(contentOf(Package / "manuals" / "kv_qrg.pdf"), contentOf(Package / "manuals" / "kv_win.pdf"));
}

TEST(Trials, areThereAtEveryStage)
{
    EXPECT_THAT(visibleNamesIn(Source / "trials"), UnorderedElementsAreArray(TrialFiles));
    EXPECT_THAT(namesIn(Package / "trials"), IsSupersetOf(TrialFiles));
    EXPECT_THAT(visibleNamesIn(Source / "trials" / "one_model"),
                ElementsAre("SQUAT1.CFB", "SQUAT1.CN", "SQUAT1.DG"));
}

TEST(Trials, areSmallPlainTextWithTheLineEndsOfOldData)
{
    for (const fs::path &file : trialFiles()) {
        const std::string text = contentOf(file);
        EXPECT_LT(text.size(), 10'000U) << file;
        EXPECT_TRUE(text.ends_with("\r\n")) << file;
        const auto lineEnds = std::count(text.begin(), text.end(), '\n');
        EXPECT_EQ(std::count(text.begin(), text.end(), '\r'), lineEnds) << file;
        EXPECT_TRUE(std::all_of(text.begin(), text.end(), [](char c) {
            return c == '\r' || c == '\n' || (c >= ' ' && c <= '~');
        })) << file;
    }
}

TEST(Trials, haveTitles)
{
    for (const fs::path &file : trialFiles()) {
        const std::string extension = extensionOf(file);
        if (extension != ".dg" && extension != ".cfb")
            continue;
        const std::string title = firstLineOf(contentOf(file));
        EXPECT_NE(title.find_first_not_of(' '), std::string::npos) << file;
        EXPECT_THAT(title, Not(HasSubstr("practice program"))) << file;
    }
}

TEST(Trials, holdAsManyCoordinatesAsTheySay)
{
    for (const fs::path &file : trialFiles()) {
        if (extensionOf(file) != ".dg" && extensionOf(file) != ".cn")
            continue;
        std::istringstream text(contentOf(file));
        std::string line;
        std::size_t frames = 0;
        std::size_t points = 0;
        while (std::getline(text, line) && !line.starts_with("DATA")) {
            if (line.starts_with("FRAMES"))
                frames = std::stoul(line.substr(6));
            if (line.starts_with("POINTS"))
                points = std::stoul(line.substr(6));
        }
        std::size_t numbers = 0;
        for (double number = 0; text >> number;)
            ++numbers;
        EXPECT_GT(frames, 10U) << file;
        EXPECT_EQ(numbers, frames * (1 + 2 * points)) << file;
    }
}

TEST(Trials, canBeTakenFurther)
{
    TrialDirectory directory;
    for (const fs::path &file : trialFiles())
        fs::copy_file(file, directory.path(textOf(file.filename())));

    EXPECT_EQ(directory.run("kinemati.exe", {"RUN1"}).exitCode, 1);
    for (const std::string trial : {"WALK1", "WALK2", "JUMP1", "LIFT1", "SQUAT1"}) {
        EXPECT_EQ(directory.run("refila.exe", {trial + ".DG"}).exitCode, 0) << trial;
        for (const std::string program : {"errcheck", "fourier", "noise", "kinemati", "momentum", "muscle",
                                          "energy", "torque", "force", "powers"})
            EXPECT_EQ(directory.run(program, {trial}).exitCode, 0) << program << ' ' << trial;
    }
    EXPECT_TRUE(fs::exists(directory.path("WALK1.km")));
    EXPECT_TRUE(fs::exists(directory.path("walk2.pj")));
    EXPECT_EQ(directory.run("fphist.exe", {"/A/C", "LIFT1.RF"}).exitCode, 0);
    EXPECT_EQ(directory.run("fplate.exe", {"/F/M/N", "LIFT1.rf2"}).exitCode, 0);
    EXPECT_EQ(directory.run("skelvo.exe", {"/A", "KICK1.3d"}).exitCode, 0);
    EXPECT_EQ(directory.run("skelvo.exe", {"/A", "PEAK1.cda"}).exitCode, 0);
    EXPECT_EQ(directory.run("dg2cfb.exe", {"/C/M/N/F/G/R", "WALK1"}).exitCode, 2);
}

class Assembly : public testing::Test
{
protected:
    void SetUp() override
    {
        if (std::string(CMAKE_PROGRAM).empty())
            GTEST_SKIP() << "CMake is no program of the system that this was built for.";
        fs::copy(Source, directory.outside("source"), fs::copy_options::recursive);
        directory.write("../manual.pdf", "a manual\n");
        directory.write("../quick.pdf", "a quick reference\n");
    }

    Ended assemble() const
    {
        const std::string program = STAND_IN_PROGRAM;
        const std::string script = PRACTICE_SOURCE "/assemble_package.cmake";
        const std::string source = textOf(directory.outside("source"));
        const std::string manuals =
            textOf(directory.outside("manual.pdf")) + ";" + textOf(directory.outside("quick.pdf"));
        const std::string package = textOf(directory.path());
        return runToEnd({CMAKE_PROGRAM,
                         {"cmake", "-DPROGRAM=" + program, "-DNAMES=refila;kinemati", "-DSOURCE=" + source,
                          "-DMANUALS=" + manuals, "-DPACKAGE=" + package, "-P", script},
                         directory.path()});
    }

    static void setAge(const fs::path &path, std::chrono::hours age)
    {
        fs::last_write_time(path, fs::file_time_type::clock::now() - age);
    }

    TrialDirectory directory;
};

TEST_F(Assembly, keepsTrialsThatAUserChangedAndBringsBackMissingOnes)
{
    ASSERT_EQ(assemble().exitCode, 0);
    directory.write("trials/WALK1.DG", "mine\n");
    directory.write("trials/WALK1.KM", "mine, too\n");
    setAge(directory.path("trials/WALK1.DG"), std::chrono::hours(1000));
    fs::remove(directory.path("trials/one_model/SQUAT1.CFB"));
    fs::remove(directory.path("kinemati.exe"));

    ASSERT_EQ(assemble().exitCode, 0);

    EXPECT_EQ(directory.read("trials/WALK1.DG"), "mine\n");
    EXPECT_EQ(directory.read("trials/WALK1.KM"), "mine, too\n");
    EXPECT_EQ(contentOf(directory.path("trials/one_model/SQUAT1.CFB")),
              contentOf(Source / "trials/one_model/SQUAT1.CFB"));
    EXPECT_TRUE(fs::exists(directory.path("kinemati.exe")));
    EXPECT_FALSE(fs::exists(directory.path("trials/.gitattributes")));
}

TEST_F(Assembly, refreshesProgramsAndTextsThatChanged)
{
    ASSERT_EQ(assemble().exitCode, 0);
    directory.write("../source/help/energy.txt", "newer\n");
    directory.write("../source/graphs/RUN.GRA", "newer\n");
    directory.write("../manual.pdf", "newer\n");
    directory.write("refila.exe", "an older program\n");
    directory.write("graphs/STICK.GRA", "changed in the package\n");
    directory.write("manuals/quick.pdf", "changed in the package\n");
    for (const std::string name : {"energy.txt", "graphs/RUN.GRA", "manuals/manual.pdf", "refila.exe"})
        setAge(directory.path(name), std::chrono::hours(24 * 365 * 30));

    ASSERT_EQ(assemble().exitCode, 0);

    EXPECT_EQ(directory.read("energy.txt"), "newer\n");
    EXPECT_EQ(directory.read("graphs/RUN.GRA"), "newer\n");
    EXPECT_EQ(contentOf(directory.path("refila.exe")), contentOf(STAND_IN_PROGRAM));
    EXPECT_EQ(directory.read("graphs/STICK.GRA"), "changed in the package\n");
    EXPECT_EQ(directory.read("manuals/manual.pdf"), "newer\n");
    EXPECT_EQ(directory.read("manuals/quick.pdf"), "changed in the package\n");
}

} // namespace

} // namespace practice_tests
