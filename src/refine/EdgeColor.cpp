#include "refine/EdgeColor.h"

#include <algorithm>

namespace pelmira {
namespace {

constexpr float spreadShare = 0.75F; // of the variance near it; a pixel's own colour varies less
constexpr float noise = 5.0F;        // variance, in levels squared

std::uint32_t byte(float value)
{
    return static_cast<std::uint32_t>(std::clamp(value, 0.0F, 255.0F) + 0.5F);
}

std::uint32_t rgb(const EdgeColor& color)
{
    const float y = color.y + center;
    const float r = y + color.cr / crPerRed;
    const float b = y + color.cb / cbPerBlue;
    const float g = (y - redShare * r - blueShare * b) / greenShare;
    return byte(r) << 16 | byte(g) << 8 | byte(b);
}

} // namespace

std::uint32_t refinedPixel(std::uint32_t pixel, const EdgeColor& color, float alpha,
                           const SidesNear& sides)
{
    const auto own = static_cast<float>(pixel >> 24);
    const bool isKept = own >= center;
    const float high = isKept ? own : sides.keptLevel;
    const float low = isKept ? sides.erasedLevel : own;
    const std::uint32_t level = byte(low + (high - low) * alpha);
    if (alpha <= 0 || alpha >= 1)
        return (pixel & 0xFFFFFFU) | level << 24;
    const float keptSpread = spreadShare * sides.keptVariance;
    const float erasedSpread = spreadShare * sides.erasedVariance;
    const float rest = 1 - alpha;
    const float gain =
        alpha * keptSpread / (alpha * alpha * keptSpread + rest * rest * erasedSpread + noise);
    const auto unmixed = [&](float mixture, float kept, float erased) {
        return kept + gain * (mixture - alpha * kept - rest * erased);
    };
    return rgb({unmixed(color.y, sides.kept.y, sides.erased.y),
                unmixed(color.cb, sides.kept.cb, sides.erased.cb),
                unmixed(color.cr, sides.kept.cr, sides.erased.cr)}) |
           level << 24;
}

} // namespace pelmira
