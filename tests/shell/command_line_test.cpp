#include "panel_fixture.h"
#include "printing.h"
#include "shell/command_line.h"

using namespace Qt::StringLiterals;

using shell::GetCommandLine;
using shell::splitCommandLine;

TEST(SplitCommandLine, takes_blanks_and_tabs_as_separators)
{
    EXPECT_EQ(splitCommandLine(u"  run1.dg\t/x  y "_s, 10), (QStringList{u"run1.dg"_s, u"/x"_s, u"y"_s}));
}

TEST(SplitCommandLine, finds_nothing_in_nothing)
{
    EXPECT_TRUE(splitCommandLine(QString(), 10).isEmpty());
    EXPECT_TRUE(splitCommandLine(u" \t  "_s, 10).isEmpty());
    EXPECT_TRUE(splitCommandLine(u"\"\""_s, 10).isEmpty());
    EXPECT_TRUE(splitCommandLine(u"\""_s, 10).isEmpty());
}

TEST(SplitCommandLine, holds_quoted_text_together_without_the_quotes)
{
    EXPECT_EQ(splitCommandLine(u"\"my walk.dg\" x"_s, 10), (QStringList{u"my walk.dg"_s, u"x"_s}));
    EXPECT_EQ(splitCommandLine(u"\"a\tb\""_s, 10), QStringList{u"a\tb"_s});
    EXPECT_EQ(splitCommandLine(u"\"never closed "_s, 10), QStringList{u"never closed "_s});
}

TEST(SplitCommandLine, begins_a_new_argument_behind_a_closing_quote)
{
    EXPECT_EQ(splitCommandLine(u"\"a b\"c"_s, 10), (QStringList{u"a b"_s, u"c"_s}));
    EXPECT_EQ(splitCommandLine(u"\"a\"\"b\""_s, 10), (QStringList{u"a"_s, u"b"_s}));
}

TEST(SplitCommandLine, goes_on_with_an_argument_at_an_opening_quote)
{
    EXPECT_EQ(splitCommandLine(u"ab\"c d\"e"_s, 10), (QStringList{u"abc d"_s, u"e"_s}));
}

TEST(SplitCommandLine, stops_at_the_maximum)
{
    EXPECT_EQ(splitCommandLine(u"1 2 3 4 5 6 7 8 9 10 11"_s, 10).size(), 10);
    EXPECT_EQ(splitCommandLine(u"1 2 3 4 5 6 7 8 9 10 11"_s, 10).last(), u"10"_s);
    EXPECT_EQ(splitCommandLine(u"a b c"_s, 2), (QStringList{u"a"_s, u"b"_s}));
    EXPECT_TRUE(splitCommandLine(u"a b c"_s, 0).isEmpty());
}

class GetCommandLineTest : public support::PanelFixture
{
protected:
    void take(const QString &line, int maximum = 10)
    {
        kinovra.DataDir = u"C:\\STORED"_s;
        machine.environment.line = line;
        GetCommandLine(panel, maximum);
    }
};

TEST_F(GetCommandLineTest, without_arguments_changes_nothing)
{
    take(QString());
    EXPECT_EQ(kinovra.SelectedFile, QString());
    EXPECT_EQ(kinovra.DataDir, u"C:\\STORED"_s);
    take(u"   \t"_s);
    EXPECT_EQ(kinovra.SelectedFile, QString());
    EXPECT_EQ(kinovra.DataDir, u"C:\\STORED"_s);
}

TEST_F(GetCommandLineTest, takes_the_first_argument_that_is_no_switch)
{
    take(u"run1.dg walk1.dg"_s);
    EXPECT_EQ(kinovra.SelectedFile, u"run1.dg"_s);
    EXPECT_EQ(kinovra.DataDir, u"C:\\STORED"_s);
}

TEST_F(GetCommandLineTest, makes_the_current_directory_the_data_directory_for_each_switch)
{
    take(u"/x run1.dg"_s);
    EXPECT_EQ(kinovra.SelectedFile, u"run1.dg"_s);
    EXPECT_EQ(kinovra.DataDir, u"C:\\DATA"_s);

    kinovra.SelectedFile.clear();
    take(u"-v"_s);
    EXPECT_EQ(kinovra.SelectedFile, QString());
    EXPECT_EQ(kinovra.DataDir, u"C:\\DATA"_s);
}

TEST_F(GetCommandLineTest, of_eleven_arguments_sees_ten)
{
    take(u"/1 /2 /3 /4 /5 /6 /7 /8 /9 /10 eleventh.dg"_s);
    EXPECT_EQ(kinovra.SelectedFile, QString());
    take(u"1 2 3 4 5 6 7 8 9 10 11"_s);
    EXPECT_EQ(kinovra.SelectedFile, u"1"_s);
}

TEST_F(GetCommandLineTest, takes_a_quoted_name_with_blanks)
{
    take(u"\"C:\\my data\\long name.dg\""_s);
    EXPECT_EQ(kinovra.SelectedFile, u"C:\\my data\\long name.dg"_s);
}
