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
class TouchedEditor : public test::ShownEditor {
public:
    TouchedEditor()
    {
        engine().now = [this] { return now; };
    }

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
    const QPointingDevice stylus{QStringLiteral("pen"),
                                 99,
                                 QInputDevice::DeviceType::Stylus,
                                 QPointingDevice::PointerType::Pen,
                                 QInputDevice::Capability::Position,
                                 1,
                                 3};
};

struct Outcome {
    QImage cutOut;
    std::size_t levels = 0;
    QImage afterTheDial;
    bool operator==(const Outcome&) const = default;
};

using Press = std::function<void(TouchedEditor&)>;

// What was pressed while a fill ran is what the same presses give one after the other.
Outcome outcomeOf(const std::vector<Press>& presses, bool whileAFillRuns)
{
    TouchedEditor editor;
    auto held = whileAFillRuns ? std::make_unique<HeldFills>() : nullptr;
    editor.tap(TouchedEditor::ground);
    Outcome outcome;
    for (const Press& press : presses) {
        EXPECT_TRUE(whileAFillRuns || editor.settle());
        press(editor);
    }
    EXPECT_TRUE(whileAFillRuns ? editor.engine().canvas.isBusy() : editor.settle());
    bool isRendered = false;
    editor.screen->fullSizeImageWithCompletion([&](const QImage& image) {
        outcome.cutOut = image;
        isRendered = true;
    });
    held.reset();
    EXPECT_TRUE(drainUntil([&] { return isRendered; }));
    outcome.levels = editor.levels();
    editor.screen->dial()->stepBy(0.05); // of the wand's, or of the brush's, which changes nothing
    EXPECT_TRUE(editor.settle());
    outcome.afterTheDial = editor.cutOut();
    return outcome;
}

TEST(EditorTouch, PressesDuringAFillTakeEffectInTheirOrderWhenItEnds)
{
    const Press invert = [](TouchedEditor& e) { e.screen->invertMaskButtonPressed(); };
    const Press undo = [](TouchedEditor& e) { e.screen->undoButtonPressed(); };
    const Press tap = [](TouchedEditor& e) { e.tap(TouchedEditor::centre); };
    const Press stroke = [](TouchedEditor& e) {
        e.screen->replaceButtonPressed();
        e.stroke({60, 300}, {300, 520});
    };
    const Press zoom = [](TouchedEditor& e) {
        e.screen->viewStepped({TouchedEditor::centre, {30, 0}, 1.5, 0.3});
    };
    const std::vector<std::vector<Press>> cases{{invert},
                                                {undo},
                                                {stroke, zoom, invert},
                                                {invert, tap, undo, undo, undo},
                                                {tap, stroke, undo}};
    for (std::size_t i = 0; i < cases.size(); ++i) {
        const Outcome patient = outcomeOf(cases[i], false);
        const Outcome hasty = outcomeOf(cases[i], true);
        EXPECT_EQ(hasty.levels, patient.levels) << i;
        EXPECT_EQ(hasty.cutOut, patient.cutOut) << i;
        EXPECT_EQ(hasty.afterTheDial, patient.afterTheDial) << i;
    }
}

TEST(EditorTouch, WhatWaitsForAFillGoesWithTheScreen)
{
    TouchedEditor editor;
    auto held = std::make_unique<HeldFills>();
    editor.tap(TouchedEditor::ground);
    editor.screen->invertMaskButtonPressed();
    editor.shown.reset();
    held.reset();
    ASSERT_TRUE(editor.settle());
    EXPECT_EQ(editor.levels(), 2U); // the tap's
}

TEST(EditorTouch, UndoUnderAPaintingFingerTakesItsStrokeBackAndEndsIt)
{
    TouchedEditor editor;
    editor.screen->erasorButtonPressed();
    editor.stroke({120, 350}, {270, 350});
    const QImage earlier = editor.cutOut();
    editor.touch().press(0, TouchedEditor::centre);
    editor.touch().move(0, TouchedEditor::centre + QPoint(40, 0));
    EXPECT_NE(editor.cutOut(), earlier);
    EXPECT_EQ(editor.levels(), 2U);
    editor.screen->undoButtonPressed();
    EXPECT_TRUE(editor.screen->bars()->showTools());
    editor.touch().move(0, TouchedEditor::centre + QPoint(80, 0));
    // The level that is left belongs to another stroke: a pan doesn't take that one back.
    editor.touch().stationary(0).press(1, {100, 600});
    editor.touch().move(0, {290, 440}).move(1, {110, 620});
    editor.touch().release(0, {290, 440}).release(1, {110, 620});
    EXPECT_EQ(editor.cutOut(), earlier);
    EXPECT_EQ(editor.levels(), 1U);

    // An inversion ends a stroke too, and leaves it its own level.
    editor.touch().press(0, TouchedEditor::centre);
    editor.touch().move(0, TouchedEditor::centre + QPoint(40, 0));
    const QImage painted = editor.cutOut();
    editor.screen->invertMaskButtonPressed();
    editor.touch().move(0, TouchedEditor::centre + QPoint(80, 0));
    editor.screen->undoButtonPressed();
    EXPECT_EQ(editor.cutOut(), painted);
    EXPECT_EQ(editor.levels(), 2U);
}

TEST(EditorTouch, ASecondFingerTakesBackAStrokeThatHasJustBegun)
{
    for (const milliseconds age : {milliseconds(599), milliseconds(600)}) {
        TouchedEditor editor;
        editor.screen->erasorButtonPressed();
        const QImage whole = editor.cutOut();
        const QPointF centre = editor.engine().canvas.fgImage.center;
        editor.touch().press(0, {120, 400});
        editor.touch().move(0, {140, 400});
        EXPECT_NE(editor.cutOut(), whole);
        editor.now += age;
        editor.touch().stationary(0).press(1, {260, 440});
        const bool isYoung = age < milliseconds(600);
        EXPECT_EQ(editor.cutOut() == whole, isYoung);
        EXPECT_EQ(editor.levels(), isYoung ? 0U : 1U);
        EXPECT_TRUE(editor.screen->bars()->showTools());
        // From then on both belong to the view.
        const QImage left = editor.cutOut();
        editor.touch().move(0, {160, 420}).move(1, {280, 460});
        editor.touch().stationary(0).release(1, {280, 460});
        editor.touch().move(0, {220, 420});
        editor.touch().release(0, {220, 420});
        EXPECT_EQ(editor.cutOut(), left);
        EXPECT_GT(editor.engine().canvas.fgImage.center.x(), centre.x());
    }
}

TEST(EditorTouch, ThePalmOfAWritingHandLeavesPenAndViewAlone)
{
    TouchedEditor editor;
    editor.screen->erasorButtonPressed();
    const QImage whole = editor.cutOut();
    const FgImage place = editor.engine().canvas.fgImage;
    editor.pen(QEvent::MouseButtonPress, {120, 400});
    editor.pen(QEvent::MouseMove, {140, 400});
    editor.touch().press(0, {300, 700});
    editor.touch().stationary(0).press(1, {340, 760}); // a palm may be two touches
    const QImage begun = editor.cutOut();
    EXPECT_NE(begun, whole);
    editor.pen(QEvent::MouseMove, {180, 400});
    const QImage longer = editor.cutOut();
    EXPECT_NE(longer, begun);
    editor.touch().move(0, {280, 690}).move(1, {360, 780});
    editor.touch().stationary(0).release(1, {360, 780});
    editor.pen(QEvent::MouseMove, {220, 400});
    EXPECT_NE(editor.cutOut(), longer);
    editor.pen(QEvent::MouseButtonRelease, {220, 400});
    editor.touch().release(0, {280, 690});
    EXPECT_EQ(editor.levels(), 1U);
    EXPECT_EQ(editor.engine().canvas.fgImage.center, place.center);
    EXPECT_EQ(editor.engine().canvas.fgImage.scale, place.scale);
}

} // namespace
} // namespace pelmira
