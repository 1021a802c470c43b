#include "platform/quick/ViewfinderView.h"

#include <QQuickWindow>
#include <QSGImageNode>
#include <QSGTexture>

#include <algorithm>

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

void ViewfinderView::setKeptFree(QSizeF strips)
{
    if (strips == _keptFree)
        return;
    _keptFree = strips;
    update();
    Q_EMIT keptFreeChanged();
}

QRectF ViewfinderView::frameFor(QSizeF image, QSizeF item, QSizeF keptFree)
{
    const QSizeF fitted = image.scaled(item, Qt::KeepAspectRatio);
    const QSizeF spare = (item - keptFree - fitted) / 2.0; // at each side
    return {{std::max(spare.width(), 0.0), std::max(spare.height(), 0.0)}, fitted};
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
    node->setRect(frameFor(_image.size(), size(), _keptFree));
    return node;
}

void ViewfinderView::geometryChange(const QRectF& now, const QRectF& before)
{
    QQuickItem::geometryChange(now, before);
    update();
}

} // namespace pelmira
