#include "platform/command_text.h"
#include "printing.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

using platform::CommandText;
using platform::Start;

namespace {

CommandText doc(const QString &name)
{
    return CommandText::document(name);
}

} // namespace

TEST(CommandText, is_the_plain_concatenation_of_its_pieces)
{
    const CommandText text = u"/T "_s + (u"/D "_s + doc(u"my walk"_s));
    EXPECT_EQ(text.text(), u"/T /D my walk"_s);
    EXPECT_EQ(text.documents(), (QList<CommandText::Range>{{6, 7}}));
}

TEST(CommandText, in_upper_case_keeps_its_documents)
{
    const CommandText upper = (u"/t "_s + doc(u"my walk"_s)).upperCased();
    EXPECT_EQ(upper.text(), u"/T MY WALK"_s);
    EXPECT_EQ(upper.arguments(), (QStringList{u"/T"_s, u"MY WALK"_s}));
}

TEST(CommandText, gives_each_document_as_one_argument)
{
    EXPECT_EQ((u" /1 "_s + doc(u"my walk.plt"_s)).arguments(), (QStringList{u"/1"_s, u"my walk.plt"_s}));
    EXPECT_EQ((u"/A /Z "_s + doc(u"WALK1"_s) + u" "_s + doc(u"STICK TOO.GRA"_s)).arguments(),
              (QStringList{u"/A"_s, u"/Z"_s, u"WALK1"_s, u"STICK TOO.GRA"_s}));
    EXPECT_EQ(doc(u"-x y;\"z\""_s).arguments(), QStringList{u"-x y;\"z\""_s});
}

TEST(CommandText, keeps_a_document_together_with_what_is_glued_to_it)
{
    EXPECT_EQ((u" /C"_s + doc(u"my walk.pj"_s)).arguments(), QStringList{u"/Cmy walk.pj"_s});
    EXPECT_EQ((doc(u"my walk"_s) + u".rf"_s).arguments(), QStringList{u"my walk.rf"_s});
}

TEST(CommandText, has_no_argument_for_an_empty_document)
{
    EXPECT_EQ((u"/T "_s + doc(QString())).arguments(), QStringList{u"/T"_s});
    EXPECT_EQ((doc(QString()) + u" x"_s).arguments(), QStringList{u"x"_s});
    EXPECT_EQ((doc(u"WALK1"_s) + doc(QString()) + doc(QString())).arguments(), QStringList{u"WALK1"_s});
    EXPECT_TRUE(doc(QString()).arguments().isEmpty());
    EXPECT_TRUE(CommandText().arguments().isEmpty());
    EXPECT_TRUE(CommandText(u"  \t "_s).arguments().isEmpty());
}

TEST(CommandText, quotes_only_where_blanks_need_it)
{
    EXPECT_EQ((u" /1 "_s + doc(u"WALK1.PLT"_s)).quoted(), u" /1 WALK1.PLT"_s);
    EXPECT_EQ((u" /1 "_s + doc(u"my walk.plt"_s)).quoted(), u" /1 \"my walk.plt\""_s);
    EXPECT_EQ((u" /C"_s + doc(u"my walk.pj"_s)).quoted(), u" \"/Cmy walk.pj\""_s);
    EXPECT_EQ((u"/N  "_s + doc(u"a b"_s) + u" "_s + doc(QString())).quoted(), u"/N  \"a b\" "_s);
}

TEST(CommandText, doubles_backslashes_before_a_closing_quote)
{
    EXPECT_EQ(doc(u"C:\\my dir\\"_s).quoted(), u"\"C:\\my dir\\\\\""_s);
    EXPECT_EQ(doc(u"C:\\my dir\\x"_s).quoted(), u"\"C:\\my dir\\x\""_s);
    EXPECT_EQ(doc(u" \\\\"_s).quoted(), u"\" \\\\\\\\\""_s);
}

TEST(Start, of_a_program_is_its_composed_text_exactly)
{
    const Start start{.file = u"C:\\KV\\grafow.exe"_s, .parameters = u" /1 "_s + doc(u"W.PLT"_s)};
    EXPECT_EQ(start.text(), u"C:\\KV\\grafow.exe /1 W.PLT"_s);
}

TEST(Start, by_the_operating_system_puts_one_blank_before_the_parameters)
{
    EXPECT_EQ((Start{.verb = u"open"_s, .file = u"A.EXE"_s, .parameters = u"/T W"_s}).text(),
              u"A.EXE /T W"_s);
    EXPECT_EQ((Start{.verb = u"open"_s, .file = u"A.PDF"_s}).text(), u"A.PDF"_s);
}
