#include "platform/directory.h"
#include "printing.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

using platform::Directory;
using Kind = platform::Directory::Kind;

namespace {

std::shared_ptr<Directory> holding(const QStringList &files)
{
    auto directory = Directory::create(u"C:\\DATA"_s);
    for (const QString &file : files)
        directory->add(file, Kind::File, false);
    return directory;
}

} // namespace

TEST(FileNames, match_any_pattern_in_any_case)
{
    const auto directory =
        holding({u"walk.PLT"_s, u"a.hpg"_s, u"b.hpgl"_s, u"c.dg"_s, u"plt"_s, u"d.plt.bak"_s});
    EXPECT_EQ(directory->files(u"*.plt;*.hpg;*.pgl;*.hpgl;*.acd"_s).toList(),
              (QStringList{u"a.hpg"_s, u"b.hpgl"_s, u"walk.PLT"_s}));
}

TEST(FileNames, match_the_last_extension)
{
    const auto directory = holding({u"walk.left.dg"_s, u"walk.dg.left"_s, u".dg"_s});
    EXPECT_EQ(directory->files(u"*.dg"_s).toList(), (QStringList{u".dg"_s, u"walk.left.dg"_s}));
}

TEST(FileNames, know_wildcards_beyond_extensions)
{
    const auto directory = holding({u"walk1.dg"_s, u"walk12.dg"_s, u"run1.dg"_s, u"readme"_s, u"x.extra"_s});
    EXPECT_EQ(directory->files(u"walk?.*"_s).toList(), QStringList{u"walk1.dg"_s});
    EXPECT_EQ(directory->files(u"*.*"_s).count(), 5);
    EXPECT_EQ(directory->files(u"*1*"_s).count(), 3);
    EXPECT_EQ(directory->files(u"*.extra"_s).toList(), QStringList{u"x.extra"_s});
    EXPECT_EQ(directory->files(u""_s).count(), 0);
}

TEST(FileNames, match_a_star_that_stands_for_nothing)
{
    const auto directory = holding({u"walk"_s, u"walk1"_s, u"wal"_s});
    EXPECT_EQ(directory->files(u"walk*"_s).toList(), (QStringList{u"walk"_s, u"walk1"_s}));
    EXPECT_EQ(directory->files(u"walk1**"_s).toList(), QStringList{u"walk1"_s});
}

TEST(FileNames, know_extensions_with_wildcards_and_dots)
{
    const auto directory =
        holding({u"walk.dg"_s, u"walk.dr"_s, u"walk.d"_s, u"walk.dgx"_s, u"walk.l.dg"_s, u"walk.r.dg"_s});
    EXPECT_EQ(directory->files(u"*.d?"_s).toList(),
              (QStringList{u"walk.dg"_s, u"walk.dr"_s, u"walk.l.dg"_s, u"walk.r.dg"_s}));
    EXPECT_EQ(directory->files(u"*.l.dg"_s).toList(), QStringList{u"walk.l.dg"_s});
}

TEST(FileNames, match_extensions_beyond_ascii_in_any_case)
{
    const auto directory = holding({u"walk.dö"_s, u"RUN.DÖ"_s, u"walk.do"_s, u"walk.dü"_s});
    EXPECT_EQ(directory->files(u"*.dö"_s).toList(), (QStringList{u"RUN.DÖ"_s, u"walk.dö"_s}));
}

TEST(FileNames, stand_in_alphabetical_order_without_regard_to_case)
{
    const auto directory = holding({u"walk10.dg"_s, u"b.dg"_s, u"A.dg"_s, u"WALK1.DG"_s, u"a.DG"_s, u"C.dg"_s,
                                    u"walk2.dg"_s, u"averylongname2.dg"_s, u"AVERYLONGNAME1.dg"_s});
    EXPECT_EQ(directory->files(u"*.dg"_s).toList(),
              (QStringList{u"A.dg"_s, u"a.DG"_s, u"AVERYLONGNAME1.dg"_s, u"averylongname2.dg"_s, u"b.dg"_s,
                           u"C.dg"_s, u"WALK1.DG"_s, u"walk10.dg"_s, u"walk2.dg"_s}));
}

TEST(FileNames, stand_in_order_beyond_ascii_too)
{
    const auto directory =
        holding({u"ö0.dg"_s, u"ä1.dg"_s, u"zz.dg"_s, u"Ä0.dg"_s, u"abcdefghä.dg"_s, u"abcdefghz.dg"_s});
    EXPECT_EQ(
        directory->files(u"*.dg"_s).toList(),
        (QStringList{u"abcdefghz.dg"_s, u"abcdefghä.dg"_s, u"zz.dg"_s, u"Ä0.dg"_s, u"ä1.dg"_s, u"ö0.dg"_s}));
}

TEST(FileNames, stand_before_longer_names_that_begin_like_them)
{
    const QString name = u"walk_with_both_sticks"_s;
    const QString longer = u"WALK_WITH_BOTH_STICKS2"_s;
    for (const QStringList &files : {QStringList{name, longer}, QStringList{longer, name}}) {
        const auto names = holding(files)->files(u"*"_s);
        EXPECT_EQ(names.toList(), (QStringList{name, longer}));
        EXPECT_EQ(names.indexOf(name), 0);
        EXPECT_EQ(names.indexOf(longer), 1);
        EXPECT_EQ(names.indexOf(name.chopped(1)), -1);
    }
}

TEST(FileNames, are_found_again_whatever_they_are_made_of)
{
    const QString units = u"aAbzZ09_ äÄöéßıſǄŁλΩшШ中🏃"_s;
    QStringList files;
    // A fixed sequence that looks like chance.
    quint32 chance = 12345;
    for (int i = 0; i < 3000; ++i) {
        QString name;
        for (int length = 1 + i % 20; length > 0; --length) {
            chance = chance * 1664525U + 1013904223U;
            name += units[static_cast<qsizetype>((chance >> 16U) % static_cast<quint32>(units.size()))];
        }
        if (!files.contains(name + u".dg"_s))
            files.append(name + u".dg"_s);
    }
    const auto names = holding(files)->files(u"*.dg"_s);
    ASSERT_EQ(names.count(), files.size());
    for (int row = 0; row < names.count(); ++row)
        ASSERT_EQ(names.indexOf(names.at(row)), row) << names.at(row).toStdString();
}

TEST(FileNames, leave_out_folders_hidden_files_and_devices)
{
    auto directory = holding({u"a.dg"_s});
    directory->add(u"folder.dg", Kind::Folder, false);
    directory->add(u"hidden.dg", Kind::File, true);
    directory->add(u"pipe.dg", Kind::Other, false);
    EXPECT_EQ(directory->files(u"*.dg"_s).toList(), QStringList{u"a.dg"_s});
}

TEST(FileNames, find_the_row_of_a_name)
{
    const auto names = holding({u"b.dg"_s, u"a.dg"_s, u"A.dg"_s})->files(u"*.dg"_s);
    EXPECT_EQ(names.indexOf(u"A.dg"_s), 0);
    EXPECT_EQ(names.indexOf(u"a.dg"_s), 1);
    EXPECT_EQ(names.indexOf(u"b.dg"_s), 2);
    EXPECT_EQ(names.indexOf(u"B.dg"_s), -1);
    EXPECT_EQ(names.indexOf(u"z.dg"_s), -1);
    EXPECT_EQ(platform::FileNames().indexOf(u"a.dg"_s), -1);
}

TEST(Folders, are_listed_without_the_hidden_ones)
{
    auto directory = holding({u"file"_s});
    directory->add(u"sub2", Kind::Folder, false);
    directory->add(u"Sub1", Kind::Folder, false);
    directory->add(u".git", Kind::Folder, true);
    EXPECT_EQ(directory->folders().toList(), (QStringList{u"Sub1"_s, u"sub2"_s}));
}

TEST(DirectoryLookup, ignores_case_and_gives_the_true_spelling)
{
    const auto directory = holding({u"Walk1.Dg"_s, u"übung.DG"_s, u"straße.dg"_s});
    EXPECT_EQ(directory->find(u"WALK1.DG"_s), u"Walk1.Dg"_s);
    EXPECT_EQ(directory->find(u"ÜBUNG.DG"_s), u"übung.DG"_s);
    EXPECT_EQ(directory->find(u"STRAßE.DG"_s), u"straße.dg"_s);
    EXPECT_TRUE(directory->find(u"WALK2.DG"_s).isNull());
    EXPECT_TRUE(holding({})->find(u"WALK1.DG"_s).isNull());
}

TEST(DirectoryLookup, prefers_the_exact_name_then_the_first_in_order)
{
    const auto directory = holding({u"walk.dg"_s, u"Walk.dg"_s, u"WALK.dg"_s});
    EXPECT_EQ(directory->find(u"Walk.dg"_s), u"Walk.dg"_s);
    EXPECT_EQ(directory->find(u"walk.dg"_s), u"walk.dg"_s);
    EXPECT_EQ(directory->find(u"WALK.DG"_s), u"WALK.dg"_s);
}

// Both names have the same number in the table of the lookup.
TEST(DirectoryLookup, tells_names_apart_that_share_a_number)
{
    EXPECT_TRUE(holding({u"step9396.dg"_s})->find(u"GAIT32830.DG"_s).isNull());
    const auto directory = holding({u"step9396.dg"_s, u"gait32830.dg"_s});
    EXPECT_EQ(directory->find(u"STEP9396.DG"_s), u"step9396.dg"_s);
    EXPECT_EQ(directory->find(u"GAIT32830.DG"_s), u"gait32830.dg"_s);
}

TEST(DirectoryLookup, finds_hidden_names)
{
    auto directory = holding({});
    directory->add(u".cfb", Kind::File, true);
    EXPECT_EQ(directory->find(u".CFB"_s), u".cfb"_s);
}

TEST(DirectoryLookup, finds_every_name_of_a_large_directory)
{
    QStringList names;
    for (int i = 0; i < 5000; ++i)
        names.append(u"trial%1.dg"_s.arg(i));
    const auto directory = holding(names);
    for (int i = 0; i < 5000; ++i)
        ASSERT_EQ(directory->find(u"TRIAL%1.DG"_s.arg(i)), names.at(i));
    EXPECT_TRUE(directory->find(u"TRIAL5000.DG"_s).isNull());
}
