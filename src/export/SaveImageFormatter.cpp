#include "export/SaveImageFormatter.h"

#include <QPainter>

namespace pelmira {
QImage SaveImageFormatter::formatedPngImageForSaving(const QImage& image)
{
    return image;
}
QByteArray SaveImageFormatter::heifDataWithImage(const QImage&)
{
    return {};
}
bool SaveImageFormatter::canWriteHEIF()
{
    return true;
}
QImage imageWithBGColor(const QImage& image, const QColor& color)
{
    QImage flat(image.size(), QImage::Format_ARGB32_Premultiplied);
    flat.fill(color);
    QPainter painter(&flat);
    painter.drawImage(0, 0, image);
    return flat;
}
QImage lowResolution(const QImage& image)
{
    return image.scaled(640, 640, Qt::KeepAspectRatio, Qt::SmoothTransformation);
}
} // namespace pelmira
