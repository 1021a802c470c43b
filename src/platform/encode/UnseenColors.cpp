#include "platform/encode/UnseenColors.h"

#include <algorithm>
#include <cstdint>

namespace pelmira {

UnseenColors::UnseenColors(const QImage& bitmap)
    : _columns((bitmap.width() + blockSide - 1) / blockSide),
      _rows((bitmap.height() + blockSide - 1) / blockSide), _means(indexOf(0, _rows))
{
    for (int row = 0; row < _rows; ++row)
        for (int column = 0; column < _columns; ++column)
            takeMean(bitmap, column, row);
    spread();
}

void UnseenColors::takeMean(const QImage& bitmap, int column, int row)
{
    std::uint32_t red = 0;
    std::uint32_t green = 0;
    std::uint32_t blue = 0;
    std::uint32_t alpha = 0;
    const int right = std::min(bitmap.width(), (column + 1) * blockSide);
    const int bottom = std::min(bitmap.height(), (row + 1) * blockSide);
    for (int y = row * blockSide; y < bottom; ++y) {
        const auto* pixels = reinterpret_cast<const QRgb*>(bitmap.constScanLine(y));
        for (int x = column * blockSide; x < right; ++x) {
            red += static_cast<std::uint32_t>(qRed(pixels[x])); // premultiplied
            green += static_cast<std::uint32_t>(qGreen(pixels[x]));
            blue += static_cast<std::uint32_t>(qBlue(pixels[x]));
            alpha += static_cast<std::uint32_t>(qAlpha(pixels[x]));
        }
    }
    if (alpha > 0)
        _means[indexOf(column, row)] =
            qRgb(static_cast<int>(red * 255 / alpha), static_cast<int>(green * 255 / alpha),
                 static_cast<int>(blue * 255 / alpha));
}

/// Each block without a colour takes its neighbour's: along the rows and downwards, then upwards.
void UnseenColors::spread()
{
    const auto take = [this](int column, int row, int fromColumn, int fromRow) {
        std::optional<QRgb>& color = _means[indexOf(column, row)];
        if (!color && fromColumn >= 0 && fromColumn < _columns && fromRow >= 0 && fromRow < _rows)
            color = mean(fromColumn, fromRow);
    };
    for (int row = 0; row < _rows; ++row) {
        for (int column = 0; column < _columns; ++column) {
            take(column, row, column - 1, row);
            take(column, row, column, row - 1);
        }
        for (int column = _columns - 1; column >= 0; --column)
            take(column, row, column + 1, row);
    }
    for (int row = _rows - 1; row >= 0; --row)
        for (int column = 0; column < _columns; ++column)
            take(column, row, column, row + 1);
}

} // namespace pelmira
