#pragma once

#include "platform/pixels/PixelSpan.h"

#include <cstdint>

namespace pelmira {

/// The four stored bytes of a pixel, in memory order.
struct StoredColor {
    std::uint8_t b = 0;
    std::uint8_t g = 0;
    std::uint8_t r = 0;
    std::uint8_t a = 0;
};

/// The distance of a pixel that can never be filled.
inline constexpr std::uint8_t UnreachableDistance = 255;

/// Chebyshev distance of every pixel from a colour over all four stored bytes: the largest of
/// |B − b|, |G − g|, |R − r|, |A − a|, with neither weights nor conversion. A pixel with alpha 0
/// is UnreachableDistance away. `distances` takes width × height bytes, rows tightly packed.
void colorDistances(const PixelSpan& pixels, StoredColor color, std::uint8_t* distances);

/// The same for one row of `width` pixels.
void colorDistanceRow(const std::uint32_t* pixels, StoredColor color, std::uint8_t* distances,
                      std::uint32_t width);

} // namespace pelmira
