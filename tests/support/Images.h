#pragma once

#include <QColor>
#include <QImage>

#include <algorithm>
#include <cstdlib>

namespace pelmira::test {

inline QImage plainImage(QSize size, const QColor& color)
{
    QImage image(size, QImage::Format_ARGB32_Premultiplied);
    image.fill(color);
    return image;
}

/// An opaque image in which every pixel's colour tells its place.
inline QImage placeImage(int width, int height)
{
    QImage image(width, height, QImage::Format_ARGB32_Premultiplied);
    for (int y = 0; y < height; ++y)
        for (int x = 0; x < width; ++x)
            image.setPixel(x, y, qRgb(x & 255, y & 255, (x / 256) * 16 + y / 256));
    return image;
}

/// A red disc on a plain green ground.
inline QImage discImage(int width, int height)
{
    QImage image = plainImage({width, height}, QColor(40, 160, 60));
    const int radius = std::min(width, height) / 4;
    for (int y = 0; y < height; ++y)
        for (int x = 0; x < width; ++x) {
            const int dx = x - width / 2;
            const int dy = y - height / 2;
            if (dx * dx + dy * dy < radius * radius)
                image.setPixel(x, y, qRgb(200, 30, 30));
        }
    return image;
}

/// The largest difference of a component, alpha included.
inline int farthest(QRgb a, QRgb b)
{
    return std::max({std::abs(qRed(a) - qRed(b)), std::abs(qGreen(a) - qGreen(b)),
                     std::abs(qBlue(a) - qBlue(b)), std::abs(qAlpha(a) - qAlpha(b))});
}

} // namespace pelmira::test
