#include "controls/ZKLScrollDial.h"
#include "mask_editor/screen/ToolBars.h"
#include "support/ShownEditor.h"

#include <future>

namespace pelmira {
namespace {

using std::chrono::milliseconds;

/// Keeps the queue of the fills busy: one that is asked for meanwhile runs when it is let go.
class HeldFills {
public:
    HeldFills()
    {
        constexpr int atLeastItsThreads = 4;
        for (int i = 0; i < atLeastItsThreads; ++i)
            globalQueue(QueuePriority::Default).async([released = _released] { released.wait(); });
    }
    ~HeldFills() { _release.set_value(); }

private:
    std::promise<void> _release;
    const std::shared_future<void> _released = _release.get_future().share();
};

/// The editor, to which fingers and a pen come the way that the platform's come.
class EditorTouch : public testing::Test, protected test::ShownEditor {
protected:
    struct Outcome {
        QImage cutOut;
        std::size_t levels = 0;
        QImage afterTheDial;
    };
    using Press = std::function<void()>;

    Outcome outcomeOf(const std::vector<Press>& presses, bool whileAFillRuns);
    auto touch() { return shown->touch(); }
    void stroke(QPoint from, QPoint to)
    {
        touch().press(0, from);
        touch().move(0, to);
        touch().release(0, to);
    }
    void tap(QPoint point)
    {
        touch().press(0, point);
        touch().release(0, point);
    }
    void pen(QEvent::Type type, QPointF at)
    {
        const auto buttons = type == QEvent::MouseButtonRelease ? Qt::NoButton : Qt::LeftButton;
        const auto button = type == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton;
        QMouseEvent event(type, at, at, at, button, buttons, {}, Qt::MouseEventNotSynthesized,
                          &stylus);
        QCoreApplication::sendEvent(&shown->window, &event);
    }

    static constexpr QPoint centre{195, 422}; // on the disc
    static constexpr QPoint ground{60, 300};  // beside it, on the photo

    std::chrono::steady_clock::time_point now{};
    using Device = QPointingDevice;
    const Device stylus{u"pen"_s,
                        99,
                        Device::DeviceType::Stylus,
                        Device::PointerType::Pen,
                        Device::Capability::Position,
                        1,
                        3};
};

// What was pressed while a fill ran is what the same presses give one after the other.
EditorTouch::Outcome EditorTouch::outcomeOf(const std::vector<Press>& presses, bool whileAFillRuns)
{
    open({390, 844});
    auto held = whileAFillRuns ? std::make_unique<HeldFills>() : nullptr;
    tap(ground);
    Outcome outcome;
    for (const Press& press : presses) {
        EXPECT_TRUE(whileAFillRuns || settle());
        press();
    }
    EXPECT_TRUE(whileAFillRuns ? engine().canvas.isBusy() : settle());
    bool isRendered = false;
    editor.delegate().fullSizeImageWithCompletion([&](const QImage& image) {
        outcome.cutOut = image;
        isRendered = true;
    });
    held.reset();
    EXPECT_TRUE(drainUntil([&] { return isRendered; }));
    outcome.levels = levels();
    editor.dial().stepBy(0.05); // of the wand's, or of the brush's, which changes nothing
    outcome.afterTheDial = cutOut();
    return outcome;
}

TEST_F(EditorTouch, PressesDuringAFillTakeEffectInTheirOrderWhenItEnds)
{
    const Press invert = [this] { editor.press("invertMask"); };
    const Press undo = [this] { editor.press("undo"); };
    const Press tapDisc = [this] { tap(centre); };
    const Press restore = [this] {
        editor.press("replace");
        stroke({60, 300}, {300, 520});
    };
    const Press zoom = [this] { editor.touches().viewStepped({centre, {30, 0}, 1.5, 0.3}); };
    int number = 0;
    for (const std::vector<Press>& presses :
         {std::vector{invert}, std::vector{undo}, std::vector{restore, zoom, invert},
          std::vector{invert, tapDisc, undo, undo, undo}, std::vector{tapDisc, restore, undo}}) {
        SCOPED_TRACE(++number);
        const Outcome patient = outcomeOf(presses, false);
        const Outcome hasty = outcomeOf(presses, true);
        EXPECT_EQ(hasty.levels, patient.levels);
        EXPECT_EQ(hasty.cutOut, patient.cutOut);
        EXPECT_EQ(hasty.afterTheDial, patient.afterTheDial);
    }
}

TEST_F(EditorTouch, WhatWaitsForAFillGoesWithTheScreen)
{
    auto held = std::make_unique<HeldFills>();
    tap(ground);
    editor.press("invertMask");
    shown.reset();
    held.reset();
    ASSERT_TRUE(settle());
    EXPECT_EQ(levels(), 2U); // the tap's
}

TEST_F(EditorTouch, UndoUnderAPaintingFingerTakesItsStrokeBackAndEndsIt)
{
    editor.press("erasor");
    stroke({120, 350}, {270, 350});
    const QImage earlier = cutOut();
    touch().press(0, centre);
    touch().move(0, centre + QPoint(40, 0));
    EXPECT_NE(cutOut(), earlier);
    EXPECT_EQ(levels(), 2U);
    editor.press("undo");
    EXPECT_TRUE(editor.bars().showTools());
    touch().move(0, centre + QPoint(80, 0));
    // The level that is left belongs to another stroke: a pan doesn't take that one back.
    touch().stationary(0).press(1, {100, 600});
    touch().move(0, {290, 440}).move(1, {110, 620});
    touch().release(0, {290, 440}).release(1, {110, 620});
    EXPECT_EQ(cutOut(), earlier);
    EXPECT_EQ(levels(), 1U);

    // An inversion ends a stroke too, and leaves it its own level.
    touch().press(0, centre);
    touch().move(0, centre + QPoint(40, 0));
    const QImage painted = cutOut();
    editor.press("invertMask");
    touch().move(0, centre + QPoint(80, 0));
    editor.press("undo");
    EXPECT_EQ(cutOut(), painted);
    EXPECT_EQ(levels(), 2U);
}

TEST_F(EditorTouch, ASecondFingerTakesBackAStrokeThatHasJustBegun)
{
    for (const milliseconds age : {milliseconds(599), milliseconds(600)}) {
        open({390, 844});
        engine().now = [this] { return now; };
        editor.press("erasor");
        const QImage whole = cutOut();
        const QPointF photo = engine().canvas.fgImage.center;
        touch().press(0, {120, 400});
        touch().move(0, {140, 400});
        EXPECT_NE(cutOut(), whole);
        now += age;
        touch().stationary(0).press(1, {260, 440});
        const bool isYoung = age < milliseconds(600);
        EXPECT_EQ(cutOut() == whole, isYoung);
        EXPECT_EQ(levels(), isYoung ? 0U : 1U);
        EXPECT_TRUE(editor.bars().showTools());
        // From then on both belong to the view.
        const QImage left = cutOut();
        touch().move(0, {160, 420}).move(1, {280, 460});
        touch().stationary(0).release(1, {280, 460});
        touch().move(0, {220, 420});
        touch().release(0, {220, 420});
        EXPECT_EQ(cutOut(), left);
        EXPECT_GT(engine().canvas.fgImage.center.x(), photo.x());
    }
}

TEST_F(EditorTouch, ThePalmOfAWritingHandLeavesPenAndViewAlone)
{
    editor.press("erasor");
    const QImage whole = cutOut();
    const FgImage place = engine().canvas.fgImage;
    pen(QEvent::MouseButtonPress, {120, 400});
    pen(QEvent::MouseMove, {140, 400});
    touch().press(0, {300, 700});
    touch().stationary(0).press(1, {340, 760}); // a palm may be two touches
    const QImage begun = cutOut();
    EXPECT_NE(begun, whole);
    pen(QEvent::MouseMove, {180, 400});
    const QImage longer = cutOut();
    EXPECT_NE(longer, begun);
    touch().move(0, {280, 690}).move(1, {360, 780});
    touch().stationary(0).release(1, {360, 780});
    pen(QEvent::MouseMove, {220, 400});
    EXPECT_NE(cutOut(), longer);
    pen(QEvent::MouseButtonRelease, {220, 400});
    touch().release(0, {280, 690});
    EXPECT_EQ(levels(), 1U);
    EXPECT_EQ(engine().canvas.fgImage.center, place.center);
    EXPECT_EQ(engine().canvas.fgImage.scale, place.scale);
}

} // namespace
} // namespace pelmira
