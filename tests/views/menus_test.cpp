#include "menu_fixture.h"
#include "printing.h"
#include "shell/menu_tree.h"
#include "views/menus.h"

#include <QMenu>
#include <QMenuBar>
#include <QSignalSpy>
#include <QStatusBar>
#include <QTest>
#include <QTimer>

using namespace Qt::StringLiterals;
using support::waitUntil;

class MenuViews : public support::MenuFixture
{
protected:
    static QAction *action(const QMenu *menu, const QString &caption)
    {
        const auto actions = menu->actions();
        for (QAction *candidate : actions) {
            if (candidate->text() == caption)
                return candidate;
        }
        return nullptr;
    }

    // Every entry of a menu, a line each, as deep as it lies. A menu is filled when it is about to open.
    static void render(const QList<QAction *> &actions, int depth, QStringList &lines)
    {
        for (const QAction *entry : actions) {
            lines.append(QString(depth, u' ') + (entry->isSeparator() ? u"-"_s : entry->text()));
            if (!entry->menu())
                continue;
            entry->menu()->aboutToShow();
            render(entry->menu()->actions(), depth + 1, lines);
        }
    }

    QStringList renderedTree() const
    {
        QStringList lines;
        render(bar()->actions(), 0, lines);
        return lines;
    }
};

TEST_F(MenuViews, render_the_whole_tree)
{
    QStringList expected;
    for (const shell::MenuRow &row : shell::menuTree())
        expected.append(QString(row.depth, u' ') + (row.isSeparator() ? u"-"_s : row.caption));
    EXPECT_EQ(renderedTree(), expected);
    EXPECT_EQ(renderedTree(), expected) << "opened again";
}

TEST_F(MenuViews, show_what_was_set_before_they_were_first_opened)
{
    frm.mnuProg[4].Visible = false;
    renderedTree();
    EXPECT_FALSE(action(menu(u"&Programs"_s), u"&Momentum"_s)->isVisible());
    EXPECT_TRUE(action(menu(u"&Settings  "_s), u"Prompt to View Output"_s)->isChecked());
}

TEST_F(MenuViews, follow_the_items)
{
    renderedTree();
    QAction *kinematics = action(menu(u"&Programs"_s), u"&Kinematics"_s);
    frm.mnuProg[3].Enabled = false;
    EXPECT_FALSE(kinematics->isEnabled());
    frm.mnuProg[3].Enabled = true;
    EXPECT_TRUE(kinematics->isEnabled());
    frm.mnuProg[3].Checked = true;
    EXPECT_TRUE(kinematics->isChecked());
    frm.mnuProg[3].Checked = false;
    EXPECT_FALSE(kinematics->isChecked());
    frm.mnuProg[3].Visible = false;
    EXPECT_FALSE(kinematics->isVisible());
}

TEST_F(MenuViews, say_why_an_item_is_greyed)
{
    renderedTree();
    QMenu *programs = menu(u"&Programs"_s);
    QAction *kinematics = action(programs, u"&Kinematics"_s);
    EXPECT_TRUE(programs->toolTipsVisible());
    frm.mnuProg[3].enableUnless(u"Needs <WALK1>.CN"_s);
    EXPECT_EQ(kinematics->statusTip(), u"Needs <WALK1>.CN"_s);
    EXPECT_EQ(kinematics->toolTip(), u"<span>Needs &lt;WALK1&gt;.CN</span>"_s);
    frm.mnuProg[3].enableUnless(u"Needs e\u202Egd.CN"_s);
    EXPECT_EQ(kinematics->statusTip(), u"Needs e\uFFFDgd.CN"_s);
    frm.mnuProg[3].enableUnless(QString());
    EXPECT_TRUE(kinematics->isEnabled());
    EXPECT_EQ(kinematics->statusTip(), QString());
    EXPECT_EQ(kinematics->toolTip(), u"Kinematics"_s) << "Qt's word for none";
}

TEST_F(MenuViews, say_it_in_the_status_bar_while_the_item_is_pointed_at)
{
    frm.StatusBar1.Panel1 = u"Kinemati.out is ready."_s;
    openFromBar(u"&Data"_s);
    QMenu *data = menu(u"&Data"_s);
    QAction *scale = action(data, u"&Scale/Refine data (Refila)"_s);
    ASSERT_FALSE(scale->isEnabled());
    QTest::keyClick(data, Qt::Key_Down);
    QTest::keyClick(data, Qt::Key_Down);
    EXPECT_EQ(data->activeAction(), scale);
    settle();
    EXPECT_EQ(window().statusBar()->currentMessage(),
              u"Needs a current trial: click on a data file or a model first"_s);
    QTest::keyClick(data, Qt::Key_Return);
    EXPECT_TRUE(machine.programs.started.empty());
    data->close();
    settle();
    EXPECT_EQ(window().statusBar()->currentMessage(), QString());
    EXPECT_EQ(frm.StatusBar1.Panel1.value(), u"Kinemati.out is ready."_s);
}

TEST_F(MenuViews, show_which_greyed_item_is_pointed_at)
{
    openFromBar(u"&Data"_s);
    QMenu *data = menu(u"&Data"_s);
    QAction *scale = action(data, u"&Scale/Refine data (Refila)"_s);
    ASSERT_FALSE(scale->isEnabled());
    const auto picture = [&] { return data->grab(data->actionGeometry(scale)).toImage(); };
    const QImage unmarked = picture();
    data->setActiveAction(scale);
    EXPECT_NE(picture(), unmarked);
}

TEST_F(MenuViews, run_the_items)
{
    renderedTree();
    action(menu(u"&User level..."_s), u"Expert"_s)->trigger();
    EXPECT_EQ(kinovra.UserLevel, 1);
}

TEST_F(MenuViews, show_the_commands_marks_and_not_their_own)
{
    renderedTree();
    QAction *novice = action(menu(u"&User level..."_s), u"Novice"_s);
    novice->trigger();
    EXPECT_TRUE(novice->isChecked());
    novice->trigger();
    EXPECT_TRUE(novice->isChecked());
    QAction *kinematics = action(menu(u"&Programs"_s), u"&Kinematics"_s);
    frm.mnuProg[3].Checked = true;
    machine.dialogs.answers = {platform::No};
    kinematics->trigger();
    EXPECT_TRUE(kinematics->isChecked());
}

TEST_F(MenuViews, set_their_states_when_they_open)
{
    click(frm.filDatafiles, u"walk1.dg"_s);
    openFromBar(u"&Programs"_s);
    EXPECT_TRUE(menu(u"&Programs"_s)->isVisible());
    EXPECT_TRUE(frm.mnuProg[3].Enabled);
    EXPECT_FALSE(frm.mnuProg[4].Enabled);
    EXPECT_TRUE(messages().isEmpty());
}

TEST_F(MenuViews, ask_with_all_menus_closed_and_open_again_afterwards)
{
    machine.files.remove(u"C:\\DATA\\walk1.cfb"_s);
    machine.files.remove(u"C:\\DATA\\run1.cfb"_s);
    click(frm.cmdRefresh);
    bool menuOpen = true;
    machine.dialogs.whileShown = [&](const platform::MessageBox &) {
        menuOpen = QApplication::activePopupWidget() != nullptr;
    };
    machine.dialogs.answers = {platform::No};
    openFromBar(u"&Programs"_s);
    EXPECT_TRUE(waitUntil([this] { return messages().size() == 1; }));
    settle();
    EXPECT_FALSE(menuOpen);
    EXPECT_TRUE(menu(u"&Programs"_s)->isVisible());
    EXPECT_EQ(messages().size(), 1);
}

TEST_F(MenuViews, that_share_a_letter_open_the_first_one_each_time)
{
    QListView *datafiles = list(u"Data files"_s);
    datafiles->setFocus();
    for (int i = 0; i < 3; ++i) {
        QTest::keyClick(&window(), Qt::Key_A, Qt::AltModifier);
        settle();
        ASSERT_TRUE(menu(u"&Average ..."_s)->isVisible());
        EXPECT_EQ(menu(u"&Average ..."_s)->activeAction(), menu(u"&Average ..."_s)->actions().front());
        QTest::keyClick(menu(u"&Average ..."_s), Qt::Key_Escape);
        QTest::keyClick(bar(), Qt::Key_Escape);
        settle();
        EXPECT_TRUE(datafiles->hasFocus());
    }
}

TEST_F(MenuViews, that_share_a_letter_open_the_next_one_where_the_keyboard_is_on_the_first)
{
    QListView *datafiles = list(u"Data files"_s);
    datafiles->setFocus();
    QTest::keyClick(&window(), Qt::Key_M, Qt::AltModifier);
    QTest::keyClick(menu(u"&Model"_s), Qt::Key_Escape);
    QTest::keyClick(&window(), Qt::Key_M, Qt::AltModifier);
    settle();
    ASSERT_TRUE(menu(u"&Manuals"_s)->isVisible());
    QTest::keyClick(menu(u"&Manuals"_s), Qt::Key_Escape);
    QTest::keyClick(bar(), Qt::Key_Escape);
    settle();
    EXPECT_TRUE(datafiles->hasFocus());
}

TEST_F(MenuViews, show_which_title_has_the_keyboard)
{
    const QImage unmarked = bar()->grab().toImage();
    QTest::keyClick(&window(), Qt::Key_P, Qt::AltModifier);
    settle();
    QTest::keyClick(menu(u"&Programs"_s), Qt::Key_Escape);
    EXPECT_NE(bar()->grab().toImage(), unmarked);
    QTest::keyClick(bar(), Qt::Key_Escape);
    settle();
    EXPECT_EQ(bar()->grab().toImage(), unmarked);
}

TEST_F(MenuViews, stay_closed_where_there_is_nothing_to_be_chosen_without_a_trial)
{
    bool menuOpen = true;
    machine.dialogs.whileShown = [&](const platform::MessageBox &) {
        menuOpen = QApplication::activePopupWidget() != nullptr;
    };
    openFromBar(u"&Animate"_s);
    EXPECT_TRUE(waitUntil([this] { return messages().size() == 1; }));
    settle();
    EXPECT_FALSE(menuOpen);
    EXPECT_EQ(messages(), QStringList{u"Select a trial from the Data or Model menus first."_s});
    EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
    click(frm.filDatafiles, u"walk1.dg"_s);
    openFromBar(u"&Animate"_s);
    EXPECT_TRUE(menu(u"&Animate"_s)->isVisible());
    EXPECT_TRUE(action(menu(u"&Animate"_s), u"&Digitized data (.DG)"_s)->isEnabled());
    EXPECT_TRUE(action(menu(u"&Animate"_s), u"&Refined data (.CN)"_s)->isEnabled());
    EXPECT_FALSE(action(menu(u"&Animate"_s), u"&Filtered data (.KM)"_s)->isEnabled());
    EXPECT_EQ(messages().size(), 1);
}

TEST_F(MenuViews, offer_nothing_without_a_trial_to_a_user_who_passes_along)
{
    openFromBar(u"&Graph"_s);
    QTest::keyClick(menu(u"&Graph"_s), Qt::Key_Left);
    settle();
    ASSERT_TRUE(menu(u"&Animate"_s)->isVisible());
    EXPECT_FALSE(action(menu(u"&Animate"_s), u"&Digitized data (.DG)"_s)->isEnabled());
    EXPECT_TRUE(messages().isEmpty());
}

TEST_F(MenuViews, grey_out_the_force_commands_in_their_submenu)
{
    click(frm.filDatafiles, u"walk1.dg"_s);
    openFromBar(u"&View"_s);
    QMenu *forces = menu(u"&Forces ..."_s);
    menu(u"&View"_s)->setActiveAction(forces->menuAction());
    ASSERT_TRUE(waitUntil([&] { return forces->isVisible(); }));
    EXPECT_FALSE(action(forces, u"&Histories"_s)->isEnabled());
    window().menuBar()->setActiveAction(nullptr);
    addData({"walk1.rf"});
    openFromBar(u"&View"_s);
    EXPECT_TRUE(action(forces, u"&Histories"_s)->isEnabled());
}

TEST_F(MenuViews, do_not_ask_a_user_who_passes_along)
{
    machine.files.remove(u"C:\\DATA\\walk1.cfb"_s);
    machine.files.remove(u"C:\\DATA\\run1.cfb"_s);
    click(frm.cmdRefresh);
    openFromBar(u"&Model"_s);
    ASSERT_TRUE(menu(u"&Model"_s)->isVisible());
    QTest::keyClick(menu(u"&Model"_s), Qt::Key_Right);
    settle();
    EXPECT_TRUE(menu(u"&Programs"_s)->isVisible());
    EXPECT_TRUE(messages().isEmpty());
}

// A submenu under a pointer on its way to another item.
TEST_F(MenuViews, ask_for_a_submenu_only_where_the_user_rests_on_it)
{
    click(frm.filDatafiles, u"walk1.dg"_s);
    bool menuOpen = true;
    machine.dialogs.whileShown = [&](const platform::MessageBox &) {
        menuOpen = QApplication::activePopupWidget() != nullptr;
    };
    list(u"Models (.CFB)"_s)->setFocus(Qt::TabFocusReason);
    QTest::keyClick(list(u"Models (.CFB)"_s), Qt::Key_D, Qt::AltModifier);
    QMenu *data = menu(u"&Data"_s);
    ASSERT_TRUE(waitUntil([&] { return data->isVisible(); }));
    data->setActiveAction(menu(u"&Convert data ..."_s)->menuAction());
    QMenu *convert = menu(u"&Convert data ..."_s);
    ASSERT_TRUE(waitUntil([&] { return convert->isVisible(); }));
    QMenu *ariel = menu(u"&Ariel Dynamics ..."_s);
    auto *rest = window().findChild<QTimer *>(u"rest"_s);
    QSignalSpy rested(rest, &QTimer::timeout);
    rest->setInterval(1'000'000);

    convert->setActiveAction(ariel->menuAction());
    ASSERT_TRUE(waitUntil([&] { return ariel->isVisible() && rest->isActive(); }));
    convert->setActiveAction(action(convert, u"&Peak Performance"_s));
    rest->start(1);
    ASSERT_TRUE(waitUntil([&] { return rested.count() > 1; })) << "as long as it is shown it may be meant";
    settle();
    EXPECT_TRUE(messages().isEmpty());
    EXPECT_TRUE(convert->isVisible());

    convert->setActiveAction(ariel->menuAction());
    ASSERT_TRUE(waitUntil([this] { return messages().size() == 1; }));
    settle();
    EXPECT_EQ(messages(), QStringList{u"Select an APAS file (.1T/.3D) from Data menu first."_s});
    EXPECT_FALSE(menuOpen);
    EXPECT_EQ(QApplication::activePopupWidget(), nullptr) << "nor does it open again";
    EXPECT_EQ(QApplication::focusWidget(), list(u"Models (.CFB)"_s));
}

TEST_F(MenuViews, do_not_ask_for_a_submenu_that_has_been_closed_again)
{
    click(frm.filDatafiles, u"walk1.dg"_s);
    openFromBar(u"&Data"_s);
    QMenu *convert = menu(u"&Convert data ..."_s);
    menu(u"&Data"_s)->setActiveAction(convert->menuAction());
    ASSERT_TRUE(waitUntil([&] { return convert->isVisible(); }));
    QMenu *ariel = menu(u"&Ariel Dynamics ..."_s);
    auto *rest = window().findChild<QTimer *>(u"rest"_s);
    rest->setInterval(1'000'000);
    convert->setActiveAction(ariel->menuAction());
    ASSERT_TRUE(waitUntil([&] { return ariel->isVisible() && rest->isActive(); }));
    QTest::keyClick(ariel, Qt::Key_Left);
    ASSERT_TRUE(waitUntil([&] { return !ariel->isVisible(); }));
    ASSERT_EQ(convert->activeAction(), ariel->menuAction());
    rest->start(1);
    ASSERT_TRUE(waitUntil([&] { return !rest->isActive(); }));
    settle();
    EXPECT_TRUE(messages().isEmpty());
}

TEST_F(MenuViews, open_a_submenu_at_once_where_it_asks_nothing)
{
    addData({"walk1.3d"});
    click(frm.filDatafiles, u"walk1.dg"_s);
    openFromBar(u"&Data"_s);
    QMenu *convert = menu(u"&Convert data ..."_s);
    menu(u"&Data"_s)->setActiveAction(convert->menuAction());
    ASSERT_TRUE(waitUntil([&] { return convert->isVisible(); }));
    QMenu *ariel = menu(u"&Ariel Dynamics ..."_s);
    convert->setActiveAction(ariel->menuAction());
    ASSERT_TRUE(waitUntil([&] { return ariel->isVisible(); }));
    EXPECT_FALSE(window().findChild<QTimer *>(u"rest"_s)->isActive());
    EXPECT_TRUE(action(ariel, u"3&D"_s)->isEnabled());
    EXPECT_FALSE(action(ariel, u"&1T"_s)->isEnabled());
    EXPECT_TRUE(messages().isEmpty());
}

TEST_F(MenuViews, run_a_held_back_click_before_they_open)
{
    QListView *datafiles = list(u"Data files"_s);
    datafiles->setFocus(Qt::TabFocusReason);
    QTest::keyClick(datafiles, Qt::Key_Down);
    EXPECT_EQ(kinovra.CurrentTrial, QString());
    openFromBar(u"&Programs"_s);
    EXPECT_EQ(kinovra.CurrentTrial, u"walk1"_s);
    EXPECT_TRUE(frm.mnuProg[3].Enabled);
}

TEST_F(MenuViews, are_closed_before_a_box_is_shown)
{
    openFromBar(u"&Model"_s);
    ASSERT_NE(QApplication::activePopupWidget(), nullptr);
    views::closeMenus();
    EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
}
