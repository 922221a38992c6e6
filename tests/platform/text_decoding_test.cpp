#include "platform/runtime_error.h"
#include "platform/text_decoding.h"
#include "printing.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

using namespace platform;

TEST(DecodedText, is_utf8_where_that_is_valid_and_else_the_windows_code_page)
{
    EXPECT_EQ(decodeText("L\xC3\xA4ufer"), u"Läufer"_s);
    EXPECT_EQ(decodeText("\xEF\xBB\xBFwalk"), u"walk"_s);
    EXPECT_EQ(decodeText("L\xE4ufer \x96 \x80 5"), u"Läufer – € 5"_s);
    EXPECT_EQ(decodeText("\x81\x9F\xA0"), u"\u0081Ÿ\u00A0"_s);
    EXPECT_EQ(decodeText("caf\xC3"), u"cafÃ"_s);
    EXPECT_EQ(decodeText(""), QString());
}

TEST(FirstLine, ends_where_its_line_or_the_text_does)
{
    EXPECT_EQ(firstLineOf("Title\r\nmore"), u"Title"_s);
    EXPECT_EQ(firstLineOf("Title\nmore"), u"Title"_s);
    EXPECT_EQ(firstLineOf("Title\x1Amore"), u"Title"_s);
    EXPECT_EQ(firstLineOf("Title"), u"Title"_s);
    EXPECT_EQ(firstLineOf("\nmore"), QString());
    EXPECT_EQ(firstLineOf("caf\xC3\nmore"), u"cafÃ"_s) << "a whole line has no half character";
    EXPECT_THROW(firstLineOf(""), RuntimeError);
    EXPECT_THROW(firstLineOf("\x1A"), RuntimeError);
}

TEST(FirstLine, that_is_too_long_has_the_characters_that_are_whole)
{
    const auto cut = [](const QByteArray &line) { return firstLineOf(line.first(65'536)); };
    EXPECT_EQ(cut(QByteArray(70'000, 'x')), QString(65'536, u'x'));
    const QByteArray umlauts = QByteArray("\xC3\xA4").repeated(40'000);
    EXPECT_EQ(cut(umlauts), QString(32'768, u'ä'));
    EXPECT_EQ(cut('x' + umlauts), u'x' + QString(32'767, u'ä'));
    const QByteArray runners = QByteArray("\xF0\x9F\x8F\x83").repeated(20'000);
    EXPECT_EQ(cut(runners), u"🏃"_s.repeated(16'384));
    for (const QByteArray &before : {QByteArray("x"), QByteArray("xy"), QByteArray("xyz")})
        EXPECT_EQ(cut(before + runners), QString::fromLatin1(before) + u"🏃"_s.repeated(16'383));
}

TEST(FirstLine, that_is_too_long_may_be_of_the_windows_code_page)
{
    EXPECT_EQ(firstLineOf(QByteArray(65'536, '\x80')), QString(65'536, u'€'));
    EXPECT_EQ(firstLineOf("\xE4" + QByteArray(65'534, 'x') + "\xE9"), u'ä' + QString(65'534, u'x') + u'é');
}
