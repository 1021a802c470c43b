#include "crop/CropBox.h"
#include "crop/CropMotion.h"
#include "crop/TOCropView.h"
#include "support/Test.h"

namespace pelmira {
namespace {

constexpr double slack = 1e-6;
const QRectF surface(0, 44, 390, 720);

bool covers(const QRectF& image, const QRectF& box)
{
    return image.adjusted(-slack, -slack, slack, slack).contains(box);
}

struct CropView : testing::Test {
    static TOCropView open(QSizeF image)
    {
        TOCropView view(image);
        view.setBounds(surface);
        return view;
    }
    static void expectNear(const QRectF& actual, const QRectF& wanted)
    {
        EXPECT_TRUE(covers(actual, wanted) && covers(wanted, actual));
    }
};

TEST_F(CropView, AnImageOfAnyShapeIsChosenWhole)
{
    for (const QSizeF size : {QSizeF(1, 1), QSizeF(1, 20000), QSizeF(20000, 3), QSizeF(30, 20),
                              QSizeF(5472, 3648), QSizeF(999, 1000)}) {
        TOCropView view = open(size);
        EXPECT_EQ(QSizeF(view.imageCropFrame().size()), size);
        // A touch that changes nothing changes nothing.
        ASSERT_TRUE(view.beginCropBoxDrag(view.cropBoxFrame().topLeft(), 0.0));
        view.endCropBoxDrag(0.1);
        view.advance(1.0);
        view.settle();
        EXPECT_EQ(QSizeF(view.imageCropFrame().size()), size);
    }
}

TEST_F(CropView, ADraggedBoxSettlesInTheMiddleAfterTheWaitAndKeepsItsPart)
{
    TOCropView view = open({4000, 3000});
    ASSERT_TRUE(view.beginCropBoxDrag(view.cropBoxFrame().topLeft(), 0.0));
    EXPECT_TRUE(view.isEditing());
    view.updateCropBoxFrameWithGesturePoint(view.cropBoxFrame().topLeft() + QPointF(181, 135.5));
    const QRectF image = view.imageFrame();
    view.endCropBoxDrag(10.0);
    EXPECT_EQ(view.imageCropFrame(), QRect(2000, 1500, 2000, 1500));
    view.advance(10.79);
    EXPECT_EQ(view.imageFrame(), image);
    EXPECT_TRUE(view.isEditing());
    view.advance(10.8);
    EXPECT_FALSE(view.isEditing());
    EXPECT_TRUE(view.isMoving());
    view.advance(10.95);
    EXPECT_TRUE(covers(view.imageFrame(), view.cropBoxFrame()));
    EXPECT_EQ(view.imageCropFrame(), QRect(2000, 1500, 2000, 1500));
    view.advance(11.31);
    EXPECT_FALSE(view.isMoving());
    expectNear(view.cropBoxFrame(), QRectF(14, 268.5, 362, 271));
    EXPECT_EQ(view.imageCropFrame(), QRect(2000, 1500, 2000, 1500));

    view.panBy({0, 0}, 20.0);
    view.beginScroll({195, 400}, 20.5); // a new edit starts the wait again
    view.advance(25.0);
    EXPECT_TRUE(view.isEditing());
    view.endScroll({}, 26.0);
    EXPECT_GE(view.resetTime().value_or(0.0), 26.8);
}

TEST_F(CropView, ZoomKeepsWhatLiesUnderThePointAndADraggedBoxTakesTheImageAlong)
{
    TOCropView view = open({4000, 3000});
    const QPointF about(100, 300);
    const QRectF before = view.imageFrame();
    view.zoomBy(2.0, about, 0.0);
    expectNear(view.imageFrame(), {about + (before.topLeft() - about) * 2, before.size() * 2});
    view.zoomBy(1e9, about, 0.0);
    EXPECT_NEAR(view.zoomScale(), 15.0, slack);
    view.zoomBy(1e-9, about, 0.0);
    expectNear(view.imageFrame(), before);

    // The image lies flat in an upright surface: the top edge has nothing above it.
    ASSERT_EQ(view.cropBoxFrame(), before);
    ASSERT_TRUE(view.beginCropBoxDrag({195, before.top()}, 0.0));
    view.updateCropBoxFrameWithGesturePoint({195, before.top() - 100});
    EXPECT_EQ(view.cropBoxFrame(), before.adjusted(0, -100, 0, 0));
    EXPECT_TRUE(covers(view.imageFrame(), view.cropBoxFrame()));
    EXPECT_NEAR(view.imageFrame().height(), 371, slack);
    // On the way back it lets go of it.
    view.updateCropBoxFrameWithGesturePoint({195, before.top()});
    EXPECT_EQ(view.imageFrame(), before);
}

TEST_F(CropView, APullBeyondTheImageGivesWayAndSpringsBack)
{
    TOCropView view = open({4000, 3000});
    const QRectF rest = view.imageFrame();
    view.beginScroll({195, 400}, 0.0);
    view.scroll({295, 400}, 1.0);
    EXPECT_NEAR(view.imageFrame().left() - rest.left(), rubberBand(100, 362), slack);
    EXPECT_EQ(view.imageCropFrame(), QRect(0, 0, 4000, 3000));
    // A second finger takes hold without a jump, and pinches below the smallest zoom.
    const QRectF pulled = view.imageFrame();
    view.beginScroll({250, 420}, 0.1);
    view.scroll({250, 420}, 1.0);
    expectNear(view.imageFrame(), pulled);
    view.scroll({250, 420}, 0.5);
    EXPECT_LT(view.imageFrame().width(), 362 * 0.9);
    EXPECT_GT(view.imageFrame().width(), 362 * 0.5);
    view.endScroll({}, 1.0);
    view.advance(1.25);
    EXPECT_TRUE(view.isMoving());
    view.advance(1.5);
    expectNear(view.imageFrame(), rest);
}

TEST_F(CropView, ARatioKeepsOneSideOfTheBoxAndFitsTheContentBounds)
{
    const QRectF start = open({4000, 3000}).cropBoxFrame();
    // The image's height lost half a point of 271.5; what is square in pixels is so on the surface
    // but for that.
    const double flat = 362.0 / 271 * 3 / 4;
    const double upright = 362.0 / 482 * 4 / 3;
    const struct {
        QSizeF image, ratio, box;
    } cases[] = {
        {{4000, 3000}, {4, 5}, {271 * 0.8 * flat, 271}},       // upright: the height stays
        {{4000, 3000}, {16, 9}, {362, 362 * 9.0 / 16 / flat}}, // flat: the width
        {{4000, 3000}, {1, 1}, {271 * flat, 271}},             // square, flat image: the height
        {{3000, 4000}, {1, 1}, {362, 362 / upright}},          // upright image: the width
        {{4000, 3000}, {0, 0}, {362, 271}},                    // the image's own
        {{3000, 4000}, {1e-8, 1e-8}, {362, 482}},
        {{3000, 4000}, {99, 100}, {362, 362 / 0.99 / upright}}, // too wide: both scaled down
    };
    for (const auto& [image, ratio, box] : cases) {
        TOCropView view = open(image);
        view.setAspectRatio(ratio, false, 0.0);
        EXPECT_NEAR(view.cropBoxFrame().width(), box.width(), slack) << ratio.width();
        EXPECT_NEAR(view.cropBoxFrame().height(), box.height(), slack) << ratio.height();
        EXPECT_TRUE(covers(view.imageFrame(), view.cropBoxFrame()));
        EXPECT_EQ(view.cropBoxFrame().center(), start.center());
    }
}

TEST_F(CropView, TryingRatiosOneAfterAnotherLosesNothing)
{
    TOCropView view = open({4000, 3000});
    double now = 0.0;
    const auto choose = [&](QSizeF ratio) {
        view.setAspectRatio(ratio, true, now);
        view.setAspectRatioLockEnabled(true);
        now += 3.0;
        view.advance(now - 2.0); // the wait is over
        view.advance(now);
        return view.imageCropFrame();
    };
    EXPECT_EQ(choose({1, 1}).height(), 3000);
    for (int i = 0; i < 3; ++i) {
        EXPECT_EQ(choose({9, 16}).height(), 3000);
        EXPECT_EQ(choose({16, 9}).width(), 4000);
    }
    EXPECT_EQ(choose({4000, 3000}), QRect(0, 0, 4000, 3000));
    // With the lock a chosen square is one in pixels too.
    const QRect square = choose({1, 1});
    EXPECT_EQ(square.width(), square.height());
    EXPECT_NEAR(square.center().x(), 2000, 2);
    EXPECT_EQ(choose({7, 5}).size(), QSize(4000, 2858)); // rounded up
}

TEST_F(CropView, AnotherSizeOfTheSurfaceKeepsWhatIsChosen)
{
    TOCropView view = open({4000, 3000});
    view.setBounds(QRectF(0, 44, 844, 266));
    EXPECT_EQ(view.imageCropFrame(), QRect(0, 0, 4000, 3000));
    view.setImageCropFrame(QRect(1000, 500, 800, 1200));
    view.setBounds(surface);
    EXPECT_EQ(view.imageCropFrame(), QRect(1000, 500, 800, 1200));
    EXPECT_NEAR(view.cropBoxFrame().height(), 362 * 1.5, 2.0);
    view.setBounds(QRectF(0, 44, 10, 0)); // nothing to see, nothing lost
    view.setBounds(surface);
    EXPECT_EQ(view.imageCropFrame(), QRect(1000, 500, 800, 1200));
    view.setImageCropFrame(QRect(3900, 2900, 800, 1200));
    EXPECT_EQ(view.imageCropFrame(), QRect(3900, 2900, 100, 100));
}

/// Whatever the user does and whenever: the box stays where it may be, a settled image covers it,
/// and what is chosen lies in the image.
TEST_F(CropView, HoldsItsPromisesThroughAnyOperations)
{
    std::mt19937 random(20);
    std::uniform_real_distribution<double> part(0, 1);
    const auto within = [&](double low, double high) { return low + part(random) * (high - low); };
    for (const QSizeF size :
         {QSizeF(5472, 3648), QSizeF(600, 2400), QSizeF(20, 12), QSizeF(9000, 7)}) {
        TOCropView view = open(size);
        double now = 0.0;
        for (int i = 0; i < 4000; ++i) {
            now += within(0, 0.4);
            const QPointF point(within(-50, 900), within(0, 900));
            const QRectF box = view.cropBoxFrame();
            const std::function<void()> deeds[] = {
                [&] { view.advance(now); },
                [&] { view.updateCropBoxFrameWithGesturePoint(point); },
                [&] { view.scroll(point, within(0.2, 3.0)); },
                [&] { view.zoomBy(within(0.3, 4.0), point, now); },
                [&] {
                    view.beginCropBoxDrag(
                        {box.left() + within(-20, 20), within(box.top(), box.bottom())}, now);
                },
                [&] {
                    view.endCropBoxDrag(now);
                    view.beginScroll(point, now);
                },
                [&] {
                    view.endCropBoxDrag(now);
                    view.endScroll({within(-4000, 4000), within(-4000, 4000)}, now);
                },
                [&] {
                    view.setAspectRatio({within(0, 3), within(0, 3)}, random() % 2, now);
                    view.setAspectRatioLockEnabled(random() % 2);
                },
                [&] {
                    if (random() % 8 == 0)
                        view.setBounds(QRectF(0, 44, within(200, 1000), within(200, 900)));
                },
            };
            deeds[random() % std::size(deeds)]();
            ASSERT_TRUE(covers(view.contentBounds(), view.cropBoxFrame())) << i;
            const QRect frame = view.imageCropFrame();
            ASSERT_FALSE(frame.isEmpty());
            ASSERT_TRUE(QRect(QPoint(), size.toSize()).contains(frame)) << i;
            const QSizeF content = view.contentBounds().size();
            const double most =
                std::max({15.0, content.width() / size.width(), content.height() / size.height()});
            ASSERT_LE(view.zoomScale(), most * 2.02) << i; // twice what a pull shows
            TOCropView settled = view;
            settled.settle();
            ASSERT_TRUE(covers(settled.imageFrame(), settled.cropBoxFrame())) << i;
        }
    }
}

const QRectF content(14, 58, 362, 600);

TEST(CropBox, APointFindsTheCornersFirstThenTheSidesWithinThirtyTwoPoints)
{
    const QRectF box(100, 100, 200, 300);
    const struct {
        QPointF point;
        CropEdge edge;
    } cases[] = {
        {{100, 100}, CropEdge::TopLeft},     {{131, 69}, CropEdge::TopLeft},
        {{300, 100}, CropEdge::TopRight},    {{100, 400}, CropEdge::BottomLeft},
        {{331, 431}, CropEdge::BottomRight}, {{200, 131}, CropEdge::Top},
        {{200, 431}, CropEdge::Bottom},      {{69, 250}, CropEdge::Left},
        {{269, 250}, CropEdge::Right},       {{200, 250}, CropEdge::None},
        {{67, 100}, CropEdge::None},         {{100, 433}, CropEdge::None},
        {{267, 250}, CropEdge::None},
    };
    for (const auto& [point, edge] : cases)
        EXPECT_EQ(cropEdgeForPoint(box, point), edge) << point.x() << ", " << point.y();
    // In a box where all corners overlap, the first one has it.
    EXPECT_EQ(cropEdgeForPoint(QRectF(100, 100, 42, 42), {121, 121}), CropEdge::TopLeft);
}

TEST(CropBox, AFreeDragMovesOnlyTheSidesItHoldsALockedOneKeepsTheShape)
{
    const QRectF box(100, 200, 200, 100);
    const struct {
        CropEdge edge;
        QPointF by;
        bool isLocked;
        QRectF result;
    } drags[] = {
        {CropEdge::Left, {-30, 99}, false, {70, 200, 230, 100}},
        {CropEdge::BottomRight, {10, 20}, false, {100, 200, 210, 120}},
        {CropEdge::TopLeft, {-500, -500}, false, {14, 58, 286, 242}}, // the content bounds
        {CropEdge::TopLeft, {500, 500}, false, {258, 258, 42, 42}},   // the smallest box
        // A side scales about the middle of the other one.
        {CropEdge::Left, {100, 0}, true, {200, 225, 100, 50}},
        {CropEdge::Bottom, {0, 20}, true, {80, 200, 240, 120}},
        // A corner moves on the diagonal, whatever is across it doesn't count.
        {CropEdge::BottomRight, {-100, -50}, true, {100, 200, 100, 50}},
        {CropEdge::BottomRight, {-50, 100}, true, box},
    };
    for (const auto& [edge, by, isLocked, result] : drags)
        EXPECT_EQ(draggedCropBox(edge, box, by, content, isLocked), result);
}

TEST(CropBox, AnyDragStaysInsideItsLimits)
{
    std::mt19937 random(7);
    std::uniform_real_distribution<double> part(0, 1);
    for (int i = 0; i < 20000; ++i) {
        const QSizeF size(42 + part(random) * 320, 42 + part(random) * 558);
        const QPointF corner(14 + part(random) * (362 - size.width()),
                             58 + part(random) * (600 - size.height()));
        const QRectF box(corner, size);
        const auto edge = static_cast<CropEdge>(1 + random() % 8);
        const bool locked = random() % 2;
        const QPointF delta(part(random) * 1600 - 800, part(random) * 1600 - 800);
        const QRectF dragged = draggedCropBox(edge, box, delta, content, locked);
        ASSERT_TRUE(content.adjusted(-1e-6, -1e-6, 1e-6, 1e-6).contains(dragged));
        ASSERT_GE(std::min(dragged.width(), dragged.height()), 42 - 1e-6);
        if (locked) {
            ASSERT_NEAR(dragged.width() / dragged.height(), size.width() / size.height(), 1e-6);
        }
        const QPointF moved = fixedPointForEdge(edge, dragged) - fixedPointForEdge(edge, box);
        if (locked || edge == CropEdge::TopLeft || edge == CropEdge::BottomRight) {
            ASSERT_LT(moved.manhattanLength(), 1e-6);
        }
    }
}

TEST(CropMotion, AGlideSlowsDownAndComesBackFromTheEndsItPasses)
{
    const Glide free{0, 1000, -2000, 2000};
    // 0.998 a millisecond leaves 13.5 % of the speed after a second: 499.5 points in all.
    EXPECT_NEAR((free.position(1.001) - free.position(1.0)) / 0.001, 135, 1.0);
    EXPECT_NEAR(free.position(free.duration()), 499.5 - 6, 1.0);

    const Glide against{0, -3000, -100, 100};
    double furthest = 0.0;
    for (double t = 0; t < against.duration(); t += 0.001) {
        ASSERT_LT(std::abs(against.position(t + 0.001) - against.position(t)), 3.1) << t;
        furthest = std::min(furthest, against.position(t));
    }
    EXPECT_LT(furthest, -110.0);
    EXPECT_GT(furthest, -200.0);
    EXPECT_EQ(against.position(against.duration()), -100.0);

    const Glide outside{150, 0, -100, 100};
    EXPECT_EQ(outside.position(0.0), 150.0);
    EXPECT_EQ(outside.position(outside.duration()), 100.0);
}

} // namespace
} // namespace pelmira
