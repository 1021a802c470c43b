#include "mask_editor/wand/TileFlood.h"

#include <algorithm>
#include <bit>

namespace pelmira {
namespace {

constexpr std::uint32_t LastRow = TileSide - 1;
constexpr unsigned LastColumn = TileSide - 1;

} // namespace

TileFlood::TileFlood(const WandSnapshot& snapshot)
    : _snapshot(snapshot), _grid(snapshot.grid()), _open(_grid), _tiles(_grid.tileCount()),
      _queue(_grid.tileCount())
{
}

void TileFlood::run(QPoint start, std::uint8_t tolerance, TileBits& filled)
{
    _tolerance = tolerance;
    _filled = &filled;
    filled.clear();
    _open.clear();
    if (tolerance == 0)
        return;
    const auto seed = [this](std::uint32_t x, std::uint32_t y) {
        const std::size_t tile = _grid.tile(x / TileSide, y / TileSide);
        if (isClosed(tile))
            return;
        reach(tile);
        seedRow(tile, y % TileSide, bitAt(x % TileSide));
    };
    const auto x = static_cast<std::uint32_t>(start.x());
    const auto y = static_cast<std::uint32_t>(start.y());
    seed(x, y);
    if (_queueLength == 0 && x + 1 < _grid.width)
        seed(x + 1, y);
    while (_queueLength > 0) {
        const std::size_t tile = _queue[_queueFirst];
        _queueFirst = (_queueFirst + 1) % _queue.size();
        --_queueLength;
        visit(tile);
    }
}

/// Makes the tile's record when the fill first touches it.
void TileFlood::reach(std::size_t index)
{
    if (_open.isUsed(index))
        return;
    BitRow* const open = _open.use(index);
    _filled->use(index);
    Tile& tile = _tiles[index];
    tile = {};
    tile.isAllOpen = _snapshot.farthest(index) < _tolerance;
    if (tile.isAllOpen) {
        std::fill_n(open, TileSide, FullRow);
        tile.openLeft = tile.openRight = ~std::uint64_t{0};
        return;
    }
    nearerThan(_snapshot.distances(index), _tolerance, open);
    for (std::uint32_t y = 0; y < TileSide; ++y) {
        tile.openLeft |= (open[y] & 1) << y;
        tile.openRight |= (open[y] >> LastColumn) << y;
    }
}

void TileFlood::queue(std::size_t index)
{
    Tile& tile = _tiles[index];
    if (tile.isQueued)
        return;
    tile.isQueued = true;
    _queue[(_queueFirst + _queueLength) % _queue.size()] = static_cast<std::uint32_t>(index);
    ++_queueLength;
}

void TileFlood::visit(std::size_t index)
{
    Tile& tile = _tiles[index];
    tile.isQueued = false;
    const std::uint64_t changed = spread(index);

    const auto column = static_cast<std::uint32_t>(index % _grid.columns);
    const auto row = static_cast<std::uint32_t>(index / _grid.columns);
    const BitRow* const filled = _filled->rows(index);
    const auto offer = [this](std::size_t neighbour) {
        if (isClosed(neighbour))
            return false;
        reach(neighbour);
        return true;
    };
    if (row > 0 && (changed & 1) && filled[0] && offer(index - _grid.columns))
        seedRow(index - _grid.columns, LastRow, filled[0]);
    if (row + 1 < _grid.rows && (changed >> LastRow) && filled[LastRow] &&
        offer(index + _grid.columns))
        seedRow(index + _grid.columns, 0, filled[LastRow]);
    if (column > 0 && (tile.filledLeft & changed) && offer(index - 1))
        seedRightColumn(index - 1, tile.filledLeft & changed);
    if (column + 1 < _grid.columns && (tile.filledRight & changed) && offer(index + 1))
        seedLeftColumn(index + 1, tile.filledRight & changed);
}

/// Spreads the seeds within the tile; returns the rows that have changed since its last visit.
std::uint64_t TileFlood::spread(std::size_t index)
{
    Tile& tile = _tiles[index];
    BitRow* const filled = _filled->rows(index);
    if (tile.isAllOpen) {
        std::fill_n(filled, TileSide, FullRow);
        tile.filledLeft = tile.filledRight = ~std::uint64_t{0};
        return ~std::uint64_t{0};
    }
    const BitRow* const open = _open.rows(index);
    std::uint64_t changed = 0;
    std::uint64_t downwards = tile.dirtyRows;
    std::uint64_t upwards = 0;
    tile.dirtyRows = 0;

    const auto close = [&](unsigned y) {
        filled[y] = closeRuns(filled[y], open[y]);
        tile.filledLeft |= (filled[y] & 1) << y;
        tile.filledRight |= (filled[y] >> LastColumn) << y;
        changed |= bitAt(y);
    };
    const auto seed = [&](unsigned y, BitRow from) {
        const BitRow seeds = from & open[y] & ~filled[y];
        filled[y] |= seeds;
        return std::uint64_t{seeds != 0} << y;
    };
    // Rows in order, each passing on to the next, first down and then up: a path costs a sweep
    // for each time that it turns back, not for each row.
    while (downwards) {
        while (downwards) {
            const auto y = static_cast<unsigned>(std::countr_zero(downwards));
            downwards &= ~bitAt(y);
            close(y);
            if (y < LastRow)
                downwards |= seed(y + 1, filled[y]);
            if (y > 0)
                upwards |= seed(y - 1, filled[y]);
        }
        while (upwards) {
            const auto y = static_cast<unsigned>(std::bit_width(upwards) - 1);
            upwards &= ~bitAt(y);
            close(y);
            if (y > 0)
                upwards |= seed(y - 1, filled[y]);
            if (y < LastRow)
                downwards |= seed(y + 1, filled[y]);
        }
    }
    return changed;
}

void TileFlood::seedRow(std::size_t index, std::uint32_t row, BitRow seeds)
{
    BitRow& filled = _filled->rows(index)[row];
    seeds &= _open.rows(index)[row] & ~filled;
    if (!seeds)
        return;
    filled |= seeds;
    _tiles[index].dirtyRows |= bitAt(row);
    queue(index);
}

void TileFlood::seedLeftColumn(std::size_t index, std::uint64_t rows)
{
    Tile& tile = _tiles[index];
    rows &= tile.openLeft & ~tile.filledLeft;
    tile.filledLeft |= rows;
    seedColumn(index, 0, rows);
}

void TileFlood::seedRightColumn(std::size_t index, std::uint64_t rows)
{
    Tile& tile = _tiles[index];
    rows &= tile.openRight & ~tile.filledRight;
    tile.filledRight |= rows;
    seedColumn(index, LastColumn, rows);
}

void TileFlood::seedColumn(std::size_t index, unsigned x, std::uint64_t rows)
{
    if (!rows)
        return;
    _tiles[index].dirtyRows |= rows;
    queue(index);
    if (_tiles[index].isAllOpen)
        return; // its visit fills it whole
    BitRow* const filled = _filled->rows(index);
    for (; rows; rows &= rows - 1)
        filled[std::countr_zero(rows)] |= bitAt(x);
}

} // namespace pelmira
