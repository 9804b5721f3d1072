#include "app/window/window_spot.h"

#include <gtest/gtest.h>

namespace quillfern::app {
namespace {

TEST(WindowSpot, NoneOfManyWindowsLeavesTheScreen)
{
    const QRect room(0, 24, 1366, 744); // under a panel
    QRect window(43, 30, 1280, 730);
    for (int i = 0; i < 10; ++i) {
        const QPoint before = window.topLeft();
        window.moveTopLeft(spot_after(window, room));
        EXPECT_TRUE(room.contains(window)) << i;
        EXPECT_NE(window.topLeft(), before) << i;
    }
}

TEST(WindowSpot, AWindowLargerThanTheScreenKeepsItsTitleBarOnIt)
{
    const QRect room(0, 0, 1024, 600);
    EXPECT_EQ(spot_after({10, 10, 1280, 800}, room), room.topLeft());
}

} // namespace
} // namespace quillfern::app
