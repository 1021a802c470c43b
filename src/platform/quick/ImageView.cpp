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
    return node;
}

void ImageView::geometryChange(const QRectF& now, const QRectF& before)
{
    QQuickItem::geometryChange(now, before);
    update();
}

} // namespace pelmira
