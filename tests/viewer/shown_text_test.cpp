#include "printing.h"
#include "viewer/shown_text.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using viewer::shownText;

TEST(ShownText, stays_as_it_is)
{
    EXPECT_EQ(shownText(u""_s), u""_s);
    EXPECT_EQ(shownText(u"one\ntwo\n\n three\t4 5\n"_s), u"one\ntwo\n\n three\t4 5\n"_s);
    EXPECT_EQ(shownText(u"Länge 3 µm, 95 % ≥ 2\n"_s), u"Länge 3 µm, 95 % ≥ 2\n"_s);
}

TEST(ShownText, ends_lines_of_every_kind)
{
    EXPECT_EQ(shownText(u"one\r\ntwo\r\n\r\nfour"_s), u"one\ntwo\n\nfour"_s);
    EXPECT_EQ(shownText(u"one\rtwo\r\rfour"_s), u"one\ntwo\n\nfour"_s);
    EXPECT_EQ(shownText(u"one\vtwo"_s), u"one\ntwo"_s);
    EXPECT_EQ(shownText(u"one\u0085two\u2028three\u2029four"_s), u"one\ntwo\nthree\nfour"_s);
    EXPECT_EQ(shownText(u"one\n\rtwo"_s), u"one\n\ntwo"_s);
}

TEST(ShownText, takes_a_line_end_that_was_converted_twice_for_one)
{
    EXPECT_EQ(shownText(u"one\r\r\ntwo\r\r\r\nthree"_s), u"one\ntwo\nthree"_s);
}

TEST(ShownText, drops_a_carriage_return_that_is_left_over)
{
    EXPECT_EQ(shownText(u"one\r"_s), u"one"_s);
    EXPECT_EQ(shownText(u"\r"_s), u""_s);
    EXPECT_EQ(shownText(u"one\r\ntwo\r"_s), u"one\ntwo"_s);
    EXPECT_EQ(shownText(u"one\r\r"_s), u"one\n"_s);
}

TEST(ShownText, a_form_feed_begins_a_line_and_takes_none)
{
    EXPECT_EQ(shownText(u"one\ftwo"_s), u"one\ntwo"_s);
    EXPECT_EQ(shownText(u"one\r\n\ftwo"_s), u"one\ntwo"_s);
    EXPECT_EQ(shownText(u"one\f\r\ntwo"_s), u"one\ntwo"_s);
    EXPECT_EQ(shownText(u"one\f\ntwo"_s), u"one\ntwo"_s);
    EXPECT_EQ(shownText(u"\fone"_s), u"one"_s);
    EXPECT_EQ(shownText(u"one\n\f\ntwo"_s), u"one\n\ntwo"_s);
    EXPECT_EQ(shownText(u"one\f\ftwo"_s), u"one\ntwo"_s);
    EXPECT_EQ(shownText(u"one\f"_s), u"one\n"_s);
}

TEST(ShownText, shows_control_characters_as_their_pictures)
{
    EXPECT_EQ(shownText(u"a\x1B[1mb\x1A\x07\x08"_s), u"a\u241B[1mb\u241A\u2407\u2408"_s);
    EXPECT_EQ(shownText(u"a\x7F"
                        "b\u0081"_s),
              u"a\u2421"
              "b\uFFFD"_s);
}

TEST(ShownText, shows_what_the_windows_code_page_leaves_open_as_unknown)
{
    EXPECT_EQ(shownText(u"a\u0080b\u009Fc\u00A0d"_s), u"a\uFFFDb\uFFFDc\u00A0d"_s);
}

TEST(ShownText, lets_no_text_turn_the_order_of_its_letters)
{
    EXPECT_EQ(shownText(u"abc \u202Etxt.exe\u202C \u202Dxyz"_s), u"abc \uFFFDtxt.exe\u202C \uFFFDxyz"_s);
}

TEST(ShownText, takes_its_time_for_every_character_once)
{
    const qsizetype many = 16'777'216;
    EXPECT_EQ(shownText(QString(many, u'\r')).size(), many - 1);
    EXPECT_EQ(shownText(QString(many, u'\r') + u'x').size(), many + 1);
    EXPECT_EQ(shownText(QString(many, u'\r') + u"\nx"_s), u"\nx"_s);
}
