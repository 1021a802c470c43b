#include "background_editor/patterns/PatternContours.h"

#include "background_editor/patterns/PatternShapes.h"

#include <QLineF>

#include <algorithm>
#include <cmath>
#include <map>
#include <utility>

namespace pelmira {
namespace {

/// What of a convex polygon lies on the near side of a line.
std::vector<QPointF> cut(const std::vector<QPointF>& corners, QPointF onLine, QPointF away)
{
    std::vector<QPointF> kept;
    for (std::size_t i = 0; i < corners.size(); ++i) {
        const QPointF a = corners[i];
        const QPointF b = corners[(i + 1) % corners.size()];
        const double beyondA = QPointF::dotProduct(a - onLine, away);
        const double beyondB = QPointF::dotProduct(b - onLine, away);
        if (beyondA <= 0)
            kept.push_back(a);
        if ((beyondA < 0) != (beyondB < 0) && beyondA != beyondB)
            kept.push_back(a + (b - a) * (beyondA / (beyondA - beyondB)));
    }
    return kept;
}

} // namespace

std::vector<std::vector<QPointF>> cellsAround(const std::vector<QPointF>& points, QSizeF tile)
{
    std::vector<std::vector<QPointF>> cells;
    for (const QPointF& point : points) {
        const double w = tile.width();
        const double h = tile.height();
        std::vector<QPointF> cell = {point + QPointF(-w, -h), point + QPointF(w, -h),
                                     point + QPointF(w, h), point + QPointF(-w, h)};
        for (const QPointF& other : points) {
            for (int row = -1; row <= 1; ++row) {
                for (int column = -1; column <= 1; ++column) {
                    const QPointF to = other + QPointF(column * w, row * h) - point;
                    if (!to.isNull() && !cell.empty())
                        cell = cut(cell, point + to / 2, to);
                }
            }
        }
        cells.push_back(std::move(cell));
    }
    return cells;
}

QPainterPath roundedCell(const std::vector<QPointF>& cell, double gap)
{
    QPointF center;
    for (const QPointF& corner : cell)
        center += corner / static_cast<double>(cell.size());
    std::vector<QPointF> smaller = cell;
    for (std::size_t i = 0; i < cell.size(); ++i) {
        const QLineF side(cell[i], cell[(i + 1) % cell.size()]);
        if (side.length() < 1e-6)
            continue;
        QPointF away = QPointF(side.dy(), -side.dx()) / side.length();
        if (QPointF::dotProduct(side.p1() - center, away) < 0)
            away = -away;
        smaller = cut(smaller, side.p1() - away * gap, away);
    }
    if (smaller.size() < 3)
        return {};
    // From the middle of each side to the next, drawn towards the corner between them.
    const auto middle = [&smaller](std::size_t i) {
        return (smaller[i % smaller.size()] + smaller[(i + 1) % smaller.size()]) / 2;
    };
    QPainterPath path(middle(smaller.size() - 1));
    for (std::size_t i = 0; i < smaller.size(); ++i) {
        const QPointF from = path.currentPosition();
        const QPointF to = middle(i);
        path.cubicTo(from + (smaller[i] - from) * 0.78, to + (smaller[i] - to) * 0.78, to);
    }
    return path;
}

HeightGrid::HeightGrid(const std::function<double(QPointF)>& height, double sideLength, int count)
    : side(sideLength), steps(count)
{
    for (int y = 0; y <= steps; ++y)
        for (int x = 0; x <= steps; ++x)
            values.push_back(height(QPointF(x % steps, y % steps) * (side / steps)));
}

std::vector<QPainterPath> contours(const HeightGrid& heights, double level)
{
    const int steps = heights.steps;
    const double step = heights.side / steps;
    // Where the line crosses an edge of the grid; told by the edge, so that pieces find each other.
    using Edge = std::pair<int, int>; // of the doubled grid: odd and even, or even and odd
    const auto above = [&](int x, int y) { return heights.at(x, y) - level; };
    const auto crossing = [&](const Edge& edge) {
        const bool isAcross = edge.first % 2 != 0;
        const int x = edge.first / 2;
        const int y = edge.second / 2;
        const double a = above(x, y);
        const double b = isAcross ? above(x + 1, y) : above(x, y + 1);
        const double t = a / (a - b);
        return isAcross ? QPointF((x + t) * step, y * step) : QPointF(x * step, (y + t) * step);
    };
    std::multimap<Edge, Edge> pieces;
    const auto join = [&pieces](Edge a, Edge b) {
        pieces.emplace(a, b);
        pieces.emplace(b, a);
    };
    for (int y = 0; y < steps; ++y) {
        for (int x = 0; x < steps; ++x) {
            const Edge top(2 * x + 1, 2 * y);
            const Edge right(2 * x + 2, 2 * y + 1);
            const Edge bottom(2 * x + 1, 2 * y + 2);
            const Edge left(2 * x, 2 * y + 1);
            const bool a = above(x, y) > 0;
            const bool b = above(x + 1, y) > 0;
            const bool c = above(x + 1, y + 1) > 0;
            const bool d = above(x, y + 1) > 0;
            std::vector<Edge> crossed;
            for (const auto& [edge, is] :
                 {std::pair(top, a != b), {right, b != c}, {bottom, c != d}, {left, d != a}})
                if (is)
                    crossed.push_back(edge);
            if (crossed.size() == 2)
                join(crossed[0], crossed[1]);
            else if (crossed.size() == 4) { // a saddle
                const bool isHigh =
                    above(x, y) + above(x + 1, y) + above(x, y + 1) + above(x + 1, y + 1) > 0;
                join(top, a == isHigh ? right : left);
                join(bottom, a == isHigh ? left : right);
            }
        }
    }
    const auto take = [&pieces](const Edge& from) {
        const auto found = pieces.find(from);
        const Edge to = found->second;
        pieces.erase(found);
        const auto [first, last] = pieces.equal_range(to);
        pieces.erase(
            std::find_if(first, last, [&](const auto& piece) { return piece.second == from; }));
        return to;
    };
    std::vector<QPainterPath> lines;
    while (!pieces.empty()) {
        // From an end at the tile's edge, if there is one left; else round a closed line.
        auto start = std::find_if(pieces.begin(), pieces.end(), [&](const auto& piece) {
            return pieces.count(piece.first) == 1;
        });
        const Edge first = start == pieces.end() ? pieces.begin()->first : start->first;
        std::vector<QPointF> line = {crossing(first)};
        for (Edge at = first; pieces.count(at) > 0;) {
            at = take(at);
            line.push_back(crossing(at));
        }
        const bool isClosed = line.size() > 3 && QLineF(line.front(), line.back()).length() < 1e-9;
        if (isClosed)
            line.pop_back();
        lines.push_back(isClosed ? smoothBlob(line) : smoothLine(line));
    }
    return lines;
}

} // namespace pelmira
