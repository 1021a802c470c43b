#include "background_editor/patterns/PatternScene.h"

#include <QPainter>
#include <QPainterPathStroker>

#include <algorithm>
#include <cmath>

namespace pelmira {

PatternScene::PatternScene(QSizeF tile, const QColor& background, QSize cells)
    : _tile(tile), _background(background), _cells(cells)
{
}

QSize PatternScene::tileInPixels(double scale) const
{
    const auto length = [scale](double units, int cells) {
        return cells * std::max(1, static_cast<int>(std::lround(units * scale / cells)));
    };
    return {length(_tile.width(), _cells.width()), length(_tile.height(), _cells.height())};
}

void PatternScene::fill(const QPainterPath& path, const QColor& color)
{
    _shapes.push_back({path, color});
}

void PatternScene::fillWithoutSeam(const QPainterPath& path, const QColor& color)
{
    stroke(path, color, 0.7);
    fill(path, color);
}

void PatternScene::stroke(const QPainterPath& path, const QColor& color, double width)
{
    QPainterPathStroker stroker;
    stroker.setWidth(width);
    stroker.setCapStyle(Qt::RoundCap);
    stroker.setJoinStyle(Qt::RoundJoin);
    fill(stroker.createStroke(path), color);
}

void PatternScene::paint(QPainter& painter, const QRectF& area) const
{
    painter.setRenderHint(QPainter::Antialiasing);
    painter.fillRect(area, _background);
    for (const Shape& shape : _shapes) {
        const QRectF bounds = shape.path.boundingRect();
        const double firstX = std::ceil((area.left() - bounds.right()) / _tile.width());
        const double firstY = std::ceil((area.top() - bounds.bottom()) / _tile.height());
        for (double y = firstY; y * _tile.height() + bounds.top() <= area.bottom(); ++y)
            for (double x = firstX; x * _tile.width() + bounds.left() <= area.right(); ++x)
                painter.fillPath(shape.path.translated(x * _tile.width(), y * _tile.height()),
                                 shape.color);
    }
}

} // namespace pelmira
