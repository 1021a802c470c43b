#include "platform/quick/ImageView.h"

#include "platform/base/RunInBackground.h"
#include "platform/pixels/SmallerCopies.h"
#include "platform/quick/MipmapTexture.h"

#include <QBrush>
#include <QPainter>
#include <QPainterPath>
#include <QPointer>
#include <QQuickWindow>
#include <QSGImageNode>
#include <QSGTexture>

#include <cmath>
#include <utility>

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
    imageNeedsTexture();
}

void ImageView::setOverhangs(bool overhangs)
{
    _overhangs = overhangs;
    imageNeedsTexture();
}

void ImageView::setTiles(bool tiles)
{
    _tiles = tiles;
    imageNeedsTexture();
}

void ImageView::setRadius(double radius)
{
    _radius = radius;
    imageNeedsTexture();
}

void ImageView::setSoftEdges(bool softEdges)
{
    _softEdges = softEdges;
    imageNeedsTexture();
}

void ImageView::setMipmap(bool mipmap)
{
    _mipmap = mipmap;
    imageNeedsTexture();
}

void ImageView::imageNeedsTexture()
{
    _textureIsOld = true;
    update();
    Q_EMIT imageChanged();
}

/// What the item shows, in its own pixels. Not every GPU repeats a texture of any size.
QImage ImageView::composed() const
{
    const double scale = window()->effectiveDevicePixelRatio();
    const QSize pixels(int(std::ceil(width() * scale)), int(std::ceil(height() * scale)));
    QImage result(pixels, QImage::Format_ARGB32_Premultiplied);
    if (result.isNull())
        return {};
    result.setDevicePixelRatio(scale);
    result.fill(Qt::transparent);
    QPainter painter(&result);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    // A brush takes one pixel of its image for one point, whatever the image says. Made smaller by
    // the brush itself the image would flicker.
    QImage texture = _image;
    QSize beyond(0, 0);
    if (!_tiles) {
        texture =
            _image.scaled(pixels, _covers ? Qt::KeepAspectRatioByExpanding : Qt::IgnoreAspectRatio,
                          Qt::SmoothTransformation);
        texture.setDevicePixelRatio(scale);
        beyond = texture.size() - pixels;
    }
    const double density = texture.devicePixelRatio();
    texture.setDevicePixelRatio(1.0);
    QBrush brush(texture);
    brush.setTransform(QTransform::fromTranslate(-beyond.width() / 2, -beyond.height() / 2) *
                       QTransform::fromScale(1.0 / density, 1.0 / density));
    painter.setPen(Qt::NoPen);
    painter.setBrush(brush);
    painter.drawRoundedRect(boundingRect(), _radius, _radius);
    return result;
}

QImage ImageView::textureImage() const
{
    if (isComposed())
        return composed();
    if (!_softEdges)
        return _image;
    // Into a clear border the texture's own smoothing runs out.
    QImage padded(_image.size() + QSize(2, 2), QImage::Format_ARGB32_Premultiplied);
    if (padded.isNull())
        return _image;
    padded.fill(Qt::transparent);
    QImage pixels = _image;
    pixels.setDevicePixelRatio(1.0);
    QPainter(&padded).drawImage(1, 1, pixels);
    return padded;
}

/// The part of the image that is seen, in its pixels.
QRectF ImageView::sourceRect() const
{
    const QRectF whole(QPointF(), QSizeF(_image.size()));
    if (!_covers || _overhangs)
        return whole;
    QRectF seen(QPointF(), size().scaled(whole.size(), Qt::KeepAspectRatio));
    seen.moveCenter(whole.center());
    return seen;
}

QRectF ImageView::targetRect() const
{
    if (_softEdges) {
        const QPointF border(width() / _image.width(), height() / _image.height());
        return {-border, size() + QSizeF(2.0 * border.x(), 2.0 * border.y())};
    }
    if (!_overhangs)
        return boundingRect();
    QRectF target(QPointF(), QSizeF(_image.size()).scaled(size(), Qt::KeepAspectRatioByExpanding));
    target.moveCenter(boundingRect().center());
    return target;
}

void ImageView::makeTexture(QSGImageNode& node)
{
    ++_textureNumber;
    _smallerCopies.clear();
    node.setMipmapFiltering(QSGTexture::None);
    const QImage image = textureImage();
    if (_mipmap && !isComposed())
        if (auto texture = MipmapTexture::make(*window(), image)) {
            node.setTexture(texture.release());
            makeSmallerCopies(image);
            return;
        }
    node.setTexture(window()->createTextureFromImage(image));
}

void ImageView::makeSmallerCopies(const QImage& image)
{
    runInBackground([image] { return smallerCopies(image); },
                    [self = QPointer(this), number = _textureNumber](std::vector<QImage> copies) {
                        if (!self || self->_textureNumber != number)
                            return;
                        self->_smallerCopies = std::move(copies);
                        self->update();
                    });
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
    if (std::exchange(_textureIsOld, false))
        makeTexture(*node);
    // None but a texture that takes them has ordered them.
    if (const auto copies = std::exchange(_smallerCopies, {}); !copies.empty())
        if (static_cast<MipmapTexture*>(node->texture())->addSmallerCopies(copies))
            node->setMipmapFiltering(QSGTexture::Linear);
    node->setRect(isComposed() ? boundingRect() : targetRect());
    node->setSourceRect(isComposed() || _softEdges
                            ? QRectF(QPointF(), node->texture()->textureSize())
                            : sourceRect());
    return node;
}

void ImageView::geometryChange(const QRectF& now, const QRectF& before)
{
    QQuickItem::geometryChange(now, before);
    _textureIsOld |= isComposed();
    update();
}

} // namespace pelmira
