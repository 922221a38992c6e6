#include "panel_fixture.h"
#include "printing.h"
#include "shell/file_names.h"

using namespace Qt::StringLiterals;

using namespace shell;

TEST(StripExtension, removes_the_last_extension)
{
    EXPECT_EQ(StripExtension(u"run1.dg"_s), u"run1"_s);
    EXPECT_EQ(StripExtension(u"a.b.c"_s), u"a.b"_s);
    EXPECT_EQ(StripExtension(u"walk.left.dg"_s), u"walk.left"_s);
    EXPECT_EQ(StripExtension(u"run1."_s), u"run1"_s);
    EXPECT_EQ(StripExtension(u"x.y"_s), u"x"_s);
}

TEST(StripExtension, leaves_names_without_one)
{
    EXPECT_EQ(StripExtension(u""_s), u""_s);
    EXPECT_EQ(StripExtension(u"run1"_s), u"run1"_s);
    EXPECT_EQ(StripExtension(u".cfb"_s), u".cfb"_s);
    EXPECT_EQ(StripExtension(u"."_s), u"."_s);
}

TEST(StripExtension, counts_a_dot_in_a_directory_name)
{
    EXPECT_EQ(StripExtension(u"C:\\my.dir\\file"_s), u"C:\\my"_s);
}

TEST(GetExtension, is_what_follows_the_last_dot)
{
    EXPECT_EQ(GetExtension(u"run1.dg"_s), u"dg"_s);
    EXPECT_EQ(GetExtension(u"a.b.c"_s), u"c"_s);
    EXPECT_EQ(GetExtension(u".cfb"_s), u"cfb"_s);
    EXPECT_EQ(GetExtension(u"run1."_s), u""_s);
}

TEST(GetExtension, of_a_name_without_a_dot_is_the_name)
{
    EXPECT_EQ(GetExtension(u"run1"_s), u"run1"_s);
    EXPECT_EQ(GetExtension(u""_s), u""_s);
}

TEST(FileTitle, has_neither_directory_nor_extension)
{
    EXPECT_EQ(FileTitle(u"C:\\data\\run1.dg"_s), u"run1"_s);
    EXPECT_EQ(FileTitle(u"A:walk.cfb"_s), u"walk"_s);
    EXPECT_EQ(FileTitle(u"run1"_s), u"run1"_s);
    EXPECT_EQ(FileTitle(u""_s), u""_s);
    EXPECT_EQ(FileTitle(u"C:\\data\\"_s), u""_s);
    EXPECT_EQ(FileTitle(u"C:\\my.dir\\file"_s), u"my"_s);
}

TEST(DirectoryOf, is_the_directory_part)
{
    EXPECT_EQ(DirectoryOf(u"C:\\data\\run1.dg"_s), u"C:\\data"_s);
    EXPECT_EQ(DirectoryOf(u"C:\\data\\sub\\x.dg"_s), u"C:\\data\\sub"_s);
    EXPECT_EQ(DirectoryOf(u"C:\\data\\"_s), u"C:\\data"_s);
}

TEST(DirectoryOf, of_a_name_alone_is_the_current_directory)
{
    EXPECT_EQ(DirectoryOf(u""_s), u".\\"_s);
    EXPECT_EQ(DirectoryOf(u"run1.dg"_s), u".\\"_s);
    EXPECT_EQ(DirectoryOf(u"\\run1.dg"_s), u".\\"_s);
}

TEST(DirectoryOf, knows_roots)
{
    EXPECT_EQ(DirectoryOf(u"\\"_s), u"\\"_s);
    EXPECT_EQ(DirectoryOf(u"C"_s), u"C:\\"_s);
    EXPECT_EQ(DirectoryOf(u"C:"_s), u"C:\\"_s);
    EXPECT_EQ(DirectoryOf(u";"_s), u";:\\"_s);
    EXPECT_EQ(DirectoryOf(u"ab"_s), u".\\"_s);
}

TEST(DirectoryOf, a_file_in_a_root_loses_the_backslash)
{
    EXPECT_EQ(DirectoryOf(u"C:\\run1.dg"_s), u"C:"_s);
}

TEST(InDataDir, is_where_a_name_of_a_list_is_found)
{
    Kinovra kinovra;
    kinovra.DataDir = u"C:\\DATA"_s;
    EXPECT_EQ(inDataDir(kinovra, u"run1.dg"_s), u"C:\\DATA\\run1.dg"_s);
    EXPECT_EQ(inDataDir(kinovra, u"C:\\OTHER\\run1.dg"_s), u"C:\\OTHER\\run1.dg"_s);
    EXPECT_EQ(inDataDir(kinovra, u"sub\\run1.dg"_s), u"sub\\run1.dg"_s);
    EXPECT_EQ(inDataDir(kinovra, u"D:run1.dg"_s), u"D:run1.dg"_s);
}

class ShortNameTest : public support::PanelFixture
{};

TEST_F(ShortNameTest, is_the_systems_short_form)
{
    machine.files.addFile(u"C:\\DATA\\averylongname.dg"_s);
    machine.files.setShortName(u"C:\\DATA\\averylongname.dg"_s, u"AVERYL~1.DG"_s);
    EXPECT_EQ(ShortName(panel, u"C:\\DATA\\averylongname.dg"_s), u"AVERYL~1.DG"_s);
}

TEST_F(ShortNameTest, of_a_bare_name_means_the_data_directory)
{
    machine.files.addFile(u"C:\\OTHER\\run1.dg"_s);
    kinovra.DataDir = u"C:\\OTHER"_s;
    EXPECT_EQ(ShortName(panel, u"run1.dg"_s), u"run1.dg"_s);
}

TEST_F(ShortNameTest, of_a_missing_file_is_empty)
{
    EXPECT_EQ(ShortName(panel, u"C:\\DATA\\missing.dg"_s), QString());
    EXPECT_EQ(ShortName(panel, u"Q:\\missing.dg"_s), QString());
}

TEST_F(ShortNameTest, swallows_every_error)
{
    machine.files.addFile(u"C:\\DATA\\run1.dg"_s);
    machine.files.beforeCall = [](const QString &) {
        throw platform::RuntimeError(platform::ErrorNumber::DeviceError);
    };
    EXPECT_EQ(ShortName(panel, u"C:\\DATA\\run1.dg"_s), QString());
}
