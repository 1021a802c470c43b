#include "crop/CroppedImage.h"

#include <QColorSpace>
#include <QPainter>

namespace pelmira {

QImage croppedImageWithFrame(const QImage& image, const QRect& frame)
{
    if (frame.isEmpty() || image.isNull())
        return {};
    const bool hasAlpha = image.hasAlphaChannel();
    QImage result(frame.size(),
                  hasAlpha ? QImage::Format_ARGB32_Premultiplied : QImage::Format_RGB32);
    if (result.isNull())
        return {};
    result.fill(hasAlpha ? Qt::transparent : Qt::black);
    QPainter painter(&result);
    painter.setCompositionMode(QPainter::CompositionMode_Source);
    const QRect part = frame.intersected(QRect({}, image.size()));
    QImage pixels = image;
    pixels.setDevicePixelRatio(1.0); // one pixel stays one pixel
    painter.drawImage(part.topLeft() - frame.topLeft(), pixels, part);
    painter.end();
    result.setDevicePixelRatio(image.devicePixelRatio());
    result.setColorSpace(image.colorSpace());
    return result;
}

} // namespace pelmira
