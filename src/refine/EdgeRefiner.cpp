#include "refine/EdgeRefiner.h"

#include "platform/base/ParallelJobs.h"
#include "refine/EdgeAlpha.h"
#include "refine/EdgeColor.h"
#include "refine/LocalColors.h"
#include "refine/MaskDepth.h"

#include <algorithm>
#include <new>
#include <utility>

namespace pelmira {
namespace {

constexpr int keptDepth = 3;
constexpr int erasedDepth = 4;
// Four steps are up to 4.5 pixels long, three 3.2: the two rounds together stay within 8.
constexpr int erasedDepthOfSecondRound = 3;
constexpr int bandReach = 8;

/// What the band's pixels in the tile are smoothed from.
constexpr int smoothReach = 2;

/// A little less than this share of the kept side still belongs to it.
constexpr float keptFrom = 0.3F;

/// Both ends of the edge are steeper than the estimate has them.
constexpr float transparentUpTo = 0.08F;
constexpr float opaqueFrom = 0.94F;

bool isInTile(int x, int y, int around)
{
    return x >= windowMargin - around && x < windowMargin + tileSide + around &&
           y >= windowMargin - around && y < windowMargin + tileSide + around;
}

/// Whether the first round took the pixel to the other side.
bool isDecidedAnew(const TileWindow& window, std::size_t index)
{
    return window.isKept[index] != window.level[index] >> 7;
}

bool isBeyondBand(const TileWindow& window, std::size_t index)
{
    return window.depth[index] > keptDepth || window.depth[index] < -erasedDepthOfSecondRound;
}

std::uint32_t placeInTile(std::size_t index)
{
    return static_cast<std::uint32_t>((windowY(index) - windowMargin) * tileSide + windowX(index) -
                                      windowMargin);
}

} // namespace

EdgeRefiner::EdgeRefiner(const PixelSpan& pixels, std::stop_token stop, Workers workers)
    : _pixels(pixels), _stop(std::move(stop)), _workers(std::move(workers)),
      _across((pixels.width + tileSide - 1) / tileSide),
      _down((pixels.height + tileSide - 1) / tileSide), _tiles(_across * _down),
      _windows(parallelWorkers())
{
}

bool EdgeRefiner::run()
{
    forTiles(0, _tiles.size(),
             [this](std::size_t tile, unsigned) { _tiles[tile].hasBoundary = hasBoundary(tile); });
    const auto forBoundary = [this](std::size_t first, std::size_t count, auto step) {
        forTiles(first, count, [this, step](std::size_t tile, unsigned worker) {
            if (_tiles[tile].hasBoundary)
                (this->*step)(tile, windowOf(worker));
        });
    };
    forBoundary(0, _tiles.size(), &EdgeRefiner::decideSides);
    // A row's old pixels are in the next row's windows: they are overwritten after that one.
    for (std::size_t row = 0; row <= _down; ++row) {
        if (row < _down)
            forBoundary(row * _across, _across, &EdgeRefiner::refine);
        if (row > 0)
            for (std::size_t i = 0; i < _across; ++i)
                writeChanges((row - 1) * _across + i);
    }
    return !isStopped();
}

void EdgeRefiner::forTiles(std::size_t first, std::size_t count,
                           const std::function<void(std::size_t, unsigned)>& job)
{
    _workers(count, [&](std::size_t i, unsigned worker) {
        if (isStopped())
            return;
        try {
            job(first + i, worker);
        } catch (const std::bad_alloc&) {
            _isOutOfMemory = true;
        }
    });
}

TileWindow& EdgeRefiner::windowOf(unsigned worker)
{
    if (!_windows[worker])
        _windows[worker] = std::make_unique<TileWindow>();
    return *_windows[worker];
}

/// Whether the mask has both sides in the tile or near enough to change something there.
bool EdgeRefiner::hasBoundary(std::size_t tile) const
{
    constexpr int reach = bandReach + smoothReach;
    const int right = std::min(left(tile) + tileSide + reach, static_cast<int>(_pixels.width));
    const int bottom = std::min(top(tile) + tileSide + reach, static_cast<int>(_pixels.height));
    std::uint32_t any = 0;
    std::uint32_t all = ~0U;
    for (int y = std::max(top(tile) - reach, 0); y < bottom; ++y) {
        const std::uint32_t* row = _pixels.row(static_cast<std::uint32_t>(y));
        for (int x = std::max(left(tile) - reach, 0); x < right; ++x) {
            any |= row[x];
            all &= row[x];
        }
        if ((any ^ all) >> 31)
            return true;
    }
    return false;
}

void EdgeRefiner::decideSides(std::size_t tile, TileWindow& window)
{
    loadMask(window, _pixels, left(tile), top(tile));
    findSoftPixels(window);
    estimate(window, erasedDepth);
    for (std::size_t i = 0; i < window.band.size(); ++i) {
        const std::size_t at = window.band[i].index;
        if (window.sides[i].isKnown && !window.isSoft[at])
            window.isKept[at] = window.smooth[i] > keptFrom;
    }
    auto kept = std::make_unique<TileBitmap>();
    for (int y = 0; y < tileSide; ++y)
        for (int x = 0; x < tileSide; x += 8) {
            const std::uint8_t* from =
                window.isKept.data() + windowIndex(windowMargin + x, windowMargin + y);
            std::uint32_t bits = 0;
            for (int i = 0; i < 8; ++i)
                bits |= std::uint32_t{from[i]} << i;
            (*kept)[static_cast<std::size_t>((y * tileSide + x) / 8)] =
                static_cast<std::uint8_t>(bits);
        }
    _tiles[tile].kept = std::move(kept);
}

/// Four pixels at a time; what lies beyond the image goes on as the rim does.
void EdgeRefiner::loadDecidedSides(TileWindow& window) const
{
    for (int y = window.insideTop; y < window.insideBottom; ++y) {
        const int imageY = window.top + y;
        const Tile* row = _tiles.data() + static_cast<std::size_t>(imageY / tileSide) * _across;
        std::uint8_t* isKept = window.isKept.data() + windowIndex(0, y);
        for (int x = window.insideLeft; x < window.insideRight; x += 4) {
            const int imageX = window.left + x;
            const Tile& tile = row[imageX / tileSide];
            if (!tile.kept)
                continue; // as the mask says
            const int place = imageY % tileSide * tileSide + imageX % tileSide;
            const std::uint32_t bits =
                (*tile.kept)[static_cast<std::size_t>(place / 8)] >> (place & 4);
            for (int i = 0; i < 4; ++i)
                isKept[x + i] = bits >> i & 1;
        }
        std::fill(isKept, isKept + window.insideLeft, isKept[window.insideLeft]);
        std::fill(isKept + window.insideRight, isKept + windowSide, isKept[window.insideRight - 1]);
    }
    const auto copyRow = [&window](int from, int to) {
        std::copy_n(window.isKept.data() + windowIndex(0, from), windowSide,
                    window.isKept.data() + windowIndex(0, to));
    };
    for (int y = 0; y < window.insideTop; ++y)
        copyRow(window.insideTop, y);
    for (int y = window.insideBottom; y < windowSide; ++y)
        copyRow(window.insideBottom - 1, y);
}

void EdgeRefiner::refine(std::size_t tile, TileWindow& window)
{
    loadMask(window, _pixels, left(tile), top(tile));
    findSoftPixels(window);
    loadDecidedSides(window);
    estimate(window, erasedDepthOfSecondRound);
    const auto change = [&](std::size_t at, std::uint32_t pixel) {
        if (pixel != pixelAt(window, at))
            _tiles[tile].changes.push_back({placeInTile(at), pixel});
    };
    for (std::size_t i = 0; i < window.band.size(); ++i) {
        const std::size_t at = window.band[i].index;
        if (!isInTile(windowX(at), windowY(at), 0) || window.isSoft[at])
            continue;
        const float edge = (window.smooth[i] - transparentUpTo) / (opaqueFrom - transparentUpTo);
        if (window.sides[i].isKnown)
            change(at, refinedPixel(pixelAt(window, at), window.color(at),
                                    std::clamp(edge, 0.0F, 1.0F), window.sides[i]));
        else if (isDecidedAnew(window, at))
            change(at, pixelOnOtherSide(window, at));
    }
    // Speckle has no boundary any more.
    for (int y = windowMargin; y < windowMargin + tileSide; ++y)
        for (int x = windowMargin; x < windowMargin + tileSide; ++x)
            if (const std::size_t at = windowIndex(x, y);
                isDecidedAnew(window, at) && isBeyondBand(window, at) && window.isInside(x, y))
                change(at, pixelOnOtherSide(window, at));
}

std::uint32_t EdgeRefiner::pixelAt(const TileWindow& window, std::size_t index) const
{
    return _pixels.row(
        static_cast<std::uint32_t>(window.top + windowY(index)))[window.left + windowX(index)];
}

/// With the mask of the nearest pixel that was on its new side all along.
std::uint32_t EdgeRefiner::pixelOnOtherSide(const TileWindow& window, std::size_t index) const
{
    std::uint32_t level = window.isKept[index] ? 255 : 0;
    for (std::size_t distance = bandReach; distance > 0; --distance)
        for (const std::size_t at : {index - distance, index + distance,
                                     index - distance * windowSide, index + distance * windowSide})
            if (window.isKept[at] == window.isKept[index] && !isDecidedAnew(window, at))
                level = window.level[at];
    return (pixelAt(window, index) & 0xFFFFFFU) | level << 24;
}

/// From `isKept` to `smooth` for the band's pixels in the tile.
void EdgeRefiner::estimate(TileWindow& window, int depthOfErased) const
{
    findBand(window, keptDepth, depthOfErased);
    std::erase_if(window.band, [&window](const BandPixel& pixel) {
        const int x = windowX(pixel.index);
        const int y = windowY(pixel.index);
        return !isInTile(x, y, smoothReach) || !window.isInside(x, y);
    });
    markCells(window);
    loadColors(window, _pixels);
    gatherColors(window);
    estimateAlpha(window);
    smoothAlpha(window);
}

void EdgeRefiner::writeChanges(std::size_t tile)
{
    for (const Change& change : std::exchange(_tiles[tile].changes, {})) {
        const auto y = static_cast<std::uint32_t>(top(tile)) + change.place / tileSide;
        const auto x = static_cast<std::uint32_t>(left(tile)) + change.place % tileSide;
        _pixels.row(y)[x] = change.pixel;
    }
}

} // namespace pelmira
