#pragma once

#include "refine/TileWindow.h"

namespace pelmira {

/// Marks the pixels whose alpha is soft already: it differs by more than a tenth from a
/// neighbour's on the same side of one half, or passes to the other side in a gentle step. What
/// such a pixel has is what the user wanted: no hard boundary runs along it.
void findSoftPixels(TileWindow& window);

/// Fills `depth`, and `band` with the pixels that touch the hard boundary and those next to them,
/// in the order of growing depth.
void findBand(TileWindow& window);

/// Adds to the band the neighbours one step deeper of those of its pixels, from the first one
/// given, whose alpha differs from what the mask says: what the wand took too much or left too much
/// goes on there. By turns neighbours are the four that share a side and all eight.
void growBand(TileWindow& window, std::size_t first, int depth);

} // namespace pelmira
