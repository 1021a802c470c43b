#include "refine/LocalColors.h"

#include "refine/Float4.h"

#include <algorithm>
#include <cmath>
#include <cstring>

namespace pelmira {
namespace {

constexpr int deepest = 5; // in the window's depths

/// The Gaussian over cells.
constexpr int reach = 2;
constexpr float sigma = 1.75F;
using Taps = std::array<float, 2 * reach + 1>;

enum CellUse : std::uint8_t { CellUnused, CellSummed, CellBlurredAcross, CellBlurred };

void markAround(TileWindow& window, int cellX, int cellY, int radiusX, int radiusY, CellUse use)
{
    const int left = std::max(cellX - radiusX, 0);
    const int right = std::min(cellX + radiusX, cellsAcross - 1);
    const int top = std::max(cellY - radiusY, 0);
    const int bottom = std::min(cellY + radiusY, cellsAcross - 1);
    for (int y = top; y <= bottom; ++y)
        for (int x = left; x <= right; ++x) {
            auto& cell = window.cellUse[static_cast<std::size_t>(y * cellsAcross + x)];
            cell = std::max<std::uint8_t>(cell, use);
        }
}

/// By depth, from that beyond the erased band to that beyond the kept one.
float weightAt(int depth)
{
    static constexpr std::array<float, 2 * deepest + 1> weights = {
        1, 1, 1, 0.08F, 0.005F, 0, 0.003F, 0.45F, 1, 1, 1};
    return weights[static_cast<std::size_t>(depth + deepest)];
}

/// Adds a row of a cell, pixel by pixel in the lanes.
void addRow(std::array<Float4, 12>& sums, Float4 weight, Float4 y, Float4 cb, Float4 cr,
            Float4 level)
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
    sums[10] += weight * level;
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
    for (int y = top; y < top + cellSide; ++y) {
        const std::size_t i = windowIndex(left, y);
        const std::uint8_t* level = window.level.data() + i;
        addRow(sums, Float4{1, 1, 1, 1}, load4(window.y.data() + i), load4(window.cb.data() + i),
               load4(window.cr.data() + i),
               Float4{float(level[0]), float(level[1]), float(level[2]), float(level[3])});
    }
    SidedColorSums& result = window.cells[cell];
    result = {};
    ColorSums& side = window.isKept[windowIndex(left, top)] ? result.kept : result.erased;
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
            addRow(kept, keptWeights, luma, cb, cr, levels);
        if (hasErased)
            addRow(erased, erasedWeights, luma, cb, cr, levels);
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

LocalColors colorsFrom(const ColorSums& sums)
{
    const auto& s = sums.sum;
    LocalColors colors;
    colors.weight = s[0];
    if (s[0] <= 0)
        return colors;
    const float by = 1.0F / s[0];
    const EdgeColor m{s[1] * by, s[2] * by, s[3] * by};
    colors.mean = m;
    colors.covariance = {s[4] * by - m.y * m.y,   s[5] * by - m.y * m.cb,  s[6] * by - m.y * m.cr,
                         s[7] * by - m.cb * m.cb, s[8] * by - m.cb * m.cr, s[9] * by - m.cr * m.cr};
    for (const std::size_t variance : {0U, 3U, 5U})
        colors.covariance[variance] = std::max(colors.covariance[variance], 0.0F);
    colors.level = s[10] * by;
    return colors;
}

} // namespace

void markCells(TileWindow& window)
{
    window.cellUse.fill(CellUnused);
    // A pixel's statistics come from the cell that it lies in and those next to it.
    for (const BandPixel pixel : window.band)
        window.cellUse[static_cast<std::size_t>(windowY(pixel.index) / cellSide * cellsAcross +
                                                windowX(pixel.index) / cellSide)] = CellBlurred;
    const auto own = window.cellUse;
    for (std::size_t cell = 0; cell < windowCells; ++cell) {
        if (own[cell] != CellBlurred)
            continue;
        const int x = static_cast<int>(cell % cellsAcross);
        const int y = static_cast<int>(cell / cellsAcross);
        markAround(window, x, y, 1 + reach, 1 + reach, CellSummed);
        markAround(window, x, y, 1, 1 + reach, CellBlurredAcross);
        markAround(window, x, y, 1, 1, CellBlurred);
    }
}

void gatherColors(TileWindow& window)
{
    const auto taps = gaussian();
    for (std::size_t cell = 0; cell < windowCells; ++cell) {
        if (window.cellUse[cell] != CellUnused)
            sumCell(window, cell);
        else
            window.cells[cell] = {};
    }
    auto& across = window.blurredAcross;
    for (std::size_t cell = 0; cell < windowCells; ++cell)
        if (window.cellUse[cell] >= CellBlurredAcross)
            across[cell] = blurred(window.cells, cell, 1, taps);
    for (std::size_t cell = 0; cell < windowCells; ++cell)
        if (window.cellUse[cell] >= CellBlurred)
            window.cells[cell] = blurred(across, cell, cellsAcross, taps);
}

SidedColors colorsAt(const TileWindow& window, std::size_t index)
{
    const float x = (static_cast<float>(windowX(index)) + 0.5F) / cellSide - 0.5F;
    const float y = (static_cast<float>(windowY(index)) + 0.5F) / cellSide - 0.5F;
    const int left = static_cast<int>(x);
    const int top = static_cast<int>(y);
    const float fx = x - static_cast<float>(left);
    const float fy = y - static_cast<float>(top);
    const auto* cells = window.cells.data() + top * cellsAcross + left;
    SidedColorSums sums;
    const auto add = [&sums](const SidedColorSums& cell, float weight) {
        addScaled(sums.erased, weight, cell.erased);
        addScaled(sums.kept, weight, cell.kept);
    };
    add(cells[0], (1 - fx) * (1 - fy));
    add(cells[1], fx * (1 - fy));
    add(cells[cellsAcross], (1 - fx) * fy);
    add(cells[cellsAcross + 1], fx * fy);
    return {colorsFrom(sums.erased), colorsFrom(sums.kept)};
}

} // namespace pelmira
