#include "platform/pixels/BitmapContext.h"

#include <cstdio>

namespace pelmira {
namespace {

constexpr double LargestSide = 1 << 20;

bool isUsable(double side)
{
    return side >= 1 && side <= LargestSide; // false for a NaN too
}

QImage makeImage(QSizeF size, void* data, qsizetype bytesPerRow)
{
    if (!isUsable(size.width()) || !isUsable(size.height()))
        return {};
    const int width = static_cast<int>(size.width());
    const int height = static_cast<int>(size.height());
    if (data) {
        return {static_cast<uchar*>(data), width, height,
                bytesPerRow == 0 ? qsizetype{width} * 4 : bytesPerRow,
                QImage::Format_ARGB32_Premultiplied};
    }
    QImage image(width, height, QImage::Format_ARGB32_Premultiplied);
    if (!image.isNull())
        image.fill(0U);
    return image;
}

} // namespace

QImage createBGRABitmapContextWithSize(QSizeF size, void* data, qsizetype bitmapBytesPerRow)
{
    QImage image = makeImage(size, data, bitmapBytesPerRow);
    if (image.isNull())
        std::fputs("Context not created!", stderr);
    return image;
}

PixelSpan imageSpan(QImage& image)
{
    return {reinterpret_cast<std::uint32_t*>(image.bits()),
            static_cast<std::uint32_t>(image.width()), static_cast<std::uint32_t>(image.height()),
            static_cast<std::uint32_t>(image.bytesPerLine())};
}

} // namespace pelmira
