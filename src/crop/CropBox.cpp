#include "crop/CropBox.h"

#include <algorithm>
#include <cmath>

namespace pelmira {
namespace {

constexpr double margin = 32.0;

struct Direction {
    int x = 0; ///< -1 where the left side moves, 1 where the right one does
    int y = 0;
};

Direction directionOf(CropEdge edge)
{
    switch (edge) {
    case CropEdge::TopLeft:
        return {-1, -1};
    case CropEdge::Top:
        return {0, -1};
    case CropEdge::TopRight:
        return {1, -1};
    case CropEdge::Right:
        return {1, 0};
    case CropEdge::BottomRight:
        return {1, 1};
    case CropEdge::Bottom:
        return {0, 1};
    case CropEdge::BottomLeft:
        return {-1, 1};
    case CropEdge::Left:
        return {-1, 0};
    case CropEdge::None:
        break;
    }
    return {};
}

/// One axis of a box.
struct Span {
    double low;
    double high;
};

Span draggedSpan(Span span, int direction, double delta, Span limits)
{
    const double least = std::min(smallestCropBox, span.high - span.low);
    if (direction < 0)
        span.low = std::max(limits.low, std::min(span.low + delta, span.high - least));
    if (direction > 0)
        span.high = std::min(limits.high, std::max(span.high + delta, span.low + least));
    return span;
}

/// How long the span may get when it grows from its fixed end, or from its middle.
double room(Span span, int direction, Span limits)
{
    if (direction < 0)
        return span.high - limits.low;
    if (direction > 0)
        return limits.high - span.low;
    const double middle = (span.low + span.high) / 2.0;
    return 2.0 * std::min(middle - limits.low, limits.high - middle);
}

double lockedScale(Direction direction, QSizeF size, QPointF delta)
{
    const QPointF way(direction.x * size.width(), direction.y * size.height());
    const double length = QPointF::dotProduct(way, way);
    return length > 0.0 ? 1.0 + QPointF::dotProduct(delta, way) / length : 1.0;
}

} // namespace

CropEdge cropEdgeForPoint(const QRectF& box, QPointF point)
{
    const QRectF frame = box.adjusted(-margin, -margin, margin, margin);
    constexpr double band = 2.0 * margin;
    const double right = frame.right() - band;
    const double bottom = frame.bottom() - band;
    const struct {
        CropEdge edge;
        QRectF area;
    } areas[] = {
        {CropEdge::TopLeft, QRectF(frame.left(), frame.top(), band, band)},
        {CropEdge::TopRight, QRectF(right, frame.top(), band, band)},
        {CropEdge::BottomLeft, QRectF(frame.left(), bottom, band, band)},
        {CropEdge::BottomRight, QRectF(right, bottom, band, band)},
        {CropEdge::Top, QRectF(frame.left(), frame.top(), frame.width(), band)},
        {CropEdge::Bottom, QRectF(frame.left(), bottom, frame.width(), band)},
        {CropEdge::Left, QRectF(frame.left(), frame.top(), band, frame.height())},
        {CropEdge::Right, QRectF(right, frame.top(), band, frame.height())},
    };
    for (const auto& [edge, area] : areas)
        if (area.contains(point))
            return edge;
    return CropEdge::None;
}

QRectF draggedCropBox(CropEdge edge, const QRectF& origin, QPointF delta, const QRectF& limits,
                      bool aspectRatioLocked)
{
    const Direction direction = directionOf(edge);
    const Span x{origin.left(), origin.right()};
    const Span y{origin.top(), origin.bottom()};
    const Span limitsX{limits.left(), limits.right()};
    const Span limitsY{limits.top(), limits.bottom()};
    if (!aspectRatioLocked) {
        const Span newX = draggedSpan(x, direction.x, delta.x(), limitsX);
        const Span newY = draggedSpan(y, direction.y, delta.y(), limitsY);
        return {QPointF(newX.low, newY.low), QPointF(newX.high, newY.high)};
    }
    const double largest = std::min(room(x, direction.x, limitsX) / origin.width(),
                                    room(y, direction.y, limitsY) / origin.height());
    const double least = std::min(1.0, smallestCropBox / std::min(origin.width(), origin.height()));
    const double scale =
        std::max(least, std::min(largest, lockedScale(direction, origin.size(), delta)));
    const QPointF fixed = fixedPointForEdge(edge, origin);
    return {fixed + (origin.topLeft() - fixed) * scale, origin.size() * scale};
}

QPointF fixedPointForEdge(CropEdge edge, const QRectF& box)
{
    const Direction direction = directionOf(edge);
    return box.center() - QPointF(direction.x * box.width(), direction.y * box.height()) / 2.0;
}

QRectF imageCovering(const QRectF& image, const QRectF& box, QPointF anchor)
{
    const double scale =
        std::max({1.0, box.width() / image.width(), box.height() / image.height()});
    const QRectF grown(anchor + (image.topLeft() - anchor) * scale, image.size() * scale);
    const double x = std::min(box.left(), std::max(grown.left(), box.right() - grown.width()));
    const double y = std::min(box.top(), std::max(grown.top(), box.bottom() - grown.height()));
    return {QPointF(x, y), grown.size()};
}

QSizeF reshaped(QSizeF size, double ratio, bool keepsHeight)
{
    return keepsHeight ? QSizeF(size.height() * ratio, size.height())
                       : QSizeF(size.width(), size.width() / ratio);
}

QRectF flooredFit(QSizeF ratio, const QRectF& bounds)
{
    const double scale = std::min(bounds.width() / ratio.width(), bounds.height() / ratio.height());
    QSizeF size = ratio * scale;
    // Where less is left than a crop box takes, a part of a point counts.
    if (std::min(size.width(), size.height()) >= smallestCropBox) {
        // A product that is whole but for its last bits stays so.
        size = {std::floor(size.width() + 1e-6), std::floor(size.height() + 1e-6)};
    }
    return {bounds.center() - QPointF(size.width(), size.height()) / 2.0, size};
}

QRectF movedInside(const QRectF& rectangle, const QRectF& bounds)
{
    QRectF moved = rectangle;
    moved.moveLeft(
        std::max(bounds.left(), std::min(rectangle.left(), bounds.right() - rectangle.width())));
    moved.moveTop(
        std::max(bounds.top(), std::min(rectangle.top(), bounds.bottom() - rectangle.height())));
    return moved;
}

} // namespace pelmira
