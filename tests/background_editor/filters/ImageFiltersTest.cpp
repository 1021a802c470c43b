#include "background_editor/filters/ImageFilters.h"

#include "support/Test.h"

namespace pelmira {
namespace {

using test::farthest;

QImage plain(QRgb premultiplied)
{
    QImage image(3, 2, QImage::Format_ARGB32_Premultiplied);
    image.fill(premultiplied);
    return image;
}

TEST(ImageFilters, ExposureCountsInStopsOfLinearLight)
{
    // Middle grey is 188 of 255 in sRGB; twice and half its light are white and 137.
    EXPECT_EQ(exposureAdjusted(plain(qRgb(188, 188, 188)), 1.0).pixel(0, 0), qRgb(255, 255, 255));
    EXPECT_LE(
        farthest(exposureAdjusted(plain(qRgb(188, 0, 188)), -1.0).pixel(2, 1), qRgb(137, 0, 137)),
        1);
    // Half transparent: the same colour gets brighter, the alpha stays.
    EXPECT_LE(farthest(exposureAdjusted(plain(qRgba(50, 25, 0, 128)), 1.0).pixel(0, 0),
                       qPremultiply(qRgba(137, 70, 0, 128))),
              2);
    EXPECT_EQ(exposureAdjusted(plain(qRgb(1, 0, 9)), 1e9).pixel(0, 0), qRgb(255, 0, 255));
    EXPECT_EQ(exposureAdjusted(plain(qRgba(7, 3, 1, 9)), -1e9).pixel(0, 0), qRgba(0, 0, 0, 9));
}

TEST(ImageFilters, HueTurnsAboutGreyAndKeepsTheLuma)
{
    const auto luma = [](QRgb c) { return 0.213 * qRed(c) + 0.715 * qGreen(c) + 0.072 * qBlue(c); };
    const QRgb color = qRgb(140, 110, 120);
    for (const double turn : {0.25, 0.5, 0.8}) {
        const QRgb turned = hueAdjusted(plain(color), turn * 2 * std::numbers::pi).pixel(1, 1);
        EXPECT_NEAR(luma(turned), luma(color), 1.0) << turn;
        EXPECT_GT(farthest(turned, color), 10) << turn;
        const QRgb grey = qRgb(90, 90, 90);
        EXPECT_LE(farthest(hueAdjusted(plain(grey), turn).pixel(0, 0), grey), 1);
    }
    // A third of a turn takes red towards green, not towards blue.
    const QRgb third = hueAdjusted(plain(qRgb(200, 60, 60)), 2 * std::numbers::pi / 3).pixel(0, 0);
    EXPECT_GT(qGreen(third), qRed(third));
    EXPECT_GT(qGreen(third), qBlue(third));
    EXPECT_EQ(hueAdjusted(plain(qRgb(0, 0, 255)), 3.0).pixel(0, 0) >> 24, 255U);
    const QRgb clear = hueAdjusted(plain(qRgba(0, 0, 64, 64)), 2.0).pixel(0, 0);
    EXPECT_LE(std::max({qRed(clear), qGreen(clear), qBlue(clear)}), 64);
}

} // namespace
} // namespace pelmira
