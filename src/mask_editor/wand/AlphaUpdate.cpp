#include "mask_editor/wand/AlphaUpdate.h"

#include "mask_editor/wand/TileRegion.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <vector>

namespace pelmira {
namespace {

using Bytes = std::uint8_t __attribute__((vector_size(16)));
using Halves = std::uint16_t __attribute__((vector_size(16)));
using Words = std::uint32_t __attribute__((vector_size(16)));

constexpr unsigned PixelsPerLine = 16; // 64 bytes
constexpr BitRow LineBits = (BitRow{1} << PixelsPerLine) - 1;
constexpr std::uint32_t ColorMask = 0x00FFFFFF;
// As in the snapshot: long streams rather than 64 short pieces a tile.
constexpr std::uint32_t RowsAtATime = 8;

constexpr std::array<BitRow, TileSide> NoRows{};

/// For each value of eight bits, eight bytes: 0 where the bit is set, all ones elsewhere.
constexpr std::array<std::array<std::uint8_t, 8>, 256> KeptBytes = [] {
    std::array<std::array<std::uint8_t, 8>, 256> table{};
    for (unsigned bits = 0; bits < 256; ++bits)
        for (unsigned x = 0; x < 8; ++x)
            table[bits][x] = bits >> x & 1 ? 0 : 255;
    return table;
}();

/// 0 for each of sixteen pixels whose bit is set, all ones for the others.
Bytes keptBytes(unsigned filled)
{
    Bytes kept;
    std::memcpy(&kept, KeptBytes[filled & 0xFF].data(), 8);
    std::memcpy(reinterpret_cast<char*>(&kept) + 8, KeptBytes[filled >> 8].data(), 8);
    return kept;
}

void writeFour(std::uint32_t* pixels, Halves alpha)
{
    Words color;
    std::memcpy(&color, pixels, sizeof color);
    color = (color & ColorMask) | reinterpret_cast<Words>(alpha);
    std::memcpy(pixels, &color, sizeof color);
}

/// Alpha of sixteen pixels. A byte becomes the top byte of its word by being interleaved with
/// zeros twice, for which every vector unit has an instruction.
void writeLine(std::uint32_t* pixels, const std::uint8_t* alpha, unsigned filled)
{
    Bytes bytes{};
    if (filled != LineBits) {
        std::memcpy(&bytes, alpha, sizeof bytes);
        if (filled)
            bytes &= keptBytes(filled);
    }
    const auto low = reinterpret_cast<Halves>(__builtin_shufflevector(
        Bytes{}, bytes, 0, 16, 1, 17, 2, 18, 3, 19, 4, 20, 5, 21, 6, 22, 7, 23));
    const auto high = reinterpret_cast<Halves>(__builtin_shufflevector(
        Bytes{}, bytes, 8, 24, 9, 25, 10, 26, 11, 27, 12, 28, 13, 29, 14, 30, 15, 31));
    writeFour(pixels, __builtin_shufflevector(Halves{}, low, 0, 8, 1, 9, 2, 10, 3, 11));
    writeFour(pixels + 4, __builtin_shufflevector(Halves{}, low, 4, 12, 5, 13, 6, 14, 7, 15));
    writeFour(pixels + 8, __builtin_shufflevector(Halves{}, high, 0, 8, 1, 9, 2, 10, 3, 11));
    writeFour(pixels + 12, __builtin_shufflevector(Halves{}, high, 4, 12, 5, 13, 6, 14, 7, 15));
}

/// Alpha of the first `width` pixels of one row of a tile, in the lines that hold a changed one.
void writeRow(std::uint32_t* pixels, const std::uint8_t* alpha, BitRow filled, BitRow changed,
              std::uint32_t width)
{
    for (unsigned x = 0; x < width; x += PixelsPerLine) {
        if (!(changed >> x & LineBits))
            continue;
        if (x + PixelsPerLine <= width) {
            writeLine(pixels + x, alpha + x, static_cast<unsigned>(filled >> x & LineBits));
            continue;
        }
        for (; x < width; ++x) {
            const std::uint32_t value = filled >> x & 1 ? 0 : alpha[x];
            pixels[x] = (pixels[x] & ColorMask) | value << (8 * ByteAlpha);
        }
    }
}

class AlphaWriter {
public:
    AlphaWriter(const PixelSpan& pixels, const WandSnapshot& snapshot, const TileBits* before,
                const TileBits& now)
        : _pixels(pixels), _snapshot(snapshot), _grid(snapshot.grid()), _before(before), _now(now)
    {
    }

    QRegion write()
    {
        TileRegion region(_grid);
        std::vector<std::uint32_t> columns;
        for (std::uint32_t row = 0; row < _grid.rows; ++row) {
            columns.clear();
            for (std::uint32_t column = 0; column < _grid.columns; ++column)
                if (differs(_grid.tile(column, row)))
                    columns.push_back(column);
            writeTiles(row, columns);
            region.addRow(row, columns);
        }
        return region.region();
    }

private:
    static const BitRow* rowsOf(const TileBits& bits, std::size_t tile)
    {
        return bits.isUsed(tile) ? bits.rows(tile) : NoRows.data();
    }

    bool differs(std::size_t tile) const
    {
        if (!_before)
            return true;
        if (!_before->isUsed(tile) && !_now.isUsed(tile))
            return false;
        return std::memcmp(rowsOf(*_before, tile), rowsOf(_now, tile), sizeof NoRows) != 0;
    }

    void writeTiles(std::uint32_t row, const std::vector<std::uint32_t>& columns)
    {
        const std::uint32_t height = _grid.heightOfRow(row);
        for (std::uint32_t first = 0; first < height; first += RowsAtATime)
            for (const std::uint32_t column : columns)
                writePiece(column, row, first, std::min(first + RowsAtATime, height));
    }

    void writePiece(std::uint32_t column, std::uint32_t row, std::uint32_t first, std::uint32_t end)
    {
        const std::size_t tile = _grid.tile(column, row);
        const std::uint32_t width = _grid.widthOfColumn(column);
        const BitRow* const now = rowsOf(_now, tile);
        const BitRow* const before = _before ? rowsOf(*_before, tile) : nullptr;
        for (std::uint32_t y = first; y < end; ++y) {
            const BitRow changed = before ? before[y] ^ now[y] : FullRow;
            if (changed)
                writeRow(_pixels.row(row * TileSide + y) + column * TileSide,
                         _snapshot.alphaRow(tile, y), now[y], changed, width);
        }
    }

    const PixelSpan& _pixels;
    const WandSnapshot& _snapshot;
    const TileGrid& _grid;
    const TileBits* const _before; // none: everything is to be written
    const TileBits& _now;
};

} // namespace

QRegion updateAlpha(const PixelSpan& pixels, const WandSnapshot& snapshot, const TileBits& before,
                    const TileBits& now)
{
    return AlphaWriter(pixels, snapshot, &before, now).write();
}

QRegion rewriteAlpha(const PixelSpan& pixels, const WandSnapshot& snapshot, const TileBits& now)
{
    return AlphaWriter(pixels, snapshot, nullptr, now).write();
}

} // namespace pelmira
