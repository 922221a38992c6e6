#include "platform/display_text.h"
#include "platform/linux/host_names.h"
#include "printing.h"

#include <gtest/gtest.h>

#include <random>

using namespace Qt::StringLiterals;
using platform::host::fromHostName;
using platform::host::toHostName;

TEST(HostNames, are_plain_text_as_a_rule)
{
    EXPECT_EQ(fromHostName("walk1.dg"), u"walk1.dg"_s);
    EXPECT_EQ(fromHostName("L\xC3\xA4ufer \xF0\x9F\x8F\x83.dg"), u"Läufer 🏃.dg"_s);
    EXPECT_EQ(toHostName(u"Läufer 🏃.dg"), QByteArray("L\xC3\xA4ufer \xF0\x9F\x8F\x83.dg"));
    EXPECT_EQ(fromHostName(""), QString());
}

TEST(HostNames, hide_the_characters_that_the_path_language_needs)
{
    const QString name = fromHostName("a\\b:c\"d.dg");
    EXPECT_EQ(name.size(), 10);
    EXPECT_FALSE(name.contains(u'\\') || name.contains(u':') || name.contains(u'"'));
    EXPECT_EQ(toHostName(name), QByteArray("a\\b:c\"d.dg"));
    EXPECT_EQ(platform::displayText(name), u"a\\b:c\"d.dg"_s);
}

TEST(HostNames, keep_bytes_that_are_no_text)
{
    for (const QByteArray &bytes :
         {QByteArray("\xFF\xFE.dg"), QByteArray("caf\xE9.dg"), QByteArray("\xC3"), QByteArray("\xE2\x82"),
          QByteArray("\xC0\xAF"), QByteArray("\xED\xA0\x80"), QByteArray("\xF5\x80\x80\x80")}) {
        EXPECT_EQ(toHostName(fromHostName(bytes)), bytes) << bytes.toHex().toStdString();
    }
    EXPECT_EQ(platform::displayText(fromHostName("caf\xE9.dg")), u"caf\uFFFD.dg"_s);
}

TEST(HostNames, never_share_a_form)
{
    // A name that holds the private characters themselves is not taken for the one they stand for.
    const QByteArray privateColon = "\xEF\x80\xBA"; // U+F03A
    const QString hidden = fromHostName(":");
    EXPECT_EQ(hidden, u"\uF03A"_s);
    EXPECT_NE(fromHostName(privateColon), hidden);
    EXPECT_EQ(toHostName(fromHostName(privateColon)), privateColon);
}

TEST(HostNames, keep_the_private_characters_that_stand_for_nothing)
{
    EXPECT_EQ(fromHostName("\xEF\x80\x80"), u"\uF000"_s);
    EXPECT_EQ(fromHostName("\xEF\x81\x81.dg"), u"\uF041.dg"_s);
    EXPECT_EQ(fromHostName("\xEF\x84\x80"), u"\uF100"_s);
    EXPECT_EQ(toHostName(u"\uF041.dg"), QByteArray("\xEF\x81\x81.dg"));
    // These stand for bytes, so that each byte of such a name is hidden by itself.
    EXPECT_EQ(fromHostName("\xEF\x82\x80"), u"\uF0EF\uF082\uF080"_s);
    EXPECT_EQ(fromHostName("\xEF\x83\xBF"), u"\uF0EF\uF083\uF0BF"_s);
}

TEST(HostNames, come_back_unchanged_whatever_they_are)
{
    std::mt19937 random(20261121);
    for (int i = 0; i < 20000; ++i) {
        QByteArray bytes;
        const int length = static_cast<int>(random() % 20);
        for (int j = 0; j < length; ++j) {
            char c = static_cast<char>(random() % 256);
            if (c == '\0' || c == '/')
                c = '_';
            bytes += c;
        }
        ASSERT_EQ(toHostName(fromHostName(bytes)), bytes) << bytes.toHex().toStdString();
    }
}
