#include "background_editor/canvas/BGEWorkAreaView.h"

#include <QtMath>

#include <algorithm>
#include <cmath>
#include <utility>

namespace pelmira {

using Part = SelectableObjectView::Part;

namespace {

constexpr double keyStride = 10.0; // points
constexpr double keyZoom = 1.05;
constexpr double keyDegrees = 5.0;

} // namespace

BGEWorkAreaView::BGEWorkAreaView() : _gestures([this](QPointF point) { return hitTest(point); })
{
}

BGEWorkAreaView::~BGEWorkAreaView() = default;

void BGEWorkAreaView::setBounds(QSizeF bounds)
{
    _bounds = bounds;
    layoutSubviews();
}

void BGEWorkAreaView::layoutSubviews(bool animated)
{
    if (_bounds.isEmpty() || !(bgAspectRatio > 0))
        return;
    const double w = _bounds.width();
    const double h = _bounds.height();
    // Of a photo that is a mere line, a point is still seen.
    const auto side = [](double length) { return std::max(1.0, std::round(length)); };
    const QSizeF size = w / h < bgAspectRatio ? QSizeF(w, side(w / bgAspectRatio))
                                              : QSizeF(side(h * bgAspectRatio), h);
    if (std::exchange(_animatesLayout, animated) != animated)
        Q_EMIT animatesLayoutChanged();
    _bgImageView.setFrame({{(w - size.width()) * 0.5, (h - size.height()) * 0.5}, size});
    Q_EMIT layoutChanged();
}

void BGEWorkAreaView::setFgStickerView(std::unique_ptr<StickerView> fgStickerView)
{
    _gestures.setObject(fgStickerView.get());
    const auto previous = std::exchange(_fgStickerView, std::move(fgStickerView));
    Q_EMIT fgStickerViewChanged();
}

QRectF BGEWorkAreaView::topMaskFrame() const
{
    return {0.0, 0.0, _bounds.width(), _bgImageView.frame().top()};
}

// It runs past the lower edge, where nothing is to be seen.
QRectF BGEWorkAreaView::bottomMaskFrame() const
{
    const QRectF f = _bgImageView.frame();
    return {0.0, f.bottom(), _bounds.width(), _bounds.height() - f.top()};
}

QRectF BGEWorkAreaView::leftMaskFrame() const
{
    const QRectF f = _bgImageView.frame();
    return {0.0, f.top(), f.left(), f.height()};
}

QRectF BGEWorkAreaView::rightMaskFrame() const
{
    const QRectF f = _bgImageView.frame();
    return {f.right(), f.top(), _bounds.width() - f.right(), f.height()};
}

Part BGEWorkAreaView::hitTest(QPointF point) const
{
    if (!_fgStickerView || !_bgImageView.frame().contains(point))
        return Part::None;
    return _fgStickerView->hitTest(_fgStickerView->pointFromSuperview(point));
}

int BGEWorkAreaView::cursorForPoint(QPointF point) const
{
    switch (hitTest(point)) {
    case Part::None:
        return Qt::ArrowCursor;
    case Part::Object:
        return Qt::SizeAllCursor;
    case Part::ResizeButton:
    case Part::ResizeSideHandle:
    case Part::ResizeBottomHandle:
        return Qt::CrossCursor;
    default:
        return Qt::PointingHandCursor;
    }
}

void BGEWorkAreaView::step(int x, int y, bool strides)
{
    if (_fgStickerView)
        _fgStickerView->setCenter(_fgStickerView->center() +
                                  QPointF(x, y) * (strides ? keyStride : 1.0));
}

void BGEWorkAreaView::zoomSteps(int steps)
{
    scaleBy(std::pow(keyZoom, steps));
}

void BGEWorkAreaView::scaleBy(double factor)
{
    if (!_fgStickerView)
        return;
    PinchGestureRecognizer pinch;
    pinch.scale = factor;
    _fgStickerView->handlePinchWithRecognizer(pinch);
}

void BGEWorkAreaView::turnSteps(int steps)
{
    if (_fgStickerView)
        _fgStickerView->setRotation(_fgStickerView->rotation() +
                                    qDegreesToRadians(keyDegrees * steps));
}

void BGEWorkAreaView::flip()
{
    if (_fgStickerView)
        _fgStickerView->handleTapOnFlipWithRecognizer();
}

bool BGEWorkAreaView::unselect()
{
    if (!_fgStickerView || !std::exchange(_fgStickerView->selected, false))
        return false;
    _fgStickerView->updateHandleVisibility();
    return true;
}

void BGEWorkAreaView::touchesBegan(const TouchEvent& withEvent)
{
    _gestures.touchesBegan(withEvent);
}

void BGEWorkAreaView::touchesMoved(const TouchEvent& withEvent)
{
    _gestures.touchesMoved(withEvent);
}

void BGEWorkAreaView::touchesEnded(const TouchEvent& withEvent)
{
    _gestures.touchesEnded(withEvent);
}

void BGEWorkAreaView::touchesCancelled(const TouchEvent& withEvent)
{
    _gestures.touchesCancelled(withEvent);
}

void BGEWorkAreaView::viewStepped(const ViewStep& step)
{
    _gestures.step(step);
}

} // namespace pelmira
