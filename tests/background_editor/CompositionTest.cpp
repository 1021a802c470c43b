#include "background_editor/composition/Composition.h"

#include "support/Test.h"

#include <QPainter>

namespace pelmira {
namespace {

/// Red, green, blue and white quarters.
QImage quarters(int width, int height)
{
    return paintedImage({width, height}, [=](int x, int y) {
        const QColor color = 2 * y < height ? (2 * x < width ? Qt::red : Qt::green)
                                            : (2 * x < width ? Qt::blue : Qt::white);
        return color.rgb();
    });
}

Composition on(const Composition::Background& background, double ratio = 1.0)
{
    Composition composition;
    composition.aspectRatio = ratio;
    composition.canvasWidth = 512; // a point is 4 pixels
    composition.background = background;
    return composition;
}

Composition withObject(const QImage& image, QPointF center, QSizeF size, double rotation = 0)
{
    Composition composition = on(QColor(Qt::gray));
    composition.object = {image, center, size, rotation};
    return composition;
}

void expectColor(const QImage& image, double x, double y, const QColor& wanted, int tolerance = 2)
{
    const QRgb pixel = image.pixel(int(x), int(y));
    EXPECT_LE(farthest(pixel, wanted.rgb()), tolerance) << x << ' ' << y;
}

TEST(Composition, TheBackgroundFillsTheOutput)
{
    QImage black = renderComposition(on({}));
    expectColor(black, 5, 5, Qt::black);
    QImage color = renderComposition(on(QColor(10, 20, 30), 0.5));
    EXPECT_EQ(color.size(), QSize(1024, 2048));
    expectColor(color, 1023, 2047, QColor(10, 20, 30), 0);
    // A photo of another shape covers it; its middle is seen, and what is clear is black.
    QImage photo = quarters(400, 100);
    QImage covered = renderComposition(on(photo, 1.0));
    expectColor(covered, 1000, 3, Qt::red);
    expectColor(covered, 1048, 3, Qt::green);
    expectColor(covered, 3, 2044, Qt::blue);
    photo.fill(Qt::transparent);
    expectColor(renderComposition(on(photo, 1.0)), 5, 5, Qt::black, 0);
}

TEST(Composition, TheObjectLiesWhereItIsSeen)
{
    for (const bool isFlipped : {false, true}) {
        for (const double turn : {0.0, 0.25, 0.5, 1.0, -0.5, 0.1}) {
            SCOPED_TRACE(testing::Message() << turn << isFlipped);
            const double angle = turn * std::numbers::pi;
            Composition composition =
                withObject(quarters(300, 200), {200, 300}, {160, 80}, angle); // stretched
            composition.object->isFlipped = isFlipped;
            const QImage output = renderComposition(composition);
            const auto expectAt = [&](double x, double y, const QColor& color) {
                // A place of the object, from its centre, in points.
                const double c = std::cos(angle);
                const double s = std::sin(angle);
                expectColor(output, 4 * (200 + x * c - y * s), 4 * (300 + x * s + y * c), color);
            };
            expectAt(isFlipped ? 78 : -78, -38, Qt::red);
            expectAt(isFlipped ? -78 : 78, -38, Qt::green);
            expectAt(isFlipped ? 78 : -78, 38, Qt::blue);
            expectAt(isFlipped ? -78 : 78, 38, Qt::white);
            expectAt(82, 0, Qt::gray);
            expectAt(0, -42, Qt::gray);
        }
    }
}

TEST(Composition, AnEdgeBetweenPixelsIsSoft)
{
    const QImage white = plainImage({50, 50}, Qt::white);
    Composition composition = withObject(white, {256, 256}, {64.125, 64}); // half a pixel wider
    composition.background = QColor(Qt::black);
    const QImage output = renderComposition(composition);
    const int left = 1024 - 128 - 1;
    EXPECT_EQ(qRed(output.pixel(left + 3, 1024)), 255);
    EXPECT_EQ(qRed(output.pixel(left - 4, 1024)), 0);
    int sum = 0; // what the soft pixels hold together is the width between the whole ones
    for (int x = left - 4; x < left + 4; ++x)
        sum += qRed(output.pixel(x, 1024));
    EXPECT_NEAR(sum / 255.0, 3.25, 0.25);
}

TEST(Composition, MadeSmallerItNeitherFlickersNorBleeds)
{
    // Stripes of one pixel, far finer than the output: a grey of half the light.
    const QImage stripes =
        paintedImage({4096, 4096}, [](int x, int) { return x % 2 ? 0xFFFFFFFF : 0xFF000000; });
    for (const double angle : {0.0, 0.3}) {
        const QImage output = renderComposition(withObject(stripes, {256, 256}, {201, 199}, angle));
        for (int i = -100; i < 100; i += 7)
            expectColor(output, 1024 + 2 * i, 1024 - i, QColor(128, 128, 128), 6);
    }
    // White on clear: no darker rim, on white nothing is to be seen at all.
    QImage disc = plainImage({1500, 1500}, Qt::transparent);
    QPainter painter(&disc);
    painter.setBrush(Qt::white);
    painter.setPen(Qt::NoPen);
    painter.drawEllipse(QRectF(300, 300, 900, 900));
    painter.end();
    for (const double angle : {0.0, 0.7}) {
        Composition composition = withObject(disc, {250.3, 256.1}, {111, 222}, angle);
        composition.background = QColor(Qt::white);
        const QImage output = renderComposition(composition);
        for (int y = 500; y < 1600; ++y)
            for (int x = 700; x < 1300; ++x)
                ASSERT_GE(qGreen(output.pixel(x, y)), 253) << x << ' ' << y;
    }
}

TEST(Composition, FarOffHugeOrTinyObjectsAreDrawnAsFarAsTheyAreSeen)
{
    const QImage image = quarters(64, 64);
    const auto drawn = [&](QPointF center, QSizeF size, double rotation) {
        return renderComposition(withObject(image, center, size, rotation));
    };
    expectColor(drawn({1e8, -1e8}, {50, 50}, 1), 5, 5, Qt::gray, 0);
    expectColor(drawn({-3e5, -3e5}, {1e6, 1e6}, 0), 900, 900, Qt::white);
    expectColor(drawn({-3e5, -3e5}, {1e6, 1e6}, 0.4), 5, 900, Qt::white);
    expectColor(drawn({300, 300}, {1e-3, 10}, 0.4), 5, 5, Qt::gray);
    EXPECT_EQ(drawn({256, 256}, {0, 0}, 0).size(), QSize(2048, 2048));
    // Half beyond the corner: cut off there.
    const QImage cut = drawn({0, 0}, {100, 100}, 0);
    expectColor(cut, 100, 100, Qt::white);
    expectColor(cut, 203, 203, Qt::gray);
}

} // namespace
} // namespace pelmira
