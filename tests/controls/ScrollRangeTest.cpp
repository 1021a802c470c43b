#include "controls/ScrollRange.h"

#include <gtest/gtest.h>

#include <cmath>

namespace pelmira {
namespace {

TEST(ScrollRange, EveryWayEndsWithinTheContent)
{
    ScrollRange row;
    row.content = 1000.0;
    row.view = 300.0;
    struct Case {
        double result;
        double expected;
    };
    const Case cases[] = {
        {row.within(-5), 0},
        {row.within(900), 700},
        // A button before, in and behind the view, and at either end.
        {row.revealing(400, 350, 60), 326},
        {row.revealing(400, 450, 60), 400},
        {row.revealing(400, 690, 60), 474},
        {row.revealing(400, 0, 60), 0},
        {row.revealing(400, 940, 60), 700},
        {row.revealing(0, 400, 500), 376}, // too long: its beginning
        {row.turned(400, {0, -120}), 520},
        {row.turned(400, {0, 120}), 280},
        {row.turned(400, {-30, 500}), 430}, // sideways
        {row.turned(650, {0, -120}), 700},
        {row.afterKey(400, Qt::Key_Up), 340},
        {row.afterKey(400, Qt::Key_PageDown), 670},
        {row.afterKey(400, Qt::Key_Space), 670},
        {row.afterKey(100, Qt::Key_PageUp), 0},
        {row.afterKey(400, Qt::Key_End), 700},
        {row.afterKey(400, Qt::Key_Home), 0},
    };
    for (std::size_t i = 0; i < std::size(cases); ++i)
        EXPECT_DOUBLE_EQ(cases[i].result, cases[i].expected) << i;
    EXPECT_TRUE(std::isnan(row.afterKey(400, Qt::Key_Left))); // for other controls

    row.content = 200.0; // nothing scrolls where all is seen
    EXPECT_TRUE(row.fits());
    EXPECT_EQ(row.within(50), 0.0);
    EXPECT_EQ(row.revealing(0, 150, 50), 0.0);
}

} // namespace
} // namespace pelmira
