#include "background_editor/colors/ColorPickerLineView.h"

#include <algorithm>
#include <cmath>

namespace pelmira {
namespace {

constexpr int imageWidth = 512;
// Of the strip, at either end: so that white and black have room for a thumb.
constexpr double pureShare = 0.05;
constexpr double blendShare = 0.06;

QColor mixed(const QColor& a, const QColor& b, double share)
{
    const auto mix = [share](float from, float to) {
        return from + (to - from) * static_cast<float>(share);
    };
    return QColor::fromRgbF(mix(a.redF(), b.redF()), mix(a.greenF(), b.greenF()),
                            mix(a.blueF(), b.blueF()));
}

QColor hueAt(double share)
{
    // Red at both ends would be the same colour twice: the last one is a pink.
    return QColor::fromHsvF(static_cast<float>(share * 0.93), 1.0F, 1.0F);
}

} // namespace

QColor ColorPickerLineView::colorAt(double position)
{
    const double x = std::clamp(position, 0.0, 1.0);
    const double fromEnd = 1.0 - x;
    if (x <= pureShare)
        return Qt::white;
    if (fromEnd <= pureShare)
        return Qt::black;
    const double hues = pureShare + blendShare;
    if (x < hues)
        return mixed(Qt::white, hueAt(0.0), (x - pureShare) / blendShare);
    if (fromEnd < hues)
        return mixed(Qt::black, hueAt(1.0), (fromEnd - pureShare) / blendShare);
    return hueAt((x - hues) / (1.0 - 2 * hues));
}

QImage ColorPickerLineView::image()
{
    QImage image(imageWidth, 1, QImage::Format_RGB32);
    for (int x = 0; x < imageWidth; ++x)
        image.setPixelColor(x, 0, colorAt((x + 0.5) / imageWidth));
    return image;
}

void ColorPickerLineView::pick(double position)
{
    if (!std::isfinite(position))
        return;
    _position = std::clamp(position, 0.0, 1.0);
    Q_EMIT picked();
    if (colorChangedBlock)
        colorChangedBlock(color());
}

} // namespace pelmira
