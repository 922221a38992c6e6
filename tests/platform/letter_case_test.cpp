#include "platform/letter_case.h"
#include "printing.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

using platform::LCase;
using platform::sameIgnoringCase;
using platform::UCase;

TEST(LetterCase, maps_letters_one_by_one)
{
    EXPECT_EQ(UCase(u"walk1.dg Äöü ñ ж"_s), u"WALK1.DG ÄÖÜ Ñ Ж"_s);
    EXPECT_EQ(LCase(u"WALK1.DG ÄÖÜ Ñ Ж"_s), u"walk1.dg äöü ñ ж"_s);
    EXPECT_EQ(UCase(u"ÿ"_s), u"Ÿ"_s);
    EXPECT_EQ(UCase(u"ａｂ"_s), u"ＡＢ"_s);
    EXPECT_EQ(LCase(u"ＡＺ"_s), u"ａｚ"_s);
}

TEST(LetterCase, never_changes_the_length)
{
    EXPECT_EQ(UCase(u"straße.dg"_s), u"STRAßE.DG"_s);
    EXPECT_EQ(UCase(u"ﬁle"_s), u"ﬁLE"_s);
    EXPECT_EQ(LCase(u"İzmir"_s), u"İzmir"_s);
}

TEST(LetterCase, leaves_letters_whose_capital_belongs_to_another_letter)
{
    EXPECT_EQ(UCase(u"ılgaz"_s), u"ıLGAZ"_s);
    EXPECT_EQ(UCase(u"5µm"_s), u"5µM"_s);
    EXPECT_EQ(UCase(u"ſ"_s), u"ſ"_s);
}

TEST(LetterCase, leaves_letters_whose_capitals_are_younger_than_file_systems)
{
    EXPECT_EQ(UCase(u"ა"_s), u"ა"_s); // Georgian
    EXPECT_EQ(LCase(u"Ა"_s), u"Ა"_s);
    EXPECT_EQ(UCase(u"ⴀ"_s), u"ⴀ"_s);
    EXPECT_EQ(LCase(u"Ⴀ"_s), u"Ⴀ"_s);
    EXPECT_EQ(UCase(u"ꭰ"_s), u"ꭰ"_s); // Cherokee
    EXPECT_EQ(LCase(u"Ꭰ"_s), u"Ꭰ"_s);
    EXPECT_EQ(LCase(u"Ꙁ"_s), u"Ꙁ"_s); // Old Cyrillic
}

TEST(LetterCase, knows_the_letters_around_the_young_ones)
{
    EXPECT_EQ(UCase(u"ḁⰰⲁ"_s), u"ḀⰀⲀ"_s);
    EXPECT_EQ(UCase(u"ｱ｛ᐁ中"_s), u"ｱ｛ᐁ中"_s);
}

TEST(LetterCase, leaves_characters_outside_the_basic_plane)
{
    EXPECT_EQ(UCase(u"𐐨🏃"_s), u"𐐨🏃"_s);
}

TEST(LetterCase, compares_without_regard_to_case)
{
    EXPECT_TRUE(sameIgnoringCase(u"Walk1.DG", u"wALK1.dg"));
    EXPECT_FALSE(sameIgnoringCase(u"walk1.dg", u"walk1.d"));
    EXPECT_FALSE(sameIgnoringCase(u"walk1", u"walk2"));
}
