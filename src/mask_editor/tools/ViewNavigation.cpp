#include "mask_editor/tools/ViewNavigation.h"

#include <cmath>
#include <utility>

namespace pelmira {
namespace {

bool isUsable(double factor)
{
    return std::isfinite(factor) && factor > 0.0;
}

} // namespace

void ViewNavigation::handlePan(PanGestureRecognizer& recognizer)
{
    if (!_canvas.isOpen())
        return;
    if (recognizer.state == GestureState::Began || recognizer.state == GestureState::Changed) {
        const QPointF moved = std::exchange(recognizer.translation, QPointF());
        if (recognizer.state == GestureState::Changed && std::isfinite(moved.x()) &&
            std::isfinite(moved.y())) {
            const double u = _canvas.unitsPerPoint();
            _canvas.fgImage.center += QPointF(moved.x() * u, -moved.y() * u);
        }
    }
    _canvas.setNeedsDisplay();
}

void ViewNavigation::handlePinch(PinchGestureRecognizer& recognizer)
{
    const double factor = std::exchange(recognizer.scale, 1.0);
    // A photo zoomed out of all numbers could never be found again.
    if (!_canvas.isOpen() || !isUsable(factor) || !isUsable(_canvas.fgImage.scale * factor))
        return;
    moveCenterAbout(centerPointOfRecognizerTouches(recognizer),
                    [factor](QPointF distance) { return distance * factor; });
    _canvas.fgImage.scale *= factor;
    _canvas.setNeedsDisplay();
}

void ViewNavigation::handleRotation(RotationGestureRecognizer& recognizer)
{
    const double angle = std::exchange(recognizer.rotation, 0.0);
    if (!_canvas.isOpen() || !std::isfinite(angle))
        return;
    _canvas.fgImage.rotation += angle;
    moveCenterAbout(centerPointOfRecognizerTouches(recognizer), [angle](QPointF distance) {
        const double cosine = std::cos(angle);
        const double sine = std::sin(angle);
        return QPointF(distance.x() * cosine - distance.y() * sine,
                       distance.x() * sine + distance.y() * cosine);
    });
    _canvas.setNeedsDisplay();
}

QPointF ViewNavigation::centerPointOfRecognizerTouches(const GestureRecognizer& recognizer)
{
    QPointF sum;
    for (std::size_t i = 0; i < recognizer.numberOfTouches(); ++i)
        sum += recognizer.locationOfTouch(i);
    return sum / double(recognizer.numberOfTouches());
}

template <class Move>
void ViewNavigation::moveCenterAbout(QPointF touchCenter, Move move)
{
    QPointF& center = _canvas.fgImage.center;
    const double u = _canvas.unitsPerPoint();
    const QSizeF view = _canvas.viewSize();
    const QPointF middle(view.width() / 2, view.height() / 2);
    const QPointF onScreen = middle + QPointF(center.x(), -center.y()) / u;
    QPointF distance = move(onScreen - touchCenter);
    if (std::isnan(distance.x()))
        distance.setX(0.0);
    if (std::isnan(distance.y()))
        distance.setY(0.0);
    const QPointF moved = (distance + touchCenter - middle) * u;
    center = {moved.x(), -moved.y()};
}

} // namespace pelmira
