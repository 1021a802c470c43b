#pragma once

#include <QBuffer>
#include <QColor>
#include <QImage>

#include <algorithm>
#include <cmath>
#include <cstdlib>

namespace pelmira::test {

inline QImage plainImage(QSize size, const QColor& color)
{
    QImage image(size, QImage::Format_ARGB32_Premultiplied);
    image.fill(color);
    return image;
}

/// Each pixel of the colour that is told for its place.
template <class ColourAt>
QImage paintedImage(QSize size, ColourAt colourAt,
                    QImage::Format format = QImage::Format_ARGB32_Premultiplied)
{
    QImage image(size, format);
    for (int y = 0; y < size.height(); ++y)
        for (int x = 0; x < size.width(); ++x)
            image.setPixel(x, y, colourAt(x, y));
    return image;
}

/// An opaque image in which every pixel's colour tells its place.
inline QImage placeImage(int width, int height)
{
    return paintedImage({width, height}, [](int x, int y) {
        return qRgb(x & 255, y & 255, (x / 256) * 16 + y / 256);
    });
}

/// A red disc on a plain green ground.
inline QImage discImage(int width, int height)
{
    return paintedImage({width, height}, [=](int x, int y) {
        const bool isInside =
            std::hypot(x - width / 2, y - height / 2) < std::min(width, height) / 4;
        return isInside ? qRgb(200, 30, 30) : qRgb(40, 160, 60);
    });
}

/// As a file of that format.
inline QByteArray encoded(const QImage& image, const char* format)
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, format, 95);
    return bytes;
}

/// The largest difference of a component, alpha included.
inline int farthest(QRgb a, QRgb b)
{
    return std::max({std::abs(qRed(a) - qRed(b)), std::abs(qGreen(a) - qGreen(b)),
                     std::abs(qBlue(a) - qBlue(b)), std::abs(qAlpha(a) - qAlpha(b))});
}

struct Difference {
    int greatest = 0;
    double mean = 0;
    double visible = 0; ///< the share of pixels that lie far apart, as at edges
};

/// Of all pixels, by how far they lie apart.
inline Difference difference(const QImage& a, const QImage& b)
{
    Difference result;
    const double share = 1.0 / (double(a.width()) * a.height());
    for (int y = 0; y < a.height(); ++y)
        for (int x = 0; x < a.width(); ++x) {
            const int apart = farthest(a.pixel(x, y), b.pixel(x, y));
            result.greatest = std::max(result.greatest, apart);
            result.mean += apart * share;
            result.visible += apart > 24 ? share : 0.0;
        }
    return result;
}

} // namespace pelmira::test
