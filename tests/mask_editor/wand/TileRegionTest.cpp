#include "mask_editor/wand/TileRegion.h"

#include "support/Test.h"

namespace pelmira {
namespace {

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
