#include "refine/EdgeAlpha.h"
#include "refine/Float4.h"
#include "refine/LocalColors.h"

#include <algorithm>
#include <cmath>

namespace pelmira {
namespace {

/// Less than so much weight of either side near a pixel: nothing can be said of it.
constexpr float leastWeight = 1e-5F;

/// What the photo's noise and compression add to the two sides' covariance.
constexpr float covarianceShare = 0.3F;
constexpr float brightnessNoise = 14.0F;
constexpr float chromaNoise = 3.5F;

/// What a depth lets expect, and how strongly, in squared standard deviations: for -4 to -1, then
/// for 1 to 3.
constexpr std::array<float, 7> expected = {0.015F, 0.03F, 0.06F, 0.3F, 0.85F, 0.97F, 1.0F};
constexpr std::array<float, 7> strengths = {75.0F, 22.5F, 11.5F, 2.5F, 6.25F, 55.0F, 180.0F};
/// A pixel with a smaller share of kept ones around it than this belongs to a speckle.
constexpr float speckleShare = 0.4F;

constexpr int smoothRadius = 2;
constexpr int smoothSide = 2 * smoothRadius + 1;
constexpr float spatialSigma = 1.3F;
constexpr float colorSigma = 6.8F;

/// The place of a color between two, 0 at the erased side's mean, and how far apart these are, in
/// standard deviations squared.
struct LinePlace {
    float place = 0;
    float distance = 0;
};

LinePlace placeOnLine(const LocalColors& kept, const LocalColors& erased, const EdgeColor& color)
{
    const auto spread = [&](std::size_t i) {
        return covarianceShare * (kept.covariance[i] + erased.covariance[i]);
    };
    const float a = spread(0) + brightnessNoise;
    const float b = spread(1);
    const float c = spread(2);
    const float d = spread(3) + chromaNoise;
    const float e = spread(4);
    const float f = spread(5) + chromaNoise;
    const float dy = kept.mean.y - erased.mean.y;
    const float db = kept.mean.cb - erased.mean.cb;
    const float dr = kept.mean.cr - erased.mean.cr;
    // The inverse of a symmetric matrix by its cofactors.
    const float df = d * f - e * e;
    const float ce = c * e - b * f;
    const float be = b * e - c * d;
    const float determinant = a * df + b * ce + c * be;
    if (!(determinant > 0))
        return {};
    const float by = 1.0F / determinant;
    const float wy = (df * dy + ce * db + be * dr) * by;
    const float wb = (ce * dy + (a * f - c * c) * db + (b * c - a * e) * dr) * by;
    const float wr = (be * dy + (b * c - a * e) * db + (a * d - b * b) * dr) * by;
    const float distance = dy * wy + db * wb + dr * wr;
    if (!(distance > 1e-6F))
        return {};
    const float along = wy * (color.y - erased.mean.y) + wb * (color.cb - erased.mean.cb) +
                        wr * (color.cr - erased.mean.cr);
    return {std::clamp(along / distance, -0.3F, 1.3F), distance};
}

float alphaFor(int depth, const LocalColors& kept, const LocalColors& erased,
               const EdgeColor& color)
{
    const auto i = static_cast<std::size_t>(depth < 0 ? depth + 4 : depth + 3);
    const float keptShare = kept.weight / (kept.weight + erased.weight);
    const float prior = expected[i] * std::min(keptShare / speckleShare, 1.0F);
    const LinePlace line = placeOnLine(kept, erased, color);
    return (line.distance * line.place + strengths[i] * prior) / (line.distance + strengths[i]);
}

float meanVariance(const LocalColors& colors)
{
    return (colors.covariance[0] + colors.covariance[3] + colors.covariance[5]) / 3.0F;
}

/// Gaussians by place, with room for a second load of four.
struct SpatialWeights {
    std::array<std::array<float, 8>, smoothSide> rows{};

    SpatialWeights()
    {
        for (int y = 0; y < smoothSide; ++y)
            for (int x = 0; x < smoothSide; ++x) {
                const int dx = x - smoothRadius;
                const int dy = y - smoothRadius;
                rows[static_cast<std::size_t>(y)][static_cast<std::size_t>(x)] = std::exp(
                    -static_cast<float>(dx * dx + dy * dy) / (2 * spatialSigma * spatialSigma));
            }
    }
};

/// exp(-d² / 2σ²) as (1 - d² / 16σ²)^8, which needs no table and ends at four sigmas.
Float4 likeness(Float4 dy, Float4 dcb, Float4 dcr)
{
    const Float4 squared = dy * dy + 0.5F * (dcb * dcb + dcr * dcr);
    const Float4 base = positive(1.0F - squared * (1.0F / (16 * colorSigma * colorSigma)));
    const Float4 second = base * base;
    const Float4 fourth = second * second;
    return fourth * fourth;
}

} // namespace

void estimateAlpha(TileWindow& window)
{
    for (std::size_t i = 0; i < windowPixels; ++i)
        window.alpha[i] = window.isKept[i] ? 1.0F : 0.0F;
    window.sides.clear();
    for (const BandPixel pixel : window.band) {
        const SidedColors near = colorsAt(window, pixel.index);
        if (near.kept.weight < leastWeight || near.erased.weight < leastWeight) {
            window.sides.push_back({});
            continue;
        }
        window.alpha[pixel.index] =
            alphaFor(pixel.depth, near.kept, near.erased, window.color(pixel.index));
        window.sides.push_back({near.kept.mean, near.erased.mean, meanVariance(near.kept),
                                meanVariance(near.erased), near.kept.level, near.erased.level,
                                true});
    }
}

void smoothAlpha(TileWindow& window)
{
    static const SpatialWeights spatial;
    window.smooth.clear();
    for (const BandPixel pixel : window.band) {
        const EdgeColor center = window.color(pixel.index);
        const std::size_t first = pixel.index - smoothRadius * (windowSide + 1);
        Float4 sum{};
        Float4 all{};
        for (std::size_t y = 0; y < smoothSide; ++y)
            for (const std::size_t x : {0U, 4U}) {
                const std::size_t i = first + y * windowSide + x;
                const Float4 weight = load4(spatial.rows[y].data() + x) *
                                      likeness(load4(window.y.data() + i) - center.y,
                                               load4(window.cb.data() + i) - center.cb,
                                               load4(window.cr.data() + i) - center.cr);
                sum += weight * load4(window.alpha.data() + i);
                all += weight;
            }
        window.smooth.push_back(sumOf(sum) / sumOf(all)); // its own weight is 1
    }
}

} // namespace pelmira
