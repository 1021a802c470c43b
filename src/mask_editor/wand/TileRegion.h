#pragma once

#include "mask_editor/wand/TileGrid.h"

#include <QRegion>
#include <cstdint>
#include <vector>

namespace pelmira {

/// Collects tiles, row by row from the top, and describes them by few rectangles: gaps between
/// tiles are taken in, the narrowest first, until MostRectangles suffice.
class TileRegion {
public:
    static constexpr std::size_t MostRectangles = 64;

    explicit TileRegion(const TileGrid& grid) : _grid(grid) {}

    /// The columns of the row's tiles, ascending.
    void addRow(std::uint32_t row, const std::vector<std::uint32_t>& columns);

    /// In pixels, within the image.
    QRegion region() const;

private:
    struct Run {
        std::uint32_t first;
        std::uint32_t last;
        bool operator==(const Run&) const = default;
    };
    struct Band {
        std::uint32_t first;
        std::uint32_t last;
        std::vector<Run> runs;
    };

    std::vector<Band> bandsWithGapsUpTo(std::uint32_t gap) const;
    QRect rectangle(const Band& band, const Run& run) const;

    const TileGrid _grid;
    std::vector<Band> _rows; // one tile high each
};

} // namespace pelmira
