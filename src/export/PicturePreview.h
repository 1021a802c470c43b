#pragma once

#include <QColor>
#include <QImage>
#include <QObject>

namespace pelmira {

/// A picture over a ground, as the save screen shows it: small enough for a texture, and large
/// enough to be sharp.
class PicturePreview final : public QObject {
    Q_OBJECT
    Q_PROPERTY(QImage image READ image NOTIFY changed)
    Q_PROPERTY(QColor backgroundColor READ backgroundColor NOTIFY changed)

public:
    using QObject::QObject;

    QImage image() const { return _image; }
    void setImage(const QImage& image)
    {
        _image = image;
        Q_EMIT changed();
    }
    /// Transparent: the grid shows.
    QColor backgroundColor() const { return _backgroundColor; }
    void setBackgroundColor(const QColor& color)
    {
        _backgroundColor = color;
        Q_EMIT changed();
    }

Q_SIGNALS:
    void changed();

private:
    QImage _image;
    QColor _backgroundColor = Qt::transparent;
};

} // namespace pelmira
