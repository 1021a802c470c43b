#include "refine/MaskDepth.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <cstring>

namespace pelmira {
namespace {

constexpr int softStep = 24;   // between neighbours on one side
constexpr int gentleStep = 64; // across the half

constexpr float openFrom = 0.1F; // of alpha beside the mask's

/// The four that share a side, then the corners.
constexpr std::array<int, 8> neighbours = {
    -windowSide,    windowSide,    -1, 1, -windowSide - 1, -windowSide + 1,
    windowSide - 1, windowSide + 1};

/// Whether the 8 bytes from here differ anywhere from those beside or below them.
bool changesWithin8(const std::uint8_t* bytes)
{
    std::uint64_t here = 0;
    std::uint64_t right = 0;
    std::uint64_t below = 0;
    std::memcpy(&here, bytes, 8);
    std::memcpy(&right, bytes + 1, 8);
    std::memcpy(&below, bytes + windowSide, 8);
    return ((here ^ right) | (here ^ below)) != 0;
}

/// Calls with every two neighbours whose bytes differ. The last row and column take part as the
/// neighbours of those before.
template <typename Visit>
void forEachChange(const std::array<std::uint8_t, windowPixels>& plane, const Visit& visit)
{
    static_assert(windowSide % 8 == 0);
    for (int y = 0; y + 1 < windowSide; ++y) {
        for (int x8 = 0; x8 < windowSide; x8 += 8) {
            const bool isLast = x8 + 8 == windowSide;
            if (!isLast && !changesWithin8(plane.data() + windowIndex(x8, y)))
                continue;
            for (int x = x8; x < x8 + (isLast ? 7 : 8); ++x) {
                const std::size_t i = windowIndex(x, y);
                if (plane[i] != plane[i + 1])
                    visit(i, i + 1);
                if (plane[i] != plane[i + windowSide])
                    visit(i, i + windowSide);
            }
        }
    }
}

bool isAtRim(std::size_t index)
{
    const int x = windowX(index);
    const int y = windowY(index);
    return x == 0 || y == 0 || x == windowSide - 1 || y == windowSide - 1;
}

constexpr int beyondBand = erasedDepth + 1;

void add(TileWindow& window, std::size_t index, int steps)
{
    window.depth[index] = static_cast<std::int8_t>(window.isKept[index] ? steps : -steps);
    window.band.push_back({static_cast<std::uint16_t>(index), window.depth[index]});
}

/// Those on its side that nothing has added before.
void addNeighbours(TileWindow& window, std::size_t from, int steps)
{
    if (isAtRim(from))
        return;
    const std::size_t reach = steps % 2 == 0 ? 8 : 4;
    for (std::size_t k = 0; k < reach; ++k) {
        const std::size_t i = from + static_cast<std::size_t>(neighbours[k]);
        if (window.isKept[i] == window.isKept[from] && std::abs(window.depth[i]) > steps)
            add(window, i, steps);
    }
}

} // namespace

void findSoftPixels(TileWindow& window)
{
    const auto& level = window.level;
    window.isSoft.fill(0);
    std::uint8_t between = 0;
    for (const std::uint8_t a : level)
        between |= static_cast<std::uint8_t>(a + 1) & 0xFE; // 0 for 0 and for 255
    if (!between)
        return;
    forEachChange(level, [&](std::size_t a, std::size_t b) {
        const bool isSameSide = (level[a] < 128) == (level[b] < 128);
        const int step = std::abs(level[a] - level[b]);
        if (isSameSide ? step > softStep : step < gentleStep)
            window.isSoft[a] = window.isSoft[b] = 1;
    });
}

void findBand(TileWindow& window)
{
    const auto& isKept = window.isKept;
    auto& band = window.band;
    for (std::size_t i = 0; i < windowPixels; ++i)
        window.depth[i] = static_cast<std::int8_t>(isKept[i] ? beyondBand : -beyondBand);
    band.clear();
    forEachChange(isKept, [&](std::size_t a, std::size_t b) {
        if (window.isSoft[a] || window.isSoft[b])
            return;
        for (const std::size_t i : {a, b})
            if (std::abs(window.depth[i]) != 1)
                add(window, i, 1);
    });
    const std::size_t end = band.size();
    for (std::size_t i = 0; i < end; ++i)
        addNeighbours(window, band[i].index, 2);
}

void growBand(TileWindow& window, std::size_t first, int depth)
{
    for (std::size_t end = window.band.size(); first < end; ++first) {
        const std::size_t i = window.band[first].index;
        const auto side = static_cast<float>(window.isKept[i]);
        if (depth <= (window.isKept[i] ? keptDepth : erasedDepth) &&
            std::fabs(window.alpha[i] - side) > openFrom)
            addNeighbours(window, i, depth);
    }
}

} // namespace pelmira
