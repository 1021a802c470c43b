#include "platform/quick/ViewfinderView.h"

#include <QQuickWindow>
#include <QSGImageNode>
#include <QSGTexture>

namespace pelmira {

ViewfinderView::ViewfinderView(QQuickItem* parent) : QQuickItem(parent)
{
    setFlag(ItemHasContents);
}

void ViewfinderView::setImage(const QImage& image)
{
    if (image.cacheKey() == _image.cacheKey())
        return;
    _image = image;
    _textureIsOld = true;
    update();
    Q_EMIT imageChanged();
}

void ViewfinderView::setMirrored(bool isMirrored)
{
    if (isMirrored == _isMirrored)
        return;
    _isMirrored = isMirrored;
    update();
    Q_EMIT mirroredChanged();
}

QSGNode* ViewfinderView::updatePaintNode(QSGNode* old, UpdatePaintNodeData*)
{
    auto* node = static_cast<QSGImageNode*>(old);
    if (_image.isNull() || width() <= 0.0 || height() <= 0.0) {
        delete node;
        return nullptr;
    }
    if (!node) {
        node = window()->createImageNode();
        node->setOwnsTexture(true);
        node->setFiltering(QSGTexture::Linear);
        _textureIsOld = true;
    }
    if (_textureIsOld) {
        node->setTexture(window()->createTextureFromImage(_image, QQuickWindow::TextureIsOpaque));
        _textureIsOld = false;
    }
    node->setTextureCoordinatesTransform(_isMirrored ? QSGImageNode::MirrorHorizontally
                                                     : QSGImageNode::NoTransform);
    QRectF frame({}, QSizeF(_image.size()).scaled(size(), Qt::KeepAspectRatio));
    frame.moveCenter(boundingRect().center());
    node->setRect(frame);
    return node;
}

void ViewfinderView::geometryChange(const QRectF& now, const QRectF& before)
{
    QQuickItem::geometryChange(now, before);
    update();
}

} // namespace pelmira
