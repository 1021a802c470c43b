#include "background_editor/colors/ZKLRGBMixerVC.h"

#include "background_editor/colors/ColorComponents.h"
#include "background_editor/colors/TrackImage.h"

#include <QRectF>

#include <algorithm>
#include <cmath>

namespace pelmira {
namespace {

constexpr double trackHeight = 4.0;
constexpr double swatchMargin = 16.0;

int shownLevel(float channel)
{
    return static_cast<int>(std::round(std::clamp(channel, 0.0F, 1.0F) * 255.0F));
}

} // namespace

ZKLRGBMixerVC::ZKLRGBMixerVC(float startR, float startG, float startB, UserDefaults& defaults)
    : r(startR), g(startG), b(startB), _persistedColors(defaults)
{
    setSliders();
    connect(&_rSlider, &ZKLSlider::moved, this, [this] { handleSlider(_rSlider, r); });
    connect(&_gSlider, &ZKLSlider::moved, this, [this] { handleSlider(_gSlider, g); });
    connect(&_bSlider, &ZKLSlider::moved, this, [this] { handleSlider(_bSlider, b); });
    buildSwatches();
}

void ZKLRGBMixerVC::setSliders()
{
    _rSlider.setValue(r);
    _gSlider.setValue(g);
    _bSlider.setValue(b);
}

void ZKLRGBMixerVC::handleSlider(const ZKLSlider& slider, float& channel)
{
    channel = slider.value();
    tellChange();
}

void ZKLRGBMixerVC::tellChange()
{
    Q_EMIT colorChanged();
    updateTracks();
    if (colorChangedBlock)
        colorChangedBlock();
}

QString ZKLRGBMixerVC::rLabel() const
{
    return QString::number(shownLevel(r));
}

QString ZKLRGBMixerVC::gLabel() const
{
    return QString::number(shownLevel(g));
}

QString ZKLRGBMixerVC::bLabel() const
{
    return QString::number(shownLevel(b));
}

QString ZKLRGBMixerVC::hexLabel() const
{
    return QString::asprintf("0x%02X%02X%02X", shownLevel(r), shownLevel(g), shownLevel(b));
}

QColor ZKLRGBMixerVC::color() const
{
    return opaqueColor(r, g, b);
}

void ZKLRGBMixerVC::setTrackWidth(double trackWidth)
{
    _trackWidth = trackWidth;
    updateTracks();
}

void ZKLRGBMixerVC::updateTracks()
{
    const QSizeF size(_trackWidth, trackHeight);
    _rTrack = trackImage(opaqueColor(0, g, b), opaqueColor(1, g, b), size);
    _gTrack = trackImage(opaqueColor(r, 0, b), opaqueColor(r, 1, b), size);
    _bTrack = trackImage(opaqueColor(r, g, 0), opaqueColor(r, g, 1), size);
    Q_EMIT tracksChanged();
}

void ZKLRGBMixerVC::setScrollViewHeight(double height)
{
    _scrollViewHeight = height;
    buildSwatches();
}

void ZKLRGBMixerVC::buildSwatches()
{
    _favouriteColorViews.clear();
    const double side = std::max(0.0, _scrollViewHeight - 2 * swatchMargin);
    double x = swatchMargin;
    for (const ZKLPersistedColorsModel::Color& color : _persistedColors.colors()) {
        _favouriteColorViews.append(
            QVariantMap{{QStringLiteral("frame"), QRectF(x, swatchMargin, side, side)},
                        {QStringLiteral("color"), opaqueColor(color.r, color.g, color.b)}});
        x += side + swatchMargin;
    }
    _contentSize = {x, _scrollViewHeight};
    Q_EMIT favouritesChanged();
}

void ZKLRGBMixerVC::handleFavouriteButton()
{
    _persistedColors.add(r, g, b);
    buildSwatches();
}

void ZKLRGBMixerVC::handleFavouriteTapped(int index)
{
    const auto& colors = _persistedColors.colors();
    if (index < 0 || index >= int(colors.size()))
        return;
    const ZKLPersistedColorsModel::Color& color = colors[std::size_t(index)];
    r = std::clamp(color.r, 0.0F, 1.0F);
    g = std::clamp(color.g, 0.0F, 1.0F);
    b = std::clamp(color.b, 0.0F, 1.0F);
    setSliders();
    tellChange();
}

void ZKLRGBMixerVC::handleTickButton()
{
    if (doneBlock)
        doneBlock();
}

} // namespace pelmira
