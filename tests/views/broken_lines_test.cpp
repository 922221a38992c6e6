#include "printing.h"
#include "views/broken_lines.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using views::BrokenLines;

TEST(BrokenLines, leaves_lines_of_ordinary_length)
{
    const QString text = u"one\n"_s + QString(8192, u'x') + u"\n\ntwo"_s;
    const BrokenLines lines(text);
    EXPECT_EQ(lines.broken(), text);
    EXPECT_EQ(lines.toBroken(8200), 8200);
    EXPECT_EQ(lines.toText(8200), 8200);
}

TEST(BrokenLines, breaks_long_lines_and_finds_every_place_again)
{
    const QString text = u"ab\n"_s + QString(20'000, u'x') + u"\ncd"_s;
    const BrokenLines lines(text);
    EXPECT_EQ(lines.broken(), u"ab\n"_s + QString(8192, u'x') + u'\n' + QString(8192, u'x') + u'\n'
                                  + QString(3616, u'x') + u"\ncd"_s);
    EXPECT_EQ(lines.text(), text);
    EXPECT_EQ(lines.toBroken(8194), 8194);
    EXPECT_EQ(lines.toBroken(8195), 8196) << "behind the break";
    EXPECT_EQ(lines.toText(8195), 8195) << "in front of the break";
    EXPECT_EQ(lines.toText(8196), 8195);
    EXPECT_EQ(lines.toBroken(text.size()), lines.broken().size());
    EXPECT_EQ(lines.toText(lines.broken().size()), text.size());
    for (qsizetype place = 0; place <= text.size(); ++place)
        ASSERT_EQ(lines.toText(lines.toBroken(place)), place);
}

TEST(BrokenLines, never_breaks_a_character)
{
    const QString man = QString::fromUtf8("\xF0\x9F\x9A\xB6");
    const BrokenLines lines(u"x"_s + man.repeated(5000));
    const QStringList broken = lines.broken().split(u'\n');
    ASSERT_EQ(broken.size(), 2);
    EXPECT_EQ(broken[0].size(), 8191);
    EXPECT_EQ(broken[1].left(2), man);
}
