#include "mask_editor/surface/ChangedTiles.h"

#include <algorithm>

namespace pelmira {
namespace {

int tilesAlong(int pixels)
{
    return (std::max(pixels, 0) + ChangedTiles::tileSide - 1) / ChangedTiles::tileSide;
}

} // namespace

ChangedTiles::ChangedTiles(QSize image)
    : _image(image), _columns(tilesAlong(image.width())),
      _isChanged(std::size_t(_columns) * std::size_t(tilesAlong(image.height())))
{
}

void ChangedTiles::mark(const QRegion& pixels)
{
    for (const QRect& all : pixels) {
        const QRect r = all & QRect(QPoint(), _image);
        if (r.isEmpty())
            continue;
        for (int row = r.top() / tileSide; row <= r.bottom() / tileSide; ++row)
            for (int column = r.left() / tileSide; column <= r.right() / tileSide; ++column)
                _isChanged[std::size_t(row) * std::size_t(_columns) + std::size_t(column)] = true;
    }
}

void ChangedTiles::mark(const ChangedTiles& others)
{
    for (std::size_t tile = 0; tile < std::min(tileCount(), others.tileCount()); ++tile)
        if (others.isMarked(tile))
            mark(tile);
}

QRect ChangedTiles::rectangle(std::size_t tile) const
{
    const int row = static_cast<int>(tile) / _columns;
    const int column = static_cast<int>(tile) % _columns;
    return QRect(column * tileSide, row * tileSide, tileSide, tileSide) & QRect(QPoint(), _image);
}

QRegion ChangedTiles::region() const
{
    QRegion region;
    for (std::size_t tile = 0; tile < tileCount(); ++tile) {
        if (!isMarked(tile))
            continue;
        // Neighbours in a row are one rectangle.
        QRect run = rectangle(tile);
        while (run.right() + 1 < _image.width() && isMarked(tile + 1))
            run |= rectangle(++tile);
        region += run;
    }
    return region;
}

} // namespace pelmira
