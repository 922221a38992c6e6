// The panel's own commands on the real host: real files, and real processes that record what they were given.
// Only the dialogs, the clock and the settings are recording ones.

#include "expected_starts.h"
#include "platform/linux/host_names.h"
#include "printing.h"
#include "real_panel.h"
#include "scratch_directory.h"

#include <QCoreApplication>
#include <gmock/gmock.h>

#include <cerrno>
#include <filesystem>
#include <set>
#include <string>

#include <fcntl.h>
#include <sys/wait.h>
#include <unistd.h>

using namespace Qt::StringLiterals;
using launcher_tests::ExpectedStart;
using launcher_tests::RealPanel;
using testing::IsEmpty;

namespace {

/// The directory in which a program was started, the program, and its arguments.
using Record = std::vector<std::string>;

constexpr const char *EchoProgram = KINOVRA_ECHO_PROGRAM;
constexpr const char *PracticePrograms = KINOVRA_PRACTICE_PROGRAMS;

} // namespace

class RealPrograms : public testing::Test
{
protected:
    void SetUp() override
    {
        // What other tests of this process have left.
        while (::wait(nullptr) > 0) {
        }
        makeFiles("data", {"Walk1.DG",  "Walk1.CN",  "Walk1.REN",    "Walk1.cda",  "Walk1.cf",  "Walk1.3d",
                           "Walk1.1t",  "Walk1.2t",  "Walk1.3t",     "Walk1.4t",   "Walk1.5t",  "Walk1.6t",
                           "Walk1.7t",  "Walk1.8t",  "Walk1.9t",     "WALK1.CFB",  "Walk1.km",  "walk1.ks",
                           "Walk1.fo",  "Walk1.sim", "Walk1.sn",     "Walk1.rf",   "Walk1.rf2", "Walk1.pj",
                           "Walk1.dr",  "Run1.PLT",  "Run1.hpg",     "Run1.acd",   "walk2.1t",  "walk2.km",
                           "walk2.cfb", "walk3.dg",  "Kinemati.OUT", "average.sss"});
        makeFiles("data/empty", {"Stick 1.plt", "Jump 1.AVI"});
        makeFiles("data/nameless", {".dg", ".CN", ".REN"});
        makeFiles("package/graphs", {"RUN.GRA", "Stick.gra"});
        makeFiles("package/Manuals",
                  {"Kinovra.PDF", "modlex.pdf", "cfbfile.pdf", "graph.pdf", "skelvo.pdf", "kv_qrg.pdf",
                   "kv_win.pdf", "ondex.pdf", "ox2_qrg.pdf", "simulate.pdf", "binaries.pdf"});
        scratch.makeFile("package/Overview.TXT", QByteArray("no\0text", 7));
        scratch.makeDirectory("own");
        scratch.makeDirectory("bin");

        std::filesystem::copy_file(EchoProgram, scratch.path("echo").toStdString());
        for (const QByteArray &name : QByteArray(PracticePrograms).split(' '))
            install("package/" + name + ".exe");
        install("package/notepad.exe");
        install("own/my viewer");
        for (const char *name :
             {"gnome-calculator", "nautilus", "gedit", "totem", "yelp", "hardinfo", "xdg-open"})
            install(QByteArray("bin/") + name);
    }

    void TearDown() override
    {
        EXPECT_EQ(::waitpid(-1, nullptr, WNOHANG), -1) << "a child or a zombie is left";
        EXPECT_EQ(errno, ECHILD);
    }

    /// A program called `name` that records what it is given.
    void install(const QByteArray &name) const
    {
        std::filesystem::create_hard_link(scratch.path("echo").toStdString(),
                                          scratch.path(name).toStdString());
    }

    void makeFiles(const QByteArray &directory, std::initializer_list<const char *> names) const
    {
        scratch.makeDirectory(directory);
        for (const char *name : names)
            scratch.makeFile(directory + '/' + name);
    }

    QList<QByteArray> onWalk1() const { return {scratch.path("data/Walk1.DG")}; }

    /// Expects that exactly one program has been started, waits for its end and gives what it recorded.
    Record recordOf(RealPanel &real) const
    {
        EXPECT_EQ(real.programs.results.size(), 1U);
        for (const platform::StartResult &result : real.programs.results)
            EXPECT_EQ(result.failure, QString());
        EXPECT_EQ(real.panel.running.size(), real.programs.results.size()) << "the panel has waited";
        real.programs.results.clear();
        real.waitForEnds();
        const QList<QByteArray> fields = scratch.read("record").split('\0');
        scratch.remove("record");
        Record result;
        for (const QByteArray &field : fields.first(fields.size() - 1))
            result.push_back(field.toStdString());
        return result;
    }

    /// "host:data/x" is a path of the host, "panel:data/x" the same in the panel's path language.
    QByteArray written(const QByteArray &text) const
    {
        if (text.startsWith("host:"))
            return scratch.path(text.mid(5));
        return text.startsWith("panel:") ? inPanel(text.mid(6)) : text;
    }

    QByteArray inPanel(const QByteArray &name) const
    {
        return "Z:" + scratch.path().replace('/', '\\') + '\\' + QByteArray(name).replace('/', '\\');
    }

    /// What a program records; it and its directory are seen from the scratch directory.
    Record record(const QByteArray &directory, const QByteArray &program,
                  const QList<QByteArray> &arguments) const
    {
        Record result{(directory == "/" ? directory : scratch.path(directory)).toStdString(),
                      scratch.path(program).toStdString()};
        for (const QByteArray &argument : arguments)
            result.push_back(argument.toStdString());
        return result;
    }

    /// Does all that is to be done for a start.
    void act(RealPanel &real, const ExpectedStart &expected) const
    {
        real.dialogs.answers = {expected.answers.begin(), expected.answers.end()};
        const qsizetype slash = expected.chosen.lastIndexOf('/');
        if (slash > 0)
            real.willChoose(scratch.path(expected.chosen.left(slash)), expected.chosen.mid(slash + 1));
        for (const char *step : expected.steps)
            real.act(QString::fromUtf8(step));
        EXPECT_THAT(real.dialogs.chosenFiles, IsEmpty());
    }

    void expectStart(const ExpectedStart &expected) const
    {
        SCOPED_TRACE(testing::PrintToString(expected));
        RealPanel real(onWalk1());
        act(real, expected);
        QList<QByteArray> arguments;
        for (const QByteArray &argument : expected.arguments)
            arguments.append(written(argument));
        EXPECT_EQ(recordOf(real), record(expected.directory, expected.program, arguments));
        EXPECT_THAT(real.dialogs.answers, IsEmpty());
    }

    support::KeptDirectory kept;
    support::ScratchDirectory scratch{"Anna & Bob's \xC3\xA4"};
    support::ScopedVariable echoFile{"ECHO_FILE", scratch.path("record")};
    support::ScopedVariable package{"KINOVRA", scratch.path("package")};
    support::ScopedVariable windows{"WINDIR", QByteArray()};
    support::ScopedVariable path{"PATH", scratch.path("bin")};
    support::ScopedVariable display{"DISPLAY", QByteArray()};
    support::ScopedVariable wayland{"WAYLAND_DISPLAY", QByteArray()};
    support::ScopedVariable desktop{"XDG_CURRENT_DESKTOP", QByteArray()};
};

TEST_F(RealPrograms, of_the_package_receive_what_their_commands_compose)
{
    for (const ExpectedStart &expected : launcher_tests::packageStarts())
        expectStart(expected);
}

TEST_F(RealPrograms, of_the_package_are_all_started_by_some_command)
{
    std::set<QByteArray> started;
    for (const ExpectedStart &expected : launcher_tests::packageStarts())
        started.insert(expected.program);
    std::set<QByteArray> all;
    for (const QByteArray &name : QByteArray(PracticePrograms).split(' '))
        all.insert("package/" + name + ".exe");
    EXPECT_EQ(started, all);
}

TEST_F(RealPrograms, of_the_desktop_receive_what_their_commands_compose)
{
    for (const ExpectedStart &expected : launcher_tests::desktopStarts())
        expectStart(expected);
}

TEST_F(RealPrograms, show_a_listing_in_the_text_viewer)
{
    RealPanel real(onWalk1());
    real.dialogs.answers = {platform::Yes};
    real.dialogs.whileShown = [&](const platform::MessageBox &) {
        EXPECT_EQ(recordOf(real), record("data", "package/kinemati.exe", {"WALK1"}));
    };
    real.act(u"choose &Programs > &Kinematics"_s);
    EXPECT_EQ(recordOf(real), record("data", "bin/gedit", {scratch.path("data/Kinemati.OUT")}));
}

TEST_F(RealPrograms, are_told_of_when_they_end)
{
    RealPanel real(onWalk1());
    real.act(u"choose &Settings > Prompt to View Output"_s);
    {
        const support::ScopedVariable code("ECHO_EXIT", "3");
        real.act(u"choose &Programs > &Kinematics"_s);
        recordOf(real);
        EXPECT_EQ(real.panel.frm.StatusBar1.Panel1.value(), u"KINEMATI.EXE ended with error 3."_s);
    }
    scratch.remove("package/kinemati.exe");
    scratch.makeExecutable("package/kinemati.exe", "#!/bin/sh\necho text >Kinemati.OUT\n");
    real.act(u"choose &Programs > &Kinematics"_s);
    real.waitForEnds();
    EXPECT_EQ(real.panel.frm.StatusBar1.Panel1.value(), u"Kinemati.out is ready."_s);
}

TEST_F(RealPrograms, give_an_update_the_name_of_the_one_that_ran_last)
{
    RealPanel real(onWalk1());
    real.dialogs.answers = {platform::No, platform::Yes, platform::No};
    real.act(u"choose &Programs > &Kinematics"_s);
    EXPECT_EQ(recordOf(real), record("data", "package/kinemati.exe", {"WALK1"}));
    real.act(u"choose &Help > &Update from Internet"_s);
    EXPECT_EQ(recordOf(real), record("package", "bin/xdg-open", {"https://example.org/kinovra/Kinemati"}));
}

TEST_F(RealPrograms, begin_where_the_panel_was_started)
{
    std::filesystem::current_path(scratch.path("data/empty").toStdString());
    RealPanel real({});
    real.dialogs.answers = {platform::OK};
    real.act(u"choose &File > &Print"_s);
    EXPECT_EQ(recordOf(real), record("data/empty", "bin/gedit", {}));
    real.act(u"press .CFB &Editor"_s);
    EXPECT_EQ(recordOf(real), record("data/empty", "package/modlex.exe", {";"}));
}

TEST_F(RealPrograms, include_a_terminal_that_fills_the_screen)
{
    const support::ScopedVariable shown("DISPLAY", ":99");
    install("bin/mate-terminal");
    RealPanel real(onWalk1());
    real.act(u"choose &File > &DOS prompt"_s);
    EXPECT_EQ(recordOf(real), record("data", "bin/mate-terminal", {"--maximize"}));
}

TEST_F(RealPrograms, show_the_manual_as_text_where_there_is_no_other)
{
    scratch.remove("package/Manuals/Kinovra.PDF");
    scratch.makeFile("package/KINOVRA.txt");
    RealPanel real(onWalk1());
    real.act(u"press Man&ual"_s);
    EXPECT_EQ(recordOf(real), record("data", "bin/gedit", {scratch.path("package/KINOVRA.txt")}));
}

namespace {

struct OddName
{
    QByteArray name;
    QByteArray inUpperCase;
};

const OddName OddNames[]{
    {"-walk", "-WALK"},
    {"--help", "--HELP"},
    {" two  blanks", " TWO  BLANKS"},
    {"Anna's & Bob's; $(x)", "ANNA'S & BOB'S; $(X)"},
    {"`id` \"quoted\"", "`ID` \"QUOTED\""},
    {"l\xC3\xA4ufe \xC3\x9F \xE2\x82\xAC \xF0\x9F\x8F\x83",
     "L\xC3\x84UFE \xC3\x9F \xE2\x82\xAC \xF0\x9F\x8F\x83"},
    {"caf\xE9", "CAF\xE9"},
    {"a:b\\c", "A:B\\C"},
    {"%PATH% #1 *?[x]{y}|<>~!^=,@", "%PATH% #1 *?[X]{Y}|<>~!^=,@"},
    {"tab\tand\nline", "TAB\tAND\nLINE"},
};

} // namespace

class OddlyNamed : public RealPrograms
{
protected:
    static QString inList(const QByteArray &name) { return platform::host::fromHostName(name); }

    QByteArray data(const QByteArray &name) const { return scratch.path("data/" + name); }
};

TEST_F(OddlyNamed, trials_are_one_argument)
{
    for (const auto &[name, upper] : OddNames) {
        SCOPED_TRACE(name.constData());
        for (const char *extension : {".DG", ".CN", ".CFB"})
            scratch.makeFile("data/" + name + extension);
        RealPanel real(onWalk1());
        real.click(inList(name + ".DG"), u"Data files"_s);
        real.act(u"press &Skelvo"_s);
        EXPECT_EQ(recordOf(real), record("data", "package/skelvo98.exe", {name + ".dg"}));
        real.act(u"choose &Settings > &Listing device > &Screen"_s);
        real.act(u"choose &Programs > &Kinematics"_s);
        EXPECT_EQ(recordOf(real), record("data", "package/kinemati.exe", {"/T", upper}));
        real.act(u"choose &Programs > Control &Options"_s);
        EXPECT_EQ(recordOf(real), record("data", "package/options.exe", {"/C/R/M/F/G", name}));
        real.act(u"choose &Data > &View/Edit data with Notepad"_s);
        EXPECT_EQ(recordOf(real), record("data", "bin/gedit", {data(name + ".DG")}));
    }
}

TEST_F(OddlyNamed, trials_can_be_given_on_the_command_line)
{
    for (const auto &[name, upper] : OddNames) {
        SCOPED_TRACE(name.constData());
        makeFiles("data/" + name, {});
        scratch.makeFile("data/" + name + "/" + name + ".dg");
        RealPanel real({data(name + "/" + name + ".dg")});
        real.act(u"choose &Data > &Graph/Animate data"_s);
        EXPECT_EQ(recordOf(real), record("data/" + name, "package/skelvo.exe", {upper + ".DG"}));
    }
}

TEST_F(OddlyNamed, graphs_and_their_types_are_one_argument)
{
    for (const auto &[name, upper] : OddNames) {
        SCOPED_TRACE(name.constData());
        scratch.makeFile("data/" + name + ".plt");
        scratch.makeFile("package/graphs/" + name + ".gra");
        RealPanel real(onWalk1());
        real.doubleClick(inList(name + ".plt"), u"Graphs (.PLT)"_s);
        EXPECT_EQ(recordOf(real), record("data", "package/grafow.exe", {"/1", name + ".plt"}));
        real.act(u"choose &Graph > &Print graph ... > to &Colour HP Deskjet (3)"_s);
        EXPECT_EQ(recordOf(real), record("data", "package/grafow.exe", {"/3", name + ".plt"}));
        real.willChoose(scratch.path("data"), name + ".plt");
        real.act(u"choose &View > &Plot files"_s);
        EXPECT_EQ(recordOf(real),
                  record("data", "package/grafow.exe", {inPanel("data") + '\\' + name + ".plt"}));
        real.act(u"press &Select Type of  Graph"_s);
        real.click(inList(name + ".gra"), u"Graph Types (.GRA)"_s);
        real.act(u"press &Create Graph(s)"_s);
        EXPECT_EQ(recordOf(real),
                  record("data", "package/graph.exe", {"/C", "/A", "/Z", "WALK1", upper + ".GRA"}));
        real.act(u"press &Edit .GRA File"_s);
        EXPECT_EQ(recordOf(real),
                  record("data", "bin/gedit", {scratch.path("package/graphs/" + name + ".gra")}));
    }
}

TEST_F(OddlyNamed, texts_and_films_are_one_argument)
{
    for (const auto &[name, upper] : OddNames) {
        SCOPED_TRACE(name.constData());
        scratch.makeFile("data/" + name + ".out");
        scratch.makeFile("data/" + name + ".avi");
        RealPanel real(onWalk1());
        real.doubleClick(inList(name + ".out"), u"Output files"_s);
        EXPECT_EQ(recordOf(real), record("data", "bin/gedit", {data(name + ".out")}));
        real.willChoose(scratch.path("data"), name + ".out");
        real.act(u"choose &View > &Output files"_s);
        EXPECT_EQ(recordOf(real), record("data", "bin/gedit", {data(name + ".out")}));
        real.willChoose(scratch.path("data"), name + ".avi");
        real.act(u"choose &View > &AVI && MPEG files"_s);
        EXPECT_EQ(recordOf(real), record("data", "bin/totem", {data(name + ".avi")}));
    }
}

TEST_F(OddlyNamed, data_directories_are_where_programs_run)
{
    for (const auto &[name, upper] : OddNames) {
        SCOPED_TRACE(name.constData());
        const QByteArray directory = "data/" + name;
        makeFiles(directory, {"Walk1.DG", "Walk1.CN", "Walk1.CFB"});
        RealPanel real(onWalk1());
        real.open(inList(name));
        real.act(u"choose &Settings > &Listing device > &Screen"_s);
        real.act(u"choose &Programs > &Kinematics"_s);
        EXPECT_EQ(recordOf(real), record(directory, "package/kinemati.exe", {"/T", "WALK1"}));
        real.act(u"press &Skelvo"_s);
        EXPECT_EQ(recordOf(real), record(directory, "package/skelvo98.exe", {"Walk1.dg"}));
        real.act(u"choose &Graph > &Run GrafoW"_s);
        EXPECT_EQ(recordOf(real), record(directory, "package/grafow.exe", {}));
        real.act(u"choose &Model > &View/Edit model with Notepad"_s);
        EXPECT_EQ(recordOf(real), record(directory, "bin/gedit", {scratch.path(directory + "/Walk1.CFB")}));
        real.act(u"choose &File > Explore current directory"_s);
        EXPECT_EQ(recordOf(real), record(directory, "bin/nautilus", {scratch.path(directory)}));
    }
}

TEST_F(OddlyNamed, program_directories_are_found)
{
    for (const auto &[name, upper] : OddNames) {
        SCOPED_TRACE(name.constData());
        const QByteArray directory = "own/" + name;
        makeFiles(directory + "/graphs", {"RUN.GRA"});
        makeFiles(directory + "/Manuals", {"Kinovra.pdf"});
        for (const char *program : {"/kinemati.exe", "/forces.exe", "/notepad.exe"})
            install(directory + program);
        const support::ScopedVariable elsewhere("KINOVRA", scratch.path(directory));
        RealPanel real(onWalk1());
        real.act(u"choose &Settings > &Listing device > &Screen"_s);
        real.act(u"choose &Programs > &Kinematics"_s);
        EXPECT_EQ(recordOf(real), record("data", directory + "/kinemati.exe", {"/T", "WALK1"}));
        real.act(u"press Force Plate &Analysis"_s);
        EXPECT_EQ(recordOf(real), record("data", directory + "/forces.exe", {"Walk1.rf"}));
        real.act(u"press Man&ual"_s);
        EXPECT_EQ(recordOf(real), record(directory + "/Manuals", "bin/xdg-open",
                                         {scratch.path(directory + "/Manuals/Kinovra.pdf")}));
        real.act(u"choose &Settings > &Text viewer > &Notepad+"_s);
        real.act(u"double-click Kinemati.OUT in Output files"_s);
        EXPECT_EQ(recordOf(real), record("data", directory + "/notepad.exe", {data("Kinemati.OUT")}));
    }
}

TEST_F(OddlyNamed, programs_are_run)
{
    for (const auto &[name, upper] : OddNames) {
        SCOPED_TRACE(name.constData());
        install("own/" + name + ".exe");
        RealPanel real(onWalk1());
        real.willChoose(scratch.path("own"), name + ".exe");
        real.act(u"choose &File > &Run a program"_s);
        EXPECT_EQ(recordOf(real), record("package", "own/" + name + ".exe", {}));
        real.willChoose(scratch.path("own"), name + ".exe");
        real.act(u"choose &Help > Command line &help"_s);
        EXPECT_EQ(recordOf(real), record("data", "own/" + name + ".exe", {"/?", "/HELP"}));
        real.willChoose(scratch.path("own"), name + ".exe");
        real.act(u"choose &Settings > &Text viewer > &Select viewer (Wordpad etc.)"_s);
        real.act(u"double-click Kinemati.OUT in Output files"_s);
        EXPECT_EQ(recordOf(real), record("data", "own/" + name + ".exe", {data("Kinemati.OUT")}));
    }
}

/// Directories that programs run in, with programs in them that nobody asked for.
class PlantedPrograms : public RealPrograms
{
protected:
    void SetUp() override
    {
        RealPrograms::SetUp();
        for (const char *directory : {"data/", "data/empty/", "package/Manuals/"}) {
            for (const char *name : {"notepad.exe",  "notepad",          "gedit",        "calc.exe",
                                     "calc",         "gnome-calculator", "explorer.exe", "explorer",
                                     "nautilus",     "command.com",      "command",      "xterm",
                                     "mplayer.exe",  "mplayer",          "totem",        "WinHlp32.EXE",
                                     "yelp",         "MSINFO32.EXE",     "hardinfo",     "xdg-open",
                                     "gio",          "kinemati.exe",     "grafow.exe",   "grafod.exe",
                                     "acrospin.exe", "forces.exe",       "skelvo98.exe", "ondex2.exe",
                                     "modlex.exe",   "renumber.exe"})
                scratch.makeExecutable(QByteArray(directory) + name, "#!/bin/sh\n: >planted\n");
        }
    }

    void expectNothingStarted(const RealPanel &real) const
    {
        for (const platform::StartResult &result : real.programs.results)
            EXPECT_NE(result.failure, QString());
        EXPECT_EQ(real.panel.running.size(), 0U);
        real.waitForEnds();
        expectNoneStarted();
    }

    void expectNoneStarted() const
    {
        for (const char *directory : {"data/", "data/empty/", "package/Manuals/", "package/"})
            EXPECT_FALSE(scratch.has(QByteArray(directory) + "planted")) << directory;
    }
};

TEST_F(PlantedPrograms, do_not_stand_in_for_those_of_the_desktop)
{
    const support::ScopedVariable searched("PATH", ".::data:" + scratch.path("bin"));
    for (const ExpectedStart &expected : launcher_tests::desktopStarts())
        expectStart(expected);
    expectNoneStarted();
}

TEST_F(PlantedPrograms, are_not_even_started_where_the_desktop_has_none)
{
    for (const QByteArray &searched : {QByteArray("."), QByteArray(""), QByteArray(":.:empty:..")}) {
        const support::ScopedVariable variable("PATH", searched);
        for (const ExpectedStart &expected : launcher_tests::desktopStarts()) {
            if (!expected.program.startsWith("bin/"))
                continue;
            SCOPED_TRACE(testing::PrintToString(expected));
            RealPanel real(onWalk1());
            act(real, expected);
            expectNothingStarted(real);
        }
    }
}

TEST_F(PlantedPrograms, do_not_stand_in_for_those_that_the_package_has_lost)
{
    RealPanel real(onWalk1());
    for (const char *name :
         {"kinemati", "grafow", "grafod", "acrospin", "forces", "skelvo98", "ondex2", "modlex", "renumber"})
        scratch.remove(QByteArray("package/") + name + ".exe");
    real.dialogs.answers = {platform::OK, platform::No};
    for (const char *step :
         {"choose &Programs > &Kinematics", "press Ond&ex2", "press Force Plate &Analysis", "press &Skelvo",
          "press .CFB &Editor", "choose &Data > Re&number data", "double-click Run1.PLT in Graphs (.PLT)",
          "double-click Run1.acd in Graphs (.PLT)", "choose &Graph > &Full-screen display (GrafoD)",
          "choose &Graph > &Run GrafoW"}) {
        SCOPED_TRACE(step);
        real.act(QString::fromUtf8(step));
        expectNothingStarted(real);
    }
    EXPECT_EQ(real.programs.results.size(), 9U);
}

TEST_F(RealPrograms, are_not_waited_for)
{
    // Each waits for a line of its own from the pipe.
    scratch.makePipe("gate");
    const int gate = ::open(scratch.path("gate").constData(), O_RDWR | O_CLOEXEC);
    ASSERT_GE(gate, 0);
    const support::ScopedVariable variable("GATE", scratch.path("gate"));
    for (const char *name : {"package/kinemati.exe", "package/skelvo98.exe", "package/grafow.exe",
                             "bin/gedit", "bin/nautilus", "bin/xdg-open"}) {
        scratch.remove(name);
        scratch.makeExecutable(name, "#!/bin/sh\nread -r line <\"$GATE\"\n");
    }
    RealPanel real(onWalk1());
    real.dialogs.answers = {platform::No};
    for (const char *step : {"choose &Programs > &Kinematics", "press &Skelvo", "choose &Graph > &Run GrafoW",
                             "choose &File > &Notepad", "choose &File > Explore current directory",
                             "press &Guide", "choose &Help > &Website"})
        real.act(QString::fromUtf8(step));
    EXPECT_EQ(real.programs.results.size(), 7U);
    EXPECT_EQ(real.clock.pauses, std::vector<double>{1.0}) << "only the runner pauses, for a second";
    QCoreApplication::processEvents();
    EXPECT_EQ(real.panel.running.size(), 7U);

    EXPECT_EQ(::write(gate, "\n\n\n\n\n\n\n", 7), 7);
    real.waitForEnds();
    EXPECT_EQ(real.panel.frm.StatusBar1.Panel1.value(), QString());
    ::close(gate);
}
