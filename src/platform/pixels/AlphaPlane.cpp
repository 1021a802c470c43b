#include "platform/pixels/AlphaPlane.h"

#include <cstddef>

// A pixel is read and written as one 32-bit word, which the compiler turns into vectors; on the
// little-endian machines that the application runs on, alpha is the word's top byte.

namespace pelmira {
namespace {

constexpr unsigned AlphaShift = 8 * ByteAlpha;
constexpr std::uint32_t ColorMask = (1U << AlphaShift) - 1;

} // namespace

void copyAlphaRow(const std::uint32_t* __restrict pixels, std::uint8_t* __restrict alpha,
                  std::uint32_t width)
{
    for (std::uint32_t x = 0; x < width; ++x)
        alpha[x] = static_cast<std::uint8_t>(pixels[x] >> AlphaShift);
}

void restoreAlphaRow(std::uint32_t* __restrict pixels, const std::uint8_t* __restrict alpha,
                     std::uint32_t width)
{
    for (std::uint32_t x = 0; x < width; ++x)
        pixels[x] = (pixels[x] & ColorMask) | (std::uint32_t{alpha[x]} << AlphaShift);
}

void copyAlphaPlane(const PixelSpan& pixels, std::uint8_t* plane)
{
    for (std::uint32_t y = 0; y < pixels.height; ++y)
        copyAlphaRow(pixels.row(y), plane + std::size_t{pixels.width} * y, pixels.width);
}

void restoreAlphaPlane(const PixelSpan& pixels, const std::uint8_t* plane)
{
    for (std::uint32_t y = 0; y < pixels.height; ++y)
        restoreAlphaRow(pixels.row(y), plane + std::size_t{pixels.width} * y, pixels.width);
}

} // namespace pelmira
