#include "platform/start_rules.h"
#include "printing.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

using namespace platform;

TEST(BareName, has_neither_directory_nor_drive)
{
    EXPECT_TRUE(isBareName(u"notepad.exe"_s));
    EXPECT_TRUE(isBareName(u"my program.exe"_s));
    EXPECT_FALSE(isBareName(u"C:\\KV\\grafow.exe"_s));
    EXPECT_FALSE(isBareName(u"sub\\grafow.exe"_s));
    EXPECT_FALSE(isBareName(u"\\grafow.exe"_s));
    EXPECT_FALSE(isBareName(u"C:grafow.exe"_s));
}

TEST(PlainName, leads_nowhere)
{
    EXPECT_TRUE(isPlainName(u"manual.pdf"_s));
    EXPECT_TRUE(isPlainName(u"..manual"_s));
    EXPECT_FALSE(isPlainName(u"."_s));
    EXPECT_FALSE(isPlainName(u".."_s));
    EXPECT_FALSE(isPlainName(u"..\\manual.pdf"_s));
    EXPECT_FALSE(isPlainName(u"../manual.pdf"_s));
    EXPECT_FALSE(isPlainName(u"C:manual.pdf"_s));
    EXPECT_FALSE(isPlainName(u"manual"_s + QChar(u'\0') + u".pdf"_s));
}

TEST(WebAddress, is_one_argument_that_begins_with_https)
{
    EXPECT_TRUE(isWebAddress(u"https://kinovra.example/updates?version=1.00"_s));
    EXPECT_FALSE(isWebAddress(u"http://kinovra.example"_s));
    EXPECT_FALSE(isWebAddress(u"file:///etc/passwd"_s));
    EXPECT_FALSE(isWebAddress(u" https://kinovra.example"_s));
    EXPECT_FALSE(isWebAddress(u"https://kinovra.example/a b"_s));
    EXPECT_FALSE(isWebAddress(u"https://kinovra.example/\"b"_s));
    EXPECT_FALSE(isWebAddress(u"https://kinovra.example/\u001B[31m"_s));
}
