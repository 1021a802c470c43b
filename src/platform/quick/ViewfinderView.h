#pragma once

#include <QImage>
#include <QQuickItem>

namespace pelmira {

/// Shows one image after the other, each as large as fits into the item, in its middle.
class ViewfinderView : public QQuickItem {
    Q_OBJECT
    Q_PROPERTY(QImage image READ image WRITE setImage NOTIFY imageChanged)
    Q_PROPERTY(bool mirrored READ isMirrored WRITE setMirrored NOTIFY mirroredChanged)
public:
    explicit ViewfinderView(QQuickItem* parent = nullptr);

    QImage image() const { return _image; }
    /// With a null image it shows nothing.
    void setImage(const QImage& image);
    /// Left and right changed, as in a mirror.
    bool isMirrored() const { return _isMirrored; }
    void setMirrored(bool isMirrored);

Q_SIGNALS:
    void imageChanged();
    void mirroredChanged();

protected:
    QSGNode* updatePaintNode(QSGNode* old, UpdatePaintNodeData* data) override;
    void geometryChange(const QRectF& now, const QRectF& before) override;

private:
    QImage _image;
    bool _textureIsOld = false;
    bool _isMirrored = false;
};

} // namespace pelmira
