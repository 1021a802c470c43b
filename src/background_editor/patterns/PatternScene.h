#pragma once

#include <QColor>
#include <QPainterPath>
#include <QRectF>
#include <QSize>
#include <QSizeF>

#include <vector>

class QPainter;

namespace pelmira {

/// A seamless pattern of flat shapes. What is put into it comes again in every tile of an endless
/// plane, so a shape may reach over the tile's edges. A shape lies over those that were put in
/// before it, its copies included. Units are those of the pattern library.
class PatternScene {
public:
    /// With cells, what stands on their edges is to fall on whole pixels: straight edges stay
    /// sharp.
    PatternScene(QSizeF tile, const QColor& background, QSize cells = {1, 1});

    QSizeF tile() const { return _tile; }
    /// The size of a tile in whole pixels, at so many pixels to a unit; at least one for a cell.
    QSize tileInPixels(double scale) const;
    void fill(const QPainterPath& path, const QColor& color);
    /// For shapes that stand side by side: a trace wider, so that nothing shines through between.
    void fillWithoutSeam(const QPainterPath& path, const QColor& color);
    /// A line with round ends and corners.
    void stroke(const QPainterPath& path, const QColor& color, double width);

    /// Paints an area of the plane.
    void paint(QPainter& painter, const QRectF& area) const;

private:
    struct Shape {
        QPainterPath path;
        QColor color;
    };

    const QSizeF _tile;
    const QColor _background;
    const QSize _cells;
    std::vector<Shape> _shapes;
};

} // namespace pelmira
