#include "controls/BrushPanelView.h"
#include "controls/StyleUtil.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <limits>
#include <vector>

namespace pelmira {
namespace {

TEST(BrushPanel, TheTintFollowsTheOwnerAndNotThePress)
{
    BrushPanelView panel;
    std::vector<BrushType> pressed;
    panel.handleBrushShapeButton(panel.squareButton()); // no block: nothing happens
    panel.brushTypeChangedBlock = [&](BrushType type) { pressed.push_back(type); };
    panel.setCurrentBrushType(BrushType::circle);
    panel.handleBrushShapeButton(panel.triangleButton());
    EXPECT_EQ(pressed, std::vector{BrushType::triangle});
    EXPECT_EQ(panel.currentBrushType(), BrushType::circle);
    EXPECT_EQ(panel.circleButton()->tintColor(), StyleUtil::selectedTint());
    EXPECT_EQ(panel.triangleButton()->tintColor(), QColor(Qt::white));

    panel.setCurrentBrushType(BrushType::triangle);
    EXPECT_EQ(panel.circleButton()->tintColor(), QColor(Qt::white));
    EXPECT_EQ(panel.triangleButton()->tintColor(), StyleUtil::selectedTint());

    // A stored shape that doesn't exist is kept and selects none.
    panel.setCurrentBrushType(BrushType{5});
    EXPECT_EQ(panel.currentBrushType(), BrushType{5});
    EXPECT_EQ(panel.triangleButton()->tintColor(), QColor(Qt::white));
}

TEST(BrushPanel, SpringsIntoItsPlaceOnceBeyondAndRests)
{
    EXPECT_EQ(BrushPanelView::travelAfter(0.0), 0.0);
    EXPECT_NEAR(BrushPanelView::travelAfter(1e-6) / 1e-6, 3.0, 0.01); // the speed of its start
    double furthest = 0.0;
    for (double time = 0.0; time < 0.3; time += 0.005)
        furthest = std::max(furthest, BrushPanelView::travelAfter(time));
    EXPECT_GT(furthest, 1.1);
    EXPECT_LT(furthest, 1.2);
    EXPECT_NEAR(BrushPanelView::travelAfter(0.2999), 1.0, 0.002); // no jolt at the end
    EXPECT_EQ(BrushPanelView::travelAfter(0.3), 1.0);
    EXPECT_EQ(BrushPanelView::travelAfter(9.0), 1.0);
}

TEST(BrushPanel, OnlyTheUsersMovesAreReported)
{
    BrushPanelView panel;
    std::vector<double> offsets;
    std::vector<double> softness;
    panel.offsetSlider()->moveTo(0.25); // no block: the slider moves all the same
    EXPECT_FLOAT_EQ(panel.offsetSlider()->value(), 0.25F);
    panel.offsetChangedBlock = [&](double value) { offsets.push_back(value); };
    panel.softnessChangedBlock = [&](double value) { softness.push_back(value); };
    panel.offsetSlider()->setValue(0.75F);
    panel.softnessSlider()->setValue(0.1F);
    EXPECT_TRUE(offsets.empty() && softness.empty());

    panel.softnessSlider()->moveTo(0.1);
    panel.offsetSlider()->moveTo(3.0);
    panel.offsetSlider()->moveTo(std::numeric_limits<double>::quiet_NaN());
    EXPECT_EQ(offsets, (std::vector{1.0, 0.0}));
    EXPECT_EQ(softness, std::vector{static_cast<double>(0.1F)});
}

} // namespace
} // namespace pelmira
