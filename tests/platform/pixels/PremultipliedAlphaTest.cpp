#include "platform/pixels/PremultipliedAlpha.h"
#include "support/PaddedImage.h"
#include "support/Test.h"

namespace pelmira {
namespace {

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
