#include "crop/TOCropView.h"

#include <algorithm>
#include <cmath>

// What the user and time do to the surface; its layout is told beside.

namespace pelmira {
namespace {

constexpr double resetDelay = 0.8;
constexpr double centringVelocity = 1.0;
constexpr double zoomGive = 0.7; // of a zoom past its end, as a logarithm: a factor of two
constexpr double rounding = 1e-6;

QRectF blend(const QRectF& from, const QRectF& to, double part)
{
    const auto mix = [part](double a, double b) { return part >= 1.0 ? b : a + (b - a) * part; };
    return {mix(from.x(), to.x()), mix(from.y(), to.y()), mix(from.width(), to.width()),
            mix(from.height(), to.height())};
}

/// Where the image's left (or upper) end may be for the image to cover the box; in the middle if
/// it can't.
struct Ends {
    Ends(double boxLow, double boxSide, double imageSide)
        : low(boxLow + boxSide - imageSide), high(boxLow)
    {
        if (low > high)
            low = high = (low + high) / 2.0;
    }
    double clamped(double position) const { return std::max(low, std::min(high, position)); }
    double shown(double pulled, double boxSide) const
    {
        const double end = clamped(pulled);
        return end + rubberBand(pulled - end, boxSide);
    }
    double pulled(double shown, double boxSide) const
    {
        const double end = clamped(shown);
        return end + rubberBandPull(shown - end, boxSide);
    }
    double low;
    double high;
};

Ends endsX(const QRectF& box, double width)
{
    return {box.left(), box.width(), width};
}
Ends endsY(const QRectF& box, double height)
{
    return {box.top(), box.height(), height};
}

/// The image moved as far as it takes to cover the box, or to lie in its middle.
QRectF imageInside(QRectF image, const QRectF& box)
{
    image.moveLeft(endsX(box, image.width()).clamped(image.left()));
    image.moveTop(endsY(box, image.height()).clamped(image.top()));
    return image;
}
/// The same for one that may have to grow first.
QRectF imageAtRest(const QRectF& image, const QRectF& box)
{
    return imageInside(imageCovering(image, box, box.center()), box);
}

} // namespace

void TOCropView::setEditing(bool editing, bool animated, double now)
{
    cancelResetTimer();
    _editing = editing;
    if (!editing)
        moveCroppedContentToCenterAnimated(animated, now);
}

void TOCropView::moveCroppedContentToCenterAnimated(bool animated, double now)
{
    if (_bounds.isEmpty())
        return;
    settle();
    const Pose centred = poseShowing(shareOf(_pose));
    const QPointF moved = centred.box.topLeft() - _pose.box.topLeft();
    const double grown = centred.box.width() - _pose.box.width();
    if (moved.manhattanLength() < rounding && std::abs(grown) < rounding)
        return;
    moveTo(centred, animated, centringVelocity, now);
}

void TOCropView::startResetTimer(double now)
{
    _resetTime = now + resetDelay;
}

void TOCropView::startEditing(double now)
{
    advance(now);
    _motion = {};
    cancelResetTimer();
    _editing = true;
    _isTouched = true;
}

void TOCropView::finishEdit(double now)
{
    _chosen = shareOf(restPose());
    double rest = now;
    if (const auto* spring = std::get_if<Spring>(&_motion))
        rest = spring->end();
    else if (const auto* glide = std::get_if<ImageGlide>(&_motion))
        rest = glide->end();
    startResetTimer(rest);
}

bool TOCropView::beginCropBoxDrag(QPointF point, double now)
{
    advance(now);
    const CropEdge edge = cropEdgeForPoint(point);
    if (edge == CropEdge::None)
        return false;
    startEditing(now);
    _pose.image = imageCovering(imageInside(_pose.image, _pose.box), _pose.box, _pose.box.center());
    _drag = BoxDrag{edge, point, _pose};
    return true;
}

void TOCropView::updateCropBoxFrameWithGesturePoint(QPointF point)
{
    if (!_drag)
        return;
    const Pose& origin = _drag->origin;
    _pose.box = draggedCropBox(_drag->edge, origin.box, point - _drag->point, contentBounds(),
                               _aspectRatioLockEnabled);
    _pose.image =
        imageCovering(origin.image, _pose.box, fixedPointForEdge(_drag->edge, origin.box));
}

void TOCropView::endCropBoxDrag(double now)
{
    if (!_drag)
        return;
    _drag.reset();
    finishEdit(now);
}

QRectF TOCropView::imageZoomed(double newZoom, QPointF about) const
{
    const double factor = newZoom / zoom(_pose);
    return {about + (_pose.image.topLeft() - about) * factor, _fittedSize * newZoom};
}

void TOCropView::beginScroll(QPointF middle, double now)
{
    startEditing(now);
    const QRectF& box = _pose.box;
    const QRectF& image = _pose.image;
    const double least = leastZoom(box);
    const double most = std::max(mostZoom(), _scroll ? _scroll->most : zoom(_pose));
    const double end = std::clamp(zoom(_pose), least, most);
    const QPointF pulled(endsX(box, image.width()).pulled(image.left(), box.width()),
                         endsY(box, image.height()).pulled(image.top(), box.height()));
    _scroll = Scroll{middle,
                     QPointF((middle.x() - pulled.x()) / image.width(),
                             (middle.y() - pulled.y()) / image.height()),
                     end * std::exp(rubberBandPull(std::log(zoom(_pose) / end), zoomGive)), most};
}

void TOCropView::scroll(QPointF middle, double scale)
{
    if (!_scroll || scale <= 0.0)
        return;
    const QRectF& box = _pose.box;
    const double pulledZoom = _scroll->zoom * scale;
    const double end = std::clamp(pulledZoom, leastZoom(box), _scroll->most);
    const QSizeF size =
        _fittedSize * (end * std::exp(rubberBand(std::log(pulledZoom / end), zoomGive)));
    const QPointF pulled(middle.x() - _scroll->anchor.x() * size.width(),
                         middle.y() - _scroll->anchor.y() * size.height());
    _scroll->middle = middle;
    _pose.image = {QPointF(endsX(box, size.width()).shown(pulled.x(), box.width()),
                           endsY(box, size.height()).shown(pulled.y(), box.height())),
                   size};
}

void TOCropView::endScroll(QPointF velocity, double now)
{
    if (!_scroll)
        return;
    const Scroll ended = *_scroll;
    _scroll.reset();
    const double end = std::clamp(zoom(_pose), leastZoom(_pose.box), ended.most);
    if (std::abs(end - zoom(_pose)) > rounding) {
        const Pose to{_pose.box, imageInside(imageZoomed(end, ended.middle), _pose.box)};
        moveTo(to, true, 0.0, now);
    } else {
        const QRectF& image = _pose.image;
        const Ends x = endsX(_pose.box, image.width());
        const Ends y = endsY(_pose.box, image.height());
        _motion = ImageGlide{{image.left(), velocity.x(), x.low, x.high},
                             {image.top(), velocity.y(), y.low, y.high},
                             now};
    }
    finishEdit(now);
}

void TOCropView::zoomBy(double factor, QPointF about, double now)
{
    if (_drag || _scroll || factor <= 0.0)
        return;
    startEditing(now);
    const double most = std::max(mostZoom(), zoom(_pose));
    _pose.image = imageInside(
        imageZoomed(std::clamp(zoom(_pose) * factor, leastZoom(_pose.box), most), about),
        _pose.box);
    finishEdit(now);
}

void TOCropView::panBy(QPointF translation, double now)
{
    if (_drag || _scroll)
        return;
    startEditing(now);
    _pose.image = imageAtRest(_pose.image.translated(translation), _pose.box);
    finishEdit(now);
}

void TOCropView::moveTo(const Pose& pose, bool animated, double initialVelocity, double now)
{
    _motion = {};
    if (animated)
        _motion = Spring{_pose, pose, now, initialVelocity};
    else
        _pose = pose;
}

TOCropView::Pose TOCropView::Spring::pose(double now) const
{
    const double part = springProgress(now - start, initialVelocity);
    return {blend(from.box, to.box, part), blend(from.image, to.image, part)};
}

QPointF TOCropView::ImageGlide::imageTopLeft(double now) const
{
    return {x.position(now - start), y.position(now - start)};
}

void TOCropView::advance(double now)
{
    if (const auto* spring = std::get_if<Spring>(&_motion)) {
        const bool hasArrived = now >= spring->end();
        _pose = hasArrived ? spring->to : spring->pose(now);
        if (hasArrived)
            _motion = {};
    } else if (const auto* glide = std::get_if<ImageGlide>(&_motion)) {
        _pose.image.moveTopLeft(glide->imageTopLeft(now));
        if (now >= glide->end())
            _motion = {};
    }
    if (_resetTime && now >= *_resetTime)
        setEditing(false, true, now);
}

// Where everything will be once nothing moves any more.
TOCropView::Pose TOCropView::restPose() const
{
    Pose rest = _pose;
    if (const auto* spring = std::get_if<Spring>(&_motion))
        rest = spring->to;
    else if (const auto* glide = std::get_if<ImageGlide>(&_motion))
        rest.image.moveTopLeft(glide->imageTopLeft(glide->end()));
    if (!rest.box.isEmpty())
        rest.image = imageAtRest(rest.image, rest.box);
    return rest;
}

void TOCropView::settle()
{
    _pose = restPose();
    _motion = {};
}

} // namespace pelmira
