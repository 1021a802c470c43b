#include "mask_editor/wand/TileRegion.h"

#include <QRect>

namespace pelmira {

void TileRegion::addRow(std::uint32_t row, const std::vector<std::uint32_t>& columns)
{
    Band band{row, row, {}};
    for (const std::uint32_t column : columns) {
        if (!band.runs.empty() && band.runs.back().last + 1 == column)
            band.runs.back().last = column;
        else
            band.runs.push_back({column, column});
    }
    if (!band.runs.empty())
        _rows.push_back(std::move(band));
}

QRegion TileRegion::region() const
{
    std::vector<QRect> rectangles;
    for (std::uint32_t gap = 0;; gap = gap * 2 + 1) {
        rectangles.clear();
        for (const Band& band : bandsWithGapsUpTo(gap))
            for (const Run& run : band.runs)
                rectangles.push_back(rectangle(band, run));
        if (rectangles.size() <= MostRectangles || gap > _grid.columns)
            break;
    }
    QRegion region;
    region.setRects(rectangles.data(), static_cast<int>(rectangles.size()));
    return rectangles.size() <= MostRectangles ? region : QRegion(region.boundingRect());
}

std::vector<TileRegion::Band> TileRegion::bandsWithGapsUpTo(std::uint32_t gap) const
{
    std::vector<Band> bands;
    for (const Band& row : _rows) {
        Band band{row.first, row.last, {}};
        for (const Run& run : row.runs) {
            if (!band.runs.empty() && run.first - band.runs.back().last - 1 <= gap)
                band.runs.back().last = run.last;
            else
                band.runs.push_back(run);
        }
        if (!bands.empty() && bands.back().last + 1 == band.first && bands.back().runs == band.runs)
            bands.back().last = band.last;
        else
            bands.push_back(std::move(band));
    }
    return bands;
}

QRect TileRegion::rectangle(const Band& band, const Run& run) const
{
    const std::uint32_t x = run.first * TileSide;
    const std::uint32_t y = band.first * TileSide;
    const std::uint32_t right = run.last * TileSide + _grid.widthOfColumn(run.last);
    const std::uint32_t bottom = band.last * TileSide + _grid.heightOfRow(band.last);
    return {static_cast<int>(x), static_cast<int>(y), static_cast<int>(right - x),
            static_cast<int>(bottom - y)};
}

} // namespace pelmira
