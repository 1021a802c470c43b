#pragma once

#include "refine/TileWindow.h"

namespace pelmira {

/// Fills `alpha` and `sides` from the colours of the band's pixels: where on the line between
/// the two sides' colours a pixel lies, by Fisher's linear discriminant (1936), weighed against
/// what its depth lets expect.
void estimateAlpha(TileWindow& window);

/// Fills `smooth`: `alpha` evened out where colours are alike, by a joint bilateral filter
/// (Petschnigg et al. 2004).
void smoothAlpha(TileWindow& window);

} // namespace pelmira
