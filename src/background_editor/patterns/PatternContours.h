#pragma once

#include <QPainterPath>
#include <QPointF>
#include <QSizeF>

#include <functional>
#include <vector>

namespace pelmira {

/// For each point the part of the plane that is nearer to it than to any other point of any tile
/// (Voronoi's cells): convex, its corners in order.
std::vector<std::vector<QPointF>> cellsAround(const std::vector<QPointF>& points, QSizeF tile);

/// The cell made smaller by a gap on each side, its corners rounded.
QPainterPath roundedCell(const std::vector<QPointF>& cell, double gap);

/// A function of the plane that repeats itself in a square tile, known on a grid of lines.
struct HeightGrid {
    HeightGrid(const std::function<double(QPointF)>& height, double side, int steps);
    double at(int x, int y) const { return values[static_cast<std::size_t>(y * (steps + 1) + x)]; }

    double side;
    int steps;
    std::vector<double> values;
};

/// The lines on which it has a value: smooth, each as long as it is before it closes or leaves the
/// tile (marching squares).
std::vector<QPainterPath> contours(const HeightGrid& heights, double level);

} // namespace pelmira
