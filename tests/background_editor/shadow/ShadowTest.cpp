#include "background_editor/shadow/BGEShadowView.h"
#include "background_editor/shadow/ContextShadowDrawing.h"
#include "background_editor/shadow/LayerShadow.h"
#include "support/Test.h"

#include <QPainter>

namespace pelmira {
namespace {

/// A disc that leaves a margin, with a straight edge to the right.
QImage cutOut(int width, int height)
{
    QImage image = plainImage({width, height}, Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setBrush(QColor(200, 30, 30));
    painter.setPen(Qt::NoPen);
    painter.drawEllipse(QRectF(width * 0.1, height * 0.1, width * 0.8, height * 0.8));
    painter.drawRect(QRectF(width * 0.5, height * 0.3, width * 0.45, height * 0.4));
    return image;
}

TEST(ShadowValues, BecomePointsOnScreenAndPixelsInTheOutput)
{
    ShadowValues values{{0.5, 0.0}, 1.0, QColor(10, 20, 30, 100)};
    EXPECT_EQ(values.onScreen().shadowOffset, QPointF(10, 0));
    EXPECT_EQ(values.onScreen().shadowColor.alpha(), 100); // the layer's opacity comes on top
    const ContextShadow turned = values.inOutput(2048.0 / 320.0, std::numbers::pi / 2);
    EXPECT_NEAR(turned.offset.y(), 64.0, 1e-9);
    EXPECT_EQ(turned.blur, 192.0);

    EXPECT_FALSE(ShadowValues().hasOutput());
    values = {{0, 0}, 0.009, Qt::black}; // too little to be shown, but not nothing
    EXPECT_FALSE(values.onScreen().shadowColor.isValid());
    EXPECT_TRUE(values.hasOutput());
}

struct LayerShadowTest : testing::Test {
    LayerShadowTest()
    {
        shadow.setSize({200, 150});
        shadow.setPicture(cutOut(800, 600));
    }
    LayerShadowValues values(double radius, QPointF offset = {}, QColor color = Qt::black)
    {
        return {color, offset, 0.5F, radius};
    }
    /// The next image; waits for it.
    bool imageAfter(const std::function<void()>& change)
    {
        const qint64 before = shadow.image().cacheKey();
        change();
        return drainUntil(
            [&] { return !shadow.image().isNull() && shadow.image().cacheKey() != before; });
    }

    LayerShadow shadow;
};

TEST_F(LayerShadowTest, IsMadeAgainForBlurColourAndPictureOnly)
{
    ASSERT_TRUE(imageAfter([&] { shadow.setValues(values(10)); }));
    EXPECT_LT(shadow.image().width(), 200) << "a soft shadow needs few pixels";
    const qint64 made = shadow.image().cacheKey();
    const QRectF frame = shadow.frame();
    EXPECT_NEAR(frame.center().x(), 100, 2.5);
    EXPECT_LT(frame.left(), -30);

    shadow.setValues(values(10, {7, -3}));
    EXPECT_EQ(shadow.frame(), frame.translated(7, -3));
    shadow.setSize({208, 150}); // hardly stretched
    EXPECT_NEAR(shadow.frame().width(), frame.width() * 1.04, 1e-6);
    EXPECT_EQ(shadow.image().cacheKey(), made);
    EXPECT_TRUE(imageAfter([&] { shadow.setSize({300, 225}); }));
    EXPECT_TRUE(imageAfter([&] { shadow.setValues(values(10, {7, -3}, Qt::blue)); }));
    EXPECT_GT(qBlue(shadow.image().pixel(shadow.image().rect().center())), 200);
    EXPECT_TRUE(imageAfter([&] { shadow.setPicture(cutOut(30, 40)); }));

    shadow.setValues({});
    EXPECT_TRUE(shadow.image().isNull());
    EXPECT_TRUE(shadow.frame().isEmpty());
}

TEST_F(LayerShadowTest, TheNewestOfManyValuesStays)
{
    for (int radius = 1; radius <= 60; ++radius)
        shadow.setValues(values(radius));
    // What is shown in the end lies as far beyond the picture as the last radius asks for.
    ASSERT_TRUE(drainUntil([&] { return shadow.frame().left() < -3.4 * 60; }));
    shadow.setValues(values(5)); // and nothing comes after it has been turned off
    shadow.setValues({});
    LayerShadow other; // made after it on threads that are no faster
    other.setSize({50, 50});
    other.setPicture(cutOut(50, 50));
    other.setValues(values(5));
    ASSERT_TRUE(drainUntil([&] { return !other.image().isNull(); }));
    EXPECT_TRUE(shadow.image().isNull());
}

TEST_F(LayerShadowTest, LooksAsTheOutputDoes)
{
    constexpr double scale = 4.0; // pixels of the output to a point
    const QSizeF size(200, 150);
    for (const double blur : {0.0, 0.2, 0.6, 1.0}) {
        const ShadowValues chosen{{0.6, 0.3}, blur, Qt::black};
        ASSERT_TRUE(imageAfter([&] { shadow.setValues(chosen.onScreen()); }));

        QImage screen = plainImage({1400, 1200}, Qt::white);
        {
            QPainter painter(&screen);
            painter.setRenderHint(QPainter::SmoothPixmapTransform);
            painter.setOpacity(shadow.opacity());
            painter.translate(300, 300);
            painter.scale(scale, scale);
            painter.drawImage(shadow.frame(), shadow.image());
        }
        QImage output = plainImage(screen.size(), Qt::white);
        drawContextShadow(output, cutOut(800, 600), {300, 300}, chosen.inOutput(scale, 0.0));

        const test::Difference apart = test::difference(output, screen);
        // A hard edge is sampled at the screen's resolution, a quarter of the output's.
        EXPECT_LE(apart.greatest, blur == 0.0 ? 128 : blur < 0.5 ? 5 : 3) << "blur " << blur;
        EXPECT_LT(apart.mean, 0.5) << "blur " << blur;
    }
}

TEST(ContextShadow, FallsFromWhatStandsBeyondTheEdge)
{
    QImage output = plainImage({100, 100}, Qt::white);
    const QImage layer = plainImage({60, 60}, Qt::red);
    ContextShadow shadow{{50, 0}, 0.0, QColor(0, 0, 0, 128)};
    drawContextShadow(output, layer, {-60, 20}, shadow);
    EXPECT_EQ(output.pixel(49, 50), qRgb(127, 127, 127));
    EXPECT_EQ(output.pixel(51, 50), qRgb(255, 255, 255));
    EXPECT_EQ(output.pixel(20, 19), qRgb(255, 255, 255));

    output.fill(Qt::white);
    shadow = {{0, 0}, 20.0, QColor(0, 0, 0, 255)};
    drawContextShadow(output, layer, {-60, 20}, shadow);
    // Half a pixel and a bit more than a deviation to the right of a straight edge.
    EXPECT_NEAR(qRed(output.pixel(0, 50)), 255 - 255 * 0.480, 2);
    EXPECT_NEAR(qRed(output.pixel(10, 50)), 255 - 255 * 0.147, 2);
    drawContextShadow(output, layer, {5000, 5000}, shadow); // too far away
    EXPECT_EQ(output.pixel(99, 99), qRgb(255, 255, 255));
}

TEST(BGEShadowView, EachMoveReportsAllThreeValues)
{
    BGEShadowView panel;
    std::vector<std::array<double, 3>> reports;
    panel.shadowValuesChangedBlock = [&reports](double x, double y, double blur) {
        reports.push_back({x, y, blur});
    };
    panel.showValues({{-0.5, 0.25}, 0.75, Qt::red}); // no report: the values are the screen's own
    EXPECT_EQ(panel.xSlider()->value(), -0.5F);
    panel.blurSlider()->dragTo(0.5);
    panel.xSlider()->dragTo(0.03); // near the middle a finger means the middle
    panel.ySlider()->moveTo(0.03); // a key means what it says
    panel.blurSlider()->dragTo(0.48);
    EXPECT_EQ(reports, (std::vector<std::array<double, 3>>{{-0.5, 0.25, 0.5},
                                                           {0.0, 0.25, 0.5},
                                                           {0.0, double(0.03F), 0.5},
                                                           {0.0, double(0.03F), double(0.48F)}}));
}

} // namespace
} // namespace pelmira
