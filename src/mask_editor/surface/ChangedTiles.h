#pragma once

#include <QRect>
#include <QRegion>
#include <QSize>

#include <cstddef>
#include <vector>

namespace pelmira {

/// Which tiles of an image have changed: a note of many small places that never grows, however
/// many they are.
class ChangedTiles {
public:
    /// Pixels. A small stroke then stands in a few tiles, a photo of 16 megapixels in a thousand.
    static constexpr int tileSide = 128;

    ChangedTiles() = default;
    /// No tile of an image of so many pixels.
    explicit ChangedTiles(QSize image);

    /// Every tile that the pixels touch; what lies outside the image is passed over.
    void mark(const QRegion& pixels);
    void mark(std::size_t tile) { _isChanged[tile] = true; }
    /// Those of another note of the same image, too.
    void mark(const ChangedTiles& others);

    /// Tiles are counted row by row from the image's top left.
    std::size_t tileCount() const { return _isChanged.size(); }
    bool isMarked(std::size_t tile) const { return _isChanged[tile]; }
    QSize image() const { return _image; }
    /// The part of a tile that lies in the image.
    QRect rectangle(std::size_t tile) const;
    /// The marked tiles' pixels.
    QRegion region() const;

private:
    QSize _image;
    int _columns = 0;
    std::vector<bool> _isChanged;
};

} // namespace pelmira
