#pragma once

#include <QColor>
#include <QImage>
#include <QObject>

#include <functional>

namespace pelmira {

/// The strip of colours: white at its beginning, the colours of the rainbow, black at its end.
class ColorPickerLineView final : public QObject {
    Q_OBJECT
    Q_PROPERTY(QImage image READ image CONSTANT)
    Q_PROPERTY(double position READ position NOTIFY picked)
    Q_PROPERTY(QColor color READ color NOTIFY picked)

public:
    /// The mark stands at a share of the strip's length at first: at white.
    explicit ColorPickerLineView(double position = 0.0) : _position(position) {}

    std::function<void(const QColor&)> colorChangedBlock;

    /// At a share of the strip's length.
    static QColor colorAt(double position);
    /// What the strip shows; it holds for any width.
    static QImage image();

    /// The user is there with a finger or a key; beyond the strip counts as its end.
    Q_INVOKABLE void pick(double position);
    double position() const { return _position; }
    QColor color() const { return colorAt(_position); }

Q_SIGNALS:
    void picked();

private:
    double _position;
};

} // namespace pelmira
