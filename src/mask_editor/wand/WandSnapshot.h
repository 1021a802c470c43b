#pragma once

#include "mask_editor/wand/ColorDistance.h"
#include "mask_editor/wand/TileGrid.h"
#include "platform/base/MallocBlock.h"
#include "platform/pixels/PixelSpan.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <vector>

namespace pelmira {

/// The image as the wand found it: each pixel's distance from the start's colour and its alpha,
/// in planes of tiles, 64 rows of 64 bytes each. Taken in one pass over the pixels.
class WandSnapshot {
public:
    /// Reads the pixels once and keeps no reference to them.
    WandSnapshot(const PixelSpan& pixels, StoredColor color);

    const TileGrid& grid() const { return _grid; }

    /// The tile's distances; UnreachableDistance where it reaches beyond the image.
    const std::uint8_t* distances(std::size_t tile) const
    {
        return _distances.get() + tile * TileArea;
    }
    /// The least and the largest distance in the tile.
    std::uint8_t nearest(std::size_t tile) const { return _tiles[tile].nearest; }
    std::uint8_t farthest(std::size_t tile) const { return _tiles[tile].farthest; }

    /// The alpha of one row of a tile; bytes beyond the image mean nothing.
    const std::uint8_t* alphaRow(std::size_t tile, std::uint32_t row) const
    {
        switch (_tiles[tile].alpha) {
        case Alpha::Opaque:
            return OpaqueRow.data();
        case Alpha::Erased:
            return ErasedRow.data();
        case Alpha::Mixed:
            break;
        }
        return _alpha.get() + tile * TileArea + row * TileSide;
    }

private:
    /// Most tiles are of one piece, and their alpha is neither stored nor read.
    enum class Alpha : std::uint8_t { Mixed, Opaque, Erased };

    struct Tile {
        std::uint8_t nearest = UnreachableDistance;
        std::uint8_t farthest = 0;
        std::uint8_t commonAlphaBits = 0xFF;
        std::uint8_t anyAlphaBits = 0;
        Alpha alpha = Alpha::Mixed;
    };
    using AlphaRow = std::array<std::uint8_t, TileSide>;
    static const AlphaRow OpaqueRow;
    static const AlphaRow ErasedRow;

    void captureDistances(const PixelSpan& pixels, StoredColor color, std::uint32_t row);
    void captureAlpha(const PixelSpan& pixels, std::uint32_t row);

    TileGrid _grid;
    MallocBlock _distances;
    MallocBlock _alpha;
    std::vector<Tile> _tiles;
};

} // namespace pelmira
