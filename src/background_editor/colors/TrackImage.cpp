#include "background_editor/colors/TrackImage.h"

#include <QLinearGradient>
#include <QPainter>
#include <QPainterPath>
#include <QPen>

#include <cmath>

namespace pelmira {

QImage trackImage(const QColor& from, const QColor& to, QSizeF size)
{
    if (!from.isValid() || !to.isValid() || !(size.width() >= 1) || !(size.height() >= 1) ||
        size.width() > 1 << 14)
        return {};
    QImage image(int(std::ceil(size.width())), int(std::ceil(size.height())),
                 QImage::Format_ARGB32_Premultiplied);
    if (image.isNull())
        return {};
    image.fill(Qt::transparent);
    QPainterPath shape;
    shape.addRoundedRect(QRectF(QPointF(), size), size.height() * 0.5, size.height() * 0.5);
    QLinearGradient gradient(0.0, size.height() * 0.5, size.width(), size.height() * 0.5);
    gradient.setColorAt(0.0, from);
    gradient.setColorAt(1.0, to);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setClipPath(shape);
    painter.fillPath(shape, gradient);
    painter.strokePath(shape, QPen(QColor::fromRgbF(1.0F, 1.0F, 1.0F, 0.3F), 2.0));
    return image;
}

} // namespace pelmira
