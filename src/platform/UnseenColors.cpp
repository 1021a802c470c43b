#include "platform/UnseenColors.h"

#include <algorithm>
#include <array>
#include <new>
#include <optional>
#include <utility>
#include <vector>

namespace pelmira {
namespace {

using Color = std::array<std::uint8_t, 3>;

constexpr int blockSide = 16;

struct Blocks {
    int columns;
    int rows;
    std::vector<std::optional<Color>> means;

    std::optional<Color>& at(int column, int row)
    {
        return means[static_cast<std::size_t>(row) * static_cast<std::size_t>(columns) +
                     static_cast<std::size_t>(column)];
    }
};

template <typename Visit>
void forEachPixel(std::uint8_t* rows, int width, int height, std::ptrdiff_t stride, int column,
                  int row, Visit&& visit)
{
    const int right = std::min(width, (column + 1) * blockSide);
    const int bottom = std::min(height, (row + 1) * blockSide);
    for (int y = row * blockSide; y < bottom; ++y)
        for (int x = column * blockSide; x < right; ++x)
            visit(rows + y * stride + std::ptrdiff_t{4} * x);
}

/// Each block without a colour takes its neighbour's; forwards, then back.
void spread(Blocks& blocks)
{
    const auto take = [&](int column, int row, int fromColumn, int fromRow) {
        std::optional<Color>& mean = blocks.at(column, row);
        if (!mean && fromColumn >= 0 && fromColumn < blocks.columns && fromRow >= 0 &&
            fromRow < blocks.rows)
            mean = blocks.at(fromColumn, fromRow);
    };
    for (int row = 0; row < blocks.rows; ++row) {
        for (int column = 0; column < blocks.columns; ++column) {
            take(column, row, column - 1, row);
            take(column, row, column, row - 1);
        }
        for (int column = blocks.columns - 1; column >= 0; --column)
            take(column, row, column + 1, row);
    }
    for (int row = blocks.rows - 1; row >= 0; --row)
        for (int column = 0; column < blocks.columns; ++column)
            take(column, row, column, row + 1);
}

void fill(std::uint8_t* rows, int width, int height, std::ptrdiff_t stride)
{
    Blocks blocks{(width + blockSide - 1) / blockSide, (height + blockSide - 1) / blockSide, {}};
    blocks.means.resize(static_cast<std::size_t>(blocks.columns) *
                        static_cast<std::size_t>(blocks.rows));
    const auto visitBlock = [&](int column, int row, auto&& visit) {
        forEachPixel(rows, width, height, stride, column, row, visit);
    };
    for (int row = 0; row < blocks.rows; ++row) {
        for (int column = 0; column < blocks.columns; ++column) {
            std::array<std::uint32_t, 4> sum{};
            visitBlock(column, row, [&](const std::uint8_t* pixel) {
                for (std::size_t i = 0; i < 3; ++i)
                    sum[i] += std::uint32_t{pixel[i]} * pixel[3];
                sum[3] += pixel[3];
            });
            if (sum[3] > 0)
                blocks.at(column, row) = Color{static_cast<std::uint8_t>(sum[0] / sum[3]),
                                               static_cast<std::uint8_t>(sum[1] / sum[3]),
                                               static_cast<std::uint8_t>(sum[2] / sum[3])};
        }
    }
    spread(blocks);
    for (int row = 0; row < blocks.rows; ++row)
        for (int column = 0; column < blocks.columns; ++column)
            if (const std::optional<Color> mean = blocks.at(column, row))
                visitBlock(column, row, [&](std::uint8_t* pixel) {
                    if (pixel[3] == 0)
                        std::copy(mean->begin(), mean->end(), pixel);
                });
}

} // namespace

void fillUnseenColors(std::uint8_t* rows, int width, int height, std::ptrdiff_t stride)
{
    try {
        fill(rows, width, height, stride);
    } catch (const std::bad_alloc&) { // the picture is as well without
    }
}

} // namespace pelmira
