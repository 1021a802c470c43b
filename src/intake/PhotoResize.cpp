#include "intake/PhotoResize.h"

#include "mask_editor/limits/PlatformUtils.h"
#include "platform/base/Log.h"
#include "platform/pixels/ImageResize.h"

#include <QTransform>

#include <algorithm>
#include <cstdlib>

namespace pelmira {
namespace {

constexpr double smallestSide = 400.0; // of the longer sides

QImage resized(const QImage& image, double side)
{
    QImage result = resizedImageWithContentMode(image, QSizeF(side, side));
    if (result.isNull()) {
        logLine("no memory for a picture of the working size");
        std::abort();
    }
    return result;
}

} // namespace

QImage PhotoResize::imageForEditing(const QImage& image, Orientation orientation)
{
    return imageWithin(image, smallestSide, PlatformUtils::maxImageDimForDevice(), orientation);
}

QImage PhotoResize::imageWithin(const QImage& image, double lowerBound, double upperBound,
                                Orientation orientation)
{
    if (image.isNull())
        return {};
    const double longest = std::max(image.width(), image.height());
    // Turned last, when there are fewer pixels to turn.
    if (longest > upperBound)
        return uprightImage(resized(image, upperBound), orientation);
    if (longest < lowerBound)
        return uprightImage(resized(image, lowerBound), orientation);
    return uprightImage(image, orientation);
}

QImage PhotoResize::uprightImage(const QImage& image, Orientation orientation)
{
    if (orientation == Up || image.isNull())
        return image;
    // Mirrored first, then turned: the order in which the flags are meant.
    const QImage mirrored =
        image.mirrored(orientation.testFlag(QImageIOHandler::TransformationMirror),
                       orientation.testFlag(QImageIOHandler::TransformationFlip));
    return orientation.testFlag(QImageIOHandler::TransformationRotate90)
               ? mirrored.transformed(QTransform().rotate(90))
               : mirrored;
}

} // namespace pelmira
