#include "controls/ScrollingTabbar.h"

#include <gtest/gtest.h>

namespace pelmira {
namespace {

struct Tabbar : testing::Test {
    TabButton* add(const char* title)
    {
        return bar.addButtonToTabBarWithTitle(QLatin1String(title), QStringLiteral("zkl-icon"),
                                              [this] { ++presses; });
    }
    void addFive()
    {
        for (const char* title : {"one", "two", "three", "four", "five"})
            add(title);
    }
    ScrollingTabbar bar{{320, 568}};
    int presses = 0;
};

TEST_F(Tabbar, TheLastTabThatIsSeenIsCutInHalf)
{
    addFive();
    bar.setBounds({320, 80});
    EXPECT_EQ(bar.buttonAtIndex(4)->frame(), QRectF(4 * 71, 12, 71, 56));
    EXPECT_EQ(bar.contentSize(), QSizeF(355, 80));
    EXPECT_EQ(bar.contentInset(), 0.0);
    EXPECT_EQ(bar.buttonAtIndex(5), nullptr);
    EXPECT_EQ(bar.buttonAtIndex(-1), nullptr);
    bar.setMaxTabsVisible(9.5); // all fit now, and stand in the middle
    bar.setBounds({320, 80});
    EXPECT_EQ(bar.contentInset(), (320 - bar.contentSize().width()) * 0.5);
}

TEST_F(Tabbar, APressRunsTheBlockWhileTheBarTakesPresses)
{
    addFive();
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
    EXPECT_EQ(bar.buttonAtIndex(0), nullptr);
}

TEST_F(Tabbar, ScrollsAButtonToTheMiddleAsFarAsTheRowGoes)
{
    addFive();
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
