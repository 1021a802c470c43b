#include "refine/TileWindow.h"

#include "refine/EdgeColor.h"

#include <algorithm>

namespace pelmira {
namespace {

constexpr EdgeColor nowhere{1e4F, 1e4F, 1e4F};

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
    for (int y = 0; y < windowSide; ++y) {
        const int imageY = std::clamp(window.top + y, 0, height - 1);
        const std::uint32_t* row = image.row(static_cast<std::uint32_t>(imageY));
        std::uint8_t* level = window.level.data() + windowIndex(0, y);
        for (int x = window.insideLeft; x < window.insideRight; ++x)
            level[x] = static_cast<std::uint8_t>(row[window.left + x] >> 24);
        std::fill(level, level + window.insideLeft, level[window.insideLeft]);
        std::fill(level + window.insideRight, level + windowSide, level[window.insideRight - 1]);
    }
    for (std::size_t i = 0; i < windowPixels; ++i)
        window.isKept[i] = window.level[i] >> 7;
}

void loadColors(TileWindow& window, const PixelSpan& image)
{
    for (std::size_t cell = 0; cell < windowCells; ++cell) {
        if (!window.cellUse[cell])
            continue;
        const int left = static_cast<int>(cell % cellsAcross) * cellSide;
        const int top = static_cast<int>(cell / cellsAcross) * cellSide;
        for (int y = top; y < top + cellSide; ++y)
            for (int x = left; x < left + cellSide; ++x) {
                const EdgeColor color = window.isInside(x, y)
                                            ? edgeColor(image.row(static_cast<std::uint32_t>(
                                                  window.top + y))[window.left + x])
                                            : nowhere;
                const std::size_t i = windowIndex(x, y);
                window.y[i] = color.y;
                window.cb[i] = color.cb;
                window.cr[i] = color.cr;
            }
    }
}

} // namespace pelmira
