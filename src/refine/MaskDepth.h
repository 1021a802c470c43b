#pragma once

#include "refine/TileWindow.h"

namespace pelmira {

/// Marks the pixels whose alpha is soft already: it differs by more than a tenth from a
/// neighbour's on the same side of one half, or passes to the other side in a gentle step. What
/// such a pixel has is what the user wanted: no hard boundary runs along it.
void findSoftPixels(TileWindow& window);

/// Fills `depth` and `band` by growing from the hard boundary, over the 4- and the 8-neighbourhood
/// in turn, so many pixels into each side. The band is in the order of growing depth.
void findBand(TileWindow& window, int keptDepth, int erasedDepth);

} // namespace pelmira
