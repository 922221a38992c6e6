#include "controls/file_list.h"
#include "printing.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using controls::FileList;
using platform::Directory;

class FileListControl : public testing::Test
{
protected:
    FileListControl()
    {
        list.Pattern = u"*.dg;*.3d"_s;
        list.Click = list.DblClick = [this] { ++events; };
        list.show(*directory({u"b.DG"_s, u"A.dg"_s, u"c.3d"_s, u"d.cfb"_s}));
    }

    static std::shared_ptr<const Directory> directory(const QStringList &files,
                                                      const QString &path = u"C:\\D"_s)
    {
        auto result = Directory::create(path);
        for (const QString &file : files)
            result->add(file, Directory::Kind::File, false);
        return result;
    }

    QStringList shown() const
    {
        QStringList names;
        for (int row = 0; row < list.ListCount(); ++row)
            names.append(list.List(row));
        return names;
    }

    FileList list;
    int events = 0;
};

TEST_F(FileListControl, shows_what_matches_in_order_and_selects_nothing)
{
    EXPECT_EQ(shown(), (QStringList{u"A.dg"_s, u"b.DG"_s, u"c.3d"_s}));
    EXPECT_EQ(list.ListIndex.value(), -1);
    EXPECT_EQ(list.FileName(), QString());
    EXPECT_EQ(list.Path(), u"C:\\D"_s);
}

TEST_F(FileListControl, keeps_the_selected_name_while_it_is_there_and_runs_no_event)
{
    list.ListIndex = 1;
    list.show(*directory({u"b.DG"_s, u"A.dg"_s, u"a0.dg"_s}));
    EXPECT_EQ(list.FileName(), u"b.DG"_s);
    EXPECT_EQ(list.ListIndex.value(), 2);
    list.show(*directory({u"A.dg"_s}));
    EXPECT_EQ(list.ListIndex.value(), -1);
    EXPECT_EQ(events, 0);
}

TEST_F(FileListControl, selects_nothing_in_a_new_directory)
{
    list.ListIndex = 1;
    list.show(*directory({u"b.DG"_s}, u"C:\\E"_s));
    EXPECT_EQ(list.ListIndex.value(), -1);
    EXPECT_EQ(list.Path(), u"C:\\E"_s);
    EXPECT_EQ(events, 0);
}
