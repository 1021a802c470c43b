#pragma once

#include <QColor>
#include <QImage>
#include <QObject>

namespace pelmira {

/// One pattern in the panel: its thumbnail, with a border if it is the selected one. Points.
class BGEPatternCell final : public QObject {
    Q_OBJECT
    Q_PROPERTY(QImage image READ image NOTIFY imageChanged)
    Q_PROPERTY(bool mySelected READ mySelected NOTIFY lookChanged)
    Q_PROPERTY(double borderWidth READ borderWidth NOTIFY lookChanged)
    Q_PROPERTY(QColor borderColor READ borderColor NOTIFY lookChanged)
    Q_PROPERTY(double cornerRadius READ cornerRadius CONSTANT)

public:
    explicit BGEPatternCell(QObject* parent) : QObject(parent) {}

    /// Null until it has been drawn.
    const QImage& image() const { return _image; }
    void setImage(const QImage& image)
    {
        _image = image;
        Q_EMIT imageChanged();
    }
    bool mySelected() const { return _mySelected; }
    void setMySelected(bool selected)
    {
        if (selected == _mySelected)
            return;
        _mySelected = selected;
        Q_EMIT lookChanged();
    }
    double borderWidth() const { return _mySelected ? 3.0 : 0.0; }
    /// No valid colour without a border.
    QColor borderColor() const { return _mySelected ? QColor(Qt::yellow) : QColor(); }
    double cornerRadius() const { return 5.0; }

Q_SIGNALS:
    void imageChanged();
    void lookChanged();

private:
    QImage _image;
    bool _mySelected = false;
};

} // namespace pelmira
