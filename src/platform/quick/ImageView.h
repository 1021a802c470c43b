#pragma once

#include <QImage>
#include <QQuickItem>

namespace pelmira {

/// Shows an image, stretched to the item's size, or covering it: then its middle is seen. By itself
/// an item is as large as its image.
class ImageView : public QQuickItem {
    Q_OBJECT
    Q_PROPERTY(QImage image READ image WRITE setImage NOTIFY imageChanged)
    Q_PROPERTY(bool covers READ covers WRITE setCovers NOTIFY imageChanged)
public:
    explicit ImageView(QQuickItem* parent = nullptr);

    QImage image() const { return _image; }
    void setImage(const QImage& image);
    bool covers() const { return _covers; }
    void setCovers(bool covers);

Q_SIGNALS:
    void imageChanged();

protected:
    QSGNode* updatePaintNode(QSGNode* old, UpdatePaintNodeData* data) override;
    void geometryChange(const QRectF& now, const QRectF& before) override;

private:
    QRectF sourceRect() const;

    QImage _image;
    bool _covers = false;
    bool _textureIsOld = false;
};

} // namespace pelmira
