#include "crop/TOCropView.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace pelmira {
namespace {

constexpr double padding = 14.0;
constexpr double largestZoomScale = 15.0;
constexpr double reshapingVelocity = 0.7;
constexpr double noSide = std::numeric_limits<float>::epsilon();
constexpr double rounding = 1e-6;

} // namespace

TOCropView::TOCropView(QSizeF imageSize)
    : _imageSize(std::max(1.0, imageSize.width()), std::max(1.0, imageSize.height()))
{
}

void TOCropView::setBounds(const QRectF& bounds)
{
    if (bounds == _bounds)
        return;
    settle();
    const QRectF share = _pose.box.isEmpty() ? _chosen : shareOf(_pose);
    _drag.reset();
    _scroll.reset();
    _bounds = bounds;
    const QRectF content = contentBounds();
    _pixelScale =
        std::min(content.width() / _imageSize.width(), content.height() / _imageSize.height());
    _fittedSize = flooredFit(_imageSize, content).size();
    if (_isTouched)
        _pose = poseShowing(share);
    else
        layoutInitialImage();
}

QRectF TOCropView::contentBounds() const
{
    const QRectF content =
        _bounds.marginsRemoved(_cropRegionInsets).adjusted(padding, padding, -padding, -padding);
    // A surface smaller than its padding still has a place for a box.
    const QSizeF size(std::max(1.0, content.width()), std::max(1.0, content.height()));
    return {content.center() - QPointF(size.width(), size.height()) / 2.0, size};
}

void TOCropView::layoutInitialImage()
{
    const QRectF content = contentBounds();
    const bool hasRatio = !_aspectRatio.isEmpty();
    _pose.box = flooredFit(hasRatio ? _aspectRatio : _imageSize, content);
    const QSizeF size = _fittedSize * leastZoom(_pose.box);
    _pose.image = {_pose.box.center() - QPointF(size.width(), size.height()) / 2.0, size};
    _chosen = hasRatio ? shareOf(_pose) : QRectF(0.0, 0.0, 1.0, 1.0);
}

// Whole points stretch an image's axes a little differently. What is to be a square in the result
// is shown stretched alike.
double TOCropView::ratioOnSurface(QSizeF aspectRatio) const
{
    return aspectRatio.width() / aspectRatio.height() * (_fittedSize.width() / _imageSize.width()) /
           (_fittedSize.height() / _imageSize.height());
}

double TOCropView::leastZoom(const QRectF& box) const
{
    return std::max(box.width() / _fittedSize.width(), box.height() / _fittedSize.height());
}

double TOCropView::mostZoom() const
{
    return std::max(largestZoomScale / _pixelScale, leastZoom(_pose.box));
}

QRectF TOCropView::shareOf(const Pose& pose) const
{
    const QPointF offset = pose.box.topLeft() - pose.image.topLeft();
    return {offset.x() / pose.image.width(), offset.y() / pose.image.height(),
            pose.box.width() / pose.image.width(), pose.box.height() / pose.image.height()};
}

TOCropView::Pose TOCropView::poseShowing(const QRectF& share) const
{
    const QRectF content = contentBounds();
    const QSizeF part(share.width() * _fittedSize.width(), share.height() * _fittedSize.height());
    const double scale = std::min({content.width() / part.width(), content.height() / part.height(),
                                   std::max(1.0, largestZoomScale / _pixelScale)});
    Pose pose;
    const QSizeF size = part * scale;
    pose.box = {content.center() - QPointF(size.width(), size.height()) / 2.0, size};
    const QSizeF image = _fittedSize * scale;
    pose.image = {
        pose.box.topLeft() - QPointF(share.x() * image.width(), share.y() * image.height()), image};
    return pose;
}

QRect TOCropView::imageCropFrame() const
{
    const double scaleX = _imageSize.width() / _pose.image.width();
    const double scaleY = _imageSize.height() / _pose.image.height();
    const QPointF offset = _pose.box.topLeft() - _pose.image.topLeft();
    const int imageWidth = static_cast<int>(_imageSize.width());
    const int imageHeight = static_cast<int>(_imageSize.height());
    const auto side = [](double length, int most) {
        return static_cast<int>(std::clamp(std::ceil(length - rounding), 1.0, double(most)));
    };
    const int width = side(scaleX * _pose.box.width(), imageWidth);
    const int height = side(scaleY * _pose.box.height(), imageHeight);
    const double x = std::floor(offset.x() * scaleX + rounding);
    const double y = std::floor(offset.y() * scaleY + rounding);
    return {static_cast<int>(std::clamp(x, 0.0, double(imageWidth - width))),
            static_cast<int>(std::clamp(y, 0.0, double(imageHeight - height))), width, height};
}

void TOCropView::setImageCropFrame(const QRect& frame)
{
    const QRectF part = QRectF(frame).intersected(QRectF(QPointF(), _imageSize));
    if (part.isEmpty())
        return;
    settle();
    _chosen = {part.x() / _imageSize.width(), part.y() / _imageSize.height(),
               part.width() / _imageSize.width(), part.height() / _imageSize.height()};
    _isTouched = true;
    if (!_bounds.isEmpty())
        _pose = poseShowing(_chosen);
}

void TOCropView::setAspectRatio(QSizeF aspectRatio, bool animated, double now)
{
    const bool isNone = aspectRatio.width() < noSide && aspectRatio.height() < noSide;
    const QSizeF size = isNone ? _imageSize : aspectRatio;
    if (size.isEmpty())
        return;
    _aspectRatio = size;
    if (_bounds.isEmpty())
        return;
    const Pose rest = restPose();
    _drag.reset();
    _scroll.reset();
    const double ratio = ratioOnSurface(size);
    const bool keepsHeight =
        size.width() < size.height() ||
        (size.width() == size.height() && _imageSize.width() > _imageSize.height());
    const QRectF content = contentBounds();

    QSizeF box = reshaped(rest.box.size(), ratio, keepsHeight);
    box *= std::max(1.0, smallestCropBox / std::min(box.width(), box.height()));
    box *= std::min({1.0, content.width() / box.width(), content.height() / box.height()});
    const QPointF half(box.width() / 2.0, box.height() / 2.0);
    Pose to;
    to.box = movedInside({rest.box.center() - half, box}, content);

    // The same rule for the part of the image, which may not reach beyond the image.
    const QSizeF whole = _fittedSize;
    QSizeF part = reshaped({_chosen.width() * whole.width(), _chosen.height() * whole.height()},
                           ratio, keepsHeight);
    part *= std::min({1.0, whole.width() / part.width(), whole.height() / part.height()});
    const QPointF centre(_chosen.center().x() * whole.width(),
                         _chosen.center().y() * whole.height());
    const QPointF halfPart(part.width() / 2.0, part.height() / 2.0);
    const QRectF fitting = movedInside({centre - halfPart, part}, QRectF(QPointF(), whole));
    const double most = std::max(largestZoomScale / _pixelScale, leastZoom(to.box));
    const double newZoom = std::min(box.width() / part.width(), most);
    to.image = imageCovering({to.box.center() - fitting.center() * newZoom, whole * newZoom},
                             to.box, to.box.center());

    _isTouched = true;
    _editing = _editing || animated;
    moveTo(to, animated, reshapingVelocity, now);
    if (animated)
        startResetTimer(now);
}

} // namespace pelmira
