#include "crop/CropPreview.h"

#include <algorithm>

namespace pelmira {
namespace {

constexpr int smallestSide = 512;
constexpr int roughSide = 1024;

int longestSide(const QImage& image)
{
    return std::max(image.width(), image.height());
}

QImage scaledTo(const QImage& image, int side, Qt::TransformationMode mode)
{
    if (longestSide(image) <= side)
        return image;
    // Long thin images keep a pixel of width.
    const QSize size = image.size().scaled(side, side, Qt::KeepAspectRatio).expandedTo({1, 1});
    return image.scaled(size, Qt::IgnoreAspectRatio, mode);
}

} // namespace

QImage roughCropPreview(const QImage& image)
{
    return scaledTo(image, roughSide, Qt::FastTransformation);
}

QList<QImage> cropPreviewLevels(const QImage& image)
{
    QList<QImage> levels{scaledTo(image, cropPreviewSide, Qt::SmoothTransformation)};
    while (longestSide(levels.front()) > smallestSide) {
        const QImage& next = levels.front();
        levels.prepend(scaledTo(next, longestSide(next) / 2, Qt::SmoothTransformation));
    }
    levels.removeIf([](const QImage& level) { return level.isNull(); }); // no memory
    return levels;
}

int cropPreviewLevel(const QList<QImage>& levels, double shownWidth)
{
    int level = 0;
    while (level + 1 < levels.size() && levels[level].width() < shownWidth)
        ++level;
    return level;
}

} // namespace pelmira
