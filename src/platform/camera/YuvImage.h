#pragma once

#include <QImage>
#include <QSize>

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>

namespace pelmira {

/// How a video frame keeps luma and colour apart.
enum class YuvLayout {
    Yuyv, ///< one plane: Y U Y V
    Uyvy, ///< one plane: U Y V Y
    Nv12, ///< Y; U and V by turns, for two by two pixels
    Nv21, ///< the same, V first
    I420, ///< Y; U; V, for two by two pixels
    Yv12, ///< the same, V first
    I422, ///< Y; U; V, for two pixels of a row
};

enum class YuvMatrix {
    Bt601,
    Bt709,
    Bt601FullRange, ///< as in JPEG
};

struct YuvPlane {
    std::span<const std::uint8_t> bytes;
    std::ptrdiff_t stride = 0; ///< bytes from row to row
};

/// The frame as RGB32 (ITU-R BT.601 and BT.709, with 8 bits). Null if the planes hold less than the
/// size asks for, or without memory. Safe from any thread.
QImage imageFromYuv(YuvLayout layout, YuvMatrix matrix, QSize size,
                    const std::array<YuvPlane, 3>& planes);

} // namespace pelmira
