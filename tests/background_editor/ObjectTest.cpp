#include "background_editor/canvas/BGEWorkAreaView.h"
#include "support/Fingers.h"
#include "support/Test.h"

namespace pelmira {
namespace {

using Part = SelectableObjectView::Part;

constexpr double slack = 1e-9;
const QPointF middle(200, 150);

/// A work area of 400 by 300 points, all of it canvas, with an object of 200 by 100 in its middle.
struct Object : testing::Test {
    Object()
    {
        area.setBounds({400, 300});
        QImage image(400, 200, QImage::Format_ARGB32_Premultiplied);
        area.setFgStickerView(std::make_unique<StickerView>(
            image, std::make_shared<StickerView::OriginalImage>(), middle, 0.0, 200.0));
        area.fgStickerView()->hideDeleteButton = true;
    }
    StickerView& object() { return *area.fgStickerView(); }
    void select() { fingers.tap(middle); }
    /// A place of the object, in the work area.
    QPointF at(double x, double y) { return object().pointToSuperview({x, y}); }
    QPointF corner() { return at(object().bounds().width(), object().bounds().height()); }
    void expectBounds(double width, double height, double tolerance = slack)
    {
        EXPECT_NEAR(object().bounds().width(), width, tolerance);
        EXPECT_NEAR(object().bounds().height(), height, tolerance);
    }

    BGEWorkAreaView area;
    test::Fingers<BGEWorkAreaView> fingers{area};
};

TEST_F(Object, ATapSelectsOrUnselectsAndADragMovesItFromWhereThatAllows)
{
    fingers.tap({5, 5}); // beside the object
    EXPECT_FALSE(object().selected);
    select();
    EXPECT_TRUE(object().selected);
    fingers.tap({5, 5});
    EXPECT_FALSE(object().selected);

    fingers.stroke({5, 5}, {50, 50});
    EXPECT_EQ(object().center(), middle);
    fingers.stroke(middle, middle + QPointF(30, -20));
    EXPECT_EQ(object().center(), middle + QPointF(30, -20));
    EXPECT_FALSE(object().selected); // a drag is no tap
    fingers.tap(middle);
    fingers.stroke({5, 5}, {905, 5}); // from anywhere, and beyond the canvas
    EXPECT_EQ(object().center(), middle + QPointF(930, -20));
    EXPECT_TRUE(object().selected);
}

TEST_F(Object, KeysAndWheelsMoveScaleAndTurnItWhereAFingerWould)
{
    area.step(1, 0, false);
    area.step(0, -1, true);
    EXPECT_EQ(object().center(), middle + QPointF(1, -10));
    area.zoomSteps(1);
    expectBounds(210, 105);
    area.zoomSteps(-1);
    expectBounds(200, 100);
    area.turnSteps(18);
    EXPECT_NEAR(object().rotation(), std::numbers::pi / 2, slack);

    object().setRotation(0.0);
    object().setCenter(middle);
    area.viewStepped({{5, 5}, {}, 2.0, 0.0});
    expectBounds(200, 100);
    area.viewStepped({middle, {3, 4}, 2.0, 0.5});
    expectBounds(400, 200);
    EXPECT_EQ(object().center(), middle + QPointF(3, 4));
    EXPECT_NEAR(object().rotation(), 0.5, slack);
    area.viewStepped({middle, {std::numeric_limits<double>::quiet_NaN(), 0}});
    EXPECT_EQ(object().center(), middle + QPointF(3, 4));
}

TEST_F(Object, TouchesOnTheMasksDoNotReachIt)
{
    area.bgAspectRatio = 1.0; // the canvas is 300 wide: the object's left end lies on a mask
    object().setCenter({60, 150});
    area.layoutSubviews();
    fingers.tap({20, 150});
    EXPECT_FALSE(object().selected);
    fingers.tap({70, 150});
    EXPECT_TRUE(object().selected);
    fingers.tap({20, 150});
    EXPECT_TRUE(object().selected);
    fingers.drag({20, 150}, {90, 150}); // a thumb that held the device and slips
    fingers.press(1, {200, 150});
    fingers.move(1, {260, 150});
    EXPECT_EQ(object().center(), QPointF(120, 150));
    expectBounds(200, 100);
}

TEST_F(Object, TwoFingersMoveScaleAndTurnItTogetherAndOneGoesOn)
{
    fingers.press(0, middle - QPointF(50, 0));
    fingers.press(1, middle + QPointF(50, 0));
    fingers.move(0, middle + QPointF(10, -100));
    fingers.move(1, middle + QPointF(10, 100));
    EXPECT_NEAR(object().rotation(), std::numbers::pi / 2, slack);
    expectBounds(400, 200);
    EXPECT_NEAR(object().center().x(), middle.x() + 10, slack);
    fingers.lift(0);
    const QPointF before = object().center();
    fingers.move(1, middle + QPointF(20, 100));
    EXPECT_NEAR(object().center().x(), before.x() + 10, slack);
    expectBounds(400, 200);
    fingers.lift(1);
    EXPECT_FALSE(object().selected);
}

TEST_F(Object, TheResizeButtonTurnsAndScalesAboutTheCentre)
{
    select();
    const QPointF target = middle + QPointF(90, 200);
    fingers.drag(corner(), target);
    EXPECT_LT((corner() - target).manhattanLength(), 1e-6);
    EXPECT_EQ(object().center(), middle);
    EXPECT_NEAR(object().bounds().width() / object().bounds().height(), 2.0, slack);
    // A second finger waits until the handle is free.
    fingers.press(1, {10, 10});
    fingers.move(1, {100, 100});
    EXPECT_EQ(object().center(), middle);
    fingers.lift(1);
    fingers.lift(0);
    EXPECT_TRUE(object().selected);
}

TEST_F(Object, TheResizeButtonSnapsToRightAnglesOnEitherSide)
{
    select();
    const double diagonal = std::atan2(50, 100);
    const auto dragTo = [&](double rotation) {
        const double angle = rotation + diagonal;
        fingers.stroke(corner(), middle + 110.0 * QPointF(std::cos(angle), std::sin(angle)));
        return object().rotation();
    };
    constexpr double right = std::numbers::pi / 2;
    EXPECT_EQ(dragTo(0.04), 0.0);
    EXPECT_EQ(dragTo(right + 0.049), right);
    EXPECT_EQ(dragTo(-right - 0.049), -right);
    EXPECT_NEAR(dragTo(right - 0.06), right - 0.06, 1e-6);
    EXPECT_EQ(std::abs(dragTo(2 * right - 0.03)), 2 * right);
    EXPECT_NEAR(dragTo(-0.06), -0.06, 1e-6);
}

TEST_F(Object, APalmBesideThePenNeitherMovesItNorEndsTheDrag)
{
    select();
    test::Fingers<BGEWorkAreaView> pen(area, TouchKind::Pen);
    pen.drag(middle, middle + QPointF(20, 0));
    const QPointF from = object().center() - QPointF(20, 0);
    for (int x = 21; x < 40; x += 6) {
        fingers.press(1, {300, 280});
        pen.move(0, middle + QPointF(x, 0));
        fingers.move(1, {310, 285});
        pen.move(0, middle + QPointF(x + 1, 0));
        if (x == 27)
            fingers.cancel();
        else
            fingers.lift(1);
        EXPECT_EQ(object().center(), from + QPointF(x + 1, 0));
    }
    pen.lift(0);
    fingers.stroke(middle, middle + QPointF(0, 30)); // and then it is a finger's again
    EXPECT_EQ(object().center(), from + QPointF(40, 30));

    fingers.press(1, middle + QPointF(60, 40)); // the palm first
    pen.drag(middle, middle + QPointF(20, 0));
    fingers.move(1, {320, 280});
    fingers.lift(1);
    pen.lift(0);
    EXPECT_EQ(object().center(), from + QPointF(60, 30));
    EXPECT_TRUE(object().selected);
}

TEST_F(Object, DraggedToNothingItComesBackToItsLeastSize)
{
    select();
    fingers.drag(corner(), middle + QPointF(2, 1));
    expectBounds(4, 2, 1e-6);
    fingers.cancel();
    expectBounds(20, 10);
    EXPECT_TRUE(object().animates());
    fingers.drag({5, 5}, {6, 60}); // it can be taken up again
    EXPECT_FALSE(object().animates());
    area.scaleBy(1e-30);
    expectBounds(20, 10);
    for (int i = 0; i < 100; ++i)
        area.scaleBy(1e30);
    EXPECT_TRUE(std::isfinite(object().bounds().width()));
    area.setFgStickerView(nullptr); // and one whose object has gone does nothing
    fingers.lift(0);
    fingers.tap(middle);
    area.viewStepped({middle, {5, 5}});
}

TEST_F(Object, EdgeHandlesStretchItAndSnapToItsOwnShape)
{
    select();
    fingers.stroke(at(0, 50), at(40, 50));
    expectBounds(120, 100);
    EXPECT_EQ(object().center(), middle);
    fingers.stroke(at(0, 50), at(-37, 50)); // 194, close to the undeformed 200
    expectBounds(200, 100);
    fingers.stroke(at(100, 100), at(100, 20)); // past the middle
    expectBounds(200, 10);
    // A pinch to nothing goes back to the shape that the resize button last held, or the image's.
    area.scaleBy(0.01);
    expectBounds(20, 10);
    // On a turned object they follow the finger.
    object().setBounds({200, 100});
    object().setRotation(std::numbers::pi / 2);
    fingers.stroke(at(100, 100), at(100, 130));
    expectBounds(200, 160, 1e-6);
}

TEST_F(Object, TheFlipButtonMirrorsTheContentAndNothingElse)
{
    fingers.tap(at(-10, 110)); // hidden, and beside the object
    EXPECT_FALSE(object().contentViewHFlip());
    select();
    fingers.tap(at(-10, 110));
    EXPECT_TRUE(object().contentViewHFlip());
    EXPECT_TRUE(object().selected);
    expectBounds(200, 100);
    fingers.tap(at(-10, 110));
    EXPECT_FALSE(object().contentViewHFlip());
    // The corner of the hidden delete button is the object itself.
    EXPECT_EQ(object().hitTest({0, 0}), Part::Object);
    object().hideFlipButton = true;
    EXPECT_EQ(object().hitTest({0, 100}), Part::Object);
}

} // namespace
} // namespace pelmira
