#include "refine/LocalColors.h"

#include "refine/Float4.h"

#include <algorithm>
#include <cmath>
#include <cstring>

namespace pelmira {
namespace {

constexpr int deepest = erasedDepth + 1; // in the window's depths

/// The Gaussian over cells.
constexpr int reach = 2;
constexpr float sigma = 1.75F;
using Taps = std::array<float, 2 * reach + 1>;

enum CellUse : std::uint8_t {
    CellAsked = 1,
    CellSummed = 2,
    CellBlurredAcross = 4,
    CellBlurred = 8
};

/// Cells whose turn it is.
using Cells = std::vector<std::uint16_t>;

/// Puts the cells around into the list that haven't been there.
void demand(TileWindow& window, Cells& list, int cell, int radiusX, int radiusY, CellUse use)
{
    const int left = std::max(cell % cellsAcross - radiusX, 0);
    const int right = std::min(cell % cellsAcross + radiusX, cellsAcross - 1);
    const int top = std::max(cell / cellsAcross - radiusY, 0);
    const int bottom = std::min(cell / cellsAcross + radiusY, cellsAcross - 1);
    for (int y = top; y <= bottom; ++y)
        for (int x = left; x <= right; ++x) {
            const auto at = static_cast<std::size_t>(y * cellsAcross + x);
            if (window.cellUse[at] & use)
                continue;
            window.cellUse[at] |= use;
            list.push_back(static_cast<std::uint16_t>(at));
        }
}

/// By depth, from that beyond the erased band to that beyond the kept one.
float weightAt(int depth)
{
    static constexpr std::array<float, 2 * deepest + 1> weights = {
        1, 1, 1, 1, 0.08F, 0.005F, 0, 0.003F, 0.45F, 1, 1, 1, 1};
    return weights[static_cast<std::size_t>(depth + deepest)];
}

/// Adds a row of a cell, pixel by pixel in the lanes. The mask counts only where it agrees with the
/// side that the first round decided on.
void addRow(std::array<Float4, 12>& sums, Float4 weight, Float4 y, Float4 cb, Float4 cr,
            Float4 level, bool isKept)
{
    const Float4 wy = weight * y;
    const Float4 wcb = weight * cb;
    const Float4 wcr = weight * cr;
    sums[0] += weight;
    sums[1] += wy;
    sums[2] += wcb;
    sums[3] += wcr;
    sums[4] += wy * y;
    sums[5] += wy * cb;
    sums[6] += wy * cr;
    sums[7] += wcb * cb;
    sums[8] += wcb * cr;
    sums[9] += wcr * cr;
    const Float4 agreeing = (isKept ? level >= 128.0F : level < 128.0F) ? weight : Float4{};
    sums[10] += agreeing * level;
    sums[11] += agreeing;
}

/// Whether all of a cell's pixels lie inside, beyond the band, on one side.
bool isPlain(const TileWindow& window, int left, int top)
{
    if (!window.isInside(left, top) || !window.isInside(left + cellSide - 1, top + cellSide - 1))
        return false;
    std::array<std::uint32_t, cellSide> rows{};
    for (int y = 0; y < cellSide; ++y)
        std::memcpy(&rows[static_cast<std::size_t>(y)],
                    window.depth.data() + windowIndex(left, top + y), cellSide);
    const auto depth = static_cast<std::uint8_t>(window.depth[windowIndex(left, top)]);
    const bool isAlike = std::all_of(rows.begin(), rows.end(), [depth](std::uint32_t row) {
        return row == depth * 0x01010101U;
    });
    return isAlike && weightAt(static_cast<std::int8_t>(depth)) == 1.0F;
}

void sumPlainCell(TileWindow& window, std::size_t cell, int left, int top)
{
    std::array<Float4, 12> sums{};
    const bool isKept = window.isKept[windowIndex(left, top)];
    for (int y = top; y < top + cellSide; ++y) {
        const std::size_t i = windowIndex(left, y);
        const std::uint8_t* level = window.level.data() + i;
        addRow(sums, Float4{1, 1, 1, 1}, load4(window.y.data() + i), load4(window.cb.data() + i),
               load4(window.cr.data() + i),
               Float4{float(level[0]), float(level[1]), float(level[2]), float(level[3])}, isKept);
    }
    SidedColorSums& result = window.cells[cell];
    result = {};
    ColorSums& side = isKept ? result.kept : result.erased;
    for (std::size_t i = 0; i < sums.size(); ++i)
        side.sum[i] = sumOf(sums[i]);
}

void sumCell(TileWindow& window, std::size_t cell)
{
    const int left = static_cast<int>(cell % cellsAcross) * cellSide;
    const int top = static_cast<int>(cell / cellsAcross) * cellSide;
    if (isPlain(window, left, top)) {
        sumPlainCell(window, cell, left, top);
        return;
    }
    std::array<Float4, 12> kept{};
    std::array<Float4, 12> erased{};
    bool hasKept = false;
    bool hasErased = false;
    for (int y = top; y < top + cellSide; ++y) {
        Float4 keptWeights{};
        Float4 erasedWeights{};
        Float4 levels{};
        const std::size_t first = windowIndex(left, y);
        for (int x = 0; x < cellSide; ++x) {
            const std::size_t i = first + static_cast<std::size_t>(x);
            const float weight = window.isInside(left + x, y) ? weightAt(window.depth[i]) : 0.0F;
            (window.isKept[i] ? keptWeights : erasedWeights)[x] = weight;
            (window.isKept[i] ? hasKept : hasErased) = true;
            levels[x] = window.level[i];
        }
        const Float4 luma = load4(window.y.data() + first);
        const Float4 cb = load4(window.cb.data() + first);
        const Float4 cr = load4(window.cr.data() + first);
        if (hasKept)
            addRow(kept, keptWeights, luma, cb, cr, levels, true);
        if (hasErased)
            addRow(erased, erasedWeights, luma, cb, cr, levels, false);
    }
    SidedColorSums& sums = window.cells[cell];
    for (std::size_t i = 0; i < kept.size(); ++i) {
        sums.kept.sum[i] = hasKept ? sumOf(kept[i]) : 0.0F;
        sums.erased.sum[i] = hasErased ? sumOf(erased[i]) : 0.0F;
    }
}

void addScaled(ColorSums& to, float factor, const ColorSums& from)
{
    for (std::size_t i = 0; i < to.sum.size(); ++i)
        to.sum[i] += factor * from.sum[i];
}

Taps gaussian()
{
    Taps taps{};
    float sum = 0;
    for (int i = -reach; i <= reach; ++i) {
        const float d = static_cast<float>(i) / sigma;
        sum += taps[static_cast<std::size_t>(i + reach)] = std::exp(-0.5F * d * d);
    }
    for (float& tap : taps)
        tap /= sum;
    return taps;
}

/// `step` is 1 along the rows, cellsAcross along the columns.
SidedColorSums blurred(const std::array<SidedColorSums, windowCells>& cells, std::size_t cell,
                       int step, const Taps& taps)
{
    SidedColorSums sums;
    const int place =
        step == 1 ? static_cast<int>(cell % cellsAcross) : static_cast<int>(cell / cellsAcross);
    for (int i = -reach; i <= reach; ++i) {
        if (place + i < 0 || place + i >= cellsAcross)
            continue;
        const auto& from = cells[static_cast<std::size_t>(static_cast<int>(cell) + i * step)];
        const float tap = taps[static_cast<std::size_t>(i + reach)];
        addScaled(sums.erased, tap, from.erased);
        addScaled(sums.kept, tap, from.kept);
    }
    return sums;
}

/// From the twelve sums of four pixels.
LocalColors colorsFrom(const std::array<Float4, 12>& s, float usualLevel)
{
    constexpr float nearlyNone = 1e-12F; // no division by 0
    constexpr float little = 1e-3F;
    const Float4 by = 1.0F / (s[0] + nearlyNone);
    const Float4 y = s[1] * by;
    const Float4 cb = s[2] * by;
    const Float4 cr = s[3] * by;
    return {s[0],
            y,
            cb,
            cr,
            {positive(s[4] * by - y * y), s[5] * by - y * cb, s[6] * by - y * cr,
             positive(s[7] * by - cb * cb), s[8] * by - cb * cr, positive(s[9] * by - cr * cr)},
            (s[10] + little * usualLevel) / (s[11] + little)};
}

struct MixedSums {
    std::array<Float4, 3> erased{};
    std::array<Float4, 3> kept{};
};

MixedSums sumsAt(const TileWindow& window, std::size_t index)
{
    const float x = (static_cast<float>(windowX(index)) + 0.5F) / cellSide - 0.5F;
    const float y = (static_cast<float>(windowY(index)) + 0.5F) / cellSide - 0.5F;
    const int left = static_cast<int>(x);
    const int top = static_cast<int>(y);
    const float fx = x - static_cast<float>(left);
    const float fy = y - static_cast<float>(top);
    const auto* cells = window.blurredCells.data() + top * cellsAcross + left;
    MixedSums sums;
    const auto add = [&sums](const SidedColorSums& cell, float weight) {
        for (std::size_t i = 0; i < 3; ++i) {
            sums.erased[i] += weight * load4(cell.erased.sum.data() + 4 * i);
            sums.kept[i] += weight * load4(cell.kept.sum.data() + 4 * i);
        }
    };
    add(cells[0], (1 - fx) * (1 - fy));
    add(cells[1], fx * (1 - fy));
    add(cells[cellsAcross], (1 - fx) * fy);
    add(cells[cellsAcross + 1], fx * fy);
    return sums;
}

} // namespace

void gatherColors(TileWindow& window, std::size_t first, const PixelSpan& image)
{
    static const Taps taps = gaussian();
    if (first == 0)
        window.cellUse.fill(0);
    Cells own;
    for (std::size_t i = first; i < window.band.size(); ++i) {
        const std::size_t index = window.band[i].index;
        const int cell = windowY(index) / cellSide * cellsAcross + windowX(index) / cellSide;
        demand(window, own, cell, 0, 0, CellAsked);
    }
    // A pixel's statistics come from the cell that it lies in and those next to it.
    Cells toSum;
    Cells toBlurAcross;
    Cells toBlur;
    for (const int cell : own) {
        demand(window, toSum, cell, 1 + reach, 1 + reach, CellSummed);
        demand(window, toBlurAcross, cell, 1, 1 + reach, CellBlurredAcross);
        demand(window, toBlur, cell, 1, 1, CellBlurred);
    }
    for (const std::size_t cell : toSum) {
        loadColors(window, cell, image);
        sumCell(window, cell);
    }
    for (const std::size_t cell : toBlurAcross)
        window.blurredAcross[cell] = blurred(window.cells, cell, 1, taps);
    for (const std::size_t cell : toBlur)
        window.blurredCells[cell] = blurred(window.blurredAcross, cell, cellsAcross, taps);
}

SidedColors colorsAt(const TileWindow& window, const std::array<std::size_t, 4>& indices)
{
    std::array<MixedSums, 4> sums;
    for (std::size_t i = 0; i < 4; ++i)
        sums[i] = sumsAt(window, indices[i]);
    std::array<Float4, 12> erased;
    std::array<Float4, 12> kept;
    for (std::size_t i = 0; i < 3; ++i) {
        const auto e =
            transposed(sums[0].erased[i], sums[1].erased[i], sums[2].erased[i], sums[3].erased[i]);
        const auto k =
            transposed(sums[0].kept[i], sums[1].kept[i], sums[2].kept[i], sums[3].kept[i]);
        std::copy(e.begin(), e.end(), erased.begin() + static_cast<std::ptrdiff_t>(4 * i));
        std::copy(k.begin(), k.end(), kept.begin() + static_cast<std::ptrdiff_t>(4 * i));
    }
    return {colorsFrom(erased, 0), colorsFrom(kept, 255)};
}

} // namespace pelmira
