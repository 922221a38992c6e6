#include "platform/display_text.h"
#include "printing.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using platform::displayText;

TEST(DisplayText, is_the_text_itself_as_a_rule)
{
    EXPECT_EQ(displayText(u"C:\\Läufer 🏃 & Co.dg"_s), u"C:\\Läufer 🏃 & Co.dg"_s);
    EXPECT_EQ(displayText(u"תרגיל.dg"_s), u"תרגיל.dg"_s);
}

TEST(DisplayText, shows_control_characters_as_pictures)
{
    EXPECT_EQ(displayText(u"a\nb\t\u001B[31m\u007F"_s), u"a\u240Ab\u2409\u241B[31m\u2421"_s);
    EXPECT_EQ(displayText(u"a\u0085b\u2028c\u2029"_s), u"a\uFFFDb\uFFFDc\uFFFD"_s);
}

TEST(DisplayText, does_not_let_a_name_turn_the_reading_direction)
{
    EXPECT_EQ(displayText(u"walk\u202Egd.exe"_s), u"walk\uFFFDgd.exe"_s);
    EXPECT_EQ(displayText(u"\u200Ea\u200Fb\u061Cc\u2066d"_s), u"\uFFFDa\uFFFDb\uFFFDc\uFFFDd"_s);
}

TEST(DisplayText, tells_names_apart_that_differ_in_what_no_screen_shows)
{
    EXPECT_EQ(displayText(u"a\u200Bb\u00ADc\u2060d\uFEFFe\u034Ff.dg"_s),
              u"a\uFFFDb\uFFFDc\uFFFDd\uFFFDe\uFFFDf.dg"_s);
    EXPECT_EQ(displayText(u"\u0645\u06CC\u200C\u062E\u0648\u0627\u0647\u0645 \u0915\u094D\u200D\u0937"_s),
              u"\u0645\u06CC\u200C\u062E\u0648\u0627\u0647\u0645 \u0915\u094D\u200D\u0937"_s)
        << "joiners are a part of the word";
}

TEST(DisplayText, shows_what_private_characters_stand_for)
{
    EXPECT_EQ(displayText(u"a\uF03Ab\uF05Cc\uF022d\uF0E9"_s), u"a:b\\c\"d\uFFFD"_s);
    // Others stand for nothing.
    EXPECT_EQ(displayText(u"\uF041\uF100"_s), u"\uF041\uF100"_s);
}

TEST(DisplayLines, stay_lines_and_hide_nothing)
{
    using platform::displayLines;
    EXPECT_EQ(displayLines(u"one\r\n\ntwo\rthree\n"_s), u"one\n\ntwo\u240Dthree\n"_s);
    EXPECT_EQ(displayLines(u"\u202Eevil\n\u0007"_s), u"\uFFFDevil\n\u2407"_s);
    EXPECT_EQ(displayLines(QString()), QString());
}
