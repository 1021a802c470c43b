#include "controls/ZKLScrollDial.h"
#include "mask_editor/drawing/MaskInverter.h"
#include "support/EngineFixture.h"
#include "support/Masks.h"

namespace pelmira {
namespace {

struct WandTest : testing::Test {
    void SetUp() override { fixture.open(discImage(200, 150)); }

    void tap(std::initializer_list<QPointF> points)
    {
        tool.handleWandEvent(fingersAt(points), TouchBegan);
        tool.handleWandEvent(fingersAt(points), TouchEnded);
        ASSERT_TRUE(fixture.settle());
    }
    QPointF background() const { return fixture.screenPosOfPixel({5, 5}); }
    QPointF disc() const { return fixture.screenPosOfPixel({100, 75}); }
    std::size_t removed()
    {
        const auto alpha = fixture.alpha();
        return static_cast<std::size_t>(std::count(alpha.begin(), alpha.end(), 0));
    }

    EngineFixture fixture;
    WandInteraction& wand = fixture.engine.wand;
    WandTool& tool = fixture.tools.wand;
    UndoHistory& history = fixture.engine.history;
};

TEST_F(WandTest, ATapFillsAndLeavesTwoLevelsSecondFingersCancelAndDragsFollow)
{
    tap({background()});
    const std::size_t filled = removed();
    EXPECT_GT(filled, 10000U);
    EXPECT_LT(filled, 200U * 150U);
    EXPECT_EQ(history.levels(), 2U);
    history.undo();
    EXPECT_EQ(removed(), 0U);
    history.undo();
    EXPECT_EQ(removed(), 0U);
    EXPECT_EQ(history.levels(), 0U);

    tap({QPointF(2, 2)});
    EXPECT_EQ(removed(), 0U);
    EXPECT_EQ(history.levels(), 1U);

    // Beside the photo it left one.
    tool.handleWandEvent(fingersAt({background()}), TouchBegan);
    EXPECT_TRUE(fixture.engine.overlays.drawWandZoom);
    EXPECT_FALSE(fixture.toolsShown);
    tool.handleWandEvent(fingersAt({background(), disc()}), TouchBegan);
    EXPECT_TRUE(fixture.toolsShown);
    tool.handleWandEvent(fingersAt({background(), disc()}), TouchMoved);
    EXPECT_FALSE(fixture.engine.overlays.drawWandZoom);
    tool.handleWandEvent(fingersAt({background()}), TouchEnded);
    tool.handleWandEvent(fingersAt({background()}), TouchBegan);
    tool.handleWandEvent(fingersAt({background()}), TouchCancelled);
    tool.handleWandEvent(fingersAt({background()}), TouchEnded);
    EXPECT_EQ(history.levels(), 1U);

    // The fill starts where the finger is lifted, not where it landed.
    tool.handleWandEvent(fingersAt({background()}), TouchBegan);
    tool.handleWandEvent(fingersAt({disc()}), TouchMoved);
    tool.handleWandEvent(fingersAt({disc()}), TouchEnded);
    ASSERT_TRUE(fixture.settle());
    EXPECT_EQ(fixture.alpha()[75 * 200 + 100], 0);
    EXPECT_EQ(fixture.alpha()[0], 255);
}

TEST_F(WandTest, TheDialStartsEachFillFromTheMaskOfTheTapUntilThatIsUndone)
{
    wand.updateFloodFillTolerance(200); // no session yet: nothing to refine
    ASSERT_TRUE(fixture.settle());
    EXPECT_EQ(removed(), 0U);

    tap({background()});
    const std::size_t at51 = removed();
    wand.updateFloodFillTolerance(255);
    wand.updateFloodFillTolerance(0); // dropped: the fill at 255 is still running
    ASSERT_TRUE(fixture.settle());
    EXPECT_EQ(removed(), 200U * 150U);
    wand.updateFloodFillTolerance(51);
    ASSERT_TRUE(fixture.settle());
    EXPECT_EQ(removed(), at51);

    // An inversion in between is lost to the next fill.
    maskInvert(fixture.engine.canvas, fixture.engine.shaders, fixture.engine.reader);
    EXPECT_EQ(removed(), 200U * 150U - at51);
    wand.updateFloodFillTolerance(50);
    ASSERT_TRUE(fixture.settle());
    EXPECT_EQ(removed(), at51);
    EXPECT_EQ(history.levels(), 2U);

    history.undo();
    EXPECT_FALSE(wand.hasFloodFillSession());
    wand.updateFloodFillTolerance(255);
    ASSERT_TRUE(fixture.settle());
    EXPECT_EQ(removed(), 0U);

    OGLESMappedTexture& surface = *fixture.engine.canvas.fgMappedTexture;
    surface.setReady(false);
    history.undo();
    history.saveUndoBuffer();
    tool.doWandAtPoint(background());
    EXPECT_EQ(history.levels(), 1U); // of the tap's two, one was undone
    EXPECT_EQ(removed(), 0U);
    surface.setReady(true);
}

TEST_F(WandTest, TheDialGoesOnWhereItWasAfterTheScreenWasCovered)
{
    const auto cover = [this] {
        fixture.engine.setSeen(false);
        fixture.engine.setSeen(true);
        ASSERT_TRUE(fixture.settle());
    };
    const auto turn = [this](unsigned tolerance) {
        wand.updateFloodFillTolerance(tolerance);
        EXPECT_TRUE(fixture.settle());
        return fixture.alpha();
    };
    tap({disc()}); // the tap that counts starts from a mask with a hole, of several tiles
    const auto before = fixture.alpha();
    tap({background()});
    const auto at51 = fixture.alpha();
    const auto at30 = turn(30);
    ASSERT_NE(at51, before);

    cover();
    EXPECT_EQ(fixture.alpha(), at30);
    EXPECT_EQ(turn(51), at51);
    EXPECT_EQ(turn(30), at30);
    EXPECT_EQ(turn(0), before);

    maskInvert(fixture.engine.canvas, fixture.engine.shaders, fixture.engine.reader);
    cover();
    EXPECT_EQ(turn(51), at51);
    EXPECT_EQ(history.levels(), 4U);

    cover();
    history.undo();
    EXPECT_EQ(turn(30), before);
    EXPECT_FALSE(wand.hasFloodFillSession());
}

TEST_F(WandTest, ASavedMaskOfAnotherSizeIsLeftUnread)
{
    for (const std::size_t length : {std::size_t{100}, std::size_t{200} * 150}) {
        fixture.engine.open(discImage(200, 150),
                            [length] { return test::entryOf(test::Plane(length)); });
        ASSERT_TRUE(fixture.settle());
        EXPECT_EQ(removed(), length == 100 ? 0U : 200U * 150U);
        EXPECT_EQ(history.levels(), 0U);
    }
}

TEST(WandTolerance, TruncatesTheDialsValue)
{
    EXPECT_EQ(WandTool::toleranceForDialValue(0.9999), 254U);
    EXPECT_EQ(WandTool::toleranceForDialValue(1.0), 255U);
    // A fresh dial's two tenths are the same however wide it is laid out.
    for (double dialWidth = 200; dialWidth < 900; dialWidth += 0.5) {
        ZKLScrollDial dial;
        dial.setTitle(QStringLiteral("Tolerance"));
        dial.setFrame({0, 0, dialWidth, 32});
        dial.layoutIfNeeded();
        ASSERT_EQ(WandTool::toleranceForDialValue(dial.value()), 51U) << dialWidth;
    }
}

} // namespace
} // namespace pelmira
