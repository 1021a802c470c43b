#pragma once

#include <QImage>
#include <QQuickItem>

#include <vector>

class QSGImageNode;

namespace pelmira {

/// Shows an image, stretched to the item's size, or covering it: then its middle is seen, and what
/// doesn't fit is seen beyond the item if it `overhangs`. It may also be repeated as a tile from
/// the item's upper left corner. By itself an item is as large as its image.
class ImageView : public QQuickItem {
    Q_OBJECT
    Q_PROPERTY(QImage image READ image WRITE setImage NOTIFY imageChanged)
    Q_PROPERTY(bool covers READ covers WRITE setCovers NOTIFY imageChanged)
    Q_PROPERTY(bool overhangs READ overhangs WRITE setOverhangs NOTIFY imageChanged)
    Q_PROPERTY(bool tiles READ tiles WRITE setTiles NOTIFY imageChanged)
    Q_PROPERTY(double radius READ radius WRITE setRadius NOTIFY imageChanged)
    Q_PROPERTY(bool softEdges READ softEdges WRITE setSoftEdges NOTIFY imageChanged)
    Q_PROPERTY(bool mipmap READ mipmap WRITE setMipmap NOTIFY imageChanged)
public:
    explicit ImageView(QQuickItem* parent = nullptr);

    QImage image() const { return _image; }
    void setImage(const QImage& image);
    bool covers() const { return _covers; }
    void setCovers(bool covers);
    bool overhangs() const { return _overhangs; }
    void setOverhangs(bool overhangs);
    bool tiles() const { return _tiles; }
    void setTiles(bool tiles);
    /// Of round corners, in points.
    double radius() const { return _radius; }
    void setRadius(double radius);
    /// Turned it has no steps at its edges.
    bool softEdges() const { return _softEdges; }
    void setSoftEdges(bool softEdges);
    /// Shown much smaller than it is it doesn't flicker, from a frame or two after it is first
    /// shown: smaller copies are made off the main thread. Of no use where the image is composed
    /// in the item's own pixels, of tiles or with round corners.
    bool mipmap() const { return _mipmap; }
    void setMipmap(bool mipmap);

Q_SIGNALS:
    void imageChanged();

protected:
    QSGNode* updatePaintNode(QSGNode* old, UpdatePaintNodeData* data) override;
    void geometryChange(const QRectF& now, const QRectF& before) override;

private:
    bool isComposed() const { return _tiles || _radius > 0; }
    QImage composed() const;
    QImage textureImage() const;
    QRectF sourceRect() const;
    QRectF targetRect() const;
    void imageNeedsTexture();
    void makeTexture(QSGImageNode& node);
    void makeSmallerCopies(const QImage& image);

    QImage _image;
    bool _covers = false;
    bool _overhangs = false;
    bool _tiles = false;
    double _radius = 0.0;
    bool _softEdges = false;
    bool _mipmap = false;
    bool _textureIsOld = false;
    int _textureNumber = 0;             ///< of the last one made
    std::vector<QImage> _smallerCopies; ///< of its image, while they wait for the next frame
};

} // namespace pelmira
