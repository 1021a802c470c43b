#include "platform/quick/GLKView.h"

#include <QEventPoint>
#include <QMouseEvent>
#include <QPointingDevice>
#include <QQuickWindow>
#include <QSGSimpleTextureNode>
#include <QTouchEvent>
#include <qsgtexture_platform.h>

#include <utility>

namespace pelmira {
namespace {

constexpr int mouseIdentifier = -1;

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
    setAcceptedMouseButtons(Qt::LeftButton);
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
    if (change == ItemDevicePixelRatioHasChanged || change == ItemSceneChange)
        setNeedsDisplay();
}

void GLKView::touchEvent(QTouchEvent* event)
{
    TouchEvent now;
    bool began = false;
    bool moved = false;
    bool ended = false;
    for (const QEventPoint& point : event->points()) {
        now.allTouches.push_back({point.id(), point.position(), kindOf(*event)});
        began |= point.state() == QEventPoint::Pressed;
        moved |= point.state() == QEventPoint::Updated;
        ended |= point.state() == QEventPoint::Released;
    }
    event->accept();
    if (event->type() == QEvent::TouchCancel || now.allTouches.empty()) {
        cancelTouches();
        return;
    }
    _present = now;
    // One event of the platform may carry all three.
    if (began)
        send(now, TouchBegan);
    if (moved)
        send(now, TouchMoved);
    if (ended)
        send(now, TouchEnded);
    if (event->type() == QEvent::TouchEnd)
        _present = {};
}

void GLKView::touchUngrabEvent()
{
    cancelTouches();
}

void GLKView::mousePressEvent(QMouseEvent* event)
{
    sendMouse(event, TouchBegan);
}

void GLKView::mouseMoveEvent(QMouseEvent* event)
{
    sendMouse(event, TouchMoved);
}

void GLKView::mouseReleaseEvent(QMouseEvent* event)
{
    sendMouse(event, TouchEnded);
    _present = {};
}

void GLKView::mouseUngrabEvent()
{
    cancelTouches();
}

void GLKView::sendMouse(QMouseEvent* event, TouchPhase phase)
{
    _present.allTouches = {{mouseIdentifier, event->position(), TouchKind::Mouse}};
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
