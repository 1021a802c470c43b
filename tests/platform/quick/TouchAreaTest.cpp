#include "platform/quick/TouchArea.h"
#include "platform/quick/PenMonitor.h"
#include "support/Test.h"
#include "support/WaitFor.h"

#include <QPointingDevice>
#include <QQuickWindow>
#include <QTabletEvent>
#include <QTest>
#include <QWheelEvent>

namespace pelmira {
namespace {

// Writes down what an area reports, one letter a phase.
struct Recorder final : TouchResponder {
    void touchesBegan(const TouchEvent& event) override { note('b', event); }
    void touchesMoved(const TouchEvent& event) override { note('m', event); }
    void touchesEnded(const TouchEvent& event) override { note('e', event); }
    void touchesCancelled(const TouchEvent& event) override { note('c', event); }
    void viewStepped(const ViewStep& step) override { steps.push_back(step); }
    void penIsNear(bool isNear) override { penNear = isNear; }
    void pencilInteractionDidTap() override { ++penTaps; }

    void note(char phase, const TouchEvent& event)
    {
        phases += phase + std::to_string(event.allTouches.size());
        last = event;
        path.push_back(event.anyTouch().location);
    }

    std::string phases;
    TouchEvent last;
    std::vector<QPointF> path;
    std::vector<ViewStep> steps;
    bool penNear = false;
    int penTaps = 0;
};

struct TouchAreaInAWindow : testing::Test {
    void SetUp() override
    {
        window.resize(400, 400);
        area.setParentItem(window.contentItem());
        area.setPosition({50, 40});
        area.setSize({300, 300});
        area.setResponder(&recorder);
        window.show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(&window));
    }

    auto touch() { return QTest::touchEvent(&window, finger.get(), false); }
    void drag(Qt::MouseButton button, QPoint way)
    {
        const QPoint from(100, 100);
        QTest::mousePress(&window, button, {}, from);
        QTest::mouseMove(&window, from + way);
        QTest::mouseRelease(&window, button, {}, from + way);
    }
    void wheel(QPoint pixels, QPoint angle, Qt::KeyboardModifiers modifiers)
    {
        QWheelEvent event({200, 200}, {200, 200}, pixels, angle, Qt::NoButton, modifiers,
                          Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(&window, &event);
    }

    std::unique_ptr<QPointingDevice> finger{QTest::createTouchDevice()};
    QQuickWindow window;
    TouchArea area;
    Recorder recorder;
};

TEST_F(TouchAreaInAWindow, LosesNoPointBetweenTwoFrames)
{
    touch().press(0, {100, 100}).commit();
    for (int i = 1; i <= 25; ++i)
        touch().move(0, {100 + i, 100 + 2 * i}).commit(false);
    touch().release(0, {126, 152}).commit();
    ASSERT_EQ(recorder.path.size(), 27U);
    for (int i = 0; i <= 26; ++i) // in the area's own coordinates
        EXPECT_EQ(recorder.path[std::size_t(i)], QPointF(50 + i, 60 + 2 * i));
    EXPECT_EQ(recorder.phases.front(), 'b');
    EXPECT_TRUE(recorder.last.anyTouch().hasEnded);
}

TEST_F(TouchAreaInAWindow, EndsATouchThatIsTakenAway)
{
    touch().press(0, {100, 100}).commit();
    area.ungrabTouchPoints();
    EXPECT_EQ(recorder.phases, "b1c1");
    touch().release(0, {100, 100}).commit();
    touch().press(0, {20, 20}).commit(); // beside the area
    touch().release(0, {20, 20}).commit();
    EXPECT_EQ(recorder.phases, "b1c1");
}

TEST_F(TouchAreaInAWindow, TakesTheMouseForAFingerAndItsMiddleButtonForTheView)
{
    drag(Qt::LeftButton, {20, 10});
    EXPECT_EQ(recorder.phases, "b1m1e1");
    EXPECT_EQ(recorder.last.anyTouch().kind, TouchKind::Mouse);

    drag(Qt::MiddleButton, {30, -10});
    ASSERT_EQ(recorder.steps.size(), 1U);
    EXPECT_EQ(recorder.steps[0].translation, QPointF(30, -10));

    // The button that was first counts, whichever is let go of first.
    QTest::mousePress(&window, Qt::LeftButton, {}, {100, 100});
    QTest::mousePress(&window, Qt::MiddleButton, {}, {100, 100});
    QTest::mouseMove(&window, {120, 110});
    QTest::mouseRelease(&window, Qt::LeftButton, {}, {120, 110});
    QTest::mouseMove(&window, {140, 120});
    QTest::mouseRelease(&window, Qt::MiddleButton, {}, {140, 120});
    EXPECT_EQ(recorder.phases, "b1m1e1b1m1e1");
    EXPECT_EQ(recorder.last.anyTouch().location, QPointF(70, 70));
    QTest::mousePress(&window, Qt::MiddleButton, {}, {100, 100});
    QTest::mousePress(&window, Qt::LeftButton, {}, {100, 100});
    QTest::mouseRelease(&window, Qt::LeftButton, {}, {100, 100});
    QTest::mouseMove(&window, {130, 90});
    QTest::mouseRelease(&window, Qt::MiddleButton, {}, {130, 90});
    EXPECT_EQ(recorder.phases, "b1m1e1b1m1e1");
    ASSERT_EQ(recorder.steps.size(), 2U);
    EXPECT_EQ(recorder.steps[1].translation, QPointF(30, -10));
    recorder.phases = "b1m1e1";
    recorder.steps.resize(1);

    QTest::keyPress(&window, Qt::Key_Space);
    drag(Qt::LeftButton, {1, 5});
    QTest::keyRelease(&window, Qt::Key_Space);
    ASSERT_EQ(recorder.steps.size(), 2U);
    EXPECT_EQ(recorder.steps[1].translation, QPointF(1, 5));
    EXPECT_EQ(recorder.phases, "b1m1e1");
}

TEST_F(TouchAreaInAWindow, WheelsAndTouchpadsStepTheViewAboutThePointer)
{
    wheel({}, {0, 120}, Qt::ControlModifier);
    wheel({}, {0, -120}, Qt::ControlModifier);
    wheel({}, {120, 0}, Qt::AltModifier);
    wheel({7, -3}, {56, -24}, {});
    ASSERT_EQ(recorder.steps.size(), 4U);
    EXPECT_EQ(recorder.steps[0].about, QPointF(150, 160));
    EXPECT_GT(recorder.steps[0].scale, 1.0);
    EXPECT_NEAR(recorder.steps[0].scale * recorder.steps[1].scale, 1.0, 1e-12);
    EXPECT_GT(recorder.steps[2].rotation, 0.0);
    EXPECT_EQ(recorder.steps[3].translation, QPointF(7, -3));
    EXPECT_EQ(recorder.steps[3].scale, 1.0);
    recorder.steps.clear();
    area.setProperty("wheelZooms", true); // where there is nothing to scroll
    wheel({}, {0, 120}, {});
    wheel({}, {0, 120}, Qt::ShiftModifier);
    wheel({7, -3}, {56, -24}, {});
    ASSERT_EQ(recorder.steps.size(), 3U);
    EXPECT_GT(recorder.steps[0].scale, 1.0);
    EXPECT_GT(recorder.steps[1].rotation, 0.0);
    EXPECT_EQ(recorder.steps[2].translation, QPointF(7, -3));
    recorder.steps.clear();

    QNativeGestureEvent pinch(Qt::ZoomNativeGesture, QPointingDevice::primaryPointingDevice(), 2,
                              {200, 200}, {200, 200}, {200, 200}, 0.1, {});
    QCoreApplication::sendEvent(&window, &pinch);
    ASSERT_EQ(recorder.steps.size(), 1U);
    EXPECT_NEAR(recorder.steps[0].scale, 1.1, 1e-9);
}

TEST_F(TouchAreaInAWindow, APenIsNoticedAndItsSideButtonCountsOnce)
{
    Recorder below;
    TouchResponder* front = &recorder;
    PenMonitor monitor([&] { return std::vector<TouchResponder*>{front, &below}; });
    QPointingDevice pen(QStringLiteral("pen"), 99, QInputDevice::DeviceType::Stylus,
                        QPointingDevice::PointerType::Pen,
                        QInputDevice::Capability::Position | QInputDevice::Capability::Hover, 1, 3);
    const auto send = [&](QEvent::Type type, Qt::MouseButton button, Qt::MouseButtons buttons) {
        QTabletEvent event(type, &pen, {200, 200}, {200, 200}, 0.5, 0, 0, 0, 0, 0, {}, button,
                           buttons);
        QCoreApplication::sendEvent(&window, &event);
    };
    send(QEvent::TabletMove, Qt::NoButton, {}); // hovers
    EXPECT_TRUE(recorder.penNear);
    EXPECT_TRUE(below.penNear);
    send(QEvent::TabletPress, Qt::RightButton, Qt::RightButton);
    send(QEvent::TabletMove, Qt::NoButton, Qt::RightButton);
    send(QEvent::TabletRelease, Qt::RightButton, {});
    EXPECT_EQ(recorder.penTaps, 1);
    send(QEvent::TabletPress, Qt::LeftButton, Qt::LeftButton);
    send(QEvent::TabletRelease, Qt::LeftButton, {});
    EXPECT_EQ(recorder.penTaps, 1);
    // Not every driver tells that it goes. Fingers would stay dead, also of the screen below.
    passTime(2.0);
    EXPECT_TRUE(waitFor([&] { return !recorder.penNear && !below.penNear; }));
    send(QEvent::TabletEnterProximity, Qt::NoButton, {});
    send(QEvent::TabletMove, Qt::NoButton, {});
    passTime(2.0);
    drainMainQueue();
    EXPECT_TRUE(recorder.penNear); // where it is told, a pen may be held still
    send(QEvent::TabletLeaveProximity, Qt::NoButton, {});
    EXPECT_FALSE(recorder.penNear || below.penNear);
    front = nullptr; // another kind of screen
    send(QEvent::TabletPress, Qt::RightButton, Qt::RightButton);
    EXPECT_TRUE(below.penNear);
    EXPECT_EQ(below.penTaps, 0);
}

} // namespace
} // namespace pelmira
