#include "controls/ScrollingTabbar.h"

#include <gtest/gtest.h>

namespace pelmira {
namespace {

struct Tabbar : testing::Test {
    Tabbar()
    {
        for (const char* title : {"one", "two", "three", "four", "five"})
            bar.addButtonToTabBarWithTitle(QLatin1String(title), QStringLiteral("zkl-icon"),
                                           [this] { ++presses; });
    }
    ScrollingTabbar bar{{320, 568}};
    int presses = 0;
};

TEST_F(Tabbar, APressRunsTheBlockWhileTheBarTakesPresses)
{
    TabButton* button = bar.buttonAtIndex(1);
    bar.buttonPressed(button);
    bar.setUserInteractionEnabled(false);
    bar.buttonPressed(button);
    bar.setUserInteractionEnabled(true);
    bar.buttonPressed(nullptr);
    EXPECT_EQ(presses, 1);
    bar.removeAllTabs();
    bar.buttonPressed(button);
    EXPECT_EQ(presses, 1);
}

TEST_F(Tabbar, ScrollsAButtonToTheMiddleAsFarAsTheRowGoes)
{
    bar.setBounds({320, 80});
    double offset = -1;
    QObject::connect(&bar, &ScrollingTabbar::scrolledTo, [&](double to) { offset = to; });
    bar.centerButton(bar.buttonAtIndex(0));
    EXPECT_EQ(offset, 0.0);
    bar.centerButton(bar.buttonAtIndex(2));
    EXPECT_EQ(offset, 177.5 - 160);
    bar.centerButton(bar.buttonAtIndex(4));
    EXPECT_EQ(offset, 35.0);
    offset = -1;
    bar.setMaxTabsVisible(9.5); // all fit now
    bar.centerButton(bar.buttonAtIndex(4));
    EXPECT_EQ(offset, -1);
}

} // namespace
} // namespace pelmira
