#include "controls/ScrollRange.h"
#include "controls/ScrollingTabbar.h"
#include "controls/ZKLScrollDial.h"
#include "support/Test.h"

namespace pelmira {
namespace {

struct ScrollDial : testing::Test, ZKLScrollDialDelegate {
    ScrollDial()
    {
        dial.setDelegate(this);
        QObject::connect(&dial, &ZKLScrollDial::contentOffsetMoved,
                         [this](double x) { moves.push_back(x); });
    }
    void zklScrollDial(ZKLScrollDial&, double value) override { values.push_back(value); }
    void layOut()
    {
        dial.setFrame(QRectF(0.0, 72.0, 400.0, 32.0));
        dial.layoutIfNeeded();
    }

    ZKLScrollDial dial;
    std::vector<double> values;
    std::vector<double> moves;
};

TEST_F(ScrollDial, EveryScrollIsToldAndNoneLeadsBeyondTheEnds)
{
    dial.scrollViewDidScroll(10.0); // before there is a strip to measure by
    layOut();
    for (const double x : {-200.0, 0.0, 0.0, 100.0, -450.0, 200.1, 1.0e300})
        dial.scrollViewDidScroll(x);
    EXPECT_EQ(values, (std::vector{0.0, 0.5, 0.5, 0.75, 0.0, 1.0, 1.0}));
    EXPECT_EQ(dial.valueText(), u"100%");
    for (const double unusable : {qQNaN(), qInf()}) {
        dial.scrollViewDidScroll(unusable);
        dial.stepBy(unusable);
    }
    EXPECT_EQ(moves.size(), 1U); // the layout's

    dial.scrollBy(-40.0);
    EXPECT_NEAR(dial.value(), 0.9, 1e-12);
    dial.scrollBy(-1.0e9);
    EXPECT_DOUBLE_EQ(dial.value(), 0.0);
    EXPECT_EQ(moves.size(), 3U);
}

TEST_F(ScrollDial, ASetValueMovesTheStripUntoldAndEachKeyAndTurnOfAWheelHasItsStep)
{
    layOut();
    dial.setValue(0.6);
    dial.setScrollPosForCurrentValue();
    EXPECT_DOUBLE_EQ(dial.contentOffset(), 0.6 * 400.0 - 200.0);
    EXPECT_TRUE(values.empty());
    dial.scrollViewDidScroll(0.0); // the delegate is back afterwards
    EXPECT_EQ(values.size(), 1U);

    const auto after = [&](auto act) {
        dial.scrollToValue(0.5);
        act();
        return dial.value();
    };
    const std::pair<Qt::Key, double> keys[] = {{Qt::Key_Left, 0.49},    {Qt::Key_Right, 0.51},
                                               {Qt::Key_PageDown, 0.4}, {Qt::Key_PageUp, 0.6},
                                               {Qt::Key_Home, 0.0},     {Qt::Key_End, 1.0}};
    for (const auto& [key, value] : keys)
        EXPECT_NEAR(after([&, k = key] { EXPECT_TRUE(dial.keyPressed(k)); }), value, 1e-12) << key;
    EXPECT_EQ(after([&] { EXPECT_FALSE(dial.keyPressed(Qt::Key_Up)); }), 0.5);
    EXPECT_NEAR(after([&] { dial.wheelTurned({0, -240}); }), 0.48, 1e-12);
    EXPECT_NEAR(after([&] { dial.wheelTurned({-160, 0}); }), 0.6, 1e-12);
}

TEST(Tabbar, ScrollsAButtonToTheMiddleAndRunsItsBlockWhileItTakesPresses)
{
    ScrollingTabbar bar({320, 568});
    int presses = 0;
    for (const char* title : {"one", "two", "three", "four", "five"})
        bar.addButtonToTabBarWithTitle(QLatin1String(title), u"zkl-icon"_s, [&] { ++presses; });
    bar.setBounds({320, 80});
    double offset = -1;
    const auto centred = [&](int index) {
        offset = -1;
        bar.centerButton(bar.buttonAtIndex(index));
        return offset;
    };
    QObject::connect(&bar, &ScrollingTabbar::scrolledTo, [&](double to) { offset = to; });
    EXPECT_EQ(centred(0), 0.0);
    EXPECT_EQ(centred(2), 177.5 - 160);
    EXPECT_EQ(centred(4), 35.0);
    bar.setMaxTabsVisible(9.5); // all fit now
    EXPECT_EQ(centred(4), -1);

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

TEST(ScrollRange, EveryWayEndsWithinTheContent)
{
    ScrollRange row;
    row.content = 1000.0;
    row.view = 300.0;
    const std::pair<double, double> cases[] = {
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
    for (const auto& [result, expected] : cases)
        EXPECT_DOUBLE_EQ(result, expected);
    EXPECT_TRUE(std::isnan(row.afterKey(400, Qt::Key_Left))); // for other controls

    row.content = 200.0; // nothing scrolls where all is seen
    EXPECT_TRUE(row.fits());
    EXPECT_EQ(row.within(50), 0.0);
    EXPECT_EQ(row.revealing(0, 150, 50), 0.0);
}

} // namespace
} // namespace pelmira
