#include "shell/FirstWindowSize.h"

#include <gtest/gtest.h>

namespace pelmira {
namespace {

TEST(FirstWindowSize, TheWindowAndItsFrameFitTheFreeArea)
{
    EXPECT_EQ(firstWindowSize({1920, 1080}), QSize(1100, 760));
    EXPECT_EQ(firstWindowSize({1366, 728}), QSize(1100, 648));
    EXPECT_EQ(firstWindowSize({853, 533}), QSize(845, 453)); // 1280 by 800 at a scale of 1.5
    EXPECT_EQ(smallestWindowSize({853, 533}), QSize(320, 320));
    EXPECT_EQ(smallestWindowSize({480, 320}), QSize(320, 240));
}

} // namespace
} // namespace pelmira
