#include "platform/pixels/PremultipliedAlpha.h"
#include "platform/pixels/SmallerCopies.h"
#include "support/PaddedImage.h"
#include "support/Test.h"

namespace pelmira {
namespace {

using testing::PaddedImage;

std::uint32_t component(std::uint32_t pixel, int number)
{
    return (pixel >> (8 * number)) & 0xFF;
}

/// How much of the source pixel lies within the result pixel, along one axis.
double overlap(std::uint32_t from, std::uint32_t length, std::uint32_t to, std::uint32_t half)
{
    const double scale = double(length) / half;
    return std::max(0.0, std::min(from + 1.0, (to + 1) * scale) - std::max(from + 0.0, to * scale));
}

double meanOfArea(const PaddedImage& image, const PixelSpan& result, std::uint32_t x,
                  std::uint32_t y, int number)
{
    const auto [pixels, width, height, stride] = image.span();
    double sum = 0;
    double area = 0;
    for (std::uint32_t v = 0; v < height; ++v)
        for (std::uint32_t u = 0; u < width; ++u) {
            const double part =
                overlap(u, width, x, result.width) * overlap(v, height, y, result.height);
            sum += part * component(image.at(u, v), number);
            area += part;
        }
    return sum / area;
}

TEST(SmallerCopies, AreTheMeanOfWhatTheyStandFor)
{
    std::mt19937 random(5);
    for (const auto& [width, height] :
         {std::pair{16U, 8U}, {15U, 8U}, {8U, 13U}, {7U, 5U}, {3U, 3U}, {1U, 9U}, {6U, 1U}}) {
        PaddedImage source(width, height, 3);
        source.fill([&](auto, auto) {
            const auto upTo = [&](std::uint32_t most) {
                return std::uint32_t(random()) % (most + 1);
            };
            const std::uint32_t alpha = upTo(255);
            std::uint32_t pixel = alpha << 24;
            for (int i = 0; i < 24; i += 8)
                pixel |= (upTo(2) == 0 ? alpha : upTo(alpha)) << i;
            return pixel;
        });
        PaddedImage result(std::max(1U, width / 2), std::max(1U, height / 2), 2);
        ASSERT_TRUE(halve(source.span(), result.span()));
        EXPECT_FALSE(result.hasStray());
        for (std::uint32_t y = 0; y < result.span().height; ++y)
            for (std::uint32_t x = 0; x < result.span().width; ++x)
                for (int i = 0; i < 4; ++i) {
                    const std::uint32_t value = component(result.at(x, y), i);
                    EXPECT_NEAR(value, meanOfArea(source, result.span(), x, y, i), 0.501)
                        << width << "x" << height << " at " << x << "," << y;
                    EXPECT_LE(value, component(result.at(x, y), 3)) << "premultiplied";
                }
    }
}

TEST(SmallerCopies, GoDownToOnePixelAndKeepAPlainColour)
{
    const QRgb colour = qRgba(128, 63, 1, 128);
    QImage image(21, 6, QImage::Format_ARGB32_Premultiplied);
    image.fill(colour);
    const std::vector<QImage> copies = smallerCopies(image);
    const std::vector<QSize> sizes{{10, 3}, {5, 1}, {2, 1}, {1, 1}};
    ASSERT_EQ(copies.size(), sizes.size());
    for (std::size_t i = 0; i < sizes.size(); ++i) {
        QImage plain(sizes[i], image.format());
        plain.fill(colour);
        EXPECT_EQ(copies[i], plain);
    }
    EXPECT_TRUE(smallerCopies({}).empty());
}

using testing::PaddedImage;

/// Every pair of component (x) and alpha (y), the component in a different byte's company each.
PaddedImage allPairs()
{
    PaddedImage image(256, 256, 5);
    image.fill([](std::uint32_t x, std::uint32_t y) {
        return x | (255 - x) << 8 | (x ^ 0x55) << 16 | y << 24;
    });
    return image;
}

template <typename Convert>
void expectComponents(const PaddedImage& image, const PaddedImage& from, Convert convert)
{
    for (std::uint32_t alpha = 0; alpha < 256; ++alpha) {
        for (std::uint32_t x = 0; x < 256; ++x) {
            const std::uint32_t was = from.at(x, alpha);
            const std::uint32_t expected = convert(was & 0xFF, alpha) |
                                           convert((was >> 8) & 0xFF, alpha) << 8 |
                                           convert((was >> 16) & 0xFF, alpha) << 16 | alpha << 24;
            ASSERT_EQ(image.at(x, alpha), expected) << "component " << x << " alpha " << alpha;
        }
    }
}

TEST(PremultipliedAlpha, RoundsToNearestForEveryPair)
{
    const PaddedImage source = allPairs();
    PaddedImage result(256, 256, 2);
    premultiply(source.span(), result.span());
    expectComponents(result, source,
                     [](std::uint32_t c, std::uint32_t a) { return (c * a + 127) / 255; });
    EXPECT_FALSE(result.hasStray());
}

TEST(PremultipliedAlpha, IsUndoneForEveryPairAndLeavesNothingUnderAlphaZero)
{
    const PaddedImage source = allPairs();
    PaddedImage result = source;
    unpremultiply(result.span());
    expectComponents(result, source, [](std::uint32_t c, std::uint32_t a) {
        return a == 0 ? 0 : std::min(255U, (c * 255 + a / 2) / a);
    });
    EXPECT_FALSE(result.hasStray());
}

} // namespace
} // namespace pelmira
