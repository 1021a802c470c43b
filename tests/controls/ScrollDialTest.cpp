#include "controls/ZKLScrollDial.h"

#include "support/Test.h"

namespace pelmira {
namespace {

struct Listener final : ZKLScrollDialDelegate {
    void zklScrollDial(ZKLScrollDial&, double valueChanged) override
    {
        values.push_back(valueChanged);
    }
    std::vector<double> values;
};

struct ScrollDial : testing::Test {
    ScrollDial()
    {
        dial.setDelegate(&listener);
        QObject::connect(&dial, &ZKLScrollDial::contentOffsetMoved,
                         [this](double x) { moves.push_back(x); });
    }
    void layOut(double width)
    {
        dial.setFrame(QRectF(0.0, 72.0, width, 32.0));
        dial.layoutIfNeeded();
    }

    ZKLScrollDial dial;
    Listener listener;
    std::vector<double> moves;
};

TEST_F(ScrollDial, EveryScrollIsToldAndNoneLeadsBeyondTheEnds)
{
    dial.scrollViewDidScroll(10.0); // before there is a strip to measure by
    layOut(400.0);
    for (const double x : {-200.0, 0.0, 0.0, 100.0, -450.0, 200.1, 1.0e300})
        dial.scrollViewDidScroll(x);
    EXPECT_EQ(listener.values, (std::vector{0.0, 0.5, 0.5, 0.75, 0.0, 1.0, 1.0}));
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

TEST_F(ScrollDial, ASetValueMovesTheStripAndIsNotTold)
{
    layOut(400.0);
    dial.setValue(0.6);
    dial.setScrollPosForCurrentValue();
    EXPECT_DOUBLE_EQ(dial.contentOffset(), 0.6 * 400.0 - 200.0);
    EXPECT_TRUE(listener.values.empty());
    dial.scrollViewDidScroll(0.0); // the delegate is back afterwards
    EXPECT_EQ(listener.values.size(), 1U);
}

TEST_F(ScrollDial, EachKeyAndTurnOfAWheelHasItsStep)
{
    layOut(400.0);
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

} // namespace
} // namespace pelmira
