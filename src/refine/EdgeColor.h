#pragma once

#include "refine/TileWindow.h"

#include <cstdint>

namespace pelmira {

/// Of a pixel B, G, R, A, without its alpha.
EdgeColor edgeColor(std::uint32_t pixel);

/// The pixel with the given alpha of its edge, 0 to 1, in place of the mask's hard step: between
/// the masks of the two sides, where its own stands for its side. Its colour becomes what the kept
/// side adds to the mixture, as likely as both sides' spread and the photo's noise allow (the MAP
/// estimate of Bayesian matting, Chuang et al. 2001, for one Gaussian a side).
std::uint32_t refinedPixel(std::uint32_t pixel, const EdgeColor& color, float alpha,
                           const SidesNear& sides);

} // namespace pelmira
