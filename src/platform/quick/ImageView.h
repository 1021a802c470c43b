#pragma once

#include <QImage>
#include <QQuickItem>

namespace pelmira {

/// Shows an image, stretched to the item's size; by itself an item is as large as its image.
class ImageView : public QQuickItem {
    Q_OBJECT
    Q_PROPERTY(QImage image READ image WRITE setImage NOTIFY imageChanged)
public:
    explicit ImageView(QQuickItem* parent = nullptr);

    QImage image() const { return _image; }
    void setImage(const QImage& image);

Q_SIGNALS:
    void imageChanged();

protected:
    QSGNode* updatePaintNode(QSGNode* old, UpdatePaintNodeData* data) override;
    void geometryChange(const QRectF& now, const QRectF& before) override;

private:
    QImage _image;
    bool _textureIsOld = false;
};

} // namespace pelmira
