#include "platform/quick/GLKView.h"

#include <QEventPoint>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QNativeGestureEvent>
#include <QPointingDevice>
#include <QQuickWindow>
#include <QSGSimpleTextureNode>
#include <QTouchEvent>
#include <QWheelEvent>
#include <QtMath>
#include <qsgtexture_platform.h>

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

GLKView::GLKView(QQuickItem* parent) : QQuickItem(parent)
{
    setFlag(ItemHasContents);
    setAcceptTouchEvents(true);
    setAcceptedMouseButtons(Qt::LeftButton | Qt::MiddleButton);
    setFocus(true);
}

GLKView::~GLKView() = default;

void GLKView::setContext(std::shared_ptr<GLContext> context)
{
    _drawable = context ? std::make_unique<GLDrawable>(context) : nullptr;
    _context = std::move(context);
}

double GLKView::contentScaleFactor() const
{
    return window() ? window()->effectiveDevicePixelRatio() : 1.0;
}

void GLKView::setNeedsDisplay()
{
    _needsDisplay = true;
    polish();
}

void GLKView::updatePolish()
{
    if (!_needsDisplay || !_delegate || !_drawable)
        return;
    if (!_drawable->bind((size() * contentScaleFactor()).toSize()))
        return;
    _needsDisplay = false;
    _delegate->glkView(*this, bounds());
    // The scene samples the texture from its own context: what was queued here has to be on its
    // way first.
    glFlush();
    _context->clearCurrent();
    update();
}

QSGNode* GLKView::updatePaintNode(QSGNode* oldNode, UpdatePaintNodeData*)
{
    auto* node = static_cast<QSGSimpleTextureNode*>(oldNode);
    if (!_drawable || _drawable->texture() == 0) {
        delete node;
        return nullptr;
    }
    if (!node) {
        node = new QSGSimpleTextureNode;
        node->setOwnsTexture(true);
        node->setTextureCoordinatesTransform(QSGSimpleTextureNode::MirrorVertically);
        node->setFiltering(QSGTexture::Nearest);
    }
    // Made anew for each frame: a wrapper costs nothing, and a new one makes the scene bind the
    // texture again, which is what lets it see the other context's changes.
    node->setTexture(QNativeInterface::QSGOpenGLTexture::fromNative(
        _drawable->texture(), window(), _drawable->size(), QQuickWindow::TextureHasAlphaChannel));
    node->setRect(boundingRect());
    return node;
}

void GLKView::geometryChange(const QRectF& newGeometry, const QRectF& oldGeometry)
{
    QQuickItem::geometryChange(newGeometry, oldGeometry);
    setNeedsDisplay();
}

void GLKView::itemChange(ItemChange change, const ItemChangeData& data)
{
    QQuickItem::itemChange(change, data);
    if (change == ItemSceneChange && data.window)
        data.window->installEventFilter(this);
    if (change == ItemDevicePixelRatioHasChanged || change == ItemSceneChange)
        setNeedsDisplay();
}

// The scene hands out moves once a frame and keeps only the last of them. A stroke wants every
// point, so moves are taken here, before that; landing and lifting come by the scene's own way.
bool GLKView::eventFilter(QObject*, QEvent* event)
{
    if (event->type() == QEvent::TouchUpdate)
        takeMoves(*static_cast<QTouchEvent*>(event));
    return false;
}

void GLKView::takeMoves(const QTouchEvent& event)
{
    bool moved = false;
    for (Touch& touch : _present.allTouches) {
        for (const QEventPoint& point : event.points()) {
            if (point.id() != touch.identifier || point.state() != QEventPoint::Updated)
                continue;
            touch.location = mapFromScene(point.position());
            moved = true;
        }
    }
    if (moved)
        send(_present, TouchMoved);
}

void GLKView::touchEvent(QTouchEvent* event)
{
    event->accept();
    if (event->type() == QEvent::TouchCancel) {
        cancelTouches();
        return;
    }
    if (event->type() == QEvent::TouchBegin)
        cancelTouches(); // of an earlier sequence whose end was lost
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
    _present = now;
    // One event of the platform may carry both.
    if (began)
        send(now, TouchBegan);
    if (ended)
        send(now, TouchEnded);
    std::erase_if(_present.allTouches, [](const Touch& touch) { return touch.hasEnded; });
}

QPointF GLKView::lastLocationOf(const Touch& touch) const
{
    for (const Touch& known : _present.allTouches)
        if (known.identifier == touch.identifier)
            return known.location;
    return touch.location;
}

void GLKView::touchUngrabEvent()
{
    cancelTouches();
}

void GLKView::mousePressEvent(QMouseEvent* event)
{
    forceActiveFocus(Qt::MouseFocusReason);
    if (event->button() == Qt::MiddleButton || _spaceIsHeld)
        _dragged = event->position();
    else
        sendMouse(event, TouchBegan);
}

void GLKView::mouseMoveEvent(QMouseEvent* event)
{
    if (!_dragged) {
        sendMouse(event, TouchMoved);
        return;
    }
    const QPointF from = *std::exchange(_dragged, event->position());
    step({event->position(), event->position() - from});
}

void GLKView::mouseReleaseEvent(QMouseEvent* event)
{
    if (_dragged) {
        _dragged.reset();
        return;
    }
    sendMouse(event, TouchEnded);
    _present = {};
}

void GLKView::mouseUngrabEvent()
{
    _dragged.reset();
    cancelTouches();
}

void GLKView::wheelEvent(QWheelEvent* event)
{
    // Touchpads tell pixels, wheels eighths of a degree; a notch is 15 degrees.
    const QPointF notches = QPointF(event->angleDelta()) / 120.0;
    const double turn = notches.y() != 0 ? notches.y() : notches.x(); // Alt swaps the axes
    if (event->modifiers() & Qt::ControlModifier)
        step({event->position(), {}, std::pow(zoomPerNotch, turn)});
    else if (event->modifiers() & Qt::AltModifier)
        step({event->position(), {}, 1.0, qDegreesToRadians(degreesPerNotch) * turn});
    else if (!event->pixelDelta().isNull())
        step({event->position(), event->pixelDelta()});
    else
        step({event->position(), notches * pointsPerNotch});
    event->accept();
}

void GLKView::keyPressEvent(QKeyEvent* event)
{
    event->setAccepted(event->key() == Qt::Key_Space);
    _spaceIsHeld |= event->isAccepted();
}

void GLKView::keyReleaseEvent(QKeyEvent* event)
{
    event->setAccepted(event->key() == Qt::Key_Space);
    if (event->isAccepted() && !event->isAutoRepeat())
        _spaceIsHeld = false;
}

bool GLKView::event(QEvent* event)
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

void GLKView::step(const ViewStep& step)
{
    if (_responder)
        _responder->viewStepped(step);
}

void GLKView::sendMouse(QMouseEvent* event, TouchPhase phase)
{
    const bool isPen = event->pointerType() == QPointingDevice::PointerType::Pen;
    _present.allTouches = {{mouseIdentifier, event->position(),
                            isPen ? TouchKind::Pen : TouchKind::Mouse, phase == TouchEnded}};
    send(_present, phase);
}

void GLKView::send(const TouchEvent& event, TouchPhase phase)
{
    if (!_responder)
        return;
    switch (phase) {
    case TouchBegan:
        _responder->touchesBegan(event);
        break;
    case TouchMoved:
        _responder->touchesMoved(event);
        break;
    case TouchEnded:
        _responder->touchesEnded(event);
        break;
    case TouchCancelled:
        _responder->touchesCancelled(event);
        break;
    }
}

void GLKView::cancelTouches()
{
    const TouchEvent cancelled = std::exchange(_present, {});
    if (!cancelled.allTouches.empty())
        send(cancelled, TouchCancelled);
}

} // namespace pelmira
