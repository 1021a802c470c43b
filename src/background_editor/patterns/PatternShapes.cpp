#include "background_editor/patterns/PatternShapes.h"

#include <QTransform>

#include <algorithm>
#include <cmath>
#include <numbers>

namespace pelmira {

QPainterPath circle(QPointF center, double radius)
{
    return ellipse(center, radius, radius);
}

QPainterPath ellipse(QPointF center, double radiusX, double radiusY)
{
    QPainterPath path;
    path.addEllipse(center, radiusX, radiusY);
    return path;
}

QPainterPath rectangle(double x, double y, double width, double height)
{
    QPainterPath path;
    path.addRect(x, y, width, height);
    return path;
}

QPainterPath roundedRectangle(QPointF center, QSizeF size, double radius)
{
    QPainterPath path;
    path.addRoundedRect(QRectF(center - QPointF(size.width() / 2, size.height() / 2), size), radius,
                        radius);
    return path;
}

QPainterPath polygon(std::initializer_list<QPointF> corners)
{
    return polygon(std::vector<QPointF>(corners));
}

QPainterPath polygon(const std::vector<QPointF>& corners)
{
    QPainterPath path(corners.front());
    std::for_each(corners.begin() + 1, corners.end(), [&path](QPointF p) { path.lineTo(p); });
    path.closeSubpath();
    return path;
}

QPainterPath regularPolygon(QPointF center, double radius, int corners, double turn)
{
    std::vector<QPointF> points;
    for (int i = 0; i < corners; ++i)
        points.push_back(polar(center, radius, turn + fullTurn * i / corners));
    return polygon(points);
}

namespace {

/// Catmull and Rom's spline from b to c, as a curve of Bézier's.
void addSmooth(QPainterPath& path, QPointF a, QPointF b, QPointF c, QPointF d)
{
    path.cubicTo(b + (c - a) / 6.0, c - (d - b) / 6.0, c);
}

} // namespace

QPainterPath smoothBlob(const std::vector<QPointF>& points)
{
    const std::size_t count = points.size();
    QPainterPath path(points.front());
    for (std::size_t i = 0; i < count; ++i)
        addSmooth(path, points[(i + count - 1) % count], points[i], points[(i + 1) % count],
                  points[(i + 2) % count]);
    path.closeSubpath();
    return path;
}

QPainterPath smoothLine(const std::vector<QPointF>& points)
{
    QPainterPath path(points.front());
    for (std::size_t i = 0; i + 1 < points.size(); ++i)
        addSmooth(path, points[i == 0 ? 0 : i - 1], points[i], points[i + 1],
                  points[std::min(i + 2, points.size() - 1)]);
    return path;
}

QPainterPath placed(const QPainterPath& path, QPointF where, double turn, double scale)
{
    return QTransform::fromTranslate(where.x(), where.y())
        .rotate(turn)
        .scale(scale, scale)
        .map(path);
}

QPainterPath leaf(double length, double width)
{
    QPainterPath path;
    path.cubicTo(length * 0.25, -width * 0.72, length * 0.7, -width * 0.62, length, 0);
    path.cubicTo(length * 0.7, width * 0.62, length * 0.25, width * 0.72, 0, 0);
    return path;
}

QPointF polar(QPointF center, double radius, double turn)
{
    const double angle = turn * std::numbers::pi / 180.0;
    return center + radius * QPointF(std::cos(angle), std::sin(angle));
}

double Dice::between(double low, double high)
{
    return low + (high - low) * static_cast<double>(_engine()) / 4294967296.0;
}

std::size_t Dice::below(std::size_t count)
{
    return _engine() % count;
}

std::vector<QPointF> scattered(QSizeF tile, std::size_t count, Dice& dice)
{
    std::vector<QPointF> points;
    while (points.size() < count)
        points.emplace_back(dice.between(0, tile.width()), dice.between(0, tile.height()));
    // The way from b to a, the short one round the tile.
    const auto between = [&tile](QPointF a, QPointF b) {
        const QPointF way = a - b;
        return QPointF(std::remainder(way.x(), tile.width()),
                       std::remainder(way.y(), tile.height()));
    };
    // Each is pushed away by its neighbours until they stand as far apart as there is room.
    const double room = std::sqrt(tile.width() * tile.height() / static_cast<double>(count));
    for (int round = 0; round < 24; ++round) {
        const std::vector<QPointF> stand = points;
        for (std::size_t i = 0; i < count; ++i) {
            QPointF push;
            for (std::size_t k = 0; k < count; ++k) {
                const QPointF way = between(stand[i], stand[k]);
                const double distance = std::hypot(way.x(), way.y());
                if (k != i && distance > 0.0 && distance < 1.3 * room)
                    push += way / distance * (1.3 * room - distance) * 0.14;
            }
            points[i] += push;
        }
    }
    return points;
}

} // namespace pelmira
