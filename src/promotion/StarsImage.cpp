#include "promotion/StarsImage.h"

#include <QColor>
#include <QPainter>
#include <QPainterPath>
#include <QPolygonF>

#include <algorithm>
#include <cmath>
#include <numbers>

namespace pelmira {
namespace {

constexpr int stars = 5;
constexpr QColor gray(0x6b, 0x70, 0x78);
constexpr QColor yellow(0xff, 0xcc, 0x00);

QPolygonF star(QPointF centre, double radius)
{
    QPolygonF corners;
    for (int i = 0; i < 2 * stars; ++i) {
        const double angle = std::numbers::pi * (double(i) / stars - 0.5);
        const double reach = i % 2 == 0 ? radius : radius * 0.42;
        corners << centre + QPointF(std::cos(angle), std::sin(angle)) * reach;
    }
    return corners;
}

QPainterPath fiveStars(QSizeF size)
{
    QPainterPath path;
    const double cell = size.width() / stars;
    const double radius = std::min(cell, size.height()) / 2.0;
    for (int i = 0; i < stars; ++i) {
        path.addPolygon(star({(i + 0.5) * cell, size.height() / 2.0}, radius));
        path.closeSubpath();
    }
    return path;
}

} // namespace

QImage starsImageWithSize(QSizeF size, double numStars, double scale)
{
    QImage image((size * scale).toSize(), QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(scale, scale);
    const QPainterPath path = fiveStars(size);
    painter.fillPath(path, gray);
    const double rating = std::isnan(numStars) ? 0.0 : std::clamp(numStars, 0.0, double(stars));
    const double filledWidth = size.width() * rating / stars;
    if (filledWidth <= size.width() - 1.0)
        painter.setClipRect(QRectF(0.0, 0.0, filledWidth, size.height()));
    painter.fillPath(path, yellow);
    return image;
}

} // namespace pelmira
