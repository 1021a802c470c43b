#pragma once

#include "mask_editor/wand/BitRows.h"
#include "mask_editor/wand/TileBits.h"
#include "mask_editor/wand/WandSnapshot.h"

#include <QPoint>
#include <cstddef>
#include <cstdint>
#include <vector>

namespace pelmira {

/// The fill over tiles of bits. Each tile that the fill reaches gets its open pixels (those
/// nearer than the tolerance) as bits, spreads what has come in over its borders until nothing
/// moves, and hands what reached a border to the neighbour behind it, which queues for its turn.
class TileFlood {
public:
    /// The snapshot must outlive the flood.
    explicit TileFlood(const WandSnapshot& snapshot);

    /// The pixels that a 4-connected path of distances below the tolerance joins to the start. A
    /// start that isn't itself below yields to its right neighbour. Overwrites `filled`.
    void run(QPoint start, std::uint8_t tolerance, TileBits& filled);

private:
    struct Tile {
        std::uint64_t dirtyRows; // hold seeds that haven't spread yet
        std::uint64_t openLeft;  // the outermost columns of the open pixels, a bit a row
        std::uint64_t openRight;
        std::uint64_t filledLeft; // and of those filled
        std::uint64_t filledRight;
        bool isAllOpen;
        bool isQueued;
    };

    bool isClosed(std::size_t tile) const { return _snapshot.nearest(tile) >= _tolerance; }
    void reach(std::size_t tile);
    void queue(std::size_t tile);
    void visit(std::size_t tile);
    std::uint64_t spread(std::size_t tile);
    void seedRow(std::size_t tile, std::uint32_t row, BitRow seeds);
    void seedLeftColumn(std::size_t tile, std::uint64_t rows);
    void seedRightColumn(std::size_t tile, std::uint64_t rows);
    void seedColumn(std::size_t tile, unsigned x, std::uint64_t rows);

    const WandSnapshot& _snapshot;
    const TileGrid _grid;
    std::uint8_t _tolerance = 0;
    TileBits _open;
    TileBits* _filled = nullptr;
    std::vector<Tile> _tiles;
    std::vector<std::uint32_t> _queue; // a ring; a tile stands in it once at most
    std::size_t _queueFirst = 0;
    std::size_t _queueLength = 0;
};

} // namespace pelmira
