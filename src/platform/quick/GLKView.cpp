#include "platform/quick/GLKView.h"

#include <QQuickWindow>
#include <QSGRendererInterface>
#include <QSGSimpleTextureNode>
#include <qsgtexture_platform.h>

#include <utility>

namespace pelmira {
GLKView::GLKView(QQuickItem* parent) : QQuickItem(parent)
{
    setFlag(ItemHasContents);
}

GLKView::~GLKView() = default;

std::shared_ptr<GLContext> GLKView::makeContext(QQuickWindow& window)
{
    auto* scene = static_cast<QOpenGLContext*>(window.rendererInterface()->getResource(
        &window, QSGRendererInterface::OpenGLContextResource));
    return scene ? GLContext::sharedWith(*scene) : nullptr;
}

std::shared_ptr<GLContext> GLKView::makeContext() const
{
    return window() ? makeContext(*window()) : nullptr;
}

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

} // namespace pelmira
