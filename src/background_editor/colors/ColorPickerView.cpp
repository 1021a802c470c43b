#include "background_editor/colors/ColorPickerView.h"

#include <algorithm>
#include <cmath>

namespace pelmira {
namespace {

// Colours run evenly between these points, so a smooth stretch shows no steps.
constexpr int fieldWidth = 192;
constexpr int fieldHeight = 64;
constexpr int lineWidth = 64;

QColor colorOf(double hue, double saturation, double lightness)
{
    // The hues are a circle; Qt takes the full turn for no hue at all.
    const double turn = hue >= 1.0 ? 0.0 : hue;
    return QColor::fromHslF(float(turn), float(saturation), float(lightness)).toRgb();
}

// The first and the last pixel stand for the field's edges.
double shareOf(int i, int count)
{
    return double(i) / (count - 1);
}

} // namespace

ColorPickerView::ColorPickerView()
{
    drawField();
}

QColor ColorPickerView::color() const
{
    return colorOf(_hue, _saturation, _lightness);
}

void ColorPickerView::pickInField(QPointF position)
{
    if (!std::isfinite(position.x()) || !std::isfinite(position.y()))
        return;
    _hue = std::clamp(position.x(), 0.0, 1.0);
    _lightness = 1.0 - std::clamp(position.y(), 0.0, 1.0);
    tell();
}

void ColorPickerView::pickSaturation(double saturation)
{
    if (!std::isfinite(saturation))
        return;
    _saturation = std::clamp(saturation, 0.0, 1.0);
    drawField();
    tell();
}

void ColorPickerView::tell()
{
    Q_EMIT picked();
    if (colorChangedBlock)
        colorChangedBlock(color());
}

void ColorPickerView::drawField()
{
    _field = QImage(fieldWidth, fieldHeight, QImage::Format_RGB32);
    for (int y = 0; y < fieldHeight; ++y)
        for (int x = 0; x < fieldWidth; ++x)
            _field.setPixelColor(
                x, y, colorOf(shareOf(x, fieldWidth), _saturation, 1.0 - shareOf(y, fieldHeight)));
    Q_EMIT fieldChanged();
}

QImage ColorPickerView::saturationLine() const
{
    QImage line(lineWidth, 1, QImage::Format_RGB32);
    for (int x = 0; x < lineWidth; ++x)
        line.setPixelColor(x, 0, colorOf(_hue, shareOf(x, lineWidth), _lightness));
    return line;
}

} // namespace pelmira
