#include "printing.h"
#include "view_fixture.h"
#include "views/file_list_view.h"

#include <QApplication>
#include <QKeyEvent>
#include <QScrollBar>
#include <QTest>

using namespace Qt::StringLiterals;
using support::waitUntil;

namespace {

bool isAboutToClick(const QListView *view)
{
    return qobject_cast<const views::FileListView *>(view)->isAboutToClick();
}

} // namespace

class FileListViews : public support::ViewFixture
{
protected:
    void SetUp() override
    {
        for (const char *name : {"a.dg", "b.dg", "c.dg", "d.dg"})
            addFile(u"C:\\DATA\\"_s + QLatin1String(name), QByteArray("title of ") + name + '\n');
        addData({"x.km", "y.km", "one.plt", "two.cfb", "three.cfb"});
        addFile(u"C:\\KINOVRA\\graphs\\STICK.GRA"_s);
        show();
        count(frm.filDatafiles, datafileClicks);
        count(frm.filBinaries, binaryClicks);
        count(frm.filOutputs, outputClicks);
    }

    void count(controls::FileList &list, int &clicks)
    {
        const controls::Event event = list.Click;
        list.Click = [event, &clicks] {
            ++clicks;
            if (event)
                event();
        };
    }

    QListView *datafiles() const { return list(u"Data files"_s); }

    int datafileClicks = 0;
    int binaryClicks = 0;
    int outputClicks = 0;
};

TEST_F(FileListViews, show_the_names)
{
    const auto *model = datafiles()->model();
    ASSERT_EQ(model->rowCount(), 4);
    EXPECT_EQ(model->index(0, 0).data().toString(), u"a.dg"_s);
    EXPECT_EQ(model->index(3, 0).data().toString(), u"d.dg"_s);
}

TEST_F(FileListViews, show_names_that_would_disguise_themselves)
{
    addFile(u"C:\\DATA\\e\u202Egd.exe.dg"_s);
    click(frm.cmdRefresh);
    EXPECT_EQ(datafiles()->model()->index(4, 0).data().toString(), u"e\uFFFDgd.exe.dg"_s);
}

TEST_F(FileListViews, click_on_a_row_even_where_it_is_selected)
{
    clickRow(datafiles(), 2);
    EXPECT_EQ(datafileClicks, 1);
    EXPECT_EQ(kinovra.CurrentTrial, u"c"_s);
    clickRow(datafiles(), 2);
    EXPECT_EQ(datafileClicks, 2);
    EXPECT_EQ(datafiles()->currentIndex().row(), 2);
}

TEST_F(FileListViews, do_not_click_before_the_button_is_released)
{
    QTest::mousePress(datafiles()->viewport(), Qt::LeftButton, Qt::NoModifier, middleOf(datafiles(), 1));
    EXPECT_EQ(datafileClicks, 0);
    EXPECT_EQ(frm.filDatafiles.ListIndex.value(), 1);
    QTest::mouseRelease(datafiles()->viewport(), Qt::LeftButton, Qt::NoModifier, middleOf(datafiles(), 3));
    EXPECT_EQ(datafileClicks, 1);
    EXPECT_EQ(kinovra.CurrentTrial, u"b"_s);
}

TEST_F(FileListViews, do_not_click_on_the_blank_area_of_a_filled_list)
{
    clickRow(datafiles(), 1);
    const QPoint blank(10, datafiles()->viewport()->height() - 3);
    QTest::mouseClick(datafiles()->viewport(), Qt::LeftButton, Qt::NoModifier, blank);
    EXPECT_EQ(datafileClicks, 1);
    EXPECT_EQ(frm.filDatafiles.ListIndex.value(), 1);
}

TEST_F(FileListViews, of_binaries_only_clear_their_selection_on_the_blank_area)
{
    QListView *binaries = list(u"Binary files"_s);
    clickRow(binaries, 1);
    EXPECT_EQ(kinovra.BinaryFile, u"y.km"_s);
    const QPoint blank(10, binaries->viewport()->height() - 3);
    QTest::mouseClick(binaries->viewport(), Qt::LeftButton, Qt::NoModifier, blank);
    EXPECT_EQ(binaryClicks, 1);
    EXPECT_EQ(frm.filBinaries.ListIndex.value(), -1);
    EXPECT_FALSE(binaries->selectionModel()->hasSelection());
    EXPECT_EQ(kinovra.BinaryFile, u"y.km"_s);
}

TEST_F(FileListViews, that_are_empty_click_anywhere_once_a_press)
{
    QListView *outputs = list(u"Output files"_s);
    QTest::mouseClick(outputs->viewport(), Qt::LeftButton, Qt::NoModifier, QPoint(20, 20));
    EXPECT_EQ(outputClicks, 1);
    doubleClickAt(outputs->viewport(), QPoint(20, 20));
    EXPECT_EQ(messages(), QStringList{u"No output files in this directory."_s});
}

TEST_F(FileListViews, ignore_the_right_button)
{
    QTest::mouseClick(datafiles()->viewport(), Qt::RightButton, Qt::NoModifier, middleOf(datafiles(), 1));
    EXPECT_EQ(datafileClicks, 0);
    EXPECT_EQ(frm.filDatafiles.ListIndex.value(), -1);
}

TEST_F(FileListViews, click_and_double_click)
{
    QListView *plots = list(u"Graphs (.PLT)"_s);
    clickRow(plots, 0);
    EXPECT_EQ(frm.SelectedPlot, u"one.plt"_s);
    EXPECT_TRUE(machine.programs.started.empty());
    doubleClickAt(plots->viewport(), middleOf(plots, 0));
    ASSERT_EQ(machine.programs.started.size(), 1U);
    EXPECT_EQ(machine.programs.started[0].text(), u"C:\\KINOVRA\\grafow.exe /1 one.plt"_s);
}

TEST_F(FileListViews, take_enter_for_a_double_click)
{
    QListView *plots = list(u"Graphs (.PLT)"_s);
    plots->setFocus(Qt::TabFocusReason);
    QTest::keyClick(plots, Qt::Key_Down);
    QTest::keyClick(plots, Qt::Key_Return);
    EXPECT_EQ(frm.SelectedPlot, u"one.plt"_s);
    EXPECT_EQ(machine.programs.started.size(), 1U);
    QTest::keyClick(plots, Qt::Key_Enter);
    EXPECT_EQ(machine.programs.started.size(), 2U);
}

TEST_F(FileListViews, click_once_where_the_arrow_keys_come_to_rest)
{
    datafiles()->setFocus(Qt::TabFocusReason);
    QTest::keyClick(datafiles(), Qt::Key_Down);
    EXPECT_EQ(frm.filDatafiles.ListIndex.value(), 0);
    QTest::keyClick(datafiles(), Qt::Key_Down);
    QTest::keyClick(datafiles(), Qt::Key_Down);
    EXPECT_EQ(frm.filDatafiles.ListIndex.value(), 2);
    EXPECT_EQ(datafileClicks, 0);
    EXPECT_TRUE(waitUntil([this] { return datafileClicks > 0; }));
    EXPECT_EQ(kinovra.CurrentTrial, u"c"_s);
    EXPECT_EQ(datafileClicks, 1);
}

TEST_F(FileListViews, do_not_click_while_an_arrow_key_is_held)
{
    datafiles()->setFocus(Qt::TabFocusReason);
    QTest::keyPress(datafiles(), Qt::Key_Down);
    EXPECT_FALSE(isAboutToClick(datafiles()));
    EXPECT_EQ(datafileClicks, 0);
    QTest::keyRelease(datafiles(), Qt::Key_Down);
    EXPECT_TRUE(waitUntil([this] { return datafileClicks == 1; }));
    EXPECT_EQ(kinovra.CurrentTrial, u"a"_s);
}

TEST_F(FileListViews, click_where_they_are_left_with_an_arrow_key_still_down)
{
    datafiles()->setFocus(Qt::TabFocusReason);
    QTest::keyPress(datafiles(), Qt::Key_Down);
    button(u"Exit"_s)->setFocus(Qt::TabFocusReason);
    EXPECT_TRUE(waitUntil([this] { return datafileClicks == 1; }));
    EXPECT_EQ(kinovra.CurrentTrial, u"a"_s);
}

TEST_F(FileListViews, click_before_anything_else_happens)
{
    datafiles()->setFocus(Qt::TabFocusReason);
    QTest::keyClick(datafiles(), Qt::Key_Down);
    QTest::mouseClick(button(u"Skelvo"_s), Qt::LeftButton);
    EXPECT_EQ(datafileClicks, 1);
    ASSERT_EQ(machine.programs.started.size(), 1U);
    EXPECT_EQ(machine.programs.started[0].text(), u"C:\\KINOVRA\\skelvo98.exe a.dg"_s);
}

TEST_F(FileListViews, find_names_by_typing)
{
    datafiles()->setFocus(Qt::TabFocusReason);
    QTest::keyClicks(datafiles(), u"c"_s);
    EXPECT_TRUE(waitUntil([this] { return datafileClicks == 1; }));
    EXPECT_EQ(kinovra.CurrentTrial, u"c"_s);
}

TEST_F(FileListViews, wait_with_the_click_for_the_rest_of_a_name_that_is_typed)
{
    ASSERT_TRUE(frm.KeyPreview);
    const int usual = QApplication::keyboardInputInterval();
    QApplication::setKeyboardInputInterval(1'000);
    datafiles()->setFocus(Qt::TabFocusReason);
    QTest::keyClick(window().windowHandle(), Qt::Key_C);
    EXPECT_EQ(frm.filDatafiles.ListIndex.value(), 2);
    QTest::qWait(400);
    EXPECT_EQ(datafileClicks, 0);
    QTest::keyClick(window().windowHandle(), Qt::Key_Period);
    EXPECT_TRUE(waitUntil([this] { return datafileClicks == 1; }));
    EXPECT_EQ(kinovra.CurrentTrial, u"c"_s);
    QApplication::setKeyboardInputInterval(usual);
}

TEST_F(FileListViews, wait_with_the_click_for_a_name_that_is_typed_in_capitals)
{
    ASSERT_TRUE(frm.KeyPreview);
    datafiles()->setFocus(Qt::TabFocusReason);
    QTest::keyClick(window().windowHandle(), Qt::Key_C, Qt::ShiftModifier);
    EXPECT_EQ(frm.filDatafiles.ListIndex.value(), 2);
    EXPECT_EQ(datafileClicks, 0);
    EXPECT_TRUE(waitUntil([this] { return datafileClicks == 1; }));
}

TEST_F(FileListViews, do_not_wait_for_a_name_after_an_arrow_key)
{
    const int usual = QApplication::keyboardInputInterval();
    QApplication::setKeyboardInputInterval(1'000'000);
    datafiles()->setFocus(Qt::TabFocusReason);
    QTest::keyClick(datafiles(), Qt::Key_C);
    QTest::keyClick(datafiles(), Qt::Key_Down);
    EXPECT_TRUE(waitUntil([this] { return datafileClicks == 1; }));
    EXPECT_EQ(kinovra.CurrentTrial, u"d"_s);
    QApplication::setKeyboardInputInterval(usual);
}

TEST_F(FileListViews, click_before_a_key_of_the_window_acts)
{
    ASSERT_TRUE(frm.KeyPreview);
    datafiles()->setFocus(Qt::TabFocusReason);
    QTest::keyClick(datafiles(), Qt::Key_Down);
    QTest::keyClick(window().windowHandle(), Qt::Key_R, Qt::ControlModifier);
    EXPECT_EQ(datafileClicks, 1);
    QTest::keyClick(datafiles(), Qt::Key_Down);
    QTest::keyClick(window().windowHandle(), Qt::Key_F1);
    EXPECT_EQ(datafileClicks, 2);
}

TEST_F(FileListViews, are_clicked_once_by_an_arrow_key_and_enter)
{
    datafiles()->setFocus(Qt::TabFocusReason);
    QTest::keyClick(datafiles(), Qt::Key_Down);
    QTest::keyClick(datafiles(), Qt::Key_Return);
    EXPECT_EQ(datafileClicks, 1);
    EXPECT_FALSE(isAboutToClick(datafiles()));
}

TEST_F(FileListViews, that_are_empty_are_not_clicked_by_enter)
{
    QListView *outputs = list(u"Output files"_s);
    outputs->setFocus(Qt::TabFocusReason);
    QTest::keyClick(outputs, Qt::Key_Return);
    EXPECT_EQ(outputClicks, 0);
}

TEST_F(FileListViews, choose_by_enter_what_is_framed)
{
    EXPECT_EQ(frm.filDatafiles.ListIndex.value(), -1);
    datafiles()->setFocus(Qt::TabFocusReason);
    QTest::keyClick(datafiles(), Qt::Key_Return);
    EXPECT_EQ(kinovra.CurrentTrial, u"a"_s);
    EXPECT_EQ(datafileClicks, 1);

    QListView *plots = list(u"Graphs (.PLT)"_s);
    plots->setFocus(Qt::TabFocusReason);
    QTest::keyClick(plots, Qt::Key_Return);
    EXPECT_EQ(frm.SelectedPlot, u"one.plt"_s);
    EXPECT_EQ(machine.programs.started.size(), 1U);
}

TEST_F(FileListViews, choose_by_enter_again_what_was_left_meanwhile)
{
    datafiles()->setFocus(Qt::TabFocusReason);
    QTest::keyClick(datafiles(), Qt::Key_Down);
    EXPECT_TRUE(waitUntil([this] { return datafileClicks == 1; }));
    QTest::keyClick(datafiles(), Qt::Key_Return);
    EXPECT_EQ(datafileClicks, 1) << "it is chosen";
    kinovra.CurrentTrial = u"new"_s;
    button(u"Exit"_s)->setFocus(Qt::TabFocusReason);
    datafiles()->setFocus(Qt::BacktabFocusReason);
    QTest::keyClick(datafiles(), Qt::Key_Return);
    EXPECT_EQ(kinovra.CurrentTrial, u"a"_s);
}

TEST_F(FileListViews, choose_nothing_by_getting_the_focus)
{
    for (auto reason : {Qt::TabFocusReason, Qt::BacktabFocusReason, Qt::OtherFocusReason}) {
        button(u"Exit"_s)->setFocus();
        datafiles()->setFocus(reason);
        settle();
        EXPECT_EQ(frm.filDatafiles.ListIndex.value(), -1);
        EXPECT_FALSE(datafiles()->selectionModel()->hasSelection());
    }
    EXPECT_EQ(datafileClicks, 0);
}

TEST_F(FileListViews, refresh_on_getting_the_focus)
{
    addData({"w.km"});
    QListView *binaries = list(u"Binary files"_s);
    binaries->setFocus(Qt::TabFocusReason);
    EXPECT_EQ(binaries->model()->rowCount(), 3);
    EXPECT_EQ(binaryClicks, 0);
}

TEST_F(FileListViews, keep_the_row_that_is_aimed_at_through_the_refresh_of_the_focus)
{
    QListView *binaries = list(u"Binary files"_s);
    const QPoint onFirst = middleOf(binaries, 0);
    addData({"a.km", "b.km"});
    QTest::mouseClick(binaries->viewport(), Qt::LeftButton, Qt::NoModifier, onFirst);
    EXPECT_EQ(binaries->model()->rowCount(), 4);
    EXPECT_EQ(kinovra.BinaryFile, u"x.km"_s);
    EXPECT_EQ(binaryClicks, 1);
}

TEST_F(FileListViews, open_what_was_aimed_at_through_the_refresh_of_the_focus)
{
    addData({"x.plt", "y.plt"});
    click(frm.cmdRefresh);
    addFile(u"C:\\KINOVRA\\grafow.exe"_s);
    QListView *plots = list(u"Graphs (.PLT)"_s);
    QString opened;
    frm.filPlots.DblClick = [&] { opened = frm.filPlots.FileName(); };
    const QPoint onSecond = middleOf(plots, 1);
    addData({"a.plt", "b.plt"});
    doubleClickAt(plots->viewport(), onSecond);
    EXPECT_EQ(opened, u"x.plt"_s);
}

TEST_F(FileListViews, keep_the_row_that_is_aimed_at_where_it_is)
{
    for (int i = 0; i < 40; ++i)
        addFile(u"C:\\DATA\\p%1.plt"_s.arg(i, 2, 10, QChar(u'0')));
    click(frm.cmdRefresh);
    QListView *plots = list(u"Graphs (.PLT)"_s);
    plots->scrollTo(plots->model()->index(30, 0), QAbstractItemView::PositionAtTop);
    const QPoint position = middleOf(plots, 32);
    addData({"a.plt", "b.plt"});
    QTest::mouseClick(plots->viewport(), Qt::LeftButton, Qt::NoModifier, position);
    EXPECT_EQ(plots->indexAt(position).data().toString(), frm.filPlots.FileName());
}

TEST_F(FileListViews, can_be_entered_by_any_key_that_leads_to_a_row)
{
    for (Qt::Key key : {Qt::Key_Home, Qt::Key_PageUp, Qt::Key_A, Qt::Key_Down, Qt::Key_Up}) {
        frm.filDatafiles.ListIndex = -1;
        datafileClicks = 0;
        kinovra.CurrentTrial.clear();
        button(u"Exit"_s)->setFocus(Qt::TabFocusReason);
        datafiles()->setFocus(Qt::TabFocusReason);
        QTest::keyClick(datafiles(), key);
        EXPECT_EQ(frm.filDatafiles.ListIndex.value(), 0) << key;
        EXPECT_TRUE(waitUntil([this] { return datafileClicks == 1; })) << key;
        EXPECT_EQ(kinovra.CurrentTrial, u"a"_s) << key;
    }
}

TEST_F(FileListViews, are_not_entered_by_other_keys)
{
    datafiles()->setFocus(Qt::TabFocusReason);
    for (Qt::Key key : {Qt::Key_Shift, Qt::Key_Control, Qt::Key_F5, Qt::Key_Z})
        QTest::keyClick(datafiles(), key);
    EXPECT_EQ(frm.filDatafiles.ListIndex.value(), -1);
    EXPECT_FALSE(isAboutToClick(datafiles()));
}

TEST_F(FileListViews, are_clicked_once_by_an_arrow_key_and_space)
{
    datafiles()->setFocus(Qt::TabFocusReason);
    QTest::keyClick(datafiles(), Qt::Key_Down);
    QTest::keyClick(datafiles(), Qt::Key_Space);
    EXPECT_EQ(datafileClicks, 1);
    EXPECT_FALSE(isAboutToClick(datafiles()));
    QTest::keyClick(datafiles(), Qt::Key_Space);
    EXPECT_EQ(datafileClicks, 2);
}

TEST_F(FileListViews, act_once_while_enter_or_space_is_held_down)
{
    int opened = 0;
    frm.filDatafiles.DblClick = [&opened] { ++opened; };
    clickRow(datafiles(), 1);
    for (int key : {Qt::Key_Return, Qt::Key_Space}) {
        for (bool repeats : {false, true, true}) {
            QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier, QString(), repeats);
            QApplication::sendEvent(datafiles(), &press);
        }
    }
    EXPECT_EQ(opened, 1);
    EXPECT_EQ(datafileClicks, 2);
}

TEST_F(FileListViews, do_not_refresh_when_the_focus_comes_back_with_their_window)
{
    QListView *binaries = list(u"Binary files"_s);
    binaries->setFocus(Qt::TabFocusReason);
    addData({"new.km"});
    QFocusEvent out(QEvent::FocusOut, Qt::ActiveWindowFocusReason);
    QFocusEvent in(QEvent::FocusIn, Qt::ActiveWindowFocusReason);
    QApplication::sendEvent(binaries, &out);
    QApplication::sendEvent(binaries, &in);
    EXPECT_EQ(binaries->model()->rowCount(), 2);
    QFocusEvent byTab(QEvent::FocusIn, Qt::TabFocusReason);
    QApplication::sendEvent(binaries, &byTab);
    EXPECT_EQ(binaries->model()->rowCount(), 3);
}

TEST_F(FileListViews, do_not_click_on_what_was_not_there_when_it_was_aimed_at)
{
    machine.files.remove(u"C:\\DATA\\x.km"_s);
    machine.files.remove(u"C:\\DATA\\y.km"_s);
    click(frm.cmdRefresh);
    addData({"new.km"});
    QListView *binaries = list(u"Binary files"_s);
    QTest::mouseClick(binaries->viewport(), Qt::LeftButton, Qt::NoModifier, QPoint(20, 10));
    EXPECT_EQ(binaries->model()->rowCount(), 1);
    EXPECT_EQ(binaryClicks, 0);
    EXPECT_TRUE(messages().isEmpty());
}

TEST_F(FileListViews, keep_selection_and_place_through_a_refresh)
{
    for (int i = 0; i < 100; ++i)
        addFile(u"C:\\DATA\\trial%1.dg"_s.arg(i, 3, 10, QChar(u'0')));
    click(frm.cmdRefresh);
    settle();
    datafiles()->verticalScrollBar()->setValue(datafiles()->verticalScrollBar()->maximum() / 2);
    const QModelIndex middle = datafiles()->indexAt(QPoint(10, 30));
    QTest::mouseClick(datafiles()->viewport(), Qt::LeftButton, Qt::NoModifier, QPoint(10, 30));
    const int place = datafiles()->verticalScrollBar()->value();
    click(frm.cmdRefresh);
    settle();
    EXPECT_EQ(datafiles()->verticalScrollBar()->value(), place);
    EXPECT_EQ(datafiles()->currentIndex().row(), middle.row());
    EXPECT_TRUE(datafiles()->selectionModel()->isSelected(datafiles()->currentIndex()));
    EXPECT_EQ(datafileClicks, 1);
}

TEST_F(FileListViews, keep_the_rows_in_sight_where_they_are_when_names_come_above)
{
    for (int i = 0; i < 40; ++i)
        addFile(u"C:\\DATA\\p%1.plt"_s.arg(i, 2, 10, QChar(u'0')));
    click(frm.cmdRefresh);
    QListView *plots = list(u"Graphs (.PLT)"_s);
    plots->scrollTo(plots->model()->index(20, 0), QAbstractItemView::PositionAtTop);
    const QPoint position = middleOf(plots, 22);
    QTest::mouseClick(plots->viewport(), Qt::LeftButton, Qt::NoModifier, position);
    EXPECT_EQ(plots->indexAt(position).data().toString(), u"p21.plt"_s);
    addData({"b.plt", "c.plt", "d.plt"});
    click(frm.cmdRefresh);
    settle();
    EXPECT_EQ(plots->indexAt(position).data().toString(), u"p21.plt"_s);
    EXPECT_EQ(frm.filPlots.FileName(), u"p21.plt"_s);
}

TEST_F(FileListViews, stay_at_their_first_row_and_where_the_uppermost_name_is_gone)
{
    for (int i = 0; i < 40; ++i)
        addFile(u"C:\\DATA\\p%1.plt"_s.arg(i, 2, 10, QChar(u'0')));
    click(frm.cmdRefresh);
    QListView *plots = list(u"Graphs (.PLT)"_s);
    addData({"b.plt"});
    click(frm.cmdRefresh);
    settle();
    EXPECT_EQ(plots->verticalScrollBar()->value(), 0);
    plots->scrollTo(plots->model()->index(20, 0), QAbstractItemView::PositionAtTop);
    machine.files.remove(u"C:\\DATA\\p18.plt"_s);
    click(frm.cmdRefresh);
    settle();
    EXPECT_EQ(plots->verticalScrollBar()->value(), 20);
}

TEST_F(FileListViews, show_what_is_selected_without_the_focus_too)
{
    QListView *binaries = list(u"Binary files"_s);
    clickRow(binaries, 0);
    button(u"Exit"_s)->setFocus(Qt::TabFocusReason);
    const auto rowColour = [&](const QColor &selection) {
        QPalette palette = binaries->palette();
        palette.setColor(QPalette::Base, Qt::white);
        palette.setColor(QPalette::Highlight, selection);
        binaries->setPalette(palette);
        const QPoint blank(binaries->viewport()->width() - 4, middleOf(binaries, 0).y());
        return binaries->viewport()->grab().toImage().pixelColor(blank);
    };
    EXPECT_EQ(rowColour(QColor(0x30, 0x90, 0xF0)), QColor(0xBA, 0xDA, 0xFA));
    // A desktop may have a pale one.
    EXPECT_EQ(rowColour(QColor(0xD8, 0xD8, 0xD8)), QColor(0xD8, 0xD8, 0xD8));
}

TEST_F(FileListViews, follow_what_commands_select)
{
    frm.filDatafiles.ListIndex = 3;
    EXPECT_EQ(datafiles()->currentIndex().row(), 3);
    frm.filDatafiles.ListIndex = -1;
    EXPECT_FALSE(datafiles()->selectionModel()->hasSelection());
    EXPECT_EQ(datafileClicks, 0);
    frm.filDatafiles.Visible = false;
    EXPECT_FALSE(datafiles()->isVisible());
}

class GraphTypes : public support::ViewFixture
{
protected:
    void SetUp() override
    {
        addFile(u"C:\\KINOVRA\\graphs\\STICK.GRA"_s);
        addFile(u"C:\\KINOVRA\\graphs\\ANGLES.GRA"_s);
        show();
        select()->setFocus(Qt::TabFocusReason);
        QTest::keyClick(select(), Qt::Key_Space);
        settle();
    }

    QPushButton *select() const { return button(u"Select Type of  Graph"_s); }
    QListView *types() const { return list(u"Graph Types (.GRA)"_s); }
};

TEST_F(GraphTypes, take_the_place_and_the_focus_of_the_buttons)
{
    EXPECT_TRUE(types()->isVisible());
    EXPECT_FALSE(select()->isVisible());
    EXPECT_TRUE(types()->hasFocus());
}

TEST_F(GraphTypes, are_only_highlighted_by_arrow_keys)
{
    QTest::keyClick(types(), Qt::Key_Down);
    QTest::keyClick(types(), Qt::Key_Down);
    EXPECT_FALSE(isAboutToClick(types()));
    EXPECT_TRUE(types()->isVisible());
    EXPECT_EQ(frm.CurrentGRA, u"RUN.GRA"_s);
}

TEST_F(GraphTypes, are_found_by_typing_and_chosen_by_enter)
{
    QTest::keyClick(types(), Qt::Key_A);
    QTest::keyClick(types(), Qt::Key_Return);
    settle();
    EXPECT_EQ(frm.CurrentGRA, u"ANGLES.GRA"_s);
}

TEST_F(GraphTypes, are_chosen_by_enter_where_one_is_only_framed)
{
    QTest::keyClick(types(), Qt::Key_Return);
    settle();
    EXPECT_EQ(frm.CurrentGRA, u"ANGLES.GRA"_s);
}

TEST_F(GraphTypes, are_chosen_by_enter)
{
    QTest::keyClick(types(), Qt::Key_Down);
    QTest::keyClick(types(), Qt::Key_Return);
    settle();
    EXPECT_EQ(frm.CurrentGRA, u"ANGLES.GRA"_s);
    EXPECT_FALSE(types()->isVisible());
    EXPECT_TRUE(select()->isVisible());
    EXPECT_TRUE(select()->hasFocus());
}

TEST_F(GraphTypes, are_chosen_by_a_click)
{
    clickRow(types(), 2);
    settle();
    EXPECT_EQ(frm.CurrentGRA, u"STICK.GRA"_s);
    EXPECT_FALSE(types()->isVisible());
}

TEST_F(GraphTypes, are_cancelled_by_esc)
{
    QTest::keyClick(types(), Qt::Key_Down);
    QTest::keyClick(types(), Qt::Key_Escape);
    settle();
    EXPECT_EQ(frm.CurrentGRA, u"RUN.GRA"_s);
    EXPECT_FALSE(types()->isVisible());
    EXPECT_TRUE(select()->hasFocus());
}

TEST_F(GraphTypes, are_cancelled_by_the_right_button)
{
    QTest::mouseClick(types()->viewport(), Qt::RightButton, Qt::NoModifier, middleOf(types(), 2));
    settle();
    EXPECT_EQ(frm.CurrentGRA, u"RUN.GRA"_s);
    EXPECT_FALSE(types()->isVisible());
    EXPECT_TRUE(button(u"Create Graph(s)"_s)->isVisible());
}
