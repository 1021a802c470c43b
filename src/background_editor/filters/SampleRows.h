#pragma once

#include <cstddef>
#include <cstdint>

namespace pelmira {

/// Rows of 8-bit samples, `channels` of them a pixel, side by side. Not owning. What lies between
/// the end of a row and `bytesPerRow` is neither read nor written.
template <typename Byte>
struct SampleRows {
    Byte* bytes = nullptr;
    std::size_t width = 0; ///< in pixels
    std::size_t height = 0;
    std::size_t bytesPerRow = 0;
    std::size_t channels =
        1; ///< 1, or 4 (premultiplied, so that what can't be seen adds no colour)

    Byte* row(std::size_t y) const { return bytes + y * bytesPerRow; }
};

/// What a filter finds beyond the edges of a picture.
enum class Beyond {
    Transparent, ///< nothing
    EdgePixels,  ///< the pixels of the edge, again and again
    Tiles,       ///< the picture itself, again and again
};

/// The row or column that stands for one that may lie beyond; -1 for none.
inline std::ptrdiff_t within(std::ptrdiff_t position, std::ptrdiff_t length, Beyond beyond)
{
    if (position >= 0 && position < length)
        return position;
    switch (beyond) {
    case Beyond::Transparent:
        break;
    case Beyond::EdgePixels:
        return position < 0 ? 0 : length - 1;
    case Beyond::Tiles:
        return ((position % length) + length) % length;
    }
    return -1;
}

} // namespace pelmira
