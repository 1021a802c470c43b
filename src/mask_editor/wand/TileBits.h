#pragma once

#include "mask_editor/wand/BitRows.h"
#include "mask_editor/wand/TileGrid.h"
#include "platform/base/LargeBlock.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <vector>

namespace pelmira {

/// A set of pixels, one bit each, in tiles of 64 rows of one word. A tile that hasn't been used
/// since the last clear is empty and costs nothing.
class TileBits {
public:
    explicit TileBits(const TileGrid& grid)
        : _rows(allocateLargeBlock(grid.tileCount() * TileSide * sizeof(BitRow))),
          _isUsed(grid.tileCount())
    {
    }

    void clear() { std::fill(_isUsed.begin(), _isUsed.end(), std::uint8_t{0}); }
    bool isUsed(std::size_t tile) const { return _isUsed[tile] != 0; }

    /// The tile's 64 rows, which hold nothing meaningful before use().
    BitRow* rows(std::size_t tile)
    {
        return reinterpret_cast<BitRow*>(_rows.get()) + tile * TileSide;
    }
    const BitRow* rows(std::size_t tile) const
    {
        return reinterpret_cast<const BitRow*>(_rows.get()) + tile * TileSide;
    }

    /// The rows of a tile for the first time since the clear, all empty.
    BitRow* use(std::size_t tile)
    {
        _isUsed[tile] = 1;
        std::fill_n(rows(tile), TileSide, BitRow{0});
        return rows(tile);
    }

private:
    MallocBlock _rows;
    std::vector<std::uint8_t> _isUsed;
};

} // namespace pelmira
