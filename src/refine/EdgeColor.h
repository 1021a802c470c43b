#pragma once

#include "refine/Float4.h"
#include "refine/TileWindow.h"

#include <cstdint>
#include <cstring>

namespace pelmira {

constexpr float redShare = 0.299F;
constexpr float greenShare = 0.587F;
constexpr float blueShare = 0.114F;
constexpr float cbPerBlue = 0.564F;
constexpr float crPerRed = 0.713F;
constexpr float center = 128.0F;

/// Of a pixel B, G, R, A, without its alpha.
inline EdgeColor edgeColor(std::uint32_t pixel)
{
    const auto b = static_cast<float>(pixel & 255);
    const auto g = static_cast<float>(pixel >> 8 & 255);
    const auto r = static_cast<float>(pixel >> 16 & 255);
    const float y = redShare * r + greenShare * g + blueShare * b;
    return {y - center, (b - y) * cbPerBlue, (r - y) * crPerRed};
}

/// Of the four pixels from the given one on.
struct FourEdgeColors {
    Float4 y, cb, cr;
};
inline FourEdgeColors edgeColors(const std::uint32_t* pixels)
{
    Int4 four;
    std::memcpy(&four, pixels, sizeof four);
    const Float4 b = __builtin_convertvector(four & 255, Float4);
    const Float4 g = __builtin_convertvector(four >> 8 & 255, Float4);
    const Float4 r = __builtin_convertvector(four >> 16 & 255, Float4);
    const Float4 y = redShare * r + greenShare * g + blueShare * b;
    return {y - center, (b - y) * cbPerBlue, (r - y) * crPerRed};
}

/// The pixel with the given alpha of its edge, 0 to 1, in place of the mask's hard step: between
/// the masks of the two sides, where its own stands for its side. Its colour becomes what the kept
/// side adds to the mixture, as likely as both sides' spread and the photo's noise allow (the MAP
/// estimate of Bayesian matting, Chuang et al. 2001, for one Gaussian a side).
std::uint32_t refinedPixel(std::uint32_t pixel, const EdgeColor& color, float alpha,
                           const SidesNear& sides);

} // namespace pelmira
