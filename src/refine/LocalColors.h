#pragma once

#include "refine/Float4.h"
#include "refine/TileWindow.h"

namespace pelmira {

/// Fills what the band's pixels, from the first one given, are told from: the colours around them
/// and `blurredCells`, what colours the two sides have near each cell. These are the means of
/// normalised convolution (Knutsson and Westin 1993), with weights that leave out what lies right
/// at the boundary, where the two are mixed. `cellUse` remembers which cells are done.
void gatherColors(TileWindow& window, std::size_t first, const PixelSpan& image);

/// One side's colours near each of four pixels.
struct LocalColors {
    Float4 weight; // 0 to 16; 0: none are near, and the rest says nothing
    Float4 y, cb, cr;
    std::array<Float4, 6> covariance; // yy, y·cb, y·cr, cb·cb, cb·cr, cr·cr
    Float4 level;                     // mean of the mask, 0 to 255
};

struct SidedColors {
    LocalColors erased;
    LocalColors kept;
};

/// At four pixels of the band; bilinear between the four nearest cells.
SidedColors colorsAt(const TileWindow& window, const std::array<std::size_t, 4>& indices);

} // namespace pelmira
