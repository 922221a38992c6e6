#include "platform/linux/drive_map.h"
#include "printing.h"
#include "scratch_directory.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using platform::host::DriveMap;

TEST(DriveMap, without_a_prefix_has_the_root_alone)
{
    const DriveMap drives{QByteArray()};
    EXPECT_EQ(drives.texts(), QStringList{u"z:"_s});
    EXPECT_EQ(drives.toPanel("/home/anna"), u"Z:\\home\\anna"_s);
    EXPECT_EQ(drives.toPanel("/"), u"Z:\\"_s);
    EXPECT_EQ(drives.toHost(u"Z:\\home\\anna"_s), QByteArray("/home/anna"));
    EXPECT_EQ(drives.toHost(u"Z:\\"_s), QByteArray("/"));
    EXPECT_FALSE(drives.contains(u'C'));
}

TEST(DriveMap, takes_the_letters_of_a_wine_prefix)
{
    const support::ScratchDirectory prefix;
    prefix.makeDirectory("drive_c/data");
    prefix.makeDirectory("dosdevices");
    prefix.makeDirectory("stick");
    prefix.makeLink("dosdevices/c:", "../drive_c");
    prefix.makeLink("dosdevices/e:", prefix.path("stick"));
    prefix.makeLink("dosdevices/f:", "/gone/away");
    prefix.makeFile("file");
    prefix.makeLink("dosdevices/g:", "../file");
    prefix.makeLink("dosdevices/z:", "/");
    prefix.makeLink("dosdevices/com1", "/dev/null");
    prefix.makeLink("dosdevices/c::", "/dev/null");
    const DriveMap drives(prefix.path());
    EXPECT_EQ(drives.texts(), (QStringList{u"c:"_s, u"e:"_s, u"z:"_s}));
    EXPECT_EQ(drives.toPanel(prefix.path("drive_c/data")), u"C:\\data"_s);
    EXPECT_EQ(drives.toPanel(prefix.path("drive_c")), u"C:\\"_s);
    EXPECT_EQ(drives.toPanel(prefix.path("drive_cx")).left(2), u"Z:"_s);
    EXPECT_EQ(drives.toHost(u"C:\\data\\x"_s), prefix.path("drive_c/data/x"));
    EXPECT_EQ(drives.toHost(u"E:\\"_s), prefix.path("stick"));
}

TEST(DriveMap, notices_letters_that_come_and_go)
{
    const support::ScratchDirectory prefix;
    prefix.makeDirectory("dosdevices");
    prefix.makeDirectory("stick");
    DriveMap drives(prefix.path());
    EXPECT_EQ(drives.texts(), QStringList{u"z:"_s});
    prefix.makeLink("dosdevices/e:", "../stick");
    drives.refresh();
    EXPECT_EQ(drives.texts(), (QStringList{u"e:"_s, u"z:"_s}));
    prefix.remove("stick");
    drives.refresh();
    EXPECT_EQ(drives.texts(), QStringList{u"z:"_s});
}

TEST(DriveMap, keeps_names_that_the_path_language_cannot_spell)
{
    const DriveMap drives{QByteArray()};
    const QByteArray hostile = "/tmp/a\\b/c:d/\xFF";
    EXPECT_EQ(drives.toHost(drives.toPanel(hostile)), hostile);
}
