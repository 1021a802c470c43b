#include "mask_editor/wand/ColorDistance.h"

#include <bit>
#include <cstddef>
#include <cstring>

// GCC's vector extensions rather than the intrinsics of one machine: the same text becomes SSE2
// and NEON, with the byte-wise maximum that plain C++ loops over interleaved pixels don't get.

namespace pelmira {
namespace {

using Bytes = std::uint8_t __attribute__((vector_size(16)));
using Halves = std::uint16_t __attribute__((vector_size(16)));
using Words = std::uint32_t __attribute__((vector_size(16)));

constexpr std::uint32_t PixelsPerVector = 4;
constexpr std::uint32_t PixelsPerStep = 16;

Bytes larger(Bytes a, Bytes b)
{
    return a > b ? a : b;
}

Bytes smaller(Bytes a, Bytes b)
{
    return a < b ? a : b;
}

/// Four distances, each in the low byte of its word.
Words fourDistances(const std::uint32_t* pixels, Bytes color)
{
    Bytes pixel;
    std::memcpy(&pixel, pixels, sizeof pixel);
    Bytes distance = larger(pixel, color) - smaller(pixel, color);
    distance = larger(distance, reinterpret_cast<Bytes>(reinterpret_cast<Words>(distance) >> 16));
    distance = larger(distance, reinterpret_cast<Bytes>(reinterpret_cast<Words>(distance) >> 8));
    const Words isErased = reinterpret_cast<Words>(
        (reinterpret_cast<Words>(pixel) >> (8 * ByteAlpha)) == std::uint32_t{0});
    return (reinterpret_cast<Words>(distance) | isErased) & std::uint32_t{UnreachableDistance};
}

Halves lowHalves(Words a, Words b)
{
    return __builtin_shufflevector(reinterpret_cast<Halves>(a), reinterpret_cast<Halves>(b), 0, 2,
                                   4, 6, 8, 10, 12, 14);
}

Bytes lowBytes(Halves a, Halves b)
{
    return __builtin_shufflevector(reinterpret_cast<Bytes>(a), reinterpret_cast<Bytes>(b), 0, 2, 4,
                                   6, 8, 10, 12, 14, 16, 18, 20, 22, 24, 26, 28, 30);
}

void sixteenDistances(const std::uint32_t* pixels, Bytes color, std::uint8_t* distances)
{
    const auto four = [&](std::uint32_t i) {
        return fourDistances(pixels + i * PixelsPerVector, color);
    };
    const Bytes packed = lowBytes(lowHalves(four(0), four(1)), lowHalves(four(2), four(3)));
    std::memcpy(distances, &packed, sizeof packed);
}

} // namespace

void colorDistanceRow(const std::uint32_t* pixels, StoredColor color, std::uint8_t* distances,
                      std::uint32_t width)
{
    const Bytes colors = reinterpret_cast<Bytes>(Words{} + std::bit_cast<std::uint32_t>(color));

    std::uint32_t x = 0;
    for (; x + PixelsPerStep <= width; x += PixelsPerStep)
        sixteenDistances(pixels + x, colors, distances + x);
    if (x < width) {
        std::uint32_t lastPixels[PixelsPerStep] = {};
        std::uint8_t lastDistances[PixelsPerStep];
        std::memcpy(lastPixels, pixels + x, (width - x) * sizeof(std::uint32_t));
        sixteenDistances(lastPixels, colors, lastDistances);
        std::memcpy(distances + x, lastDistances, width - x);
    }
}

void colorDistances(const PixelSpan& pixels, StoredColor color, std::uint8_t* distances)
{
    for (std::uint32_t y = 0; y < pixels.height; ++y)
        colorDistanceRow(pixels.row(y), color, distances + std::size_t{pixels.width} * y,
                         pixels.width);
}

} // namespace pelmira
