#pragma once

#include <QImage>

#include <cstddef>
#include <cstdint>

namespace pelmira {

/// Where a picture's planes lie: one byte a value, `stride` bytes from row to row.
struct YCbCrPlanes {
    struct Plane {
        std::uint8_t* values = nullptr;
        std::ptrdiff_t stride = 0;
    };
    Plane y;     ///< width × height
    Plane cb;    ///< half of both, rounded up
    Plane cr;    ///< as cb
    Plane alpha; ///< width × height
};

/// Splits a picture in the bitmap form into straight Y, Cb, Cr and alpha, by the matrix of
/// ITU-R BT.601 in full range, chroma averaged over 2 by 2 pixels, each weighing as much as it is
/// seen. What can't be seen at all takes on the colours near it. Throws std::bad_alloc.
void splitIntoPlanes(const QImage& bitmap, const YCbCrPlanes& planes);

} // namespace pelmira
