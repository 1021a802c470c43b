#pragma once

#include "platform/pixels/PixelSpan.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <vector>

namespace pelmira {

/// The image is worked on in square tiles, each with a margin from which its pixels are told: a
/// window. What a tile gets depends on its window alone, so tiles may be done in any order.
constexpr int tileSide = 128;
constexpr int windowMargin = 24;
constexpr int windowSide = tileSide + 2 * windowMargin;
constexpr std::size_t windowPixels = std::size_t{windowSide} * windowSide;

/// Statistics are kept by cells of 4 × 4 pixels, which lie alike in all windows.
constexpr int cellSide = 4;
constexpr int cellsAcross = windowSide / cellSide;
constexpr std::size_t windowCells = std::size_t{cellsAcross} * cellsAcross;
static_assert(tileSide % 8 == 0 && tileSide % cellSide == 0 && windowMargin % cellSide == 0);

/// How many steps into each side a pixel may be told; the last two only where something leads
/// there.
constexpr int keptDepth = 4;
constexpr int erasedDepth = 5;

/// Which of a tile's pixels are kept: four to a byte's half, the first in its lowest bit.
using TileBitmap = std::array<std::uint8_t, std::size_t{tileSide} * tileSide / 8>;

constexpr std::size_t windowIndex(int x, int y)
{
    return static_cast<std::size_t>(y) * windowSide + static_cast<std::size_t>(x);
}
constexpr int windowX(std::size_t index)
{
    return static_cast<int>(index % windowSide);
}
constexpr int windowY(std::size_t index)
{
    return static_cast<int>(index / windowSide);
}

/// Whether the pixel lies in the tile, or so many pixels around it.
constexpr bool isInTile(std::size_t index, int around)
{
    const int x = windowX(index) - windowMargin;
    const int y = windowY(index) - windowMargin;
    return x >= -around && x < tileSide + around && y >= -around && y < tileSide + around;
}

/// Y, Cb, Cr of ITU-R BT.601 in the range of bytes, all centred at 0.
struct EdgeColor {
    float y = 0;
    float cb = 0;
    float cr = 0;
};

/// Weighted sums over a cell's pixels on one side of the boundary: of 1, of the three components,
/// of their six products, of the mask where it agrees with the side, and of 1 there.
struct alignas(16) ColorSums {
    std::array<float, 12> sum{};
};

struct SidedColorSums {
    ColorSums erased;
    ColorSums kept;
};

/// A pixel near the boundary.
struct BandPixel {
    std::uint16_t index = 0; // windowIndex
    std::int8_t depth = 0;   // 1 to keptDepth steps within the kept side; -1 to -erasedDepth
};

/// What the two sides look like near a pixel of the band.
struct SidesNear {
    EdgeColor kept;
    EdgeColor erased;
    float keptVariance = 0; // mean of the three components'
    float erasedVariance = 0;
    float keptLevel = 255; // mean of the mask
    float erasedLevel = 0;
    bool isKnown = false; // else the rest says nothing
};

/// Scratch for one tile, reused for the next: about a megabyte. All planes are in the window's
/// pixels, row by row; what lies beyond the image repeats its rim in the mask, and has a colour far
/// from any.
struct TileWindow {
    TileWindow();

    int left = 0; // of the window, in the image's pixels
    int top = 0;
    int insideLeft = 0; // the part that lies in the image, in the window's pixels
    int insideTop = 0;
    int insideRight = 0;
    int insideBottom = 0;

    std::array<std::uint8_t, windowPixels> level;  // the mask as the user left it
    std::array<std::uint8_t, windowPixels> isKept; // 0 or 1
    std::array<std::uint8_t, windowPixels> isSoft; // 0 or 1
    std::array<std::int8_t, windowPixels> depth;   // as a band pixel's; deeper than any beyond it
    std::array<float, windowPixels> y;             // of the cells in use, as in EdgeColor
    std::array<float, windowPixels> cb;
    std::array<float, windowPixels> cr;
    std::array<float, windowPixels> alpha; // 0 to 1, of the cells in use
    std::array<std::uint8_t, windowCells> cellUse;
    std::array<SidedColorSums, windowCells> cells;
    std::array<SidedColorSums, windowCells> blurredAcross;
    std::array<SidedColorSums, windowCells> blurredCells;
    std::vector<BandPixel> band;
    std::vector<SidesNear> sides; // of the band's pixels, in their order
    std::vector<float> smooth;    // their alpha, smoothed

    bool isInside(int column, int row) const
    {
        return column >= insideLeft && column < insideRight && row >= insideTop &&
               row < insideBottom;
    }
    EdgeColor color(std::size_t index) const { return {y[index], cb[index], cr[index]}; }
};

/// Places the window around the tile that begins at the given pixel, and fills `level` and
/// `isKept` from the image's alpha.
void loadMask(TileWindow& window, const PixelSpan& image, int tileLeft, int tileTop);

/// Fills the colours of a cell's pixels, and their alpha as the mask has it.
void loadColors(TileWindow& window, std::size_t cell, const PixelSpan& image);

} // namespace pelmira
