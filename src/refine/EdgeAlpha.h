#pragma once

#include "refine/EdgeNetwork.h"
#include "refine/TileWindow.h"

namespace pelmira {

/// What a pixel is smoothed from.
constexpr int smoothRadius = 2;

/// Fills `alpha` and `sides` for the band's pixels, from the first one given, from what their
/// colours are beside those of the two sides near them.
void estimateAlpha(TileWindow& window, std::size_t first);

/// What these four pixels of the band are told from, where both sides are known.
FourMeasures measuresAt(const TileWindow& window, const std::array<std::size_t, 4>& indices);

/// Fills `smooth` for the pixels in the tile: `alpha` evened out where colours are alike, by a
/// joint bilateral filter (Petschnigg et al. 2004).
void smoothAlpha(TileWindow& window);

/// All of it: from `isKept` and `isSoft` to `band`, `sides` and `smooth`.
void estimateEdge(TileWindow& window, const PixelSpan& image);

} // namespace pelmira
