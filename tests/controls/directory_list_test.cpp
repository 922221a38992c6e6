#include "controls/directory_list.h"
#include "printing.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using controls::DirList;
using platform::Directory;

namespace {

std::shared_ptr<const Directory> directoryWith(const QString &path, const QStringList &folders)
{
    auto directory = Directory::create(path);
    for (const QString &folder : folders)
        directory->add(folder, Directory::Kind::Folder, false);
    return directory;
}

QStringList rows(const DirList &list)
{
    QStringList result;
    for (int row = 0; row < list.RowCount(); ++row)
        result.append(QString(list.RowLevel(row), u'.') + list.RowText(row));
    return result;
}

} // namespace

TEST(DirectoryLists, show_every_ancestor_a_level_deeper_then_the_open_directory_then_what_is_in_it)
{
    DirList list;
    list.show(*directoryWith(u"C:\\Trials\\Walking"_s, {u"old"_s, u"New"_s}));
    EXPECT_EQ(rows(list), (QStringList{u"c:\\"_s, u".Trials"_s, u"..Walking"_s, u"...New"_s, u"...old"_s}));
    EXPECT_EQ(list.Path(), u"C:\\Trials\\Walking"_s);
    EXPECT_EQ(list.OpenedRow(), 2);
    EXPECT_EQ(list.ListIndex.value(), 2);
    EXPECT_EQ(list.RowPath(0), u"C:\\"_s);
    EXPECT_EQ(list.RowPath(1), u"C:\\Trials"_s);
    EXPECT_EQ(list.RowPath(2), u"C:\\Trials\\Walking"_s);
    EXPECT_EQ(list.RowPath(4), u"C:\\Trials\\Walking\\old"_s);
}

TEST(DirectoryLists, have_a_trailing_backslash_only_at_a_root)
{
    DirList list;
    list.show(*directoryWith(u"C:\\"_s, {u"Trials"_s}));
    EXPECT_EQ(list.Path(), u"C:\\"_s);
    EXPECT_EQ(rows(list), (QStringList{u"c:\\"_s, u".Trials"_s}));
    EXPECT_EQ(list.RowPath(1), u"C:\\Trials"_s);
}

TEST(DirectoryLists, highlight_the_open_directory_where_no_row_was_highlighted)
{
    DirList list;
    list.show(*directoryWith(u"C:\\Trials"_s, {u"a"_s}));
    list.ListIndex = -1;
    list.show(*directoryWith(u"C:\\Trials"_s, {u"a"_s}));
    EXPECT_EQ(list.ListIndex.value(), 1);
}

TEST(DirectoryLists, keep_the_highlighted_row_when_the_same_directory_is_shown_again)
{
    DirList list;
    list.show(*directoryWith(u"C:\\Trials"_s, {u"b"_s, u"c"_s}));
    list.ListIndex = 3;
    list.show(*directoryWith(u"C:\\Trials"_s, {u"a"_s, u"b"_s, u"c"_s}));
    EXPECT_EQ(list.RowText(list.ListIndex), u"c"_s);
    list.show(*directoryWith(u"C:\\Trials"_s, {u"a"_s}));
    EXPECT_EQ(list.ListIndex.value(), 1) << "the open directory, where the row has gone";
    list.ListIndex = 0;
    list.show(*directoryWith(u"C:\\Trials"_s, {u"a"_s}));
    EXPECT_EQ(list.ListIndex.value(), 0);
}

TEST(DirectoryLists, show_no_sub_directories_of_a_directory_that_has_gone)
{
    DirList list;
    list.show(*directoryWith(u"C:\\Trials"_s, {u"a"_s}));
    list.ListIndex = 2;
    list.showGone();
    EXPECT_EQ(rows(list), (QStringList{u"c:\\"_s, u".Trials"_s}));
    EXPECT_EQ(list.ListIndex.value(), 1);
}
