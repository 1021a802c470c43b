#pragma once

#include <QImage>
#include <QList>
#include <QRect>
#include <QTransform>

namespace pelmira {

/// The shape of a picture, told by its alpha, in several sizes. A value; copies share their memory.
class Silhouette {
public:
    Silhouette() = default;
    /// Of a picture in the bitmap form, with at most so many pixels on its longer side. Takes tens
    /// of milliseconds for a large one. Safe from any thread.
    Silhouette(const QImage& picture, int longestSide);

    bool isNull() const { return _levels.isEmpty(); }

    /// What is seen in `region` of the plane into which `place` puts the unit square that the
    /// picture fills, blurred with a standard deviation in pixels: coverage, as
    /// QImage::Format_Alpha8. Null without memory.
    QImage blurred(const QTransform& place, const QRect& region, double deviation) const;

private:
    /// The smallest that has at least a pixel for each of those it covers.
    const QImage& levelFor(const QTransform& place) const;

    QList<QImage> _levels; ///< from large to small, each half the one before; Format_Alpha8
};

} // namespace pelmira
