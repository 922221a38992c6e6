#include "menu_fixture.h"
#include "views/menus.h"

#include <QApplication>
#include <QTest>

#include <functional>

using namespace Qt::StringLiterals;
using support::waitUntil;

class MenuFocus : public support::MenuFixture
{};

TEST_F(MenuFocus, goes_back_however_the_bar_is_left)
{
    QListView *datafiles = list(u"Data files"_s);
    const auto escape = [] { press(Qt::Key_Escape); };
    const auto alt = [] { press(Qt::Key_Alt); };
    const std::function<void()> ways[]{
        [&] { altAnd(Qt::Key_F), press(Qt::Key_N); },
        [&] { altAnd(Qt::Key_F), escape(), altAnd(Qt::Key_F), press(Qt::Key_N); },
        [&] { altAnd(Qt::Key_F), escape(), altAnd(Qt::Key_D), escape(), escape(); },
        [&] { altAnd(Qt::Key_F), escape(), alt(); },
        [&] { alt(), alt(); },
        [&] { alt(), escape(); },
        [&] { alt(), altAnd(Qt::Key_F), escape(), escape(); },
    };
    for (size_t way = 0; way < std::size(ways); ++way) {
        datafiles->setFocus();
        ways[way]();
        EXPECT_TRUE(datafiles->hasFocus()) << way;
    }
}

TEST_F(MenuFocus, goes_back_where_the_window_gives_it_to_the_bar_again)
{
    QListView *datafiles = list(u"Data files"_s);
    datafiles->setFocus();
    bar()->setFocus(Qt::ActiveWindowFocusReason);
    settle();
    EXPECT_TRUE(datafiles->hasFocus());
}

TEST_F(MenuFocus, goes_to_a_neighbour_where_the_command_has_hidden_whose_it_was)
{
    addFile(u"C:\\KINOVRA\\graphs\\STICK.GRA"_s);
    QPushButton *create = button(u"Create Graph(s)"_s);
    create->setFocus();
    altAnd(Qt::Key_V);
    press(Qt::Key_Escape);
    altAnd(Qt::Key_V);
    press(Qt::Key_G);
    EXPECT_FALSE(create->isVisible());
    ASSERT_NE(QApplication::focusWidget(), nullptr);
    EXPECT_NE(QApplication::focusWidget(), bar());
    EXPECT_TRUE(QApplication::focusWidget()->isVisible());
}

// Its menu opens behind the question before the desktop has made the window active again.
class MenusBehindAQuestion : public support::MenuFixture
{
protected:
    void SetUp() override
    {
        MenuFixture::SetUp();
        machine.files.remove(u"C:\\DATA\\walk1.cfb"_s);
        machine.files.remove(u"C:\\DATA\\run1.cfb"_s);
        click(frm.cmdRefresh);
        list(u"Data files"_s)->setFocus();
        machine.dialogs.whileShown = [this](const platform::MessageBox &) {
            box.show();
            ASSERT_TRUE(QTest::qWaitForWindowActive(&box));
        };
        machine.dialogs.answers = {platform::No};
        QTest::keyClick(&window(), Qt::Key_P, Qt::AltModifier);
        ASSERT_TRUE(waitUntil([this] { return menu(u"&Programs"_s)->isVisible() && !messages().isEmpty(); }));
        settle();
    }

    // The menu is closed, and the bar has the focus.
    void leaveMenu()
    {
        QTest::keyClick(menu(u"&Programs"_s), Qt::Key_Escape);
        box.hide();
        window().activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&window()));
        ASSERT_TRUE(bar()->hasFocus());
    }

    QWidget box;
};

TEST_F(MenusBehindAQuestion, give_the_focus_back)
{
    leaveMenu();
    QTest::keyClick(bar(), Qt::Key_Escape);
    settle();
    EXPECT_TRUE(list(u"Data files"_s)->hasFocus());
}

TEST_F(MenusBehindAQuestion, give_the_focus_back_when_Alt_leaves_the_bar)
{
    leaveMenu();
    QTest::keyClick(bar(), Qt::Key_Alt);
    settle();
    EXPECT_TRUE(list(u"Data files"_s)->hasFocus());
}

TEST_F(MenusBehindAQuestion, give_the_focus_back_from_another_menu)
{
    leaveMenu();
    QTest::keyClick(&window(), Qt::Key_M, Qt::AltModifier);
    settle();
    ASSERT_TRUE(menu(u"&Model"_s)->isVisible());
    QTest::keyRelease(bar(), Qt::Key_Alt);
    settle();
    EXPECT_TRUE(bar()->hasFocus()) << "a menu is open";
    QTest::keyClick(menu(u"&Model"_s), Qt::Key_Escape);
    ASSERT_TRUE(bar()->hasFocus());
    QTest::keyClick(bar(), Qt::Key_Escape);
    settle();
    EXPECT_TRUE(list(u"Data files"_s)->hasFocus());
}

TEST_F(MenusBehindAQuestion, leave_the_focus_where_it_has_gone_meanwhile)
{
    views::closeMenus();
    box.hide();
    window().activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window()));
    QListView *models = list(u"Models (.CFB)"_s);
    models->setFocus();
    machine.dialogs.whileShown = nullptr;
    openFromBar(u"&Animate"_s);
    EXPECT_TRUE(waitUntil([this] { return messages().size() == 2; }));
    settle();
    EXPECT_EQ(window().focusWidget(), models);
}
