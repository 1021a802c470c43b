#include "controls/BrushPanelView.h"
#include "controls/StyleUtil.h"
#include "support/Test.h"

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

    panel.setCurrentBrushType(BrushType{5}); // a stored shape that doesn't exist
    EXPECT_EQ(panel.triangleButton()->tintColor(), QColor(Qt::white));
}

TEST(BrushPanel, OnlyTheUsersMovesAreReported)
{
    BrushPanelView panel;
    std::vector<double> offsets;
    std::vector<double> softness;
    panel.offsetSlider()->moveTo(0.25); // no block
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
