#include "controls/BrushPanelView.h"
#include "support/Test.h"

namespace pelmira {
namespace {

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
