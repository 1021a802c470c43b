#include "platform/quick/TouchArea.h"

#include <QEventPoint>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QNativeGestureEvent>
#include <QPointingDevice>
#include <QQuickWindow>
#include <QTouchEvent>
#include <QWheelEvent>
#include <QtMath>

#include <cmath>
#include <utility>

namespace pelmira {
namespace {

constexpr int mouseIdentifier = -1;
constexpr double zoomPerNotch = 1.2;
constexpr double degreesPerNotch = 5.0;
constexpr double pointsPerNotch = 60.0;

TouchKind kindOf(const QPointerEvent& event)
{
    return event.pointerType() == QPointingDevice::PointerType::Pen ? TouchKind::Pen
                                                                    : TouchKind::Finger;
}

} // namespace

TouchArea::TouchArea(QQuickItem* parent) : QQuickItem(parent)
{
    setAcceptTouchEvents(true);
    setAcceptedMouseButtons(Qt::LeftButton | Qt::MiddleButton);
    setFocus(true);
    setActiveFocusOnTab(true);
}

void TouchArea::setResponder(TouchResponder* responder)
{
    _responder = responder;
    _screen = nullptr;
}

void TouchArea::setScreen(QObject* screen)
{
    _screen = screen;
    _responder = nullptr;
    Q_EMIT screenChanged();
}

TouchResponder* TouchArea::responder() const
{
    return _screen ? dynamic_cast<TouchResponder*>(_screen.data()) : _responder;
}

void TouchArea::itemChange(ItemChange change, const ItemChangeData& data)
{
    QQuickItem::itemChange(change, data);
    if (change == ItemSceneChange && data.window)
        data.window->installEventFilter(this);
}

// The scene hands out moves once a frame and keeps only the last of them. A stroke wants every
// point, so moves are taken here, before that; landing and lifting come by the scene's own way.
bool TouchArea::eventFilter(QObject*, QEvent* event)
{
    if (event->type() == QEvent::TouchUpdate)
        takeMoves(*static_cast<QTouchEvent*>(event));
    return false;
}

void TouchArea::takeMoves(const QTouchEvent& event)
{
    bool moved = false;
    for (Touch& touch : _fingers.allTouches) {
        for (const QEventPoint& point : event.points()) {
            if (point.id() != touch.identifier || point.state() != QEventPoint::Updated)
                continue;
            touch.location = mapFromScene(point.position());
            moved = true;
        }
    }
    if (moved)
        send(_fingers, TouchMoved);
}

void TouchArea::touchEvent(QTouchEvent* event)
{
    event->accept();
    if (event->type() == QEvent::TouchCancel) {
        cancel(_fingers);
        return;
    }
    if (event->type() == QEvent::TouchBegin)
        cancel(_fingers); // of an earlier sequence whose end was lost
    TouchEvent now;
    bool began = false;
    bool ended = false;
    for (const QEventPoint& point : event->points()) {
        const bool hasEnded = point.state() == QEventPoint::Released;
        Touch touch{point.id(), point.position(), kindOf(*event), hasEnded};
        // Of a finger that rests, the place where it was last seen counts.
        if (point.state() == QEventPoint::Stationary)
            touch.location = lastLocationOf(touch);
        now.allTouches.push_back(touch);
        began |= point.state() == QEventPoint::Pressed;
        ended |= hasEnded;
    }
    if (!began && !ended)
        return;
    _fingers = now;
    // One event of the platform may carry both.
    if (began)
        send(now, TouchBegan);
    if (ended)
        send(now, TouchEnded);
    std::erase_if(_fingers.allTouches, [](const Touch& touch) { return touch.hasEnded; });
}

QPointF TouchArea::lastLocationOf(const Touch& touch) const
{
    for (const Touch& known : _fingers.allTouches)
        if (known.identifier == touch.identifier)
            return known.location;
    return touch.location;
}

void TouchArea::touchUngrabEvent()
{
    cancel(_fingers);
}

void TouchArea::mousePressEvent(QMouseEvent* event)
{
    forceActiveFocus(Qt::MouseFocusReason);
    // A second button changes nothing of what the first one does.
    if (event->button() != _button && event->buttons().testFlag(_button))
        return;
    _button = event->button();
    if (_button == Qt::MiddleButton || _spaceIsHeld)
        _dragged = event->position();
    else
        sendMouse(event, TouchBegan);
}

void TouchArea::mouseMoveEvent(QMouseEvent* event)
{
    if (!_dragged) {
        if (_button != Qt::NoButton)
            sendMouse(event, TouchMoved);
        return;
    }
    const QPointF from = *std::exchange(_dragged, event->position());
    step({event->position(), event->position() - from});
}

void TouchArea::mouseReleaseEvent(QMouseEvent* event)
{
    if (event->button() != _button)
        return;
    _button = Qt::NoButton;
    if (_dragged) {
        _dragged.reset();
        return;
    }
    sendMouse(event, TouchEnded);
    _pointer = {};
}

void TouchArea::mouseUngrabEvent()
{
    _button = Qt::NoButton;
    _dragged.reset();
    cancel(_pointer);
}

void TouchArea::wheelEvent(QWheelEvent* event)
{
    // Touchpads tell pixels, wheels eighths of a degree; a notch is 15 degrees.
    const QPointF notches = QPointF(event->angleDelta()) / 120.0;
    const double turn = notches.y() != 0 ? notches.y() : notches.x(); // Alt swaps the axes
    const Qt::KeyboardModifiers modifiers = event->modifiers();
    const bool scrolls = !_wheelZooms || !event->pixelDelta().isNull();
    if (modifiers & Qt::AltModifier || (_wheelZooms && modifiers & Qt::ShiftModifier))
        step({event->position(), {}, 1.0, qDegreesToRadians(degreesPerNotch) * turn});
    else if (modifiers & Qt::ControlModifier || !scrolls)
        step({event->position(), {}, std::pow(zoomPerNotch, turn)});
    else if (!event->pixelDelta().isNull())
        step({event->position(), event->pixelDelta()});
    else
        step({event->position(), notches * pointsPerNotch});
    event->accept();
}

void TouchArea::focusInEvent(QFocusEvent* event)
{
    QQuickItem::focusInEvent(event);
    setVisualFocus(event->reason() == Qt::TabFocusReason ||
                   event->reason() == Qt::BacktabFocusReason);
}

// The space bar may be let go of anywhere.
void TouchArea::focusOutEvent(QFocusEvent* event)
{
    QQuickItem::focusOutEvent(event);
    _spaceIsHeld = false;
    setVisualFocus(false);
}

void TouchArea::setVisualFocus(bool isSeen)
{
    if (isSeen == _visualFocus)
        return;
    _visualFocus = isSeen;
    Q_EMIT visualFocusChanged();
}

void TouchArea::keyPressEvent(QKeyEvent* event)
{
    event->setAccepted(event->key() == Qt::Key_Space);
    _spaceIsHeld |= event->isAccepted();
}

void TouchArea::keyReleaseEvent(QKeyEvent* event)
{
    event->setAccepted(event->key() == Qt::Key_Space);
    if (event->isAccepted() && !event->isAutoRepeat())
        _spaceIsHeld = false;
}

bool TouchArea::event(QEvent* event)
{
    if (event->type() != QEvent::NativeGesture)
        return QQuickItem::event(event);
    const auto& gesture = *static_cast<QNativeGestureEvent*>(event);
    switch (gesture.gestureType()) {
    case Qt::ZoomNativeGesture:
        step({gesture.position(), {}, 1.0 + gesture.value()});
        return true;
    case Qt::RotateNativeGesture:
        step({gesture.position(), {}, 1.0, qDegreesToRadians(gesture.value())});
        return true;
    case Qt::PanNativeGesture:
        step({gesture.position(), gesture.delta()});
        return true;
    default:
        return QQuickItem::event(event);
    }
}

void TouchArea::step(const ViewStep& step)
{
    if (TouchResponder* told = responder())
        told->viewStepped(step);
}

void TouchArea::sendMouse(QMouseEvent* event, TouchPhase phase)
{
    const bool isPen = event->pointerType() == QPointingDevice::PointerType::Pen;
    _pointer.allTouches = {{mouseIdentifier, event->position(),
                            isPen ? TouchKind::Pen : TouchKind::Mouse, phase == TouchEnded}};
    send(_pointer, phase);
}

void TouchArea::send(const TouchEvent& event, TouchPhase phase)
{
    TouchResponder* told = responder();
    if (!told)
        return;
    switch (phase) {
    case TouchBegan:
        told->touchesBegan(event);
        break;
    case TouchMoved:
        told->touchesMoved(event);
        break;
    case TouchEnded:
        told->touchesEnded(event);
        break;
    case TouchCancelled:
        told->touchesCancelled(event);
        break;
    }
}

void TouchArea::cancel(TouchEvent& event)
{
    const TouchEvent cancelled = std::exchange(event, {});
    if (!cancelled.allTouches.empty())
        send(cancelled, TouchCancelled);
}

} // namespace pelmira
