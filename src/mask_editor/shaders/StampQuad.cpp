#include "mask_editor/shaders/StampQuad.h"

#include <algorithm>
#include <cmath>

namespace pelmira {
namespace {

QPointF turned(QPointF p, double angle)
{
    const double cosine = std::cos(angle);
    const double sine = std::sin(angle);
    return {p.x() * cosine - p.y() * sine, p.x() * sine + p.y() * cosine};
}

// u runs along the stamp's y and v against its x.
QPointF textureCoordinates(QPointF onStamp, double size)
{
    return {onStamp.y() / size + 0.5, 0.5 - onStamp.x() / size};
}

} // namespace

Quad brushVerticesForPos(QPointF position, double size, double rotation, QPointF reach)
{
    const double half = size * 0.5;
    const QPointF stretch = turned(reach, rotation);
    const QPointF low(std::min(stretch.x(), 0.0) - half, std::min(stretch.y(), 0.0) - half);
    const QPointF high(std::max(stretch.x(), 0.0) + half, std::max(stretch.y(), 0.0) + half);
    const auto corner = [&](double x, double y) {
        const QPointF place = turned({x, y}, -rotation) + position;
        const QPointF uv = textureCoordinates({x, y}, size);
        return QuadVertex{float(place.x()), float(place.y()), 0.0F, float(uv.x()), float(uv.y())};
    };
    return {corner(low.x(), low.y()), corner(low.x(), high.y()), corner(high.x(), low.y()),
            corner(high.x(), high.y())};
}

QPointF textureStep(QPointF step, double size, double rotation)
{
    const QPointF onStamp = turned(step, rotation);
    return {onStamp.y() / size, -onStamp.x() / size};
}

QRectF boundsOf(const Quad& quad)
{
    const auto [left, right] = std::minmax({quad[0].x, quad[1].x, quad[2].x, quad[3].x});
    const auto [top, bottom] = std::minmax({quad[0].y, quad[1].y, quad[2].y, quad[3].y});
    return {QPointF(double(left), double(top)), QPointF(double(right), double(bottom))};
}

} // namespace pelmira
