#include "background_editor/screen/CompositionBackground.h"

#include "background_editor/canvas/BGEWorkAreaView.h"

namespace pelmira {
namespace {

// Of 65535 steps; in whole numbers, so that no level falls short of itself.
int cutOff(quint16 channel)
{
    return channel / 257;
}

} // namespace

CompositionBackground::CompositionBackground(BGEWorkAreaView& workAreaView)
    : _workAreaView(workAreaView)
{
    _workAreaView.bgImageView()->showColor(_bgColor);
}

void CompositionBackground::setBackgroundImage(const QImage& image)
{
    _bgImage = image;
    _workAreaView.bgImageView()->showImage(image);
    if (image.isNull())
        return;
    _workAreaView.bgAspectRatio = double(image.width()) / image.height();
    _workAreaView.layoutSubviews(true);
}

void CompositionBackground::setSolidBackground(const QColor& color)
{
    setBackgroundImage({});
    _bgColor = color;
    _workAreaView.bgImageView()->showColor(color);
    _bgPatternIndex = -1;
}

void CompositionBackground::showTile(int index, const QImage& tile)
{
    if (_bgPatternIndex == index)
        _workAreaView.bgImageView()->showTile(tile);
}

bool CompositionBackground::isColor() const
{
    return _bgColor.isValid() && _bgImage.isNull() && _bgPatternIndex == -1;
}

QString CompositionBackground::rgbLabelText() const
{
    if (!isColor())
        return QStringLiteral("R: G: B:");
    const QRgba64 color = _bgColor.rgba64();
    return QStringLiteral("R: %1 G: %2 B: %3")
        .arg(cutOff(color.red()))
        .arg(cutOff(color.green()))
        .arg(cutOff(color.blue()));
}

std::array<float, 3> CompositionBackground::currentBackgroundRgb() const
{
    if (!isColor())
        return {0.0F, 0.0F, 0.0F};
    return {_bgColor.redF(), _bgColor.greenF(), _bgColor.blueF()};
}

Composition::Background
CompositionBackground::drawn(const std::function<QImage(int, double)>& pattern) const
{
    if (!_bgImage.isNull())
        return _bgImage;
    if (_bgPatternIndex != -1)
        return [pattern, index = _bgPatternIndex](double scale) {
            return pattern ? pattern(index, scale) : QImage();
        };
    if (_bgColor.isValid())
        return _bgColor;
    return Composition::Nothing{};
}

} // namespace pelmira
