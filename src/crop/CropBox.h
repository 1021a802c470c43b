#pragma once

#include <QPointF>
#include <QRectF>
#include <QSizeF>

namespace pelmira {

/// The part of the crop box that a finger has hold of.
enum class CropEdge { None, TopLeft, Top, TopRight, Right, BottomRight, Bottom, BottomLeft, Left };

/// The least side of a crop box that a drag leaves, in points.
inline constexpr double smallestCropBox = 42.0;

// All in points of the crop surface, y down.

/// What a finger at the point takes hold of: the corners first, then the sides, each 32 points
/// inside and outside of the box.
CropEdge cropEdgeForPoint(const QRectF& box, QPointF point);

/// The box after a drag from where it was; it stays inside the limits and no smaller than 42 on a
/// side, unless it was smaller before. With the ratio locked it keeps its shape: a corner moves on
/// the box's diagonal, a side scales the box about the middle of the opposite side.
QRectF draggedCropBox(CropEdge edge, const QRectF& origin, QPointF delta, const QRectF& limits,
                      bool aspectRatioLocked);

/// The point that a drag of the edge leaves where it is.
QPointF fixedPointForEdge(CropEdge edge, const QRectF& box);

/// The image grown about the anchor, then shifted, only as far as it takes to cover the box.
QRectF imageCovering(const QRectF& image, const QRectF& box, QPointF anchor);

/// The size of the given ratio (width : height) that keeps one side of the original.
QSizeF reshaped(QSizeF size, double ratio, bool keepsHeight);

/// The largest rectangle of the given ratio in the middle of the bounds, its sides cut to whole
/// points unless it is very thin.
QRectF flooredFit(QSizeF ratio, const QRectF& bounds);

/// The rectangle moved, without scaling, as far inside the bounds as it goes.
QRectF movedInside(const QRectF& rectangle, const QRectF& bounds);

} // namespace pelmira
