#pragma once

#include "refine/TileWindow.h"

namespace pelmira {

/// Marks in `cellUse` the cells that the statistics of the band's pixels come from.
void markCells(TileWindow& window);

/// Fills `cells` around the band: what colours the two sides have near each cell. These are the
/// means of normalised convolution (Knutsson and Westin 1993), with weights that leave out what
/// lies right at the boundary, where the two are mixed.
void gatherColors(TileWindow& window);

/// One side's colours near a pixel.
struct LocalColors {
    float weight = 0; // 0 to 16; 0: none are near, and the rest says nothing
    EdgeColor mean;
    std::array<float, 6> covariance{}; // yy, y·cb, y·cr, cb·cb, cb·cr, cr·cr
    float level = 0;                   // mean of the mask, 0 to 255
};

struct SidedColors {
    LocalColors erased;
    LocalColors kept;
};

/// At a pixel of the band; bilinear between the four nearest cells.
SidedColors colorsAt(const TileWindow& window, std::size_t index);

} // namespace pelmira
