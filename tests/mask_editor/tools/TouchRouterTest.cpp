#include "controls/BrushPanelView.h"
#include "support/EngineFixture.h"

namespace pelmira {
namespace {

struct Router : testing::Test {
    void SetUp() override
    {
        fixture.open(discImage(200, 200));
        tools.select(ModeErase);
        tools.brushControls.layoutBrushAdjustView({0, 56, 390, 674}, 152);
    }

    void begin(std::initializer_list<QPointF> points) { router.touchesBegan(fingersAt(points)); }
    void move(std::initializer_list<QPointF> points) { router.touchesMoved(fingersAt(points)); }
    // The last of the fingers lifts.
    void end(std::initializer_list<QPointF> points)
    {
        TouchEvent event = fingersAt(points);
        event.allTouches.back().hasEnded = true;
        router.touchesEnded(event);
    }
    void stroke(QPointF from, QPointF to)
    {
        begin({from});
        move({to});
        end({to});
    }
    std::size_t levels() { return engine.history.levels(); }

    const QPointF centre{195, 422};
    EngineFixture fixture;
    MaskEditorEngine& engine = fixture.engine;
    EditorTools& tools = fixture.tools;
    TouchRouter& router = fixture.tools.router;
};

TEST_F(Router, TwoFingersPanZoomAndTurnAboutThePointBetweenThem)
{
    const QPointF a(120, 400);
    const QPointF b(260, 440);
    const QPointF under[] = {engine.canvas.maskPosForScreenPos(a),
                             engine.canvas.maskPosForScreenPos(b)};
    begin({a});
    begin({a, b});
    const QPointF aNow(90, 500);
    const QPointF bNow(250, 300);
    for (int i = 1; i <= 20; ++i) {
        const double t = i / 20.0;
        move({a + (aNow - a) * t, b + (bNow - b) * t});
    }
    // What was under each finger is under it still.
    for (const auto& [finger, before] : {std::pair{aNow, under[0]}, std::pair{bNow, under[1]}}) {
        EXPECT_NEAR(engine.canvas.maskPosForScreenPos(finger).x(), before.x(), 0.01);
        EXPECT_NEAR(engine.canvas.maskPosForScreenPos(finger).y(), before.y(), 0.01);
    }
    EXPECT_GT(engine.canvas.fgImage.scale, 1.3);

    // One finger lifts: the other is no tool until all have gone.
    end({aNow, bNow});
    move({aNow + QPointF(60, 0)});
    end({aNow + QPointF(60, 0)});
    EXPECT_EQ(levels(), 0U);
    EXPECT_TRUE(fixture.toolsShown);
}

TEST_F(Router, ManyFingersStepsAndNonsenseLeaveAViewThatCanBeUsed)
{
    const FgImage before = engine.canvas.fgImage;
    TouchEvent fifty;
    for (int i = 0; i < 50; ++i) {
        fifty.allTouches.push_back({i, QPointF(20 + 7 * i, 100 + 13 * i % 600)});
        router.touchesBegan(fifty);
    }
    for (Touch& touch : fifty.allTouches)
        touch.location += QPointF(30, -12);
    router.touchesMoved(fifty);
    EXPECT_NEAR(engine.canvas.fgImage.center.x(), before.center.x() + 30.0 / 390, 1e-6);
    EXPECT_NEAR(engine.canvas.fgImage.scale, 1.0, 1e-6);
    router.touchesCancelled(fifty);

    const double nan = std::nan("");
    const FgImage moved = engine.canvas.fgImage;
    for (const ViewStep& step : {ViewStep{{nan, 0}, {}, 1, 0}, ViewStep{centre, {nan, 1}, 1, 0},
                                 ViewStep{centre, {}, nan, 0}, ViewStep{centre, {}, 0, 0},
                                 ViewStep{centre, {}, -2, 0}, ViewStep{centre, {}, 1, nan}})
        router.viewStepped(step);
    for (int i = 0; i < 2000; ++i)
        router.viewStepped({centre, {}, 1e-5, 0});
    EXPECT_EQ(engine.canvas.fgImage.rotation, moved.rotation);
    EXPECT_GT(engine.canvas.fgImage.scale, 0.0);
    EXPECT_TRUE(std::isfinite(engine.canvas.fgImage.center.x()));

    PinchGestureRecognizer pinch;
    pinch.touches = {centre};
    pinch.scale = nan;
    engine.navigation.handlePinch(pinch);
    EXPECT_TRUE(std::isfinite(engine.canvas.fgImage.scale));
    EXPECT_EQ(levels(), 0U);
}

TEST_F(Router, AToolChangedDuringATouchGetsNoMoreOfIt)
{
    begin({centre});
    move({centre + QPointF(20, 0)});
    EXPECT_EQ(levels(), 1U);
    const std::vector<std::uint8_t> painted = fixture.alpha();
    router.viewStepped({centre, {}, 2, 0}); // a wheel that turns under a finger is a slip
    EXPECT_EQ(engine.canvas.fgImage.scale, 1.0);
    tools.select(ModeReplace);
    move({centre + QPointF(80, 0)});
    end({centre + QPointF(80, 0)});
    EXPECT_EQ(fixture.alpha(), painted);
    EXPECT_FALSE(fixture.toolsShown); // until the next touch

    // Nor does the tool that was cut off go on with a touch that another began.
    begin({centre});
    tools.select(ModeErase);
    move({centre + QPointF(80, 0)});
    end({centre + QPointF(80, 0)});
    EXPECT_EQ(fixture.alpha(), painted);
    begin({centre});
    end({centre});
    EXPECT_TRUE(fixture.toolsShown);

    // A resized window ends a stroke too.
    begin({centre});
    move({centre + QPointF(0, 20)});
    const std::vector<std::uint8_t> before = fixture.alpha();
    router.viewWillTransitionToSize();
    move({centre + QPointF(0, 60)});
    EXPECT_EQ(fixture.alpha(), before);
    EXPECT_TRUE(fixture.toolsShown);
}

TEST_F(Router, ATouchThatClosesTheBrushPanelDoesNothingElse)
{
    BrushControls& controls = tools.brushControls;
    controls.initBrushAdjustView();
    controls.brushButtonPressed();
    ASSERT_NE(controls.brushAdjustView(), nullptr);
    stroke(centre, centre + QPointF(50, 0));
    EXPECT_EQ(controls.brushAdjustView(), nullptr);
    EXPECT_EQ(levels(), 0U);

    // The preview stays while a value changes and stands clear of the open panel.
    ASSERT_TRUE(drainUntil([&] {
        if (!controls.brushAdjustView())
            controls.brushButtonPressed();
        return controls.brushAdjustView() != nullptr;
    }));
    controls.brushAdjustView()->softnessSlider()->moveTo(0.6);
    ASSERT_TRUE(engine.overlays.brushPreview);
    EXPECT_LT(engine.overlays.brushPreview->y() + 390 / 1.5 * 0.25, // half of the largest brush
              controls.brushAdjustFrame().top());
    EXPECT_NEAR(engine.brush.unitBrushSoft(), 0.6, 1e-6);
    passTime(5.0);
    ASSERT_TRUE(drainUntil([this] { return !engine.overlays.brushPreview; }));
}

TEST_F(Router, FingersBesideAPenAreNoTool)
{
    router.penIsNear(true);
    stroke(centre, centre + QPointF(50, 0));
    EXPECT_EQ(levels(), 0U);
    router.penIsNear(false);
    stroke(centre, centre + QPointF(50, 0));
    EXPECT_EQ(levels(), 1U);
}

} // namespace
} // namespace pelmira
