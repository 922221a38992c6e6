#include "views/activation.h"

#include <QApplication>
#include <QMessageBox>
#include <QTest>
#include <gtest/gtest.h>

using views::Activation;

class Activations : public testing::Test
{
protected:
    static void activate(QWidget &widget)
    {
        widget.activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&widget));
        QCoreApplication::processEvents();
    }

    int count = 0;
    QWidget window;
    QWidget other;
    Activation *activation = new Activation(&window, [this] { ++count; });
};

TEST_F(Activations, count_once_for_each_time_that_the_window_is_shown)
{
    window.show();
    activate(window);
    EXPECT_EQ(count, 1);
    window.hide();
    EXPECT_EQ(count, 1);
    window.show();
    activate(window);
    EXPECT_EQ(count, 2);
}

TEST_F(Activations, count_when_the_window_comes_back_from_another)
{
    window.show();
    activate(window);
    other.show();
    activate(other);
    EXPECT_EQ(count, 1);
    activate(window);
    EXPECT_EQ(count, 2);
}

TEST_F(Activations, do_not_count_behind_the_windows_own_boxes)
{
    window.show();
    activate(window);
    QMessageBox box(&window);
    box.setModal(true);
    box.show();
    activate(box);
    box.hide();
    activate(window);
    EXPECT_EQ(count, 1);
    other.show();
    EXPECT_EQ(count, 1);
    activate(other);
    EXPECT_EQ(count, 1);
    activate(window);
    EXPECT_EQ(count, 2);
}

TEST_F(Activations, of_a_hidden_window_are_dropped)
{
    QEvent event(QEvent::WindowActivate);
    QApplication::sendEvent(&window, &event);
    EXPECT_EQ(count, 0);
}

TEST_F(Activations, while_the_window_is_loading_count_once_when_it_has_been_loaded)
{
    activation->beginLoading();
    window.show();
    activate(window);
    other.show();
    activate(other);
    activate(window);
    EXPECT_EQ(count, 0);
    activation->endLoading();
    QCoreApplication::processEvents();
    EXPECT_EQ(count, 1);
}

TEST_F(Activations, while_the_window_is_loading_do_not_count_where_it_stays_hidden)
{
    activation->beginLoading();
    activation->endLoading();
    QCoreApplication::processEvents();
    EXPECT_EQ(count, 0);
}

TEST_F(Activations, count_when_a_command_shows_the_window_again)
{
    window.show();
    activate(window);
    other.show();
    activate(other);
    activation->showAgain();
    activate(window);
    EXPECT_EQ(count, 2);
    activation->showAgain();
    QCoreApplication::processEvents();
    EXPECT_EQ(count, 3);
    window.hide();
    activation->showAgain();
    QCoreApplication::processEvents();
    EXPECT_EQ(count, 3);
}

TEST_F(Activations, of_one_showing_are_one)
{
    window.show();
    activation->showAgain();
    activate(window);
    EXPECT_EQ(count, 1);
}

TEST_F(Activations, count_where_another_window_was_active_behind_an_own_box)
{
    window.show();
    activate(window);
    other.show();
    QMessageBox box(&window);
    box.setModal(true);
    box.show();
    activate(box);
    box.hide();
    activate(other);
    EXPECT_EQ(count, 1);
    activate(window);
    EXPECT_EQ(count, 2);
}

TEST_F(Activations, of_a_window_that_is_hidden_at_once_are_dropped)
{
    window.show();
    window.hide();
    QCoreApplication::processEvents();
    EXPECT_EQ(count, 0);
}

TEST_F(Activations, count_a_quick_return_after_a_showing)
{
    window.show();
    activate(window);
    window.hide();
    other.show();
    activate(other);
    window.show();
    QCoreApplication::processEvents();
    EXPECT_EQ(count, 2);
    activate(window);
    activate(other);
    activate(window);
    EXPECT_EQ(count, 3);
}
