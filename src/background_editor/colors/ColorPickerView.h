#pragma once

#include <QColor>
#include <QImage>
#include <QObject>
#include <QPointF>

#include <functional>

namespace pelmira {

/// The picker of any colour: a field of hues from left to right, light above and dark below, and
/// below it how strong they are. Each of the three from 0 to 1.
class ColorPickerView final : public QObject {
    Q_OBJECT
    Q_PROPERTY(double hue READ hue NOTIFY picked)
    Q_PROPERTY(double saturation READ saturation NOTIFY picked)
    Q_PROPERTY(double lightness READ lightness NOTIFY picked)
    Q_PROPERTY(QColor color READ color NOTIFY picked)
    Q_PROPERTY(QImage field READ field NOTIFY fieldChanged)
    Q_PROPERTY(QImage saturationLine READ saturationLine NOTIFY picked)

public:
    ColorPickerView();

    std::function<void(const QColor&)> colorChangedBlock;

    double hue() const { return _hue; }
    double saturation() const { return _saturation; }
    double lightness() const { return _lightness; }
    QColor color() const;

    /// The user is there; a share of the field's width and of its height from above. Beyond the
    /// field counts as its edge.
    Q_INVOKABLE void pickInField(QPointF position);
    /// A share of the line's length.
    Q_INVOKABLE void pickSaturation(double saturation);

    /// The field at the present saturation, to be stretched.
    QImage field() const { return _field; }
    /// From grey to the full colour, to be stretched.
    QImage saturationLine() const;

Q_SIGNALS:
    void picked();
    void fieldChanged();

private:
    void drawField();
    void tell();

    double _hue = 0.0;
    double _saturation = 1.0;
    double _lightness = 0.5;
    QImage _field;
};

} // namespace pelmira
