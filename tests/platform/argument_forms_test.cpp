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
}

TEST(WindowsForm, quotes_documents_with_blanks)
{
    EXPECT_EQ(windowsCommandLine(direct(u"notepad.exe"_s, u" "_s + doc(u"C:\\Users\\Anna Smith\\w.out"_s))),
              u"notepad.exe \"C:\\Users\\Anna Smith\\w.out\""_s);
    const Start open{.verb = u"open"_s, .file = u"X.EXE"_s, .parameters = u"/T "_s + doc(u"MY WALK"_s)};
    EXPECT_EQ(windowsParameters(open), u"/T \"MY WALK\""_s);
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
