#pragma once

#include <QImage>
#include <QRgb>

#include <optional>
#include <vector>

namespace pelmira {

/// Colours for what can't be seen, for encoders that would smear its black over the edge of what
/// can: in each block of 16 by 16 pixels the mean of the seen ones or, where there are none, of a
/// block near it. So nothing of what was removed is told.
class UnseenColors {
public:
    /// Of an image in the bitmap form. Throws std::bad_alloc.
    explicit UnseenColors(const QImage& bitmap);

    /// Opaque; black if there is nothing to see anywhere.
    QRgb at(int x, int y) const
    {
        return mean(x / blockSide, y / blockSide).value_or(qRgb(0, 0, 0));
    }

private:
    static constexpr int blockSide = 16;

    std::size_t indexOf(int column, int row) const
    {
        return static_cast<std::size_t>(row) * static_cast<std::size_t>(_columns) +
               static_cast<std::size_t>(column);
    }
    const std::optional<QRgb>& mean(int column, int row) const
    {
        return _means[indexOf(column, row)];
    }
    void takeMean(const QImage& bitmap, int column, int row);
    void spread();

    const int _columns;
    const int _rows;
    std::vector<std::optional<QRgb>> _means;
};

} // namespace pelmira
