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
    _spring.reset();
    _glide.reset();
    cancelResetTimer();
    _editing = true;
    _isTouched = true;
}

void TOCropView::finishEdit(double now)
{
    const Pose shown = _pose;
    const auto spring = _spring;
    const auto glide = _glide;
    settle();
    _chosen = shareOf(_pose);
    _pose = shown;
    _spring = spring;
    _glide = glide;
    double rest = now;
    if (_spring)
        rest = _spring->start + cropSpringSeconds;
    if (_glide)
        rest = _glide->start + std::max(_glide->x.duration(), _glide->y.duration());
    startResetTimer(rest);
}

bool TOCropView::beginCropBoxDrag(QPointF point, double now)
{
    advance(now);
    const CropEdge edge = cropEdgeForPoint(point);
    if (edge == CropEdge::None)
        return false;
    startEditing(now);
    _pose.image = imageCovering(imageInside(_pose.image), _pose.box, _pose.box.center());
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

QRectF TOCropView::imageInside(QRectF image) const
{
    image.moveLeft(endsX(_pose.box, image.width()).clamped(image.left()));
    image.moveTop(endsY(_pose.box, image.height()).clamped(image.top()));
    return image;
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
        const Pose to{_pose.box, imageInside(imageZoomed(end, ended.middle))};
        moveTo(to, true, 0.0, now);
    } else {
        const QRectF& image = _pose.image;
        const Ends x = endsX(_pose.box, image.width());
        const Ends y = endsY(_pose.box, image.height());
        _glide = ImageGlide{{image.left(), velocity.x(), x.low, x.high},
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
        imageZoomed(std::clamp(zoom(_pose) * factor, leastZoom(_pose.box), most), about));
    finishEdit(now);
}

void TOCropView::panBy(QPointF translation, double now)
{
    if (_drag || _scroll)
        return;
    startEditing(now);
    _pose.image = imageInside(
        imageCovering(_pose.image.translated(translation), _pose.box, _pose.box.center()));
    finishEdit(now);
}

void TOCropView::moveTo(const Pose& pose, bool animated, double initialVelocity, double now)
{
    _glide.reset();
    _spring.reset();
    if (animated)
        _spring = Spring{_pose, pose, now, initialVelocity};
    else
        _pose = pose;
}

void TOCropView::advance(double now)
{
    if (_spring) {
        const double part = springProgress(now - _spring->start, _spring->initialVelocity);
        _pose = {blend(_spring->from.box, _spring->to.box, part),
                 blend(_spring->from.image, _spring->to.image, part)};
        if (part >= 1.0)
            _spring.reset();
    }
    if (_glide) {
        const double passed = now - _glide->start;
        _pose.image.moveTopLeft({_glide->x.position(passed), _glide->y.position(passed)});
        if (passed >= std::max(_glide->x.duration(), _glide->y.duration()))
            _glide.reset();
    }
    if (_resetTime && now >= *_resetTime)
        setEditing(false, true, now);
}

void TOCropView::settle()
{
    if (_spring)
        _pose = _spring->to;
    if (_glide) {
        const double end = std::max(_glide->x.duration(), _glide->y.duration());
        _pose.image.moveTopLeft({_glide->x.position(end), _glide->y.position(end)});
    }
    _spring.reset();
    _glide.reset();
    if (!_pose.box.isEmpty())
        _pose.image = imageInside(imageCovering(_pose.image, _pose.box, _pose.box.center()));
}

} // namespace pelmira
