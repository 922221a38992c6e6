#include "printing.h"
#include "view_fixture.h"
#include "views/row_delegate.h"

#include <QComboBox>
#include <QIcon>
#include <QTest>
#include <QWheelEvent>

using namespace Qt::StringLiterals;

class DirectoryViews : public support::ViewFixture
{
protected:
    void SetUp() override
    {
        machine.files.addDirectory(u"C:\\DATA\\Sub"_s);
        machine.files.addDrive(u"d: [stick]"_s);
        addFile(u"D:\\RUN5.DG"_s);
        show();
    }

    QListView *directories() const { return list(u"Directory"_s); }
    QComboBox *drives() const { return window().findChild<QComboBox *>(); }
};

TEST_F(DirectoryViews, show_the_rows)
{
    const auto *model = directories()->model();
    ASSERT_EQ(model->rowCount(), 3);
    EXPECT_EQ(model->index(0, 0).data().toString(), u"c:\\"_s);
    EXPECT_EQ(model->index(1, 0).data().toString(), u"DATA"_s);
    EXPECT_EQ(model->index(2, 0).data().toString(), u"Sub"_s);
    EXPECT_EQ(directories()->currentIndex().row(), 1);
}

TEST_F(DirectoryViews, highlight_on_one_click)
{
    clickRow(directories(), 2);
    EXPECT_EQ(kinovra.DataDir, u"C:\\DATA"_s);
    EXPECT_EQ(frm.dirSelect.ListIndex.value(), 2);
}

TEST_F(DirectoryViews, open_on_a_double_click)
{
    doubleClickAt(directories()->viewport(), middleOf(directories(), 2));
    EXPECT_EQ(kinovra.DataDir, u"C:\\DATA\\Sub"_s);
    EXPECT_EQ(directories()->currentIndex().row(), 2);
    EXPECT_EQ(directories()->model()->rowCount(), 3);
}

TEST_F(DirectoryViews, open_on_enter)
{
    directories()->setFocus(Qt::TabFocusReason);
    QTest::keyClick(directories(), Qt::Key_Up);
    EXPECT_EQ(kinovra.DataDir, u"C:\\DATA"_s);
    QTest::keyClick(directories(), Qt::Key_Return);
    EXPECT_EQ(kinovra.DataDir, u"c: [data]"_s);
}

TEST_F(DirectoryViews, do_not_open_the_open_directory_again)
{
    kinovra.CurrentTrial = u"RUN1"_s;
    doubleClickAt(directories()->viewport(), middleOf(directories(), 1));
    EXPECT_EQ(kinovra.CurrentTrial, u"RUN1"_s);
}

TEST_F(DirectoryViews, show_the_drives)
{
    ASSERT_EQ(drives()->count(), 2);
    EXPECT_EQ(drives()->itemText(1), u"d: [stick]"_s);
    EXPECT_EQ(drives()->currentText(), u"c: [data]"_s);
    EXPECT_EQ(drives()->accessibleName(), u"Drive"_s);
}

TEST_F(DirectoryViews, act_when_a_drive_is_chosen)
{
    Q_EMIT drives()->activated(1);
    EXPECT_EQ(kinovra.DataDir, u"d: [stick]"_s);
    EXPECT_EQ(drives()->currentText(), u"d: [stick]"_s);
}

TEST_F(DirectoryViews, let_a_click_that_a_list_holds_back_run_with_the_old_drive)
{
    addData({"walk1.dg"});
    click(frm.cmdRefresh);
    QString driveAtClick;
    frm.filDatafiles.Click = [&] { driveAtClick = frm.drvDrives.Drive; };
    QListView *datafiles = list(u"Data files"_s);
    datafiles->setFocus(Qt::TabFocusReason);
    QTest::keyClick(datafiles, Qt::Key_Down);
    drives()->setCurrentIndex(1);
    Q_EMIT drives()->activated(1);
    EXPECT_EQ(driveAtClick, u"c: [data]"_s);
    EXPECT_EQ(kinovra.DataDir, u"d: [stick]"_s);
}

TEST_F(DirectoryViews, do_nothing_when_the_same_drive_is_chosen)
{
    kinovra.CurrentTrial = u"RUN1"_s;
    Q_EMIT drives()->activated(0);
    EXPECT_EQ(kinovra.CurrentTrial, u"RUN1"_s);
}

TEST_F(DirectoryViews, ignore_the_wheel_over_the_drives)
{
    kinovra.CurrentTrial = u"RUN1"_s;
    const QPointF position(5, 5);
    for (int delta : {-120, 120}) {
        QWheelEvent wheel(position, drives()->mapToGlobal(position), QPoint(), QPoint(0, delta), Qt::NoButton,
                          Qt::NoModifier, Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(drives(), &wheel);
    }
    EXPECT_EQ(drives()->currentText(), u"c: [data]"_s);
    EXPECT_EQ(kinovra.CurrentTrial, u"RUN1"_s);
}

TEST_F(DirectoryViews, open_the_drives_instead_of_stepping_through_them)
{
    drives()->setFocus(Qt::TabFocusReason);
    for (Qt::Key key :
         {Qt::Key_Down, Qt::Key_Up, Qt::Key_PageDown, Qt::Key_PageUp, Qt::Key_End, Qt::Key_Home}) {
        QTest::keyClick(drives(), key);
        EXPECT_TRUE(drives()->view()->isVisible()) << key;
        EXPECT_EQ(drives()->currentText(), u"c: [data]"_s) << key;
        EXPECT_EQ(kinovra.DataDir, u"C:\\DATA"_s) << key;
        drives()->hidePopup();
    }
}

TEST_F(DirectoryViews, do_nothing_while_the_pointer_passes_over_the_drives)
{
    drives()->showPopup();
    Q_EMIT drives()->highlighted(1);
    EXPECT_EQ(kinovra.DataDir, u"C:\\DATA"_s);
    drives()->hidePopup();
}

TEST_F(DirectoryViews, show_where_a_directory_was_that_has_gone)
{
    open(u"C:\\DATA"_s);
    machine.files.remove(u"C:\\DATA"_s);
    click(frm.cmdRefresh);
    QListView *view = list(u"Directory"_s);
    EXPECT_EQ(view->model()->rowCount(), 2);
    EXPECT_EQ(view->currentIndex().row(), 1);
    EXPECT_TRUE(view->selectionModel()->isSelected(view->currentIndex()));
}

TEST_F(DirectoryViews, indent_each_level_and_show_what_is_open)
{
    const QAbstractItemModel *model = list(u"Directory"_s)->model();
    QList<int> indents;
    QList<qint64> icons;
    for (int row = 0; row < 3; ++row) {
        indents.append(model->index(row, 0).data(views::IndentRole).toInt());
        icons.append(model->index(row, 0).data(Qt::DecorationRole).value<QIcon>().cacheKey());
    }
    EXPECT_EQ(indents, (QList<int>{0, 8, 16}));
    EXPECT_EQ(icons[0], icons[1]);
    EXPECT_NE(icons[1], icons[2]);
}

TEST_F(DirectoryViews, show_the_old_drive_again_after_an_error)
{
    machine.files.removeDrive(u'D');
    drives()->setCurrentIndex(1);
    Q_EMIT drives()->activated(1);
    EXPECT_EQ(messages(), QStringList{u"There was a drive problem.\nError was: Device unavailable"_s});
    EXPECT_EQ(drives()->currentText(), u"c: [data]"_s);
}
