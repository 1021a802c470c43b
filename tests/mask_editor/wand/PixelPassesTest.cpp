#include "mask_editor/wand/ColorDistance.h"
#include "mask_editor/wand/TileRegion.h"
#include "platform/pixels/AlphaPlane.h"
#include "support/PaddedImage.h"
#include "support/Test.h"

namespace pelmira {
namespace {

using testing::PaddedImage;

// Widths around the vector lengths of the passes, an empty image among them.
const std::uint32_t Widths[] = {0, 1, 3, 15, 16, 17, 31, 33, 64, 70};

TEST(AlphaPlane, CopiesAndRestoresAlphaAndNothingElse)
{
    std::mt19937 random(1);
    for (const std::uint32_t width : Widths) {
        PaddedImage image(width, width == 0 ? 0 : 5, 3);
        image.fill([&](auto, auto) { return static_cast<std::uint32_t>(random()); });
        const PaddedImage before = image;
        std::vector<std::uint8_t> plane(width * 5 + 1, 77);
        copyAlphaPlane(image.span(), plane.data());
        EXPECT_EQ(plane.back(), 77);
        image.fill([&](auto x, auto y) { return image.at(x, y) ^ 0x5A000000U; });
        restoreAlphaPlane(image.span(), plane.data());
        EXPECT_EQ(image.words(), before.words()) << width;
    }
}

TEST(ColorDistance, IsTheLargestByteDifferenceAndUnreachableWhereErased)
{
    std::mt19937 random(2);
    for (const std::uint32_t width : Widths) {
        PaddedImage image(width, width == 0 ? 0 : 4, 1);
        image.fill([&](auto, auto) {
            const auto color = static_cast<std::uint32_t>(random());
            return random() % 4 == 0 ? color & 0xFFFFFF : color;
        });
        const auto color = std::bit_cast<StoredColor>(static_cast<std::uint32_t>(random()));
        std::vector<std::uint8_t> distances(width * 4 + 1, 77);
        colorDistances(image.span(), color, distances.data());
        EXPECT_EQ(distances.back(), 77);
        for (std::uint32_t y = 0; y < image.span().height; ++y) {
            for (std::uint32_t x = 0; x < width; ++x) {
                const auto pixel = std::bit_cast<StoredColor>(image.at(x, y));
                const int expected =
                    pixel.a == 0
                        ? 255
                        : std::max({std::abs(pixel.b - color.b), std::abs(pixel.g - color.g),
                                    std::abs(pixel.r - color.r), std::abs(pixel.a - color.a)});
                ASSERT_EQ(distances[width * y + x], expected);
            }
        }
    }
}

TEST(TileRegion, TakesGapsInRatherThanManyRectangles)
{
    std::mt19937 random(1);
    for (const std::uint32_t side : {500U, 4096U, 9000U}) {
        const TileGrid grid(side, side);
        for (const unsigned oneIn : {1U, 2U, 5U, 50U, 1000U, 5000U}) {
            TileRegion region(grid);
            QRegion tiles;
            for (std::uint32_t row = 0; row < grid.rows; ++row) {
                std::vector<std::uint32_t> columns;
                for (std::uint32_t column = 0; column < grid.columns; ++column) {
                    if (random() % oneIn)
                        continue;
                    columns.push_back(column);
                    tiles += QRect(int(column * TileSide), int(row * TileSide), TileSide, TileSide);
                }
                region.addRow(row, columns);
            }
            const QRect image(0, 0, int(side), int(side));
            const QRegion result = region.region();
            EXPECT_LE(result.rectCount(), int(TileRegion::MostRectangles));
            EXPECT_TRUE((tiles & image).subtracted(result).isEmpty());
            EXPECT_TRUE(result.subtracted(QRegion(image)).isEmpty());
            if ((tiles & image).rectCount() <= 10) {
                EXPECT_EQ(result, tiles & image);
            }
        }
    }
}

} // namespace
} // namespace pelmira
