// Real processes: an echo program records what it was given.

#include "platform/letter_case.h"
#include "platform/linux/host_names.h"
#include "platform/linux/linux_programs.h"
#include "platform/path_language.h"
#include "printing.h"
#include "recording_platform.h"
#include "scratch_directory.h"

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QEventLoop>
#include <QTimer>
#include <gmock/gmock.h>

#include <cerrno>
#include <cstring>
#include <filesystem>
#include <optional>
#include <random>

#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

using namespace Qt::StringLiterals;
using platform::CommandText;
using platform::Ending;
using platform::Start;
using platform::StartResult;
using platform::Target;
using platform::host::LinuxFileSystem;
using platform::host::LinuxPrograms;

namespace {

constexpr const char *EchoProgram = KINOVRA_ECHO_PROGRAM;
constexpr const char *ConsoleHelper = KINOVRA_CONSOLE_HELPER;

struct Ended
{
    double value;
    Ending ending;
};

} // namespace

class LinuxStarts : public testing::Test
{
protected:
    LinuxStarts()
    {
        // What other tests have left is none of this one's processes.
        while (::wait(nullptr) > 0) {
        }
        scratch.makeDirectory("Program Files");
        scratch.makeDirectory("bin");
        install("Program Files/Kinemati.exe");
        programs.ended = [this](double value, const Ending &ending) { ends.push_back({value, ending}); };
    }

    void install(const QByteArray &name) const
    {
        std::filesystem::copy_file(EchoProgram, scratch.path(name).toStdString());
    }

    QString at(const QString &name) const { return base + u'\\' + name; }

    Start open(const QString &file, const CommandText &parameters) const
    {
        return {.verb = u"open"_s, .file = file, .parameters = parameters, .directory = base};
    }

    /// Starts and waits for the end; the record of the echo program.
    QList<QByteArray> run(const Start &start)
    {
        result = programs.start(start);
        EXPECT_EQ(result.failure, QString());
        waitForEnd();
        return record();
    }

    void expectThatEndingsAreTold()
    {
        const Start start = open(at(u"Program Files\\Kinemati.exe"_s), u"x"_s);
        {
            const support::ScopedVariable code("ECHO_EXIT", "3");
            run(start);
            EXPECT_EQ(ends.back().ending.kind, Ending::Kind::Exited);
            EXPECT_EQ(ends.back().ending.code, 3);
            EXPECT_EQ(ends.back().ending.reason, QString());
        }
        {
            const support::ScopedVariable code("ECHO_EXIT", "127");
            run(start);
            EXPECT_EQ(ends.back().ending.kind, Ending::Kind::Exited);
            EXPECT_EQ(ends.back().ending.code, 127);
            EXPECT_EQ(ends.back().ending.reason, u"a library or program that it needs may be missing"_s);
        }
        const support::ScopedVariable code("ECHO_EXIT", "abort");
        run(start);
        EXPECT_EQ(ends.back().ending.kind, Ending::Kind::Crashed);
        EXPECT_EQ(ends.back().ending.code, SIGABRT);
        EXPECT_EQ(ends.back().ending.reason, u"signal 6"_s);
    }

    void waitForEnd()
    {
        const size_t before = ends.size();
        QDeadlineTimer deadline(20'000);
        while (ends.size() == before && !deadline.hasExpired())
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents | QEventLoop::AllEvents, 100);
        ASSERT_GT(ends.size(), before) << "the program did not end";
    }

    QList<QByteArray> record() const
    {
        QList<QByteArray> fields = scratch.read("record").split('\0');
        if (!fields.isEmpty())
            fields.removeLast();
        return fields;
    }

    support::KeptDirectory kept;
    support::ScratchDirectory scratch{"Anna & Bob's \xC3\xA4 data"};
    support::ScopedVariable echoFile{"ECHO_FILE", scratch.path("record")};
    support::ScopedVariable path{"PATH", scratch.path("bin")};
    support::ScopedVariable display{"DISPLAY", QByteArray()};
    support::ScopedVariable wayland{"WAYLAND_DISPLAY", QByteArray()};
    support::ScopedVariable desktop{"XDG_CURRENT_DESKTOP", QByteArray()};
    LinuxFileSystem files{QByteArray()};
    QString base = files.adopt(scratch.path());
    LinuxPrograms programs{files, ConsoleHelper};
    std::vector<Ended> ends;
    StartResult result;
};

TEST_F(LinuxStarts, run_a_program_with_its_arguments_in_its_directory)
{
    const auto got =
        run(open(at(u"PROGRAM FILES\\KINEMATI.EXE"_s), u"/T /D "_s + CommandText::document(u"MY WALK"_s)));
    EXPECT_EQ(got, (QList<QByteArray>{scratch.path(), scratch.path("Program Files/Kinemati.exe"), "/T", "/D",
                                      "MY WALK"}));
    EXPECT_GT(result.value, 32);
    ASSERT_EQ(ends.size(), 1U);
    EXPECT_EQ(ends[0].value, result.value);
    EXPECT_EQ(ends[0].ending.kind, Ending::Kind::Exited);
    EXPECT_EQ(ends[0].ending.code, 0);
}

TEST_F(LinuxStarts, run_directly)
{
    Start start = open(at(u"Program Files\\Kinemati.exe"_s), u" /1 "_s + CommandText::document(u"a b.plt"_s));
    start.verb.clear();
    EXPECT_EQ(run(start), (QList<QByteArray>{scratch.path(), scratch.path("Program Files/Kinemati.exe"), "/1",
                                             "a b.plt"}));
    EXPECT_GT(result.value, 0);
}

TEST_F(LinuxStarts, run_a_native_program_or_a_script_in_place_of_an_exe)
{
    install("bin/noise");
    EXPECT_EQ(run(open(at(u"BIN\\NOISE.EXE"_s), u"X"_s)).value(1), scratch.path("bin/noise"));
    scratch.makeExecutable("bin/fourier", QByteArray("#!") + EchoProgram + "\n");
    EXPECT_EQ(run(open(at(u"BIN\\FOURIER.EXE"_s), u"X"_s)),
              (QList<QByteArray>{scratch.path(), EchoProgram, scratch.path("bin/fourier"), "X"}));
}

TEST_F(LinuxStarts, pass_every_document_as_exactly_one_argument)
{
    std::mt19937 random(20261121);
    const QString alphabet = u"abAB1 \t'\"&|;<>()$`\\!*?[]{}~#%^=,-äß🏃\n"_s;
    for (int i = 0; i < 200; ++i) {
        QString name;
        const int length = 1 + static_cast<int>(random() % 30);
        for (int j = 0; j < length; ++j)
            name += alphabet[static_cast<int>(random() % static_cast<unsigned>(alphabet.size()))];
        const auto got = run(
            open(at(u"Program Files\\Kinemati.exe"_s), u"/T "_s + CommandText::document(name) + u" end"_s));
        ASSERT_EQ(got.size(), 5) << name.toStdString();
        EXPECT_EQ(got[3], name.toUtf8()) << name.toStdString();
    }
}

TEST_F(LinuxStarts, pass_names_that_are_no_text)
{
    const QByteArray bytes = "caf\xE9 \"x\" a:b.dg";
    scratch.makeFile(bytes);
    const QString name = files.directory(base, platform::Reading::Anew)->files(u"caf*"_s).at(0);
    EXPECT_EQ(run(open(at(u"Program Files\\Kinemati.exe"_s), CommandText::document(name))).value(2), bytes);
}

TEST_F(LinuxStarts, tell_exit_codes_and_crashes)
{
    expectThatEndingsAreTold();
}

TEST_F(LinuxStarts, begin_clean_in_a_session_of_their_own_and_leave_no_zombie)
{
    // The shell reads its own state itself: while it waits for a child, it blocks signals.
    scratch.makeExecutable("bin/look.exe", R"(#!/bin/sh
read -r pid name state parent group session rest </proc/self/stat
while read -r line; do
  case $line in SigBlk:*) echo "$line" >signals ;; esac
done </proc/self/status
echo $(($$ - session)) >session
/bin/ls /proc/self/fd >fds
)");
    result = programs.start(open(at(u"bin\\look.exe"_s), u"x"_s));
    EXPECT_EQ(result.failure, QString());
    waitForEnd();
    // The fourth is its own, on the directory that it lists.
    EXPECT_EQ(scratch.read("fds"), "0\n1\n2\n3\n");
    EXPECT_EQ(scratch.read("signals"), "SigBlk:\t0000000000000000\n");
    EXPECT_EQ(scratch.read("session"), "0\n");
    EXPECT_EQ(::waitpid(-1, nullptr, WNOHANG), -1);
    EXPECT_EQ(errno, ECHILD);
}

TEST_F(LinuxStarts, outlive_the_panel)
{
    scratch.makeExecutable("bin/slow.exe", "#!/bin/sh\n/bin/sleep 0.2\necho done >late\n");
    {
        LinuxPrograms passing(files, ConsoleHelper);
        EXPECT_EQ(passing.start(open(at(u"bin\\slow.exe"_s), u"x"_s)).failure, QString());
    }
    QDeadlineTimer deadline(20'000);
    while (scratch.read("late").isEmpty() && !deadline.hasExpired())
        QCoreApplication::processEvents(QEventLoop::AllEvents, 20);
    EXPECT_EQ(scratch.read("late"), "done\n");
    ::wait(nullptr);
}

TEST_F(LinuxStarts, run_in_directories_with_very_long_names)
{
    const QByteArray name(250, 'n');
    QByteArray deep = name;
    for (int i = 0; i < 12; ++i)
        deep += '/' + name;
    scratch.makeDirectory(deep);
    install(deep + "/Kv.exe");
    Start start = open(files.adopt(scratch.path(deep)) + u"\\KV.EXE"_s, u"x"_s);
    start.directory = files.adopt(scratch.path(deep));
    EXPECT_EQ(run(start), (QList<QByteArray>{scratch.path(deep), scratch.path(deep + "/Kv.exe"), "x"}));
}

TEST_F(LinuxStarts, say_why_nothing_was_started)
{
    scratch.makeFile("plain.exe", "not a program");
    scratch.makeFile("bin/forbidden.exe", "#!/bin/true\n");
    scratch.makeExecutable("bin/orphan.exe", "#!/no/such/interpreter\n");
    scratch.makeFile("windows.exe", QByteArray("MZ") + QByteArray(58, '\0') + QByteArray("\x40\0\0\0", 4)
                                        + QByteArray("PE\0\0", 4) + QByteArray(200, '\0'));
    scratch.makeFile("dos.exe", QByteArray("MZ") + QByteArray(100, '\0'));
    scratch.makeDirectory("folder.exe");
    const std::pair<QString, QString> table[]{
        {u"missing.exe"_s, u"it was not found"_s},
        {u"plain.exe"_s, u"it is not a program"_s},
        {u"folder.exe"_s, u"it is not a program"_s},
        {u"bin\\forbidden.exe"_s, u"it may not be executed"_s},
        {u"bin\\orphan.exe"_s, u"something that it needs to run was not found"_s},
        {u"windows.exe"_s, u"it is a Windows program, and Wine is not installed"_s},
        {u"dos.exe"_s, u"it is a DOS program, and DOSBox is not installed"_s},
        {u"C:\\x.exe"_s, u"bad file name or number"_s},
    };
    for (const auto &[file, why] : table) {
        result = programs.start(open(at(file), u"x"_s));
        EXPECT_EQ(result.failure, why) << file.toStdString();
        EXPECT_LE(result.value, 32) << file.toStdString();
        Start direct = open(at(file), u"x"_s);
        direct.verb.clear();
        result = programs.start(direct);
        EXPECT_EQ(result.failure, why) << file.toStdString();
        EXPECT_EQ(result.value, 0) << file.toStdString();
    }
    EXPECT_TRUE(record().isEmpty());
}

TEST_F(LinuxStarts, say_what_the_system_has_against_a_program)
{
    scratch.makeExecutable("folder.exe", "#!/tmp\n");
    scratch.makeExecutable("broken.exe", "\x7F"
                                         "ELF and nothing more");
    result = programs.start(open(at(u"folder.exe"_s), u"x"_s));
    EXPECT_EQ(result.failure, u"it may not be executed"_s);
    EXPECT_EQ(result.value, 5);
    result = programs.start(open(at(u"broken.exe"_s), u"x"_s));
    EXPECT_EQ(result.failure, u"it is not a program of this system"_s);
    EXPECT_EQ(result.value, 11);
    // The system takes arguments of 128 KiB.
    const CommandText endless = CommandText::document(QString(200'000, u'x'));
    result = programs.start(open(at(u"Program Files\\Kinemati.exe"_s), endless));
    EXPECT_EQ(result.failure, QString::fromLocal8Bit(std::strerror(E2BIG))); // NOLINT(concurrency-mt-unsafe)
    EXPECT_EQ(result.value, 2);
    EXPECT_TRUE(record().isEmpty());
}

TEST_F(LinuxStarts, need_a_program_that_may_be_read)
{
    scratch.makeExecutable("secret.exe", "#!/bin/true\n");
    ::chmod(scratch.path("secret.exe").constData(), 0);
    const support::WithoutPrivileges nobody;
    result = programs.start(open(at(u"secret.exe"_s), u"x"_s));
    EXPECT_EQ(result.failure, u"permission was denied"_s);
    EXPECT_EQ(result.value, 5);
}

TEST_F(LinuxStarts, need_nobody_who_hears_of_their_end)
{
    LinuxPrograms untold(files, ConsoleHelper);
    EXPECT_EQ(untold.start(open(at(u"Program Files\\Kinemati.exe"_s), u"x"_s)).failure, QString());
    QDeadlineTimer deadline(20'000);
    while (::waitid(P_ALL, 0, nullptr, WEXITED | WNOHANG | WNOWAIT) == 0 && !deadline.hasExpired())
        QCoreApplication::processEvents(QEventLoop::AllEvents, 20);
    EXPECT_EQ(errno, ECHILD);
    EXPECT_EQ(record().value(2), "x");
}

TEST_F(LinuxStarts, need_their_directory)
{
    Start start = open(at(u"Program Files\\Kinemati.exe"_s), u"x"_s);
    start.directory = at(u"gone"_s);
    EXPECT_EQ(programs.start(start).failure, u"the directory "_s + at(u"gone"_s) + u" is gone"_s);
}

TEST_F(LinuxStarts, run_windows_programs_through_wine)
{
    install("bin/wine");
    scratch.makeFile("Kv.exe", QByteArray("MZ") + QByteArray(58, '\0') + QByteArray("\x40\0\0\0", 4)
                                   + QByteArray("PE\0\0", 4) + QByteArray(200, '\0'));
    EXPECT_EQ(run(open(at(u"KV.EXE"_s), u"/T "_s + CommandText::document(u"MY WALK"_s))),
              (QList<QByteArray>{scratch.path(), scratch.path("bin/wine"), scratch.path("Kv.exe"), "/T",
                                 "MY WALK"}));
}

TEST_F(LinuxStarts, run_dos_programs_through_dosbox)
{
    install("bin/dosbox");
    scratch.makeFile("bin/OLD.EXE", QByteArray("MZ") + QByteArray(100, '\0'));
    Start start = open(at(u"BIN\\OLD.EXE"_s), u"/T "_s + CommandText::document(u"WALK1"_s));
    // The ampersand of the scratch directory's name is syntax for DOS.
    EXPECT_EQ(programs.start(start).failure.left(1), u"\""_s);
    const support::ScratchDirectory plain("plain");
    std::filesystem::copy_file(scratch.path("bin/OLD.EXE").toStdString(),
                               plain.path("OLD.EXE").toStdString());
    start.directory = files.adopt(plain.path());
    start.file = start.directory + u"\\OLD.EXE"_s;
    EXPECT_EQ(run(start),
              (QList<QByteArray>{plain.path(), scratch.path("bin/dosbox"), "-c",
                                 "MOUNT C \"" + plain.path() + '"', "-c", "MOUNT D \"" + plain.path() + '"',
                                 "-c", "D:", "-c", "C:\\OLD.EXE /T WALK1", "-c", "EXIT"}));
}

TEST_F(LinuxStarts, never_take_a_bare_name_from_the_data_directory)
{
    install("gedit");
    install("planted.exe");
    install("planted");
    install("notepad.exe");
    files.changeDrive(base);
    files.changeDirectory(base);
    for (const QByteArray &searched :
         {scratch.path("bin"), QByteArray("."), QByteArray(""), QByteArray(":.:")}) {
        const support::ScopedVariable variable("PATH", searched);
        EXPECT_EQ(programs.start(open(u"planted.exe"_s, QString())).failure, u"it was not found"_s);
        EXPECT_EQ(programs.start(open(u"planted"_s, QString())).failure, u"it was not found"_s);
        EXPECT_EQ(programs.start(open(u"notepad.exe"_s, QString())).failure,
                  u"this desktop has no text editor installed"_s);
    }
    EXPECT_TRUE(record().isEmpty());
}

TEST_F(LinuxStarts, find_a_bare_name_where_the_system_keeps_programs)
{
    install("bin/my-editor");
    scratch.makeDirectory("bin/sub");
    install("bin/sub/my-editor");
    for (const QString &name : {QString(), u"sub"_s, u"sub/my-editor"_s, u"../bin/my-editor"_s})
        EXPECT_EQ(programs.start(open(name, u"x"_s)).failure, u"it was not found"_s) << name.toStdString();
    EXPECT_EQ(run(open(u"my-editor"_s, u"x"_s)),
              (QList<QByteArray>{scratch.path(), scratch.path("bin/my-editor"), "x"}));
}

TEST_F(LinuxStarts, open_documents_in_the_desktops_own_editor_by_their_real_path)
{
    install("bin/mousepad");
    scratch.makeFile("WALK1.DG");
    EXPECT_EQ(run(open(u"Notepad.exe"_s, CommandText::document(u"walk1.dg"_s))),
              (QList<QByteArray>{scratch.path(), scratch.path("bin/mousepad"), scratch.path("WALK1.DG")}));
    Start direct = open(u"notepad.exe"_s, u" "_s + CommandText::document(u"new model.cfb"_s));
    direct.verb.clear();
    EXPECT_EQ(run(direct), (QList<QByteArray>{scratch.path(), scratch.path("bin/mousepad"),
                                              scratch.path("new model.cfb")}));
    EXPECT_EQ(run(open(u"NOTEPAD.EXE"_s, CommandText::document(at(u"walk1.dg"_s)))).value(2),
              scratch.path("WALK1.DG"));
}

TEST_F(LinuxStarts, prefer_the_programs_of_the_running_desktop)
{
    install("bin/gedit");
    install("bin/kate");
    install("bin/kcalc");
    EXPECT_EQ(run(open(u"notepad.exe"_s, QString())).value(1), scratch.path("bin/gedit"));
    const support::ScopedVariable variable("XDG_CURRENT_DESKTOP", "ubuntu:KDE");
    EXPECT_EQ(run(open(u"notepad.exe"_s, QString())).value(1), scratch.path("bin/kate"));
    EXPECT_EQ(run(open(u"calc.exe"_s, QString())).value(1), scratch.path("bin/kcalc"));
}

TEST_F(LinuxStarts, say_which_accessory_is_missing)
{
    EXPECT_EQ(programs.start(open(u"calc.exe"_s, QString())).failure,
              u"this desktop has no calculator installed"_s);
    EXPECT_EQ(programs.start(open(u"command.com"_s, QString())).failure,
              u"this desktop has no terminal installed"_s);
    EXPECT_EQ(programs.start(open(u"explorer.exe"_s, QString())).failure,
              u"this desktop has no file manager installed"_s);
    EXPECT_EQ(programs.start(open(u"mplayer.exe"_s, QString())).failure,
              u"this desktop has no media player installed"_s);
}

TEST_F(LinuxStarts, show_what_the_system_is_with_the_desktops_own_tool)
{
    Start start = open(u"MSINFO32.EXE"_s, QString());
    start.verb.clear();
    result = programs.start(start);
    EXPECT_EQ(result.failure, u"this desktop has no system-information tool installed"_s);
    EXPECT_EQ(result.value, 0);
    install("bin/hardinfo");
    install("bin/mate-system-monitor");
    EXPECT_EQ(run(start), (QList<QByteArray>{scratch.path(), scratch.path("bin/hardinfo")}));
    EXPECT_GT(result.value, 32);
    {
        const support::ScopedVariable mate("XDG_CURRENT_DESKTOP", "MATE");
        EXPECT_EQ(run(start).value(1), scratch.path("bin/mate-system-monitor"));
    }
    const support::ScopedVariable kde("XDG_CURRENT_DESKTOP", "KDE");
    EXPECT_EQ(run(start).value(1), scratch.path("bin/hardinfo")) << "its own is not installed";
    install("bin/kinfocenter");
    EXPECT_EQ(run(start).value(1), scratch.path("bin/kinfocenter"));
}

TEST_F(LinuxStarts, show_help_with_the_desktops_own_viewer)
{
    EXPECT_EQ(programs.start(open(u"WinHlp32.EXE"_s, QString())).failure,
              u"this desktop has no help viewer installed"_s);
    install("bin/khelpcenter");
    EXPECT_EQ(run(open(u"WinHlp32.EXE"_s, QString())),
              (QList<QByteArray>{scratch.path(), scratch.path("bin/khelpcenter")}));
    install("bin/yelp");
    EXPECT_EQ(run(open(u"WinHlp32.EXE"_s, QString())).value(1), scratch.path("bin/yelp"));
    const support::ScopedVariable variable("XDG_CURRENT_DESKTOP", "KDE");
    EXPECT_EQ(run(open(u"winhlp32.exe"_s, QString())).value(1), scratch.path("bin/khelpcenter"));
}

TEST_F(LinuxStarts, do_not_mind_the_letter_case_of_the_verb)
{
    for (const QString &verb : {u"open"_s, u"Open"_s, u"OPEN"_s}) {
        Start start = open(at(u"Program Files\\Kinemati.exe"_s), u"x"_s);
        start.verb = verb;
        EXPECT_EQ(run(start).value(2), "x");
        EXPECT_GT(result.value, 32);
        start.file = at(u"missing.exe"_s);
        EXPECT_EQ(programs.start(start).value, 2);
    }
}

/// Documents and addresses, for the echo program in place of the desktop's opener.
class LinuxDocuments : public LinuxStarts
{
protected:
    LinuxDocuments()
    {
        scratch.makeDirectory("Manuals");
        install("bin/xdg-open");
    }

    Start document(const QString &name) const
    {
        return {.verb = u"open"_s, .file = name, .directory = at(u"Manuals"_s), .target = Target::Document};
    }

    Start address(const QString &text) const
    {
        return {.verb = u"Open"_s, .file = text, .directory = base, .target = Target::Address};
    }

    void expectRefusal(const Start &start, const QString &why, double value = 2)
    {
        result = programs.start(start);
        EXPECT_EQ(result.failure, why) << start.file.toStdString();
        EXPECT_EQ(result.value, value) << start.file.toStdString();
        EXPECT_TRUE(record().isEmpty()) << start.file.toStdString();
    }
};

TEST_F(LinuxDocuments, are_opened_by_their_real_path)
{
    scratch.makeFile("Manuals/Kinovra.PDF");
    const QList<QByteArray> opened{scratch.path("Manuals"), scratch.path("bin/xdg-open"),
                                   scratch.path("Manuals/Kinovra.PDF")};
    EXPECT_EQ(run(document(u"kinovra.pdf"_s)), opened);
    EXPECT_GT(result.value, 32);
    ASSERT_EQ(ends.size(), 1U);
    EXPECT_EQ(ends[0].value, result.value);
    EXPECT_EQ(ends[0].ending.kind, Ending::Kind::Exited);
    EXPECT_EQ(ends[0].ending.code, 0);

    for (const QString &directory : {u"Manuals\\"_s, u"MANUALS"_s, u"manuals\\"_s}) {
        for (const QString &verb : {u"open"_s, u"Open"_s}) {
            Start start = document(u"KINOVRA.PDF"_s);
            start.directory = at(directory);
            start.verb = verb;
            EXPECT_EQ(run(start), opened) << directory.toStdString();
            EXPECT_GT(result.value, 32);
        }
    }
}

TEST_F(LinuxDocuments, may_have_any_name)
{
    for (const QByteArray &name :
         {QByteArray("Anna & Bob's manual.pdf"), QByteArray("-x.pdf"), QByteArray("--help"),
          QByteArray(" blank\t.pdf "), QByteArray("f\xC3\xBChrung \xE2\x82\xAC.pdf"),
          QByteArray("$(x) `y` ;|<>*?.pdf"), QByteArray("%41#b?c=d.pdf"), QByteArray("new\nline.pdf"),
          QByteArray("..."), QByteArray("..x.pdf"), QByteArray("caf\xE9 \"x\" a:b c\\d.pdf"),
          QByteArray("notepad.exe")}) {
        scratch.makeFile("Manuals/" + name);
        const auto names = files.directory(at(u"Manuals"_s), platform::Reading::Anew);
        const QString shown = platform::host::fromHostName(name);
        EXPECT_EQ(names->find(shown), shown);
        for (const QString &written : {shown, platform::UCase(shown)}) {
            EXPECT_EQ(run(document(written)),
                      (QList<QByteArray>{scratch.path("Manuals"), scratch.path("bin/xdg-open"),
                                         scratch.path("Manuals/" + name)}))
                << name.toStdString();
        }
    }
}

TEST_F(LinuxDocuments, are_taken_from_their_directory_alone)
{
    scratch.makeFile("kv_win.pdf");
    scratch.makeFile("bin/kv_win.pdf");
    scratch.makeExecutable("bin/planted", "#!/bin/true\n");
    scratch.makeExecutable("Manuals/native", "#!/bin/true\n");
    files.changeDrive(base);
    files.changeDirectory(base);
    for (const QByteArray &searched : {scratch.path("bin"), scratch.path("bin") + ":.:"}) {
        const support::ScopedVariable variable("PATH", searched);
        for (const QString &name :
             {u"kv_win.pdf"_s, u"planted"_s, u"planted.exe"_s, u"native.exe"_s, u"notepad.exe"_s})
            expectRefusal(document(name), u"it was not found"_s);
    }
    Start nowhere = document(u"kv_win.pdf"_s);
    nowhere.directory.clear();
    expectRefusal(nowhere, u"path not found"_s);
    nowhere.directory = at(u"gone"_s);
    expectRefusal(nowhere, u"the directory "_s + at(u"gone"_s) + u" is gone"_s);
}

TEST_F(LinuxDocuments, have_names_that_lead_nowhere_else)
{
    scratch.makeFile("secret.pdf");
    scratch.makeDirectory("Manuals/sub");
    scratch.makeFile("Manuals/sub/x.pdf");
    scratch.makeFile("Manuals/x.pdf");
    for (const QString &name :
         {u"..\\secret.pdf"_s, u"../secret.pdf"_s, u"sub\\x.pdf"_s, u"sub/x.pdf"_s, u"\\x.pdf"_s, u"/x.pdf"_s,
          u"./x.pdf"_s, u".\\x.pdf"_s, u"x.pdf/"_s, u".."_s, u"."_s, u"Z:x.pdf"_s, u"x.pdf:1"_s,
          u"/etc/passwd"_s, at(u"secret.pdf"_s), at(u"Manuals\\x.pdf"_s), u"x.pdf"_s + QChar(u'\0'),
          u"https://example.org/x.pdf"_s, QString(300, u'x')})
        expectRefusal(document(name), u"it was not found"_s);
    EXPECT_EQ(run(document(u"x.pdf"_s)).value(2), scratch.path("Manuals/x.pdf"));
}

TEST_F(LinuxDocuments, must_still_be_there)
{
    scratch.makeFile("Manuals/graph.pdf");
    files.directory(at(u"Manuals"_s), platform::Reading::Anew);
    files.beginMoment();
    EXPECT_EQ(files.testReading(at(u"MANUALS\\GRAPH.PDF"_s)), 0);
    scratch.remove("Manuals/graph.pdf");
    EXPECT_EQ(files.testReading(at(u"MANUALS\\GRAPH.PDF"_s)), 53);
    expectRefusal(document(u"GRAPH.PDF"_s), u"it was not found"_s);
    files.endMoment();
    expectRefusal(document(u"graph.pdf"_s), u"it was not found"_s);
}

TEST_F(LinuxDocuments, are_regular_files)
{
    scratch.makePipe("Manuals/pipe.pdf");
    scratch.makeLink("Manuals/device.pdf", "/dev/zero");
    scratch.makeLink("Manuals/dangling.pdf", "/gone/away.pdf");
    scratch.makeLink("Manuals/loop.pdf", "loop.pdf");
    scratch.makeDirectory("Manuals/folder.pdf");
    expectRefusal(document(u"PIPE.PDF"_s), u"it is not a file"_s);
    expectRefusal(document(u"device.pdf"_s), u"it is not a file"_s);
    expectRefusal(document(u"folder.pdf"_s), u"it is not a file"_s);
    expectRefusal(document(u"dangling.pdf"_s), u"it was not found"_s);
    expectRefusal(document(u"loop.pdf"_s), u"it was not found"_s);
    scratch.makeFile("elsewhere.pdf");
    scratch.makeLink("Manuals/link.pdf", "../elsewhere.pdf");
    EXPECT_EQ(run(document(u"Link.PDF"_s)).value(2), scratch.path("Manuals/link.pdf"));
}

TEST_F(LinuxDocuments, must_be_readable)
{
    scratch.makeFile("Manuals/secret.pdf");
    scratch.makeDirectory("closed/manuals");
    ::chmod(scratch.path("Manuals/secret.pdf").constData(), 0);
    ::chmod(scratch.path("closed").constData(), 0);
    {
        const support::WithoutPrivileges nobody;
        expectRefusal(document(u"SECRET.PDF"_s), u"permission was denied"_s, 5);
        Start below = document(u"x.pdf"_s);
        below.directory = at(u"closed\\manuals"_s);
        expectRefusal(below, u"permission denied"_s, 5);
    }
    ::chmod(scratch.path("closed").constData(), 0755);
}

TEST_F(LinuxDocuments, without_a_name_are_their_directory)
{
    const QList<QByteArray> opened{scratch.path("Manuals"), scratch.path("bin/xdg-open"),
                                   scratch.path("Manuals")};
    EXPECT_EQ(run(document(QString())), opened);
    Start start = document(QString());
    start.directory = at(u"MANUALS\\"_s);
    EXPECT_EQ(run(start), opened);
    start.directory = u"Z:\\"_s;
    EXPECT_EQ(run(start), (QList<QByteArray>{"/", scratch.path("bin/xdg-open"), "/"}));
}

TEST_F(LinuxDocuments, that_are_addresses_are_passed_as_they_are)
{
    for (const QString &text :
         {u"https://www.example.org/kinovra/"_s, u"https://example.org/a%20b?x=1&y='2'#z;$(w)"_s,
          u"https://example.org/ü€/\uF05C"_s, u"https://example.org/file:///etc"_s}) {
        EXPECT_EQ(run(address(text)),
                  (QList<QByteArray>{scratch.path(), scratch.path("bin/xdg-open"), text.toUtf8()}));
        EXPECT_GT(result.value, 32);
    }
}

TEST_F(LinuxDocuments, that_are_no_secure_addresses_are_refused)
{
    for (const QString &text : {u"http://www.example.org/"_s,
                                u"file:///etc/passwd"_s,
                                u"javascript:alert(1)"_s,
                                u"-option"_s,
                                u"--help"_s,
                                u"www.example.org"_s,
                                u"mailto:a@example.org"_s,
                                u"https:/x"_s,
                                u"xhttps://x"_s,
                                u" https://example.org/"_s,
                                u"https://example.org/a b"_s,
                                u"https://example.org/\tx"_s,
                                u"https://example.org/\n-x"_s,
                                u"https://example.org/\x7F"_s,
                                u"https://example.org/\u00A0"_s,
                                u"https://example.org/\u0085"_s,
                                u"https://example.org/"_s + QChar(u'\0'),
                                u"Manuals"_s,
                                at(u"x"_s),
                                QString()})
        expectRefusal(address(text), u"it is not an https address"_s);
}

TEST_F(LinuxDocuments, that_are_addresses_need_no_directory)
{
    Start start = address(u"https://example.org/"_s);
    start.directory.clear();
    // A browser that stays open keeps no data directory busy.
    EXPECT_EQ(run(start), (QList<QByteArray>{"/", scratch.path("bin/xdg-open"), "https://example.org/"}));

    start.directory = at(u"gone"_s);
    EXPECT_EQ(programs.start(start).failure, u"the directory "_s + at(u"gone"_s) + u" is gone"_s);
}

TEST_F(LinuxDocuments, go_to_the_first_opener_that_is_installed)
{
    scratch.makeFile("Manuals/graph.pdf");
    scratch.remove("bin/xdg-open");
    for (const QByteArray &opener :
         {QByteArray("gnome-open"), QByteArray("exo-open"), QByteArray("kde-open5"), QByteArray("kde-open"),
          QByteArray("gio"), QByteArray("xdg-open")}) {
        install("bin/" + opener);
        QList<QByteArray> opened{scratch.path("Manuals"), scratch.path("bin/" + opener)};
        if (opener == "gio")
            opened.append("open");
        EXPECT_EQ(run(document(u"graph.pdf"_s)), opened + QList{scratch.path("Manuals/graph.pdf")});
        opened[0] = scratch.path();
        EXPECT_EQ(run(address(u"https://example.org/"_s)),
                  opened + QList{QByteArray("https://example.org/")});
    }
}

TEST_F(LinuxDocuments, need_an_opener)
{
    scratch.makeFile("Manuals/graph.pdf");
    install("xdg-open");
    install("Manuals/gio");
    files.changeDrive(base);
    files.changeDirectory(base);
    for (const QByteArray &searched : {QByteArray("."), QByteArray(""), QByteArray(":.:Manuals")}) {
        const support::ScopedVariable variable("PATH", searched);
        for (const Start &start :
             {document(u"graph.pdf"_s), document(QString()), address(u"https://example.org/"_s)})
            expectRefusal(start, u"this desktop has nothing to open it with"_s, 31);
    }
    ::chmod(scratch.path("bin/xdg-open").constData(), 0644);
    expectRefusal(document(u"graph.pdf"_s), u"this desktop has nothing to open it with"_s, 31);
}

TEST_F(LinuxDocuments, tell_how_the_opener_ended)
{
    scratch.makeFile("Manuals/graph.pdf");
    const support::ScopedVariable code("ECHO_EXIT", "4");
    run(document(u"graph.pdf"_s));
    EXPECT_EQ(ends.back().value, result.value);
    EXPECT_EQ(ends.back().ending.kind, Ending::Kind::Exited);
    EXPECT_EQ(ends.back().ending.code, 4);
    run(address(u"https://example.org/"_s));
    EXPECT_EQ(ends.back().value, result.value);
    EXPECT_EQ(ends.back().ending.code, 4);
}

TEST_F(LinuxDocuments, are_opened_in_no_terminal)
{
    scratch.makeFile("Manuals/graph.pdf");
    install("bin/kitty");
    const support::ScopedVariable shown("DISPLAY", ":99");
    EXPECT_EQ(run(document(u"graph.pdf"_s)).value(1), scratch.path("bin/xdg-open"));
    EXPECT_EQ(run(address(u"https://example.org/"_s)).value(1), scratch.path("bin/xdg-open"));
}

/// A terminal that is none: "kitty" takes its command without an option, as env does.
class LinuxTerminals : public LinuxStarts
{
protected:
    LinuxTerminals() { scratch.makeLink("bin/kitty", "/usr/bin/env"); }

    support::ScopedVariable display{"DISPLAY", ":99"};
};

TEST_F(LinuxTerminals, show_console_programs)
{
    EXPECT_EQ(
        run(open(at(u"Program Files\\Kinemati.exe"_s), u"/T "_s + CommandText::document(u"MY WALK"_s))),
        (QList<QByteArray>{scratch.path(), scratch.path("Program Files/Kinemati.exe"), "/T", "MY WALK"}));
    EXPECT_EQ(ends.back().value, result.value);
    EXPECT_EQ(ends.back().ending.code, 0);
}

TEST_F(LinuxTerminals, let_exit_codes_and_crashes_be_known)
{
    expectThatEndingsAreTold();
    EXPECT_EQ(ends.size(), 3U) << "each is told once";
}

TEST_F(LinuxTerminals, that_fail_are_not_taken_for_the_program)
{
    scratch.remove("bin/kitty");
    scratch.makeLink("bin/kitty", "/bin/false");
    result = programs.start(open(at(u"Program Files\\Kinemati.exe"_s), u"x"_s));
    EXPECT_EQ(result.failure, QString());
    waitForEnd();
    EXPECT_EQ(ends.back().value, result.value);
    EXPECT_EQ(ends.back().ending.kind, Ending::Kind::TerminalFailed);
}

TEST_F(LinuxTerminals, that_crash_are_not_taken_for_the_program)
{
    scratch.remove("bin/kitty");
    scratch.makeExecutable("bin/kitty", "#!/bin/sh\nkill -9 $$\n");
    result = programs.start(open(at(u"Program Files\\Kinemati.exe"_s), u"x"_s));
    EXPECT_EQ(result.failure, QString());
    waitForEnd();
    EXPECT_EQ(ends.back().value, result.value);
    EXPECT_EQ(ends.back().ending.kind, Ending::Kind::TerminalFailed);
}

TEST_F(LinuxTerminals, may_fail_once_the_program_has_ended)
{
    scratch.remove("bin/kitty");
    // What the helper has told already is told once, even if it is told again.
    scratch.makeExecutable("bin/kitty", "#!/bin/sh\n\"$@\"\n\"$@\"\n: >closed\nexit 1\n");
    run(open(at(u"Program Files\\Kinemati.exe"_s), u"x"_s));
    QDeadlineTimer deadline(20'000);
    while (::waitid(P_ALL, 0, nullptr, WEXITED | WNOHANG | WNOWAIT) == 0 && !deadline.hasExpired())
        QCoreApplication::processEvents(QEventLoop::AllEvents, 20);
    EXPECT_TRUE(scratch.has("closed"));
    ASSERT_EQ(ends.size(), 1U);
    EXPECT_EQ(ends[0].value, result.value);
    EXPECT_EQ(ends[0].ending.kind, Ending::Kind::Exited);
    EXPECT_EQ(ends[0].ending.code, 0);
}

TEST_F(LinuxTerminals, do_not_hide_why_nothing_was_started)
{
    scratch.makeFile("bin/forbidden.exe", "#!/bin/true\n");
    EXPECT_EQ(programs.start(open(at(u"bin\\forbidden.exe"_s), u"x"_s)).failure, u"it may not be executed"_s);
    for (const char *firstLine : {"#! /no/such/interpreter -x\n", "#!/no/such/interpreter\n",
                                  "#!/no/such/interpreter", "#!/bin/sh\r\n", "#!no-such-interpreter\n"}) {
        scratch.makeExecutable("bin/orphan.exe", firstLine);
        EXPECT_EQ(programs.start(open(at(u"bin\\orphan.exe"_s), u"x"_s)).failure,
                  u"something that it needs to run was not found"_s)
            << firstLine;
    }
}

TEST_F(LinuxTerminals, show_scripts_whose_interpreter_is_in_the_directory_they_start_in)
{
    install("interpreter");
    scratch.makeExecutable("Program Files/script.exe", "#!interpreter\n");
    EXPECT_EQ(programs.start(open(at(u"Program Files\\script.exe"_s), u"x"_s)).failure, QString());
    waitForEnd();
    EXPECT_EQ(ends.back().ending.code, 0);
}

TEST_F(LinuxTerminals, show_windows_console_programs_and_no_others)
{
    const auto windowsProgram = [](char subsystem) {
        QByteArray header(200, '\0');
        header[24 + 68 - 4] = subsystem;
        return QByteArray("MZ") + QByteArray(58, '\0') + QByteArray("\x40\0\0\0", 4) + QByteArray("PE\0\0", 4)
               + header;
    };
    scratch.remove("bin/kitty");
    install("bin/kitty");
    install("bin/wine");
    scratch.makeFile("Console.exe", windowsProgram(3));
    scratch.makeFile("Window.exe", windowsProgram(2));
    EXPECT_EQ(run(open(at(u"WINDOW.EXE"_s), u"x"_s)).value(1), scratch.path("bin/wine"));
    EXPECT_EQ(programs.start(open(at(u"CONSOLE.EXE"_s), u"x"_s)).failure, QString());
    QDeadlineTimer deadline(20'000);
    while (!record().value(1).endsWith("kitty") && !deadline.hasExpired())
        QCoreApplication::processEvents(QEventLoop::AllEvents, 50);
    EXPECT_EQ(record().mid(5),
              (QList<QByteArray>{scratch.path("bin/wine"), scratch.path("Console.exe"), "x"}));
}

TEST_F(LinuxTerminals, are_not_for_viewers_which_get_the_real_path)
{
    scratch.makeFile("Listing.OUT");
    Start start = open(at(u"Program Files\\Kinemati.exe"_s), CommandText::document(at(u"listing.out"_s)));
    start.isViewer = true;
    EXPECT_EQ(run(start), (QList<QByteArray>{scratch.path(), scratch.path("Program Files/Kinemati.exe"),
                                             scratch.path("Listing.OUT")}));
}

TEST_F(LinuxTerminals, are_not_for_programs_with_windows_of_their_own)
{
    scratch.remove("bin/kitty");
    install("bin/kitty");
    install("Program Files/GrafoW.exe");
    EXPECT_EQ(run(open(at(u"Program Files\\GRAFOW.EXE"_s), u"x"_s)).value(1),
              scratch.path("Program Files/GrafoW.exe"));
    EXPECT_EQ(programs.start(open(at(u"Program Files\\KINEMATI.EXE"_s), u"x"_s)).failure, QString());
    // The terminal's own end is no end of the program, so the record tells.
    QDeadlineTimer deadline(20'000);
    while (!record().value(1).endsWith("kitty") && !deadline.hasExpired())
        QCoreApplication::processEvents(QEventLoop::AllEvents, 50);
    const auto got = record();
    EXPECT_EQ(got.value(1), scratch.path("bin/kitty"));
    EXPECT_EQ(got.value(2), QByteArray(ConsoleHelper));
    EXPECT_EQ(got.mid(5), (QList<QByteArray>{scratch.path("Program Files/Kinemati.exe"), "x"}));
}

TEST_F(LinuxTerminals, show_viewers_that_have_no_window)
{
    scratch.remove("bin/kitty");
    install("bin/kitty");
    install("bin/nano");
    scratch.makeFile("Listing.OUT");
    Start start = open(at(u"bin\\nano"_s), CommandText::document(at(u"listing.out"_s)));
    start.isViewer = true;
    EXPECT_EQ(programs.start(start).failure, QString());
    QDeadlineTimer deadline(20'000);
    while (record().isEmpty() && !deadline.hasExpired())
        QCoreApplication::processEvents(QEventLoop::AllEvents, 50);
    EXPECT_EQ(record().value(1), scratch.path("bin/kitty"));
    EXPECT_EQ(record().mid(5), (QList<QByteArray>{scratch.path("bin/nano"), scratch.path("Listing.OUT")}));
}

TEST_F(LinuxTerminals, do_without_the_helper)
{
    scratch.makeFile("helper");
    for (const QByteArray &helper : {QByteArray(), scratch.path("gone"), scratch.path("helper")}) {
        scratch.remove("record");
        LinuxPrograms bare(files, helper);
        EXPECT_EQ(bare.start(open(at(u"Program Files\\Kinemati.exe"_s), u"x"_s)).failure, QString());
        QDeadlineTimer deadline(20'000);
        while (record().isEmpty() && !deadline.hasExpired())
            QCoreApplication::processEvents(QEventLoop::AllEvents, 50);
        EXPECT_EQ(record(),
                  (QList<QByteArray>{scratch.path(), scratch.path("Program Files/Kinemati.exe"), "x"}));
    }
}

// ------------------------------------------------------------- what every starter does, recording or
// starting for real

namespace {

template <typename Starter>
class StarterContract : public testing::Test
{
protected:
    Starter starter;
};

struct RecordingStarter
{
    StartResult possible(const QString &verb)
    {
        return programs.start({.verb = verb, .file = u"C:\\X.EXE"_s});
    }
    StartResult impossible(const QString &verb)
    {
        programs.failure = u"it was not found"_s;
        return programs.start({.verb = verb, .file = u"C:\\X.EXE"_s});
    }
    support::RecordingPrograms programs;
};

struct HostStarter
{
    HostStarter() { std::filesystem::copy_file(EchoProgram, scratch.path("x.exe").toStdString()); }
    StartResult start(const QString &verb, const QString &file)
    {
        const QString base = files.adopt(scratch.path());
        return programs.start({.verb = verb, .file = base + u'\\' + file, .directory = base});
    }
    StartResult possible(const QString &verb) { return start(verb, u"X.EXE"_s); }
    StartResult impossible(const QString &verb) { return start(verb, u"MISSING.EXE"_s); }

    support::ScratchDirectory scratch;
    support::ScopedVariable echoFile{"ECHO_FILE", scratch.path("record")};
    support::ScopedVariable display{"DISPLAY", QByteArray()};
    support::ScopedVariable wayland{"WAYLAND_DISPLAY", QByteArray()};
    LinuxFileSystem files{QByteArray()};
    LinuxPrograms programs{files, QByteArray()};
};

using Starters = testing::Types<RecordingStarter, HostStarter>;

} // namespace

TYPED_TEST_SUITE(StarterContract, Starters);

TYPED_TEST(StarterContract, values_tell_success)
{
    EXPECT_GT(this->starter.possible(u"open"_s).value, 32);
    EXPECT_GT(this->starter.possible(QString()).value, 0);
    EXPECT_EQ(this->starter.possible(QString()).failure, QString());
}

TYPED_TEST(StarterContract, values_tell_failure_and_the_reason_is_given)
{
    EXPECT_LE(this->starter.impossible(u"open"_s).value, 32);
    EXPECT_EQ(this->starter.impossible(QString()).value, 0);
    EXPECT_EQ(this->starter.impossible(u"open"_s).failure, u"it was not found"_s);
}

TYPED_TEST(StarterContract, direct_starts_get_numbers_of_their_own)
{
    EXPECT_NE(this->starter.possible(QString()).value, this->starter.possible(QString()).value);
}
