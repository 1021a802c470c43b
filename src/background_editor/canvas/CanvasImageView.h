#pragma once

#include <QColor>
#include <QImage>
#include <QObject>
#include <QRectF>
#include <QSizeF>

namespace pelmira {

/// The canvas of the composition: its rectangle in the work area, in points, and what fills it.
/// An image covers it, its middle seen; a tile repeats from its upper left corner.
class CanvasImageView final : public QObject {
    Q_OBJECT
    Q_PROPERTY(QRectF frame READ frame NOTIFY frameChanged)
    Q_PROPERTY(QImage image READ image NOTIFY contentChanged)
    Q_PROPERTY(QImage tile READ tile NOTIFY contentChanged)
    Q_PROPERTY(QColor backgroundColor READ backgroundColor NOTIFY contentChanged)
    Q_PROPERTY(bool hidden READ isHidden NOTIFY contentChanged)

public:
    QRectF frame() const { return _frame; }
    void setFrame(const QRectF& frame)
    {
        _frame = frame;
        Q_EMIT frameChanged();
    }
    QImage image() const { return _image; }
    QImage tile() const { return _tile; }
    QColor backgroundColor() const { return _backgroundColor; }
    void showImage(const QImage& image) { show(image, {}, Qt::transparent); }
    /// The image's device pixel ratio tells how many of its pixels make a point.
    void showTile(const QImage& tile) { show({}, tile, Qt::transparent); }
    void showColor(const QColor& color) { show({}, {}, color); }
    /// While another picture stands in for it.
    bool isHidden() const { return _hidden; }
    void setHidden(bool hidden)
    {
        _hidden = hidden;
        Q_EMIT contentChanged();
    }

Q_SIGNALS:
    void frameChanged();
    void contentChanged();

private:
    void show(const QImage& image, const QImage& tile, const QColor& color)
    {
        _image = image;
        _tile = tile;
        _backgroundColor = color;
        Q_EMIT contentChanged();
    }

    QRectF _frame;
    QImage _image;
    QImage _tile;
    QColor _backgroundColor = Qt::transparent;
    bool _hidden = false;
};

} // namespace pelmira
