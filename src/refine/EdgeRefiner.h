#pragma once

#include "platform/pixels/PixelSpan.h"
#include "refine/TileWindow.h"

#include <atomic>
#include <functional>
#include <memory>
#include <stop_token>
#include <vector>

namespace pelmira {

/// One run of refineEdges over the image's tiles, in place. The first round only says which pixels
/// are kept, better than the mask; the second starts from that and gives the edge.
class EdgeRefiner {
public:
    /// Calls a job with each number below the count, each worker one at a time: doInParallel.
    using Workers =
        std::function<void(std::size_t count, const std::function<void(std::size_t, unsigned)>&)>;

    EdgeRefiner(const PixelSpan& pixels, std::stop_token stop, Workers workers);

    bool run();

private:
    struct Change {
        std::uint32_t place; // in the tile, row by row
        std::uint32_t pixel;
    };
    struct Tile {
        bool hasBoundary = false;         // within reach
        std::unique_ptr<TileBitmap> kept; // after the first round; none: as the mask says
        std::vector<Change> changes;
    };

    /// Calls with the numbers of `count` tiles from the first; not once it has been stopped.
    void forTiles(std::size_t first, std::size_t count,
                  const std::function<void(std::size_t tile, unsigned worker)>& job);
    bool isStopped() const { return _isOutOfMemory || _stop.stop_requested(); }

    bool hasBoundary(std::size_t tile) const;
    void decideSides(std::size_t tile, TileWindow& window);
    void refine(std::size_t tile, TileWindow& window);
    void loadDecidedSides(TileWindow& window) const;
    std::uint32_t pixelAt(const TileWindow& window, std::size_t index) const;
    std::uint32_t pixelOnOtherSide(const TileWindow& window, std::size_t index) const;
    void writeChanges(std::size_t tile);

    TileWindow& windowOf(unsigned worker);
    int left(std::size_t tile) const { return static_cast<int>(tile % _across) * tileSide; }
    int top(std::size_t tile) const { return static_cast<int>(tile / _across) * tileSide; }

    PixelSpan _pixels;
    std::stop_token _stop;
    Workers _workers;
    std::size_t _across;
    std::size_t _down;
    std::vector<Tile> _tiles;
    std::vector<std::unique_ptr<TileWindow>> _windows; // by worker
    std::atomic<bool> _isOutOfMemory = false;
};

} // namespace pelmira
