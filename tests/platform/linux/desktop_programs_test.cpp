// The desktop's own programs in place of the accessories, with the echo program in the place of each.

#include "platform/letter_case.h"
#include "platform/linux/desktop_programs.h"
#include "platform/linux/host_names.h"
#include "platform/linux/linux_programs.h"
#include "printing.h"
#include "scratch_directory.h"

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QEventLoop>
#include <gtest/gtest.h>

#include <filesystem>
#include <optional>
#include <utility>

#include <sys/stat.h>
#include <sys/wait.h>

using namespace Qt::StringLiterals;
using platform::CommandText;
using platform::Ending;
using platform::Show;
using platform::Start;
using platform::StartResult;
using platform::Target;
using platform::host::LinuxFileSystem;
using platform::host::LinuxPrograms;

namespace {

// Names of which a shell, a program or an address would make something else.
const QList<QByteArray> &oddNames()
{
    static const QList<QByteArray> names{"-x.avi",
                                         "--help",
                                         "Anna & Bob's film.avi",
                                         " blank\t.avi ",
                                         "say \"hi\".avi",
                                         "new\nline.avi",
                                         "$(x) `y` ;|<>*?.avi",
                                         "%41#b?c=d.avi",
                                         "file:x",
                                         "f\xC3\xBChrung \xE2\x82\xAC.avi",
                                         "caf\xE9 a:b c\\d.avi"};
    return names;
}

class DesktopPrograms : public testing::Test
{
protected:
    DesktopPrograms()
    {
        scratch.makeDirectory("bin");
        scratch.makeDirectory("data");
        programs.ended = [this](double value, const Ending &how) { ending = {value, how}; };
    }

    void install(const QByteArray &name) const
    {
        std::filesystem::copy_file(KINOVRA_ECHO_PROGRAM, scratch.path(name).toStdString());
    }

    QString at(const QString &name) const { return base + u'\\' + name; }

    Start accessory(const QString &name, const CommandText &parameters = {}, Show show = Show::Normal) const
    {
        return {.file = name, .parameters = parameters, .directory = at(u"data"_s), .show = show};
    }

    /// Starts and waits for the end; the directory, the program and its arguments.
    QList<QByteArray> run(const Start &start)
    {
        ending.reset();
        result = programs.start(start);
        EXPECT_EQ(result.failure, QString()) << start.file.toStdString();
        waitUntil([this] { return ending.has_value(); });
        return record();
    }

    /// The same for what a terminal shows, whose end is not told.
    QList<QByteArray> runInTerminal(const Start &start)
    {
        scratch.remove("record");
        result = programs.start(start);
        EXPECT_EQ(result.failure, QString()) << start.file.toStdString();
        waitUntil([this] { return scratch.has("record"); });
        ::wait(nullptr);
        return record();
    }

    QString failure(const Start &start)
    {
        scratch.remove("record");
        result = programs.start(start);
        EXPECT_FALSE(scratch.has("record")) << start.file.toStdString();
        return result.failure;
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
    LinuxPrograms programs{files, KINOVRA_CONSOLE_HELPER};
    StartResult result;
    std::optional<std::pair<double, Ending>> ending;

private:
    template <typename Condition>
    static void waitUntil(const Condition &condition)
    {
        QDeadlineTimer deadline(20'000);
        while (!condition() && !deadline.hasExpired())
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents | QEventLoop::AllEvents, 50);
        EXPECT_TRUE(condition()) << "the program did not run";
    }

    QList<QByteArray> record() const
    {
        QList<QByteArray> fields = scratch.read("record").split('\0');
        fields.removeLast();
        return fields;
    }
};

/// Directories that are to be explored.
class ExploredFolders : public DesktopPrograms
{
protected:
    Start explore(const QString &directory) const
    {
        return {.verb = u"explore"_s, .directory = directory, .owner = 17, .target = Target::Document};
    }
};

} // namespace

TEST_F(ExploredFolders, are_shown_by_the_desktops_file_manager)
{
    install("bin/nautilus");
    install("bin/xdg-open");
    const QList<QByteArray> shown{scratch.path("data"), scratch.path("bin/nautilus"), scratch.path("data")};
    EXPECT_EQ(run(explore(at(u"data"_s))), shown);
    EXPECT_GT(result.value, 32);
    EXPECT_EQ(ending->first, result.value);
    EXPECT_EQ(run(explore(at(u"DATA\\"_s))), shown);
    Start start = explore(at(u"data"_s));
    start.verb = u"Explore"_s;
    EXPECT_EQ(run(start), shown);
    EXPECT_EQ(run(explore(u"Z:\\"_s)), (QList<QByteArray>{"/", scratch.path("bin/nautilus"), "/"}));
}

TEST_F(ExploredFolders, are_not_what_is_opened)
{
    install("bin/nautilus");
    install("bin/xdg-open");
    scratch.makeFile("data/manual.pdf");
    Start start = explore(at(u"data"_s));
    start.verb = u"open"_s;
    EXPECT_EQ(run(start),
              (QList<QByteArray>{scratch.path("data"), scratch.path("bin/xdg-open"), scratch.path("data")}));
    start = explore(at(u"data"_s));
    start.file = u"manual.pdf"_s;
    EXPECT_EQ(run(start), (QList<QByteArray>{scratch.path("data"), scratch.path("bin/xdg-open"),
                                             scratch.path("data/manual.pdf")}));
}

TEST_F(ExploredFolders, may_have_any_name)
{
    install("bin/thunar");
    for (const QByteArray &name : oddNames()) {
        scratch.makeDirectory("data/" + name);
        const QString directory = at(u"data\\"_s + platform::host::fromHostName(name));
        for (const QString &written : {directory, platform::UCase(directory)}) {
            EXPECT_EQ(run(explore(written)),
                      (QList<QByteArray>{scratch.path("data/" + name), scratch.path("bin/thunar"),
                                         scratch.path("data/" + name)}))
                << name.toStdString();
        }
    }
}

TEST_F(ExploredFolders, are_shown_by_the_running_desktops_own_file_manager)
{
    install("bin/nautilus");
    install("bin/dolphin");
    EXPECT_EQ(run(explore(at(u"data"_s))).value(1), scratch.path("bin/nautilus"));
    const support::ScopedVariable kde("XDG_CURRENT_DESKTOP", "KDE");
    EXPECT_EQ(run(explore(at(u"data"_s))).value(1), scratch.path("bin/dolphin"));
}

TEST_F(ExploredFolders, are_left_to_the_opener_where_there_is_no_file_manager)
{
    install("bin/gio");
    EXPECT_EQ(run(explore(at(u"data"_s))), (QList<QByteArray>{scratch.path("data"), scratch.path("bin/gio"),
                                                              "open", scratch.path("data")}));
    install("bin/xdg-open");
    EXPECT_EQ(run(explore(at(u"data"_s))),
              (QList<QByteArray>{scratch.path("data"), scratch.path("bin/xdg-open"), scratch.path("data")}));
    EXPECT_GT(result.value, 32);
}

TEST_F(ExploredFolders, need_a_file_manager_or_an_opener)
{
    install("data/nautilus");
    install("data/xdg-open");
    install("data/explorer.exe");
    scratch.makeFile("bin/thunar");
    files.changeDrive(base);
    files.changeDirectory(at(u"data"_s));
    for (const QByteArray &searched :
         {scratch.path("bin"), QByteArray("."), QByteArray(""), QByteArray(":.:data")}) {
        const support::ScopedVariable variable("PATH", searched);
        EXPECT_EQ(failure(explore(at(u"data"_s))), u"this desktop has no file manager installed"_s);
        EXPECT_EQ(result.value, 31);
    }
}

TEST_F(ExploredFolders, must_be_directories_that_may_be_entered)
{
    install("bin/nautilus");
    scratch.makeFile("file");
    scratch.makeDirectory("closed");
    ::chmod(scratch.path("closed").constData(), 0);
    for (const QString &name : {u"gone"_s, u"file"_s}) {
        EXPECT_EQ(failure(explore(at(name))), u"the directory "_s + at(name) + u" is gone"_s);
        EXPECT_EQ(result.value, 2);
    }
    EXPECT_EQ(failure(explore(QString())), u"path not found"_s);
    {
        const support::WithoutPrivileges nobody;
        EXPECT_EQ(failure(explore(at(u"closed"_s))),
                  u"the directory "_s + at(u"closed"_s) + u" may not be entered"_s);
        EXPECT_EQ(result.value, 5);
    }
    ::chmod(scratch.path("closed").constData(), 0755);
}

TEST_F(ExploredFolders, are_shown_in_no_terminal)
{
    install("bin/pcmanfm");
    install("bin/kitty");
    const support::ScopedVariable shown("DISPLAY", ":99");
    EXPECT_EQ(run(explore(at(u"data"_s))).value(1), scratch.path("bin/pcmanfm"));
}

TEST_F(ExploredFolders, tell_how_the_file_manager_ended)
{
    install("bin/nautilus");
    const support::ScopedVariable code("ECHO_EXIT", "4");
    run(explore(at(u"data"_s)));
    ASSERT_TRUE(ending.has_value());
    EXPECT_EQ(ending->second.kind, Ending::Kind::Exited);
    EXPECT_EQ(ending->second.code, 4);
}

namespace {

class DesktopTerminal : public DesktopPrograms
{
protected:
    QList<QByteArray> maximized() { return run(accessory(u"command.com"_s, {}, Show::Maximized)); }

    support::ScopedVariable display{"DISPLAY", ":99"};
};

} // namespace

TEST_F(DesktopTerminal, begins_with_a_maximized_window_where_it_can)
{
    const std::pair<QByteArray, QList<QByteArray>> table[]{
        {"xdg-terminal-exec", {}},
        {"gnome-terminal", {"--maximize"}},
        {"konsole", {}},
        {"xfce4-terminal", {"--maximize"}},
        {"mate-terminal", {"--maximize"}},
        {"kgx", {}},
        {"qterminal", {}},
        {"ptyxis", {}},
        {"terminator", {"--maximise"}},
        {"wezterm", {}},
        {"alacritty", {"-o", "window.startup_mode=\"Maximized\""}},
        {"kitty", {"--start-as=maximized"}},
        {"foot", {"--maximized"}},
        {"xterm", {"-maximized"}},
    };
    for (const auto &[terminal, options] : table) {
        install("bin/" + terminal);
        const QList<QByteArray> normal{scratch.path("data"), scratch.path("bin/" + terminal)};
        EXPECT_EQ(maximized(), normal + options) << terminal.toStdString();
        EXPECT_GT(result.value, 0);
        EXPECT_EQ(run(accessory(u"Command.COM"_s)), normal) << terminal.toStdString();
        EXPECT_EQ(run(accessory(u"command.com"_s, {}, Show::Shown)), normal) << terminal.toStdString();
        scratch.remove("bin/" + terminal);
    }
}

TEST_F(DesktopTerminal, is_known_behind_the_links_to_it)
{
    scratch.makeDirectory("opt");
    scratch.makeDirectory("alternatives");
    for (const auto &[terminal, options] :
         std::initializer_list<std::pair<QByteArray, QList<QByteArray>>>{{"lxterm", {"-maximized"}},
                                                                         {"gnome-terminal", {"--maximize"}},
                                                                         {"gnome-terminal.wrapper", {}},
                                                                         {"st", {}}}) {
        install("opt/" + terminal);
        scratch.makeLink("alternatives/x-terminal-emulator", scratch.path("opt/" + terminal));
        scratch.makeLink("bin/x-terminal-emulator", "../alternatives/x-terminal-emulator");
        const QList<QByteArray> normal{scratch.path("data"), scratch.path("bin/x-terminal-emulator")};
        const QByteArray started =
            options.isEmpty() ? normal[1] : QByteArray(scratch.path("opt/" + terminal));
        EXPECT_EQ(maximized(), (QList<QByteArray>{normal[0], started} + options)) << terminal.toStdString();
        EXPECT_EQ(run(accessory(u"command.com"_s)), normal) << terminal.toStdString();
        scratch.remove("alternatives/x-terminal-emulator");
        scratch.remove("bin/x-terminal-emulator");
    }
    // A name says nothing about what it leads to.
    scratch.makeLink("bin/xterm", "../opt/st");
    EXPECT_EQ(maximized(), (QList<QByteArray>{scratch.path("data"), scratch.path("bin/xterm")}));
}

TEST_F(DesktopTerminal, takes_its_own_option_where_a_wrapper_would_not)
{
    scratch.makeDirectory("opt");
    install("opt/xfce4-terminal.wrapper");
    scratch.makeLink("bin/x-terminal-emulator", "../opt/xfce4-terminal.wrapper");
    EXPECT_EQ(maximized(),
              (QList<QByteArray>{scratch.path("data"), scratch.path("bin/x-terminal-emulator")}));
    install("bin/xfce4-terminal");
    EXPECT_EQ(maximized(),
              (QList<QByteArray>{scratch.path("data"), scratch.path("bin/xfce4-terminal"), "--maximize"}));
    EXPECT_EQ(run(accessory(u"command.com"_s)),
              (QList<QByteArray>{scratch.path("data"), scratch.path("bin/x-terminal-emulator")}));
}

TEST_F(DesktopTerminal, is_maximized_for_nothing_but_the_command_prompt)
{
    install("bin/kitty");
    install("bin/gedit");
    install("bin/bc");
    install("data/Kinemati.exe");
    EXPECT_EQ(run(accessory(u"notepad.exe"_s, {}, Show::Maximized)),
              (QList<QByteArray>{scratch.path("data"), scratch.path("bin/gedit")}));
    for (const QString &program : {u"calc.exe"_s, at(u"data\\Kinemati.exe"_s)}) {
        const auto got = runInTerminal(accessory(program, {}, Show::Maximized));
        EXPECT_EQ(got.value(1), scratch.path("bin/kitty"));
        EXPECT_EQ(got.value(2), QByteArray(KINOVRA_CONSOLE_HELPER));
    }
}

TEST_F(DesktopTerminal, needs_a_display)
{
    install("bin/xterm");
    const support::ScopedVariable none("DISPLAY", QByteArray());
    EXPECT_EQ(failure(accessory(u"command.com"_s, {}, Show::Maximized)),
              u"this desktop has no terminal installed"_s);
    EXPECT_EQ(result.value, 0);
    const support::ScopedVariable compositor("WAYLAND_DISPLAY", "wayland-0");
    EXPECT_EQ(maximized().value(2), "-maximized");
}

TEST_F(DesktopTerminal, shows_the_accessories_that_have_no_window)
{
    install("bin/kitty");
    install("bin/bc");
    install("bin/nano");
    scratch.makeFile("data/-My Walk.OUT");
    EXPECT_EQ(runInTerminal(accessory(u"calc.exe"_s)).mid(5), QList{scratch.path("bin/bc")});
    EXPECT_EQ(
        runInTerminal(accessory(u"notepad.exe"_s, u" "_s + CommandText::document(u"-my walk.out"_s))).mid(5),
        (QList<QByteArray>{scratch.path("bin/nano"), scratch.path("data/-My Walk.OUT")}));
    const support::ScopedVariable none("DISPLAY", QByteArray());
    EXPECT_EQ(failure(accessory(u"calc.exe"_s)), u"this desktop has no calculator installed"_s);
    EXPECT_EQ(failure(accessory(u"notepad.exe"_s)), u"this desktop has no text editor installed"_s);
}

TEST_F(DesktopPrograms, stand_for_the_accessories)
{
    const std::pair<QString, QList<QByteArray>> table[]{
        {u"calc.exe"_s,
         {"xcalc", "qalculate-qt", "qalculate-gtk", "galculator", "mate-calc", "kcalc", "gnome-calculator"}},
        {u"Explorer.EXE"_s, {"pcmanfm", "pcmanfm-qt", "nemo", "caja", "thunar", "dolphin", "nautilus"}},
        {u"NOTEPAD.EXE"_s,
         {"emacs", "geany", "leafpad", "l3afpad", "featherpad", "xed", "pluma", "mousepad", "kwrite", "kate",
          "gedit", "gnome-text-editor"}},
        {u"mplayer.exe"_s, {"mplayer", "celluloid", "mpv", "vlc", "parole", "dragon", "totem"}},
    };
    // The later one of a row comes before all that are there already.
    for (const auto &[name, installed] : table) {
        for (const QByteArray &program : installed) {
            install("bin/" + program);
            EXPECT_EQ(run(accessory(name)),
                      (QList<QByteArray>{scratch.path("data"), scratch.path("bin/" + program)}));
            EXPECT_GT(result.value, 0);
        }
    }
}

TEST_F(DesktopPrograms, are_never_taken_from_the_data_directory)
{
    const std::pair<QString, QString> table[]{
        {u"calc.exe"_s, u"this desktop has no calculator installed"_s},
        {u"command.com"_s, u"this desktop has no terminal installed"_s},
        {u"explorer.exe"_s, u"this desktop has no file manager installed"_s},
        {u"notepad.exe"_s, u"this desktop has no text editor installed"_s},
        {u"mplayer.exe"_s, u"this desktop has no media player installed"_s},
    };
    for (const char *planted : {"calc.exe", "calc", "xcalc", "command.com", "command", "xterm",
                                "x-terminal-emulator", "explorer.exe", "explorer", "nautilus", "notepad.exe",
                                "notepad", "gedit", "mplayer.exe", "mplayer", "vlc"})
        install(QByteArray("data/") + planted);
    // What may not be executed is no program.
    for (const char *forbidden : {"xcalc", "xterm", "nautilus", "gedit", "vlc"})
        scratch.makeFile(QByteArray("bin/") + forbidden);
    const support::ScopedVariable shown("DISPLAY", ":99");
    files.changeDrive(base);
    files.changeDirectory(at(u"data"_s));
    for (const QByteArray &searched :
         {scratch.path("bin"), QByteArray("."), QByteArray(""), QByteArray(":.:../data")}) {
        const support::ScopedVariable variable("PATH", searched);
        for (const auto &[name, why] : table) {
            EXPECT_EQ(failure(accessory(name)), why);
            EXPECT_EQ(result.value, 0);
        }
    }
}

TEST_F(DesktopPrograms, get_a_document_of_any_name_as_one_argument_by_its_real_path)
{
    install("bin/vlc");
    install("bin/mousepad");
    for (const QByteArray &name : oddNames()) {
        scratch.makeFile("data/" + name);
        scratch.makeFile("bin/" + name);
        const QString shown = platform::host::fromHostName(name);
        for (const auto &[written, document] : std::initializer_list<std::pair<QString, QByteArray>>{
                 {shown, scratch.path("data/" + name)},
                 {platform::UCase(shown), scratch.path("data/" + name)},
                 {at(u"data\\"_s + shown), scratch.path("data/" + name)},
                 {platform::UCase(at(u"BIN\\"_s + shown)), scratch.path("bin/" + name)}}) {
            const CommandText parameters = u" "_s + CommandText::document(written);
            EXPECT_EQ(run(accessory(u"mplayer.exe"_s, parameters)),
                      (QList<QByteArray>{scratch.path("data"), scratch.path("bin/vlc"), document}));
            EXPECT_EQ(run(accessory(u"notepad.exe"_s, parameters)),
                      (QList<QByteArray>{scratch.path("data"), scratch.path("bin/mousepad"), document}));
        }
    }
}

TEST_F(DesktopPrograms, get_a_document_that_is_not_there_by_the_path_that_it_would_have)
{
    install("bin/vlc");
    for (const QString &name : {u"-x.avi"_s, u"--fullscreen"_s, u"my film.avi"_s}) {
        EXPECT_EQ(run(accessory(u"mplayer.exe"_s, u" "_s + CommandText::document(name))),
                  (QList<QByteArray>{scratch.path("data"), scratch.path("bin/vlc"),
                                     scratch.path("data/" + name.toUtf8())}));
    }
    EXPECT_EQ(run(accessory(u"mplayer.exe"_s, u" "_s + CommandText::document(QString()))),
              (QList<QByteArray>{scratch.path("data"), scratch.path("bin/vlc")}));
    EXPECT_EQ(failure(accessory(u"mplayer.exe"_s, u" "_s + CommandText::document(u"Q:\\x.avi"_s))),
              u"device unavailable"_s);
}

TEST(DesktopAccessories, are_these_alone)
{
    using namespace platform::host;
    EXPECT_TRUE(isAccessory(u"NotePad.EXE"_s));
    EXPECT_FALSE(isAccessory(u"notepad"_s));
    EXPECT_EQ(accessoryKind(u"CALC.EXE"_s), u"calculator"_s);
    EXPECT_EQ(accessoryKind(u"grafow.exe"_s), u"program"_s);
    EXPECT_FALSE(desktopProgram(u"grafow.exe"_s).has_value());
}

TEST(TerminalBehindALink, is_the_path_itself_where_nothing_is_there)
{
    EXPECT_EQ(platform::host::terminalItself("/gone/xterm"), QByteArray("/gone/xterm"));
}
