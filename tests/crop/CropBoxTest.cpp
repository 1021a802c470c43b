#include "crop/CropBox.h"
#include "crop/CropMotion.h"
#include "support/Test.h"

namespace pelmira {
namespace {

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
