#pragma once

#include "mask_editor/surface/ChangedTiles.h"
#include "mask_editor/undo/MaskTile.h"
#include "platform/pixels/PixelSpan.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <vector>

namespace pelmira {

/// The mask as it was at one moment, cut into the tiles of ChangedTiles. Two masks share the tiles
/// in which nothing happened between them: a level of undo costs what was changed, and what two
/// levels differ by is known without a look at their bytes. A value, whose content never changes.
class TiledMask {
public:
    TiledMask() = default;

    /// The pixels' alpha. Tiles that aren't marked are those of `before`, if that was of an image
    /// of the same size. Nothing if there is no memory.
    static std::optional<TiledMask> of(const PixelSpan& pixels, const TiledMask& before,
                                       const ChangedTiles& changed);

    bool isEmpty() const { return _tiles.empty(); }
    /// Width × height of the image, in bytes.
    std::size_t planeSize() const;
    /// The tiles that aren't the same in both; all of them if their sizes differ.
    ChangedTiles differenceFrom(const TiledMask& other) const;
    /// Puts the marked tiles back as the alpha of pixels of the same size.
    void restore(const PixelSpan& pixels, const ChangedTiles& marked) const;
    /// Writes the plane: rows of bytes, tightly packed.
    void copyTo(std::uint8_t* plane) const;

    const std::vector<std::shared_ptr<MaskTile>>& tiles() const { return _tiles; }

private:
    ChangedTiles _grid; // without a mark
    std::vector<std::shared_ptr<MaskTile>> _tiles;
};

} // namespace pelmira
