#include "refine/TileWindow.h"

#include "refine/EdgeColor.h"

#include <algorithm>

namespace pelmira {
namespace {

constexpr EdgeColor nowhere{1e4F, 1e4F, 1e4F};

void storeColor(TileWindow& window, std::size_t index, const EdgeColor& color)
{
    window.y[index] = color.y;
    window.cb[index] = color.cb;
    window.cr[index] = color.cr;
}

/// Of four pixels side by side.
void storeColors(TileWindow& window, std::size_t index, const std::uint32_t* pixels)
{
    const FourEdgeColors colors = edgeColors(pixels);
    store4(window.y.data() + index, colors.y);
    store4(window.cb.data() + index, colors.cb);
    store4(window.cr.data() + index, colors.cr);
}

} // namespace

// All that the lists can ever hold: nothing is allocated while the window is in use.
TileWindow::TileWindow()
{
    band.reserve(windowPixels);
    sides.reserve(windowPixels);
    smooth.reserve(windowPixels);
}

void loadMask(TileWindow& window, const PixelSpan& image, int tileLeft, int tileTop)
{
    const int width = static_cast<int>(image.width);
    const int height = static_cast<int>(image.height);
    window.left = tileLeft - windowMargin;
    window.top = tileTop - windowMargin;
    window.insideLeft = std::max(-window.left, 0);
    window.insideTop = std::max(-window.top, 0);
    window.insideRight = std::min(width - window.left, windowSide);
    window.insideBottom = std::min(height - window.top, windowSide);
    // Copies, which writing bytes can't change: only then is the loop made into vectors.
    const int first = window.insideLeft;
    const int end = window.insideRight;
    for (int y = 0; y < windowSide; ++y) {
        const int imageY = std::clamp(window.top + y, 0, height - 1);
        const std::uint32_t* row =
            image.row(static_cast<std::uint32_t>(imageY)) + (window.left + first);
        std::uint8_t* level = window.level.data() + windowIndex(0, y);
        for (int x = 0; x < end - first; ++x)
            level[first + x] = static_cast<std::uint8_t>(row[x] >> 24);
        std::fill(level, level + first, level[first]);
        std::fill(level + end, level + windowSide, level[end - 1]);
    }
    for (std::size_t i = 0; i < windowPixels; ++i)
        window.isKept[i] = window.level[i] >> 7;
}

void loadColors(TileWindow& window, std::size_t cell, const PixelSpan& image)
{
    const int left = static_cast<int>(cell % cellsAcross) * cellSide;
    const int top = static_cast<int>(cell / cellsAcross) * cellSide;
    for (int y = top; y < top + cellSide; ++y) {
        const std::size_t i = windowIndex(left, y);
        if (window.isInside(left, y) && window.isInside(left + cellSide - 1, y)) {
            storeColors(window, i,
                        image.row(static_cast<std::uint32_t>(window.top + y)) +
                            (window.left + left));
        } else {
            for (int x = left; x < left + cellSide; ++x)
                storeColor(window, windowIndex(x, y),
                           window.isInside(x, y) ? edgeColor(image.row(static_cast<std::uint32_t>(
                                                       window.top + y))[window.left + x])
                                                 : nowhere);
        }
        for (std::size_t x = 0; x < cellSide; ++x)
            window.alpha[i + x] = window.isKept[i + x];
    }
}

} // namespace pelmira
