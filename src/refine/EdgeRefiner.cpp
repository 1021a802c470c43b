#include "refine/EdgeRefiner.h"

#include "platform/base/ParallelJobs.h"
#include "refine/EdgeAlpha.h"
#include "refine/EdgeColor.h"
#include "refine/LocalColors.h"
#include "refine/MaskDepth.h"

#include <algorithm>
#include <cstdlib>
#include <new>
#include <utility>

namespace pelmira {
namespace {

constexpr int bandReach = 8;

/// A little less than this share of the kept side still belongs to it.
constexpr float keptFrom = 0.3F;

/// What is next to nothing is nothing, at both ends.
constexpr float transparentUpTo = 0.02F;
constexpr float opaqueFrom = 0.98F;

/// Whether the first round took the pixel to the other side.
bool isDecidedAnew(const TileWindow& window, std::size_t index)
{
    return window.isKept[index] != window.level[index] >> 7;
}

bool isBeyondBand(const TileWindow& window, std::size_t index)
{
    return window.depth[index] > keptDepth || window.depth[index] < -erasedDepth;
}

/// Whether the mask changes within bandReach of it.
bool isNearMasksBoundary(const TileWindow& window, std::size_t index)
{
    const int side = window.level[index] >> 7;
    for (int y = -bandReach; y <= bandReach; ++y)
        for (int x = -bandReach; x <= bandReach; ++x)
            if (x * x + y * y <= bandReach * bandReach &&
                window.level[index + static_cast<std::size_t>(y * windowSide + x)] >> 7 != side)
                return true;
    return false;
}

/// A byte for each of so many bits of a row from the given one on, which is a multiple of 4.
void unpack(const std::uint8_t* bits, int first, int count, std::uint8_t* to)
{
    for (int i = 0; i < count; i += 4) {
        const int nibble = bits[(first + i) / 8] >> ((first + i) & 4);
        for (int k = 0; k < 4; ++k)
            to[i + k] = static_cast<std::uint8_t>(nibble >> k & 1);
    }
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
    constexpr int reach = bandReach + smoothRadius;
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
    estimateEdge(window, _pixels);
    for (std::size_t i = 0; i < window.band.size(); ++i) {
        const std::size_t at = window.band[i].index;
        if (window.sides[i].isKnown && !window.isSoft[at] && isInTile(at, 0))
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

/// What lies beyond the image goes on as the rim does.
void EdgeRefiner::loadDecidedSides(TileWindow& window) const
{
    const int end = window.left + window.insideRight;
    for (int y = window.insideTop; y < window.insideBottom; ++y) {
        const int imageY = window.top + y;
        const Tile* row = _tiles.data() + static_cast<std::size_t>(imageY / tileSide) * _across;
        std::uint8_t* isKept = window.isKept.data() + windowIndex(0, y);
        for (int x = window.left + window.insideLeft; x < end;) {
            const Tile& tile = row[x / tileSide];
            const int tileEnd = std::min((x / tileSide + 1) * tileSide, end);
            if (tile.kept) // else as the mask says
                unpack(tile.kept->data() + imageY % tileSide * (tileSide / 8), x % tileSide,
                       tileEnd - x, isKept + (x - window.left));
            x = tileEnd;
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
    estimateEdge(window, _pixels);
    const auto change = [&](std::size_t at, std::uint32_t pixel) {
        if (pixel != pixelAt(window, at))
            _tiles[tile].changes.push_back({placeInTile(at), pixel});
    };
    for (std::size_t i = 0; i < window.band.size(); ++i) {
        const std::size_t at = window.band[i].index;
        if (!isInTile(at, 0) || window.isSoft[at])
            continue;
        // Five steps of the first round and two of this one stay within it, more might not.
        if (std::abs(window.band[i].depth) > 2 && !isNearMasksBoundary(window, at))
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

void EdgeRefiner::writeChanges(std::size_t tile)
{
    for (const Change& change : std::exchange(_tiles[tile].changes, {})) {
        const auto y = static_cast<std::uint32_t>(top(tile)) + change.place / tileSide;
        const auto x = static_cast<std::uint32_t>(left(tile)) + change.place % tileSide;
        _pixels.row(y)[x] = change.pixel;
    }
}

} // namespace pelmira
