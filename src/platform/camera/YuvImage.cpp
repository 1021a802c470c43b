#include "platform/camera/YuvImage.h"

#include <QRgb>

#include <algorithm>

namespace pelmira {
namespace {

/// Where the samples of one component lie.
struct Component {
    std::size_t plane;
    int step; ///< bytes from sample to sample
    int offset;
    int shiftX; ///< pixels in a row share a sample: 2 to the power of this
    int shiftY;
};

struct Components {
    Component y, u, v;
};

Components componentsOf(YuvLayout layout)
{
    switch (layout) {
    case YuvLayout::Yuyv:
        return {{0, 2, 0, 0, 0}, {0, 4, 1, 1, 0}, {0, 4, 3, 1, 0}};
    case YuvLayout::Uyvy:
        return {{0, 2, 1, 0, 0}, {0, 4, 0, 1, 0}, {0, 4, 2, 1, 0}};
    case YuvLayout::Nv12:
        return {{0, 1, 0, 0, 0}, {1, 2, 0, 1, 1}, {1, 2, 1, 1, 1}};
    case YuvLayout::Nv21:
        return {{0, 1, 0, 0, 0}, {1, 2, 1, 1, 1}, {1, 2, 0, 1, 1}};
    case YuvLayout::I420:
        return {{0, 1, 0, 0, 0}, {1, 1, 0, 1, 1}, {2, 1, 0, 1, 1}};
    case YuvLayout::Yv12:
        return {{0, 1, 0, 0, 0}, {2, 1, 0, 1, 1}, {1, 1, 0, 1, 1}};
    case YuvLayout::I422:
        break;
    }
    return {{0, 1, 0, 0, 0}, {1, 1, 0, 1, 0}, {2, 1, 0, 1, 0}};
}

/// 16.16 fixed point.
struct Matrix {
    int black;
    int luma, redV, greenU, greenV, blueU;
};

Matrix coefficientsOf(YuvMatrix matrix)
{
    switch (matrix) {
    case YuvMatrix::Bt709:
        return {16, 76309, 117489, 13975, 34925, 138438};
    case YuvMatrix::Bt601FullRange:
        return {0, 65536, 91881, 22554, 46802, 116130};
    case YuvMatrix::Bt601:
        break;
    }
    return {16, 76309, 104597, 25675, 53279, 132201};
}

bool holds(const YuvPlane& plane, const Component& component, QSize size)
{
    const std::ptrdiff_t lastColumn = (size.width() - 1) >> component.shiftX;
    const std::ptrdiff_t lastRow = (size.height() - 1) >> component.shiftY;
    const std::ptrdiff_t rowBytes = lastColumn * component.step + component.offset + 1;
    return plane.stride >= rowBytes &&
           lastRow <= (static_cast<std::ptrdiff_t>(plane.bytes.size()) - rowBytes) / plane.stride &&
           static_cast<std::ptrdiff_t>(plane.bytes.size()) >= rowBytes;
}

int clampedByte(int fixedPoint)
{
    return std::clamp((fixedPoint + 32768) >> 16, 0, 255);
}

} // namespace

QImage imageFromYuv(YuvLayout layout, YuvMatrix matrix, QSize size,
                    const std::array<YuvPlane, 3>& planes)
{
    const Components parts = componentsOf(layout);
    const Matrix m = coefficientsOf(matrix);
    if (size.isEmpty())
        return {};
    for (const Component& part : {parts.y, parts.u, parts.v})
        if (!holds(planes[part.plane], part, size))
            return {};
    QImage image(size, QImage::Format_RGB32);
    if (image.isNull())
        return {};
    const auto rowOf = [&](const Component& part, int y) {
        const YuvPlane& plane = planes[part.plane];
        return plane.bytes.data() + (y >> part.shiftY) * plane.stride + part.offset;
    };
    for (int y = 0; y < size.height(); ++y) {
        const std::uint8_t* luma = rowOf(parts.y, y);
        const std::uint8_t* blue = rowOf(parts.u, y);
        const std::uint8_t* red = rowOf(parts.v, y);
        auto* out = reinterpret_cast<QRgb*>(image.scanLine(y));
        for (int x = 0; x < size.width(); ++x) {
            const int l = (luma[x * parts.y.step] - m.black) * m.luma;
            const int u = blue[(x >> parts.u.shiftX) * parts.u.step] - 128;
            const int v = red[(x >> parts.v.shiftX) * parts.v.step] - 128;
            out[x] = qRgb(clampedByte(l + m.redV * v), clampedByte(l - m.greenU * u - m.greenV * v),
                          clampedByte(l + m.blueU * u));
        }
    }
    return image;
}

} // namespace pelmira
