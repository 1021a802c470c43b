#include "platform/quick/ImageView.h"

#include <QQuickWindow>
#include <QSGImageNode>
#include <QSGTexture>

namespace pelmira {

ImageView::ImageView(QQuickItem* parent) : QQuickItem(parent)
{
    setFlag(ItemHasContents);
}

void ImageView::setImage(const QImage& image)
{
    if (image.cacheKey() == _image.cacheKey())
        return;
    _image = image;
    _textureIsOld = true;
    setImplicitSize(image.width(), image.height());
    update();
    Q_EMIT imageChanged();
}

void ImageView::setCovers(bool covers)
{
    _covers = covers;
    update();
    Q_EMIT imageChanged();
}

/// The part of the image that is seen, in its pixels.
QRectF ImageView::sourceRect() const
{
    const QRectF whole(QPointF(), QSizeF(_image.size()));
    if (!_covers)
        return whole;
    QRectF seen(QPointF(), size().scaled(whole.size(), Qt::KeepAspectRatio));
    seen.moveCenter(whole.center());
    return seen;
}

QSGNode* ImageView::updatePaintNode(QSGNode* old, UpdatePaintNodeData*)
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
        node->setTexture(window()->createTextureFromImage(_image));
        _textureIsOld = false;
    }
    node->setRect(boundingRect());
    node->setSourceRect(sourceRect());
    return node;
}

void ImageView::geometryChange(const QRectF& now, const QRectF& before)
{
    QQuickItem::geometryChange(now, before);
    update();
}

} // namespace pelmira
