#include "mask_editor/undo/TiledMask.h"

#include "platform/pixels/AlphaPlane.h"

#include <algorithm>
#include <array>
#include <utility>

namespace pelmira {
namespace {

using TileBytes = std::array<std::uint8_t, std::size_t{ChangedTiles::tileSide} *
                                               std::size_t{ChangedTiles::tileSide}>;

QSize sizeOf(const PixelSpan& pixels)
{
    return {static_cast<int>(pixels.width), static_cast<int>(pixels.height)};
}

PixelSpan partOf(const PixelSpan& pixels, const QRect& r)
{
    return {pixels.row(static_cast<std::uint32_t>(r.y())) + r.x(),
            static_cast<std::uint32_t>(r.width()), static_cast<std::uint32_t>(r.height()),
            pixels.bytesPerRow};
}

std::size_t areaOf(const QRect& r)
{
    return static_cast<std::size_t>(r.width()) * static_cast<std::size_t>(r.height());
}

} // namespace

std::optional<TiledMask> TiledMask::of(const PixelSpan& pixels, const TiledMask& before,
                                       const ChangedTiles& changed)
{
    TiledMask mask;
    mask._grid = ChangedTiles(sizeOf(pixels));
    const bool isSameSize = before._grid.image() == mask._grid.image();
    mask._tiles.reserve(mask._grid.tileCount());
    TileBytes bytes;
    for (std::size_t i = 0; i < mask._grid.tileCount(); ++i) {
        if (isSameSize && !changed.isMarked(i)) {
            mask._tiles.push_back(before._tiles[i]);
            continue;
        }
        const QRect r = mask._grid.rectangle(i);
        copyAlphaPlane(partOf(pixels, r), bytes.data());
        std::shared_ptr<MaskTile> tile = MaskTile::of(bytes.data(), areaOf(r));
        if (!tile)
            return std::nullopt;
        mask._tiles.push_back(std::move(tile));
    }
    return mask;
}

std::size_t TiledMask::planeSize() const
{
    return areaOf(QRect(QPoint(), _grid.image()));
}

ChangedTiles TiledMask::differenceFrom(const TiledMask& other) const
{
    ChangedTiles difference = _grid;
    const bool isSameSize = _grid.image() == other._grid.image();
    for (std::size_t i = 0; i < _tiles.size(); ++i)
        if (!isSameSize || _tiles[i] != other._tiles[i])
            difference.mark(i);
    return difference;
}

void TiledMask::restore(const PixelSpan& pixels, const ChangedTiles& marked) const
{
    TileBytes bytes;
    for (std::size_t i = 0; i < _tiles.size(); ++i) {
        if (!marked.isMarked(i))
            continue;
        _tiles[i]->copyTo(bytes.data());
        restoreAlphaPlane(partOf(pixels, _grid.rectangle(i)), bytes.data());
    }
}

void TiledMask::copyTo(std::uint8_t* plane) const
{
    TileBytes bytes;
    const auto stride = static_cast<std::size_t>(_grid.image().width());
    for (std::size_t i = 0; i < _tiles.size(); ++i) {
        const QRect r = _grid.rectangle(i);
        const auto width = static_cast<std::size_t>(r.width());
        _tiles[i]->copyTo(bytes.data());
        for (std::size_t y = 0; y < static_cast<std::size_t>(r.height()); ++y)
            std::copy_n(bytes.data() + width * y, width,
                        plane + (static_cast<std::size_t>(r.y()) + y) * stride +
                            static_cast<std::size_t>(r.x()));
    }
}

} // namespace pelmira
