#pragma once

#include <cstddef>
#include <cstdint>

namespace pelmira {

/// A view of 32-bit pixels, in memory the four bytes B, G, R, A, rows from the image's top.
/// Not owning. The row stride is a multiple of 4 and may exceed width × 4; the bytes in a row's
/// tail belong to nobody and are never written.
struct PixelSpan {
    std::uint32_t* pixels = nullptr;
    std::uint32_t width = 0;
    std::uint32_t height = 0;
    std::uint32_t bytesPerRow = 0;

    std::uint32_t* row(std::uint32_t y) const
    {
        return pixels + static_cast<std::size_t>(bytesPerRow >> 2) * y;
    }
    explicit operator bool() const { return pixels != nullptr; }
};

/// Position of each component within a pixel's four bytes.
enum PixelByte : std::size_t { ByteBlue = 0, ByteGreen = 1, ByteRed = 2, ByteAlpha = 3 };

} // namespace pelmira
