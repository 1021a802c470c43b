#pragma once

#include <QImage>
#include <QQuickItem>
#include <QRectF>
#include <QSizeF>

namespace pelmira {

/// Shows one image after the other, each as large as fits into the item. A strip at the right or
/// below, where controls stand, is kept free as far as the image leaves room.
class ViewfinderView : public QQuickItem {
    Q_OBJECT
    Q_PROPERTY(QImage image READ image WRITE setImage NOTIFY imageChanged)
    Q_PROPERTY(bool mirrored READ isMirrored WRITE setMirrored NOTIFY mirroredChanged)
    Q_PROPERTY(QSizeF keptFree READ keptFree WRITE setKeptFree NOTIFY keptFreeChanged)
public:
    explicit ViewfinderView(QQuickItem* parent = nullptr);

    QImage image() const { return _image; }
    /// With a null image it shows nothing.
    void setImage(const QImage& image);
    /// Left and right changed, as in a mirror.
    bool isMirrored() const { return _isMirrored; }
    void setMirrored(bool isMirrored);
    /// In points: the width of the strip at the right, the height of the one below.
    QSizeF keptFree() const { return _keptFree; }
    void setKeptFree(QSizeF strips);

    /// Where an image lies in an item.
    static QRectF frameFor(QSizeF image, QSizeF item, QSizeF keptFree);

Q_SIGNALS:
    void imageChanged();
    void mirroredChanged();
    void keptFreeChanged();

protected:
    QSGNode* updatePaintNode(QSGNode* old, UpdatePaintNodeData* data) override;
    void geometryChange(const QRectF& now, const QRectF& before) override;

private:
    QImage _image;
    QSizeF _keptFree{0.0, 0.0};
    bool _textureIsOld = false;
    bool _isMirrored = false;
};

} // namespace pelmira
