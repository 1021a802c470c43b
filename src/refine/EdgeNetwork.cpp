#include "refine/EdgeNetwork.h"

#include "refine/TileWindow.h"

#include <algorithm>

namespace pelmira {
namespace {

constexpr std::size_t hiddenUnits = 16;
using Units = std::array<float, hiddenUnits>;

/// Of a network with one hidden layer. A unit for each depth takes the place of its bias.
struct alignas(16) EdgeWeights {
    std::array<Units, erasedDepth + keptDepth>
        byDepth; // from the deepest erased to the deepest kept
    std::array<Units, EdgeMeasures> byMeasure;
    Units out;
    float bias;
};

#include "refine/EdgeWeights.inc"

constexpr std::size_t vectors = hiddenUnits / 4;

float sumOfUnits(const std::array<float, EdgeMeasures>& measures, int depth)
{
    const auto row =
        static_cast<std::size_t>(depth < 0 ? depth + erasedDepth : depth + erasedDepth - 1);
    std::array<Float4, vectors> units;
    for (std::size_t v = 0; v < vectors; ++v)
        units[v] = load4(edgeWeights.byDepth[row].data() + 4 * v);
    for (std::size_t m = 0; m < EdgeMeasures; ++m)
        for (std::size_t v = 0; v < vectors; ++v)
            units[v] += measures[m] * load4(edgeWeights.byMeasure[m].data() + 4 * v);
    Float4 sum{};
    for (std::size_t v = 0; v < vectors; ++v)
        sum += positive(units[v]) * load4(edgeWeights.out.data() + 4 * v);
    return sumOf(sum);
}

/// 1 / (1 + exp(-x)), with (1 - x / 16)^16 for the exponential.
Float4 sigmoid(Float4 x)
{
    const Float4 base = positive(1.0F - x * (1.0F / 16));
    const Float4 second = base * base;
    const Float4 fourth = second * second;
    const Float4 eighth = fourth * fourth;
    return 1.0F / (1.0F + eighth * eighth);
}

} // namespace

Float4 likelyAlpha(const FourMeasures& measures, const std::array<int, 4>& depths)
{
    Float4 sums{};
    for (int lane = 0; lane < 4; ++lane) {
        std::array<float, EdgeMeasures> own;
        for (std::size_t m = 0; m < EdgeMeasures; ++m)
            own[m] = measures[m][lane];
        sums[lane] = sumOfUnits(own, depths[static_cast<std::size_t>(lane)]);
    }
    return sigmoid(sums + edgeWeights.bias);
}

} // namespace pelmira
