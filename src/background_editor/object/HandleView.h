#pragma once

#include <QColor>
#include <QObject>
#include <QPointF>
#include <QRectF>
#include <QSizeF>
#include <QString>

#include <utility>

namespace pelmira {

/// A round button on an object's corner, or a handle on its edge. It turns with the object.
class HandleView final : public QObject {
    Q_OBJECT
    Q_PROPERTY(QString imageName READ imageName CONSTANT)
    Q_PROPERTY(QColor backgroundColor READ backgroundColor CONSTANT)
    Q_PROPERTY(QRectF frame READ frame NOTIFY changed)
    Q_PROPERTY(bool hidden READ isHidden NOTIFY changed)
public:
    /// The size in points; a background that is transparent shows the image alone.
    HandleView(QString imageName, const QColor& backgroundColor, QSizeF size)
        : _imageName(std::move(imageName)), _backgroundColor(backgroundColor), _size(size)
    {
    }

    QString imageName() const { return _imageName; }
    QColor backgroundColor() const { return _backgroundColor; }
    /// In the object's coordinates.
    QRectF frame() const
    {
        QRectF frame(QPointF(), _size);
        frame.moveCenter(_center);
        return frame;
    }
    void setCenter(QPointF center)
    {
        if (center == _center)
            return;
        _center = center;
        Q_EMIT changed();
    }
    bool isHidden() const { return _hidden; }
    void setHidden(bool hidden)
    {
        if (hidden == _hidden)
            return;
        _hidden = hidden;
        Q_EMIT changed();
    }
    bool takesTouchAt(QPointF point) const { return !_hidden && frame().contains(point); }

Q_SIGNALS:
    void changed();

private:
    const QString _imageName;
    const QColor _backgroundColor;
    const QSizeF _size;
    QPointF _center;
    bool _hidden = true;
};

} // namespace pelmira
