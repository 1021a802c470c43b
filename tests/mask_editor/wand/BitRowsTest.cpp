#include "mask_editor/wand/BitRows.h"
#include "mask_editor/wand/TileGrid.h"
#include "support/Test.h"

namespace pelmira {
namespace {

/// Pixel by pixel, until nothing moves.
BitRow closedPlainly(BitRow seeds, BitRow open)
{
    for (BitRow before = 0; before != seeds;) {
        before = seeds;
        seeds |= (seeds << 1 | seeds >> 1) & open;
    }
    return seeds;
}

TEST(BitRows, ClosesEveryRunThatHoldsASeed)
{
    std::mt19937_64 random(1);
    std::vector<BitRow> rows = {0, 1, bitAt(63), bitAt(63) | 1, FullRow, FullRow >> 1, ~BitRow{1}};
    for (int i = 0; i < 60; ++i)
        rows.push_back(i % 3 == 0   ? random()
                       : i % 3 == 1 ? random() | random() | random()
                                    : random() & random() & random());
    for (const BitRow open : rows)
        for (const BitRow seeds : rows)
            ASSERT_EQ(closeRuns(seeds & open, open), closedPlainly(seeds & open, open))
                << std::hex << seeds << " in " << open;
}

TEST(BitRows, ComparesUnsignedAndStrictly)
{
    std::vector<std::uint8_t> distances(TileArea);
    for (std::size_t i = 0; i < distances.size(); ++i)
        distances[i] = static_cast<std::uint8_t>(i * 167);
    std::vector<BitRow> rows(TileSide);
    for (unsigned tolerance = 0; tolerance < 256; ++tolerance) {
        nearerThan(distances.data(), static_cast<std::uint8_t>(tolerance), rows.data());
        for (std::size_t i = 0; i < distances.size(); ++i)
            ASSERT_EQ(rows[i / TileSide] >> (i % TileSide) & 1, distances[i] < tolerance);
    }
}

} // namespace
} // namespace pelmira
