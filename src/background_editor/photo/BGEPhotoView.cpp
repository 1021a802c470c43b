#include "background_editor/photo/BGEPhotoView.h"

#include "controls/StyleUtil.h"
#include "platform/text/LocalizedStrings.h"

#include <algorithm>

namespace pelmira {
namespace {

constexpr double deadZone = 6.0; // points: less is hard to tell from the end of the track
constexpr double shortestTrack = 100.0;

} // namespace

BGEPhotoView::BGEPhotoView(QObject* parent) : QObject(parent)
{
    connect(&_slider, &ZKLSlider::moved, this, &BGEPhotoView::blurSliderChanged);
}

void BGEPhotoView::setImage(const QImage& image)
{
    _image = image;
    Q_EMIT imageChanged();
}

QString BGEPhotoView::blurLabel() const
{
    return localized("backgroundeditscreen.photopanel.blur");
}

QColor BGEPhotoView::minimumTrackColor() const
{
    return StyleUtil::sliderMinTrackColor();
}

QColor BGEPhotoView::maximumTrackColor() const
{
    return Qt::white;
}

void BGEPhotoView::cropButtonPressed() const
{
    if (showCropScreenBlock)
        showCropScreenBlock();
}

void BGEPhotoView::handlePhotoTapped() const
{
    if (showPhotoPickerBlock)
        showPhotoPickerBlock();
}

void BGEPhotoView::blurSliderChanged()
{
    const double lowest = static_cast<double>(_slider.minimumValue());
    const double range = static_cast<double>(_slider.maximumValue()) - lowest;
    const double threshold = lowest + range * (deadZone / std::max(_sliderWidth, shortestTrack));
    if (static_cast<double>(_slider.value()) < threshold)
        _slider.setValue(0.0F);
    if (setBlurAmountBlock)
        setBlurAmountBlock(_slider.value());
}

} // namespace pelmira
