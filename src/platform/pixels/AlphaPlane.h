#pragma once

#include "platform/pixels/PixelSpan.h"

#include <cstdint>

namespace pelmira {

/// The mask as bytes of its own: width × height alpha bytes, rows tightly packed, from the
/// image's top. Both functions accept an empty span and write nothing in a row's tail.

/// Copies the alpha byte of every pixel into the plane.
void copyAlphaPlane(const PixelSpan& pixels, std::uint8_t* plane);

/// Puts the plane back as the pixels' alpha; the colour bytes keep their values.
void restoreAlphaPlane(const PixelSpan& pixels, const std::uint8_t* plane);

/// Both of the above for one row of `width` pixels.
void copyAlphaRow(const std::uint32_t* pixels, std::uint8_t* alpha, std::uint32_t width);
void restoreAlphaRow(std::uint32_t* pixels, const std::uint8_t* alpha, std::uint32_t width);

} // namespace pelmira
