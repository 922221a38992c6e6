// Real processes: the echo program records what it was given.

#include "echo_fixture.h"
#include "platform/runtime_error.h"
#include "platform/windows/host_files.h"
#include "printing.h"

#include <QCoreApplication>

#include <set>
#include <utility>

using namespace Qt::StringLiterals;
using platform::CommandText;
using platform::Ending;
using platform::Show;
using platform::Start;
using platform_tests::Echo;
using support::SystemVariable;

namespace {

const QString Program = u"Program Files\\Kinemati.exe"_s;

class WindowsStarts : public platform_tests::WindowsStarts
{
protected:
    // Its path is longer than the system starts anything in.
    QString makeDeepDirectory() const
    {
        const QString deep = QString(50, u'n') + (u'\\' + QString(50, u'n')).repeated(5);
        scratch.makeDirectory(deep.toUtf8());
        return at(deep);
    }
};

} // namespace

TEST_F(WindowsStarts, run_directly_with_exactly_the_composed_command_line)
{
    const Echo echo = run(direct(at(Program), u" /T  /D\t"_s + CommandText::document(u"MY WALK"_s) + u" "_s));
    EXPECT_EQ(echo.commandLine, u'"' + at(Program) + u"\" /T  /D\t\"MY WALK\" "_s);
    EXPECT_EQ(echo.directory, base);
    EXPECT_GT(result.value, 0);
    ASSERT_EQ(ends.size(), 1U);
    EXPECT_EQ(ends[0].value, result.value);
    EXPECT_EQ(ends[0].ending.kind, Ending::Kind::Exited);
    EXPECT_EQ(ends[0].ending.code, 0);
}

TEST_F(WindowsStarts, run_by_the_system_with_the_composed_parameters)
{
    const Echo echo = run(open(at(Program), u"/T  /D\t"_s + CommandText::document(u"MY WALK"_s)));
    EXPECT_EQ(echo.commandLine, u'"' + at(Program) + u"\" /T  /D\t\"MY WALK\""_s);
    EXPECT_EQ(echo.directory, base);
    EXPECT_GT(result.value, 32);
    ASSERT_EQ(ends.size(), 1U);
    EXPECT_EQ(ends[0].value, result.value);
}

TEST_F(WindowsStarts, run_a_program_without_blanks_unquoted_in_any_case)
{
    install(u"bin\\NOISE.EXE"_s);
    files.changeDrive(base);
    files.changeDirectory(base);
    EXPECT_EQ(run(direct(u"bin\\noise.exe"_s, u" X"_s)).commandLine, u"bin\\noise.exe X"_s);
    EXPECT_EQ(run(direct(u"BIN\\noise.exe"_s)).commandLine, u"BIN\\noise.exe"_s);
}

TEST_F(WindowsStarts, say_in_which_state_the_window_shall_appear)
{
    for (const auto &[show, code] : {std::pair{Show::Normal, u"1"_s}, std::pair{Show::Maximized, u"3"_s},
                                     std::pair{Show::Shown, u"5"_s}}) {
        Start start = direct(at(Program), u" x"_s);
        start.show = show;
        EXPECT_EQ(run(start).show, code);
        start.verb = u"open"_s;
        EXPECT_EQ(run(start).show, code);
    }
}

TEST_F(WindowsStarts, give_a_console_program_its_console_and_no_other_one)
{
    install(u"bin\\console.exe"_s, u"echo_console.exe"_s);
    EXPECT_FALSE(run(direct(at(Program))).hasConsole);
    if (!support::hasDisplay())
        GTEST_SKIP() << "Wine shows no console without a display";
    EXPECT_TRUE(run(direct(at(u"bin\\console.exe"_s))).hasConsole);
    EXPECT_TRUE(run(open(at(u"bin\\console.exe"_s))).hasConsole);
}

TEST_F(WindowsStarts, tell_exit_codes_and_crashes)
{
    for (const Start &start : {direct(at(Program)), open(at(Program))}) {
        {
            const SystemVariable code(u"ECHO_EXIT"_s, u"3"_s);
            run(start);
            EXPECT_EQ(ends.back().ending.kind, Ending::Kind::Exited);
            EXPECT_EQ(ends.back().ending.code, 3);
        }
        const SystemVariable code(u"ECHO_EXIT"_s, u"crash"_s);
        run(start);
        EXPECT_EQ(ends.back().ending.kind, Ending::Kind::Crashed);
        EXPECT_EQ(static_cast<quint32>(ends.back().ending.code), 0xC0000005U);
        EXPECT_EQ(ends.back().ending.reason, u"0xC0000005"_s);
    }
}

TEST_F(WindowsStarts, tell_what_the_system_says_of_an_end)
{
    const auto ending = [](quint32 code) { return platform::host::endingOf(code); };
    EXPECT_EQ(ending(0).kind, Ending::Kind::Exited);
    EXPECT_EQ(ending(0xFFU).code, 255);
    EXPECT_EQ(ending(0x40010004U).kind, Ending::Kind::Exited);
    EXPECT_EQ(ending(0xC0000135U).reason, u"a library that it needs was not found"_s);
    EXPECT_EQ(ending(0xC0000139U).reason, u"a library that it needs was not found"_s);
    EXPECT_EQ(ending(0xC000013AU).reason, u"it was interrupted"_s);
    EXPECT_EQ(ending(0xC0000094U).reason, u"0xC0000094"_s);
    EXPECT_EQ(ending(0xC0000094U).kind, Ending::Kind::Crashed);
}

// Many programs of the package end with -1 to say that something went wrong.
TEST_F(WindowsStarts, take_a_negative_exit_code_for_no_crash)
{
    const SystemVariable code(u"ECHO_EXIT"_s, u"4294967295"_s);
    run(direct(at(Program)));
    EXPECT_EQ(ends.back().ending.kind, Ending::Kind::Exited);
    EXPECT_EQ(ends.back().ending.code, -1);
}

TEST_F(WindowsStarts, give_every_start_its_own_value)
{
    std::set<double> given;
    std::set<double> told;
    for (int i = 0; i < 8; ++i)
        given.insert(startUnlessLost(i % 2 == 0 ? direct(at(Program)) : open(at(Program))).value);
    waitForEnds(8);
    for (const auto &end : ends)
        told.insert(end.value);
    EXPECT_EQ(given.size(), 8U);
    EXPECT_EQ(told, given);
}

TEST_F(WindowsStarts, close_what_they_open)
{
    const auto fiftyStarts = [this](const Start &start) {
        for (int i = 0; i < 50; ++i)
            run(start);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    };
    for (const Start &start : {direct(at(Program)), open(at(Program))}) {
        run(start);
        run(start);
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        const int before = support::openHandles();
        ASSERT_GT(before, 0);
        fiftyStarts(start);
        // The system's own parts keep a few.
        EXPECT_LE(support::openHandles(), before + 5) << start.verb.toStdString();
    }
}

TEST_F(WindowsStarts, close_what_failed)
{
    scratch.makeFile("text.exe", "not a program");
    scratch.makeFile("cut.exe", "MZ");
    const int before = support::openHandles();
    for (int i = 0; i < 50; ++i) {
        EXPECT_NE(startUnlessLost(direct(at(u"text.exe"_s))).failure, QString());
        EXPECT_NE(startUnlessLost(direct(at(u"cut.exe"_s))).failure, QString());
        EXPECT_NE(startUnlessLost(direct(at(u"missing.exe"_s))).failure, QString());
    }
    EXPECT_LE(support::openHandles(), before + 5);
}

TEST_F(WindowsStarts, outlive_the_panel)
{
    const platform::host::Handle go(::CreateEventW(nullptr, TRUE, FALSE, L"kinovra-test-go"));
    const SystemVariable wait(u"ECHO_WAIT"_s, u"kinovra-test-go"_s);
    const SystemVariable code(u"ECHO_EXIT"_s, u"7"_s);
    {
        platform::host::WindowsPrograms passing(files);
        passing.ended = [](double, const Ending &) { ADD_FAILURE() << "it has not ended"; };
        EXPECT_EQ(passing.start(direct(at(Program), u" late"_s)).failure, QString());
    }
    // Another one, begun later and waiting for the same, ends by the event loop.
    EXPECT_EQ(startUnlessLost(direct(at(Program), u" later"_s)).failure, QString());
    ::SetEvent(go.get());
    waitForEnds(1);
    while (records().size() < 2)
        QCoreApplication::processEvents();
    EXPECT_EQ(ends[0].ending.code, 7);
}

TEST_F(WindowsStarts, may_start_another_program_when_one_ends)
{
    programs.ended = [this](double value, const Ending &ending) {
        ends.push_back({value, ending});
        if (ends.size() < 3)
            startUnlessLost(direct(at(Program)));
    };
    startUnlessLost(direct(at(Program)));
    waitForEnds(3);
    EXPECT_EQ(records().size(), 3U);
}

TEST_F(WindowsStarts, need_their_directory)
{
    Start start = open(at(Program), u"x"_s);
    start.directory = at(u"gone"_s);
    expectFailure(start, u"the directory "_s + at(u"gone"_s) + u" is gone"_s, 2);
    start.directory = at(Program);
    expectFailure(start, u"the directory "_s + at(Program) + u" is gone"_s, 2);
    start.directory = u"Q:\\data"_s;
    expectFailure(start, u"device unavailable"_s, 2);
    start.verb.clear();
    expectFailure(start, u"device unavailable"_s, 0);
}

TEST_F(WindowsStarts, run_in_directories_with_names_outside_the_code_page)
{
    for (const QString &name : {u"🏃 бег τρέξιμο"_s, u"Anna Smith"_s, u"e\u0301 combining"_s,
                                u"100% ^&() 'x'"_s, u"a;b,c=d"_s, u"%TEMP%"_s}) {
        scratch.makeDirectory(name.toUtf8());
        install(name + u"\\Kv ä.exe"_s);
        const CommandText document = CommandText::document(name + u'\\');
        const QString written = name.contains(u' ') ? u'"' + name + u"\\\\\""_s : name + u'\\';
        Start start = direct(at(name) + u"\\Kv ä.exe"_s, u" /D "_s + document);
        start.directory = at(name);
        Echo echo = run(start);
        EXPECT_EQ(echo.commandLine, u'"' + start.file + u"\" /D "_s + written);
        EXPECT_EQ(echo.directory, at(name));
        // Wine takes a part of a path between percent signs for a variable.
        if (support::isWine() && name == u"%TEMP%")
            continue;
        start.verb = u"open"_s;
        start.parameters = u"/D "_s + document;
        echo = run(start);
        EXPECT_EQ(echo.commandLine, u'"' + start.file + u"\" /D "_s + written);
        EXPECT_EQ(echo.directory, at(name));
    }
}

TEST_F(WindowsStarts, run_in_directories_with_very_long_names)
{
    Start start = direct(at(Program), u" x"_s);
    start.directory = makeDeepDirectory();
    const Echo echo = run(start);
    EXPECT_EQ(echo.commandLine, u'"' + at(Program) + u"\" x"_s);
    EXPECT_LT(echo.directory.size(), 260) << "its short form";
    EXPECT_EQ(platform::host::trueSpelling(echo.directory), start.directory);
}

TEST_F(WindowsStarts, run_a_program_in_a_directory_with_a_very_long_name)
{
    const QString deep = makeDeepDirectory();
    const Start start = direct(deep + u"\\Kv.exe"_s, u" x"_s);
    support::copy(at(Program), start.file);
    if (support::isWine())
        GTEST_SKIP() << "Wine starts nothing whose long path is longer than 260 characters";
    EXPECT_EQ(run(start).commandLine, u'"' + start.file + u"\" x"_s) << "the text stays as it was composed";
}

TEST_F(WindowsStarts, never_take_the_first_word_of_a_path_for_a_program)
{
    install(u"Program.exe"_s, u"echo_console.exe"_s);
    install(u"Anna.exe"_s);
    scratch.makeDirectory("Anna Smith");
    install(u"Anna Smith\\Kv.exe"_s);
    const SystemVariable number(u"ECHO_NUMBER"_s, u"own"_s);
    for (const QString &file : {Program, u"Anna Smith\\Kv.exe"_s}) {
        EXPECT_EQ(run(direct(at(file), u" x"_s)).commandLine, u'"' + at(file) + u"\" x"_s);
        EXPECT_EQ(run(open(at(file), u"x"_s)).commandLine, u'"' + at(file) + u"\" x"_s);
    }
    expectFailure(direct(at(u"Program Files\\Missing.exe"_s), u" x"_s), u"it was not found"_s, 0);
    expectFailure(open(at(u"Program Files\\Missing.exe"_s), u"x"_s), u"it was not found"_s, 2);
    expectFailure(direct(at(u"Anna Jones.exe"_s), u" x"_s), u"it was not found"_s, 0);
}

TEST_F(WindowsStarts, hand_on_the_panels_current_directories)
{
    const SystemVariable variable(u"=C:"_s, QString());
    scratch.makeDirectory("other");
    files.changeDirectory(at(u"other"_s));
    EXPECT_EQ(SystemVariable::read(u'=' + base.left(2)), at(u"other"_s));
    EXPECT_EQ(run(direct(at(Program))).directory, base) << "it runs where the start says";
}

TEST_F(WindowsStarts, keep_their_directory_from_being_removed_while_they_run)
{
    const platform::host::Handle go(::CreateEventW(nullptr, TRUE, FALSE, L"kinovra-test-go"));
    const SystemVariable wait(u"ECHO_WAIT"_s, u"kinovra-test-go"_s);
    scratch.makeDirectory("Sub");
    Start start = direct(at(Program));
    start.directory = at(u"Sub"_s);
    EXPECT_EQ(startUnlessLost(start).failure, QString());
    while (records().empty())
        QCoreApplication::processEvents(QEventLoop::AllEvents, 10);
    try {
        files.removeDirectory(at(u"Sub"_s));
        ADD_FAILURE() << "it was removed";
    } catch (const platform::RuntimeError &error) {
        EXPECT_EQ(error.Number, 75);
        EXPECT_EQ(error.Description, u"The system uses it"_s);
    }
    ::SetEvent(go.get());
    waitForEnds(1);
}
