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

} // namespace
} // namespace pelmira
