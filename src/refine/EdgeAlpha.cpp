#include "refine/EdgeAlpha.h"
#include "refine/EdgeColor.h"
#include "refine/Float4.h"
#include "refine/LocalColors.h"
#include "refine/MaskDepth.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace pelmira {
namespace {

/// Less than so much weight of either side near a pixel: nothing can be said of it.
constexpr float leastWeight = 1e-5F;

/// What the photo's noise and compression add to the sides' covariances.
constexpr float brightnessNoise = 14.0F;
constexpr float chromaNoise = 3.5F;

/// The share of both sides' covariances that counts for a mixture of the two.
constexpr float mixtureShare = 0.3F;

constexpr float leastDistance = 1e-6F; // no division by 0

constexpr int smoothSide = 2 * smoothRadius + 1;
constexpr float spatialSigma = 1.3F;
constexpr float colorSigma = 6.8F;

/// The inverses of four symmetric matrices, by cofactors.
struct Inverse {
    Float4 a, b, c, d, e, f; // aa, ab, ac, bb, bc, cc

    explicit Inverse(const std::array<Float4, 6>& m)
    {
        a = m[3] * m[5] - m[4] * m[4];
        b = m[2] * m[4] - m[1] * m[5];
        c = m[1] * m[4] - m[2] * m[3];
        d = m[0] * m[5] - m[2] * m[2];
        e = m[1] * m[2] - m[0] * m[4];
        f = m[0] * m[3] - m[1] * m[1];
        // The noise on the diagonal keeps it well above 0.
        const Float4 by = 1.0F / (m[0] * a + m[1] * b + m[2] * c);
        for (Float4* part : {&a, &b, &c, &d, &e, &f})
            *part *= by;
    }
};

FourEdgeColors operator-(const FourEdgeColors& p, const FourEdgeColors& q)
{
    return {p.y - q.y, p.cb - q.cb, p.cr - q.cr};
}

/// In standard deviations; a squared length where the two are one.
Float4 product(const Inverse& i, const FourEdgeColors& p, const FourEdgeColors& q)
{
    return p.y * (i.a * q.y + i.b * q.cb + i.c * q.cr) +
           p.cb * (i.b * q.y + i.d * q.cb + i.e * q.cr) +
           p.cr * (i.c * q.y + i.e * q.cb + i.f * q.cr);
}

Inverse inverseOf(const LocalColors& colors)
{
    auto covariance = colors.covariance;
    covariance[0] += brightnessNoise;
    covariance[3] += chromaNoise;
    covariance[5] += chromaNoise;
    return Inverse(covariance);
}

Inverse inverseOfMixture(const SidedColors& sides)
{
    LocalColors colors{};
    for (std::size_t i = 0; i < 6; ++i)
        colors.covariance[i] =
            mixtureShare * (sides.kept.covariance[i] + sides.erased.covariance[i]);
    return inverseOf(colors);
}

Float4 varianceOf(const LocalColors& colors)
{
    return colors.covariance[0] + colors.covariance[3] + colors.covariance[5];
}

Float4 clamped(Float4 v, float low, float high)
{
    return low + (high - low) - positive(high - low - positive(v - low));
}

/// Where on the line between the two sides' colours a pixel lies, by Fisher's linear discriminant
/// (1936), and how far it is from that line and from both sides.
FourMeasures measuresOf(const SidedColors& sides, const FourEdgeColors& color)
{
    const FourEdgeColors kept = {sides.kept.y, sides.kept.cb, sides.kept.cr};
    const FourEdgeColors erased = {sides.erased.y, sides.erased.cb, sides.erased.cr};
    const FourEdgeColors across = kept - erased;
    const FourEdgeColors own = color - erased;
    const Inverse mixture = inverseOfMixture(sides);
    const Float4 distance = product(mixture, across, across);
    const Float4 place =
        clamped(product(mixture, across, own) / (distance + leastDistance), -0.3F, 1.3F);
    const Float4 onLine = clamped(place, 0, 1);
    const FourEdgeColors offLine = {own.y - onLine * across.y, own.cb - onLine * across.cb,
                                    own.cr - onLine * across.cr};
    const auto logarithm = [](Float4 v) { return roughLog2(1.0F + positive(v)); };
    const FourEdgeColors fromKept = color - kept;
    return {place,
            logarithm(distance),
            logarithm(product(inverseOf(sides.erased), own, own)),
            logarithm(product(inverseOf(sides.kept), fromKept, fromKept)),
            logarithm(product(mixture, offLine, offLine)),
            sides.kept.weight / (sides.kept.weight + sides.erased.weight + leastWeight),
            logarithm(varianceOf(sides.kept)),
            logarithm(varianceOf(sides.erased)),
            (sides.kept.weight + sides.erased.weight) * (1.0F / (cellSide * cellSide))};
}

FourEdgeColors colorsOf(const TileWindow& window, const std::array<std::size_t, 4>& indices)
{
    std::array<std::array<float, 4>, 3> lanes;
    for (std::size_t i = 0; i < 4; ++i) {
        lanes[0][i] = window.y[indices[i]];
        lanes[1][i] = window.cb[indices[i]];
        lanes[2][i] = window.cr[indices[i]];
    }
    return {load4(lanes[0].data()), load4(lanes[1].data()), load4(lanes[2].data())};
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

void estimateAlpha(TileWindow& window, std::size_t first)
{
    const auto& band = window.band;
    window.sides.resize(band.size());
    for (; first < band.size(); first += 4) {
        std::array<std::size_t, 4> at;
        std::array<int, 4> depths;
        for (std::size_t i = 0; i < 4; ++i) {
            const BandPixel pixel = band[std::min(first + i, band.size() - 1)];
            at[i] = pixel.index;
            depths[i] = pixel.depth;
        }
        const SidedColors near = colorsAt(window, at);
        const Float4 alpha = likelyAlpha(measuresOf(near, colorsOf(window, at)), depths);
        const Float4 keptVariance = varianceOf(near.kept) * (1.0F / 3);
        const Float4 erasedVariance = varianceOf(near.erased) * (1.0F / 3);
        const std::size_t count = std::min<std::size_t>(4, band.size() - first);
        for (std::size_t i = 0; i < count; ++i) {
            const auto k = static_cast<int>(i);
            SidesNear& sides = window.sides[first + i];
            sides.isKnown =
                near.kept.weight[k] >= leastWeight && near.erased.weight[k] >= leastWeight;
            if (!sides.isKnown)
                continue;
            window.alpha[at[i]] = alpha[k];
            sides = {{near.kept.y[k], near.kept.cb[k], near.kept.cr[k]},
                     {near.erased.y[k], near.erased.cb[k], near.erased.cr[k]},
                     keptVariance[k],
                     erasedVariance[k],
                     near.kept.level[k],
                     near.erased.level[k],
                     true};
        }
    }
}

FourMeasures measuresAt(const TileWindow& window, const std::array<std::size_t, 4>& indices)
{
    return measuresOf(colorsAt(window, indices), colorsOf(window, indices));
}

void smoothAlpha(TileWindow& window)
{
    static const SpatialWeights spatial;
    window.smooth.clear();
    for (const BandPixel pixel : window.band) {
        if (!isInTile(pixel.index, 0)) {
            window.smooth.push_back(0);
            continue;
        }
        const EdgeColor own = window.color(pixel.index);
        const std::size_t first = pixel.index - smoothRadius * (windowSide + 1);
        Float4 sum{};
        Float4 all{};
        for (std::size_t y = 0; y < smoothSide; ++y)
            for (const std::size_t x : {0U, 4U}) {
                const std::size_t i = first + y * windowSide + x;
                const Float4 weight = load4(spatial.rows[y].data() + x) *
                                      likeness(load4(window.y.data() + i) - own.y,
                                               load4(window.cb.data() + i) - own.cb,
                                               load4(window.cr.data() + i) - own.cr);
                sum += weight * load4(window.alpha.data() + i);
                all += weight;
            }
        window.smooth.push_back(sumOf(sum) / sumOf(all)); // its own weight is 1
    }
}

void estimateEdge(TileWindow& window, const PixelSpan& image)
{
    constexpr int deepest = std::max(keptDepth, erasedDepth);
    findBand(window);
    std::size_t first = 0;
    for (int depth = 2; depth <= deepest; ++depth) {
        if (depth > 2)
            growBand(window, std::exchange(first, window.band.size()), depth);
        // A pixel may be led to from one that lies a step further from the tile.
        const int around = smoothRadius + deepest - depth;
        const auto isOutside = [&](const BandPixel& pixel) {
            return !isInTile(pixel.index, around) ||
                   !window.isInside(windowX(pixel.index), windowY(pixel.index));
        };
        window.band.erase(std::remove_if(window.band.begin() + static_cast<std::ptrdiff_t>(first),
                                         window.band.end(), isOutside),
                          window.band.end());
        if (first == window.band.size())
            break;
        gatherColors(window, first, image);
        estimateAlpha(window, first);
    }
    smoothAlpha(window);
}

} // namespace pelmira
