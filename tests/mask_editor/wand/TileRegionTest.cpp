#include "mask_editor/wand/TileRegion.h"

#include <gtest/gtest.h>
#include <random>

namespace pelmira {
namespace {

TEST(TileRegion, IsExactWhileTheRectanglesAreFew)
{
    TileRegion region(TileGrid(1000, 200)); // the last column and row are partial
    region.addRow(0, {1, 2, 3, 15});
    region.addRow(1, {1, 2, 3, 15});
    region.addRow(3, {0});
    QRegion expected;
    expected += QRect(64, 0, 192, 128);
    expected += QRect(960, 0, 40, 128);
    expected += QRect(0, 192, 64, 8);
    EXPECT_EQ(region.region(), expected);
    EXPECT_TRUE(TileRegion(TileGrid(1000, 200)).region().isEmpty());
}

TEST(TileRegion, TakesGapsInRatherThanManyRectangles)
{
    std::mt19937 random(1);
    for (const std::uint32_t side : {500U, 4096U, 9000U}) {
        const TileGrid grid(side, side);
        for (const unsigned oneIn : {1U, 2U, 5U, 50U, 1000U}) {
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
        }
    }
}

} // namespace
} // namespace pelmira
