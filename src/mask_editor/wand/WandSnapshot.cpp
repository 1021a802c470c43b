#include "mask_editor/wand/WandSnapshot.h"

#include "platform/base/LargeBlock.h"
#include "platform/pixels/AlphaPlane.h"

#include <algorithm>
#include <cstring>

namespace pelmira {
namespace {

// A tile is visited a few rows at a time, before its right neighbour: the rows' memory is then
// read as a few long streams, which the processor foresees, not in 64 short pieces a tile.
constexpr std::uint32_t RowsAtATime = 8;

constexpr std::array<std::uint8_t, TileSide> rowOf(std::uint8_t value)
{
    std::array<std::uint8_t, TileSide> row{};
    row.fill(value);
    return row;
}

/// Calls visit(column, first row, end row), rows counted within the tile.
template <typename Visit>
void forEachPiece(const TileGrid& grid, std::uint32_t tileRow, Visit visit)
{
    const std::uint32_t height = grid.heightOfRow(tileRow);
    for (std::uint32_t first = 0; first < height; first += RowsAtATime) {
        const std::uint32_t end = std::min(first + RowsAtATime, height);
        for (std::uint32_t column = 0; column < grid.columns; ++column)
            visit(column, first, end);
    }
}

} // namespace

constinit const WandSnapshot::AlphaRow WandSnapshot::OpaqueRow = rowOf(255);
constinit const WandSnapshot::AlphaRow WandSnapshot::ErasedRow = rowOf(0);

WandSnapshot::WandSnapshot(const PixelSpan& pixels, StoredColor color)
    : _grid(pixels.width, pixels.height),
      _distances(allocateLargeBlock(_grid.tileCount() * TileArea)),
      _alpha(allocateLargeBlock(_grid.tileCount() * TileArea)), _tiles(_grid.tileCount())
{
    for (std::uint32_t row = 0; row < _grid.rows; ++row) {
        captureDistances(pixels, color, row);
        captureAlpha(pixels, row);
    }
}

void WandSnapshot::captureDistances(const PixelSpan& pixels, StoredColor color, std::uint32_t row)
{
    forEachPiece(_grid, row, [&](std::uint32_t column, std::uint32_t first, std::uint32_t end) {
        const std::size_t index = _grid.tile(column, row);
        const std::uint32_t width = _grid.widthOfColumn(column);
        std::uint8_t* const distances = _distances.get() + index * TileArea;
        std::uint32_t common = ~0U;
        std::uint32_t any = 0;
        for (std::uint32_t y = first; y < end; ++y) {
            const std::uint32_t* const line = pixels.row(row * TileSide + y) + column * TileSide;
            std::uint8_t* const out = distances + y * TileSide;
            colorDistanceRow(line, color, out, width);
            std::memset(out + width, UnreachableDistance, TileSide - width);
            for (std::uint32_t x = 0; x < width; ++x) {
                common &= line[x];
                any |= line[x];
            }
        }
        Tile& tile = _tiles[index];
        tile.commonAlphaBits &= static_cast<std::uint8_t>(common >> (8 * ByteAlpha));
        tile.anyAlphaBits |= static_cast<std::uint8_t>(any >> (8 * ByteAlpha));
        std::uint8_t nearest = tile.nearest;
        std::uint8_t farthest = tile.farthest;
        for (std::uint32_t i = first * TileSide; i < end * TileSide; ++i) {
            nearest = std::min(nearest, distances[i]);
            farthest = std::max(farthest, distances[i]);
        }
        tile.nearest = nearest;
        tile.farthest = farthest;
    });
    const std::uint32_t height = _grid.heightOfRow(row);
    for (std::uint32_t column = 0; height < TileSide && column < _grid.columns; ++column) {
        const std::size_t index = _grid.tile(column, row);
        std::memset(_distances.get() + index * TileArea + height * TileSide, UnreachableDistance,
                    (TileSide - height) * TileSide);
        _tiles[index].farthest = UnreachableDistance;
    }
}

void WandSnapshot::captureAlpha(const PixelSpan& pixels, std::uint32_t row)
{
    for (std::uint32_t column = 0; column < _grid.columns; ++column) {
        Tile& tile = _tiles[_grid.tile(column, row)];
        if (tile.commonAlphaBits == 0xFF)
            tile.alpha = Alpha::Opaque;
        else if (tile.anyAlphaBits == 0)
            tile.alpha = Alpha::Erased;
    }
    forEachPiece(_grid, row, [&](std::uint32_t column, std::uint32_t first, std::uint32_t end) {
        const std::size_t index = _grid.tile(column, row);
        if (_tiles[index].alpha != Alpha::Mixed)
            return;
        for (std::uint32_t y = first; y < end; ++y)
            copyAlphaRow(pixels.row(row * TileSide + y) + column * TileSide,
                         _alpha.get() + index * TileArea + y * TileSide,
                         _grid.widthOfColumn(column));
    });
}

} // namespace pelmira
