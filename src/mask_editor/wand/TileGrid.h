#pragma once

#include <cstddef>
#include <cstdint>

namespace pelmira {

/// Tiles are 64 by 64, so that a row of one is a 64-bit word of a set and a 64-byte line of a
/// plane, and a tile of bytes is one page of memory.
inline constexpr std::uint32_t TileSide = 64;
inline constexpr std::size_t TileArea = std::size_t{TileSide} * TileSide;

/// How an image is cut into tiles, numbered row by row from its top left. The tiles of the last
/// column and row may reach beyond the image.
struct TileGrid {
    TileGrid(std::uint32_t imageWidth, std::uint32_t imageHeight)
        : width(imageWidth), height(imageHeight), columns((imageWidth + TileSide - 1) / TileSide),
          rows((imageHeight + TileSide - 1) / TileSide)
    {
    }

    std::size_t tileCount() const { return std::size_t{columns} * rows; }
    std::size_t tile(std::uint32_t column, std::uint32_t row) const
    {
        return std::size_t{columns} * row + column;
    }
    /// The part of a tile that lies in the image.
    std::uint32_t widthOfColumn(std::uint32_t column) const
    {
        return column + 1 < columns ? TileSide : width - column * TileSide;
    }
    std::uint32_t heightOfRow(std::uint32_t row) const
    {
        return row + 1 < rows ? TileSide : height - row * TileSide;
    }

    std::uint32_t width;
    std::uint32_t height;
    std::uint32_t columns;
    std::uint32_t rows;
};

} // namespace pelmira
