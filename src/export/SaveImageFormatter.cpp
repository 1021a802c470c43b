#include "export/SaveImageFormatter.h"

#include "platform/encode/HeifEncoder.h"
#include "platform/encode/JpegEncoder.h"
#include "platform/pixels/ImageResize.h"

#include <QColorSpace>
#include <QPainter>
#include <QSizeF>

#include <algorithm>
#include <cmath>

namespace pelmira {
namespace {

constexpr double jpegQuality = 0.9;
constexpr double smallestSide = 400.0;
constexpr double landscapeShare = 0.5;
constexpr double portraitShare = 0.3333333333333333;
constexpr QSizeF lowBounds(640.0, 640.0);

QSizeF canvasFor(QSizeF image)
{
    const double w = image.width();
    const double h = image.height();
    return h < w ? QSizeF(w, std::max({h, smallestSide, w * landscapeShare}))
                 : QSizeF(std::max({w, smallestSide, h * portraitShare}), h);
}

} // namespace

QImage SaveImageFormatter::formatedPngImageForSaving(const QImage& image)
{
    const QSizeF size = image.size();
    const QSizeF canvas = canvasFor(size);
    const double shorter = std::min(size.width(), size.height());
    if (image.isNull() || (shorter >= canvas.width() && shorter >= canvas.height()))
        return image;
    QImage padded(static_cast<int>(std::ceil(canvas.width())),
                  static_cast<int>(std::ceil(canvas.height())),
                  QImage::Format_ARGB32_Premultiplied);
    if (padded.isNull())
        return {};
    padded.fill(Qt::transparent);
    padded.setColorSpace(image.colorSpace());
    // Whole pixels: half a pixel off, every edge would blur.
    const QPoint origin((padded.width() - image.width()) / 2,
                        (padded.height() - image.height()) / 2);
    QPainter painter(&padded);
    painter.setCompositionMode(QPainter::CompositionMode_Source);
    painter.drawImage(origin, image);
    return padded;
}

bool SaveImageFormatter::canWriteHEIF()
{
    return canEncodeHeif();
}

QByteArray SaveImageFormatter::heifDataWithImage(const QImage& image)
{
    return heifRepresentation(image);
}

QImage imageWithBGColor(const QImage& image, const QColor& color)
{
    QImage flat(image.size(), QImage::Format_ARGB32_Premultiplied);
    if (flat.isNull())
        return {};
    flat.fill(color);
    flat.setColorSpace(image.colorSpace());
    QPainter painter(&flat);
    painter.drawImage(0, 0, image);
    return flat;
}

QByteArray jpegDataWithImage(const QImage& image, const QColor& bgColor)
{
    return jpegRepresentation(imageWithBGColor(image, bgColor), jpegQuality);
}

QImage lowResolution(const QImage& image)
{
    return resizedImageWithContentMode(image, lowBounds);
}

} // namespace pelmira
