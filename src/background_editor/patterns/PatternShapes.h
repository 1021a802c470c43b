#pragma once

#include <QColor>
#include <QPainterPath>
#include <QPointF>
#include <QSizeF>

#include <initializer_list>
#include <random>
#include <vector>

namespace pelmira {

/// What the makers of patterns draw with. Angles are degrees.

constexpr double fullTurn = 360.0;

inline QColor rgb(QRgb hexadecimal)
{
    return QColor(hexadecimal);
}

QPainterPath circle(QPointF center, double radius);
QPainterPath ellipse(QPointF center, double radiusX, double radiusY);
QPainterPath rectangle(double x, double y, double width, double height);
QPainterPath roundedRectangle(QPointF center, QSizeF size, double radius);
QPainterPath polygon(std::initializer_list<QPointF> corners);
QPainterPath polygon(const std::vector<QPointF>& corners);
QPainterPath regularPolygon(QPointF center, double radius, int corners, double turn = 0.0);
/// A closed curve that runs smoothly through the points.
QPainterPath smoothBlob(const std::vector<QPointF>& points);
/// A line through the points that runs smoothly.
QPainterPath smoothLine(const std::vector<QPointF>& points);
/// The same shape, turned about the origin, enlarged, and put there.
QPainterPath placed(const QPainterPath& path, QPointF where, double turn = 0.0, double scale = 1.0);
/// A leaf along the x axis from the origin to (length, 0).
QPainterPath leaf(double length, double width);
/// At a distance and an angle from a point.
QPointF polar(QPointF center, double radius, double turn);

/// Numbers that look like chance but are the same everywhere and each time.
class Dice {
public:
    explicit Dice(unsigned seed) : _engine(seed) {}
    double between(double low, double high);
    std::size_t below(std::size_t count);
    template <typename List>
    const auto& oneOf(const List& list)
    {
        return list[below(list.size())];
    }

private:
    std::mt19937 _engine;
};

/// Points spread over a tile without gaps or heaps, also across its edges.
std::vector<QPointF> scattered(QSizeF tile, std::size_t count, Dice& dice);

} // namespace pelmira
