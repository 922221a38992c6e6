#include "platform/argument_forms.h"
#include "platform/runtime_error.h"
#include "printing.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

using namespace platform;

namespace {

Start direct(const QString &file, const CommandText &parameters)
{
    return {.file = file, .parameters = parameters};
}

CommandText doc(const QString &name)
{
    return CommandText::document(name);
}

const QStringList OddNames{u"-x.avi"_s,         u"--help"_s,       u"my film.avi"_s, u" film .avi "_s,
                           u"say \"hi\".avi"_s, u"Anna's & Bob"_s, u"\"quoted\""_s,  u"a\tb\nc.avi"_s,
                           u"$(x) `y` ;|<>"_s,  u"%TEMP%\\*?"_s,   u"Läufer 🏃.avi"_s};

} // namespace

TEST(WindowsForm, leaves_a_plain_command_line_as_it_was_composed)
{
    EXPECT_EQ(windowsCommandLine(direct(u"C:\\KV\\grafow.exe"_s, u" /1 "_s + doc(u"WALK1.PLT"_s))),
              u"C:\\KV\\grafow.exe /1 WALK1.PLT"_s);
    EXPECT_EQ(windowsCommandLine(direct(u"C:\\KV\\Skelvo.exe"_s, u"  /g "_s + doc(u"W.km"_s))),
              u"C:\\KV\\Skelvo.exe  /g W.km"_s);
}

TEST(WindowsForm, quotes_a_program_whose_folder_holds_blanks)
{
    EXPECT_EQ(windowsCommandLine(direct(u"C:\\Program Files\\KV\\grafow.exe"_s, u" ;"_s)),
              u"\"C:\\Program Files\\KV\\grafow.exe\" ;"_s);
    EXPECT_EQ(windowsCommandLine(direct(u"C:\\K\tV\\grafow.exe"_s, u" ;"_s)),
              u"\"C:\\K\tV\\grafow.exe\" ;"_s);
}

TEST(WindowsForm, quotes_documents_with_blanks)
{
    EXPECT_EQ(windowsCommandLine(direct(u"notepad.exe"_s, u" "_s + doc(u"C:\\Users\\Anna Smith\\w.out"_s))),
              u"notepad.exe \"C:\\Users\\Anna Smith\\w.out\""_s);
    const Start open{.verb = u"open"_s, .file = u"X.EXE"_s, .parameters = u"/T "_s + doc(u"MY WALK"_s)};
    EXPECT_EQ(windowsParameters(open), u"/T \"MY WALK\""_s);
}

TEST(WindowsForm, passes_a_document_of_any_name_as_one_argument)
{
    const std::pair<QString, QString> table[]{
        {u"-x.avi"_s, u"mplayer.exe -x.avi"_s},
        {u"/x.avi"_s, u"mplayer.exe /x.avi"_s},
        {u"my film.avi"_s, u"mplayer.exe \"my film.avi\""_s},
        {u" film .avi "_s, u"mplayer.exe \" film .avi \""_s},
        {u"-x y.avi"_s, u"mplayer.exe \"-x y.avi\""_s},
        {u"a\tb.avi"_s, u"mplayer.exe \"a\tb.avi\""_s},
        {u"Anna&Bob's.avi"_s, u"mplayer.exe Anna&Bob's.avi"_s},
        {u"Anna & Bob.avi"_s, u"mplayer.exe \"Anna & Bob.avi\""_s},
        {u"%TEMP%^;,=.avi"_s, u"mplayer.exe %TEMP%^;,=.avi"_s},
    };
    for (const auto &[name, expected] : table) {
        EXPECT_EQ(windowsCommandLine(direct(u"mplayer.exe"_s, u" "_s + doc(name))), expected);
        EXPECT_EQ(u"mplayer.exe "_s
                      + windowsParameters({.verb = u"open"_s, .file = u"X"_s, .parameters = doc(name)}),
                  expected);
    }
}

TEST(NativeForm, passes_a_document_of_any_name_as_one_argument)
{
    for (const QString &name : OddNames) {
        const Start start = direct(u"X"_s, u" "_s + doc(name));
        EXPECT_EQ(nativeArguments(u"/bin/mpv"_s, start), (QStringList{u"/bin/mpv"_s, name}));
        EXPECT_EQ(wineArguments(u"/bin/wine"_s, u"/opt/MPLAYER.EXE"_s, start),
                  (QStringList{u"/bin/wine"_s, u"/opt/MPLAYER.EXE"_s, name}));
    }
}

TEST(NativeForm, is_the_program_and_one_argument_a_piece)
{
    EXPECT_EQ(nativeArguments(u"/opt/kv/kinemati"_s, direct(u"X"_s, u"/T /D "_s + doc(u"MY WALK"_s))),
              (QStringList{u"/opt/kv/kinemati"_s, u"/T"_s, u"/D"_s, u"MY WALK"_s}));
}

TEST(WineForm, runs_the_program_through_wine)
{
    EXPECT_EQ(wineArguments(u"/usr/bin/wine"_s, u"/opt/k v/KINEMATI.EXE"_s, direct(u"X"_s, doc(u"W1"_s))),
              (QStringList{u"/usr/bin/wine"_s, u"/opt/k v/KINEMATI.EXE"_s, u"W1"_s}));
}

TEST(DosboxForm, mounts_both_directories_and_leaves_when_the_program_ends)
{
    EXPECT_EQ(dosboxArguments(u"/usr/bin/dosbox"_s, u"/opt/kv"_s, u"KINEMATI.EXE"_s, u"/home/anna/my data"_s,
                              direct(u"X"_s, u"/T "_s + doc(u"WALK1"_s))),
              (QStringList{u"/usr/bin/dosbox"_s, u"-c"_s, u"MOUNT C \"/opt/kv\""_s, u"-c"_s,
                           u"MOUNT D \"/home/anna/my data\""_s, u"-c"_s, u"D:"_s, u"-c"_s,
                           u"C:\\KINEMATI.EXE /T WALK1"_s, u"-c"_s, u"EXIT"_s}));
}

TEST(DosboxForm, refuses_what_a_command_processor_would_act_on)
{
    for (const char *hostile : {"a>b", "a<b", "a|b", "%PATH%", "a\"b", "a&b", "a^b", "a\nb"}) {
        EXPECT_THROW(dosboxArguments(u"dosbox"_s, u"/opt"_s, u"A.EXE"_s, u"/data"_s,
                                     direct(u"X"_s, doc(QLatin1String(hostile)))),
                     RuntimeError)
            << hostile;
    }
    EXPECT_THROW(dosboxArguments(u"dosbox"_s, u"/opt"_s, u"A.EXE"_s, u"/da\"ta"_s, direct(u"X"_s, u"W"_s)),
                 RuntimeError);
}

TEST(DosboxForm, refuses_names_that_would_be_several)
{
    const auto refusal = [](const QString &program, const CommandText &parameters) {
        try {
            dosboxArguments(u"dosbox"_s, u"/opt/k v"_s, program, u"/my data"_s, direct(u"X"_s, parameters));
        } catch (const RuntimeError &error) {
            return error.Description;
        }
        return QString();
    };
    EXPECT_EQ(refusal(u"A.EXE"_s, u"/T "_s + doc(u"MY WALK"_s)),
              u"\"MY WALK\" cannot be given to a DOS program"_s);
    EXPECT_EQ(refusal(u"A.EXE"_s, u"/T "_s + doc(u"WALK1"_s) + u" "_s + doc(u" WALK2"_s)),
              u"\" WALK2\" cannot be given to a DOS program"_s);
    EXPECT_EQ(refusal(u"MY A.EXE"_s, doc(u"WALK1"_s)), u"\"MY A.EXE\" cannot be given to a DOS program"_s);
    EXPECT_EQ(refusal(u"A.EXE"_s, u"/T  /D "_s + doc(u"WALK1"_s) + u" "_s + doc(QString())), QString());
}

TEST(DosboxForm, passes_names_that_begin_with_a_dash_as_they_are)
{
    EXPECT_EQ(
        dosboxArguments(u"dosbox"_s, u"/opt"_s, u"-A.EXE"_s, u"/data"_s, direct(u"X"_s, doc(u"-x.avi"_s)))
            .value(8),
        u"C:\\-A.EXE -x.avi"_s);
}

TEST(TerminalForm, follows_the_terminal)
{
    const QStringList command{u"/opt/kv/kinemati"_s, u"MY WALK"_s};
    EXPECT_EQ(terminalArguments(u"/usr/bin/x-terminal-emulator"_s, command),
              (QStringList{u"/usr/bin/x-terminal-emulator"_s, u"-e"_s} + command));
    EXPECT_EQ(terminalArguments(u"/usr/bin/xterm"_s, command),
              (QStringList{u"/usr/bin/xterm"_s, u"-e"_s} + command));
    EXPECT_EQ(terminalArguments(u"/usr/bin/gnome-terminal"_s, command),
              (QStringList{u"/usr/bin/gnome-terminal"_s, u"--"_s} + command));
    EXPECT_EQ(terminalArguments(u"/usr/bin/xfce4-terminal"_s, command),
              (QStringList{u"/usr/bin/xfce4-terminal"_s, u"-x"_s} + command));
    EXPECT_EQ(terminalArguments(u"/usr/bin/kitty"_s, command), (QStringList{u"/usr/bin/kitty"_s} + command));
    EXPECT_EQ(terminalArguments(u"/usr/bin/wezterm"_s, command),
              (QStringList{u"/usr/bin/wezterm"_s, u"start"_s, u"--"_s} + command));
}

TEST(TerminalForm, begins_maximized_where_the_terminal_can)
{
    EXPECT_EQ(maximizedWindow(u"/usr/bin/gnome-terminal"_s), QStringList{u"--maximize"_s});
    EXPECT_EQ(maximizedWindow(u"/usr/bin/xfce4-terminal"_s), QStringList{u"--maximize"_s});
    EXPECT_EQ(maximizedWindow(u"/usr/bin/mate-terminal"_s), QStringList{u"--maximize"_s});
    EXPECT_EQ(maximizedWindow(u"/usr/bin/terminator"_s), QStringList{u"--maximise"_s});
    EXPECT_EQ(maximizedWindow(u"/opt/my programs/kitty"_s), QStringList{u"--start-as=maximized"_s});
    EXPECT_EQ(maximizedWindow(u"/usr/bin/foot"_s), QStringList{u"--maximized"_s});
    EXPECT_EQ(maximizedWindow(u"/usr/bin/alacritty"_s),
              (QStringList{u"-o"_s, u"window.startup_mode=\"Maximized\""_s}));
    for (const QString &terminal : {u"xterm"_s, u"uxterm"_s, u"lxterm"_s})
        EXPECT_EQ(maximizedWindow(u"/usr/bin/"_s + terminal), QStringList{u"-maximized"_s});
}

TEST(TerminalForm, leaves_the_window_to_a_terminal_that_might_refuse_the_option)
{
    for (const QString &terminal :
         {u"xdg-terminal-exec"_s, u"x-terminal-emulator"_s, u"konsole"_s, u"kgx"_s, u"qterminal"_s,
          u"ptyxis"_s, u"wezterm"_s, u"st"_s, u"gnome-terminal.wrapper"_s, u"xfce4-terminal.wrapper"_s,
          u"Xterm"_s, u"xterm/"_s, u"foot/st"_s, QString()})
        EXPECT_EQ(maximizedWindow(u"/usr/bin/"_s + terminal), QStringList()) << terminal.toStdString();
}
