#include "controls/window.h"

#include <gtest/gtest.h>

using controls::Window;

TEST(Windows, are_loaded_once_before_they_are_shown)
{
    Window window;
    int loads = 0;
    window.Load = [&] {
        ++loads;
        EXPECT_FALSE(window.Visible.value());
    };
    window.show();
    window.show();
    EXPECT_EQ(loads, 1);
    EXPECT_TRUE(window.Visible.value());
}

TEST(Windows, are_loaded_anew_once_they_were_forgotten)
{
    Window window;
    int loads = 0;
    window.Load = [&] { ++loads; };
    window.show();
    window.unload();
    EXPECT_FALSE(window.Visible.value());
    window.show();
    EXPECT_EQ(loads, 2);
}

TEST(Windows, need_nothing_that_loads_them)
{
    Window window;
    window.show();
    EXPECT_TRUE(window.Visible.value());
}
