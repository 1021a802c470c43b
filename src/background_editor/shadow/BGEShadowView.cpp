#include "background_editor/shadow/BGEShadowView.h"

#include "platform/text/LocalizedStrings.h"

namespace pelmira {

BGEShadowView::BGEShadowView(QObject* parent) : QObject(parent)
{
    for (ZKLSlider* slider : {&_xSlider, &_ySlider}) {
        slider->fillsFromMiddle = true;
        slider->snapsToMiddle = true;
        slider->setRange(-1.0F, 1.0F);
        slider->setValue(0.0F);
    }
    for (ZKLSlider* slider : {&_xSlider, &_ySlider, &_blurSlider})
        connect(slider, &ZKLSlider::moved, this, &BGEShadowView::handleSlider);
    _colorPickerLineView.colorChangedBlock = [this](const QColor& color) {
        if (shadowColorChangedBlock)
            shadowColorChangedBlock(color);
    };
}

QString BGEShadowView::blurLabel() const
{
    return localizedWithDefaultStr(QLatin1String("backgroundeditscreen.photopanel.blur"),
                                   QStringLiteral("Blur"));
}

void BGEShadowView::showValues(const ShadowValues& values)
{
    _xSlider.setValue(static_cast<float>(values.shadowOffset.width()));
    _ySlider.setValue(static_cast<float>(values.shadowOffset.height()));
    _blurSlider.setValue(static_cast<float>(values.shadowBlur));
}

void BGEShadowView::handleSlider() const
{
    if (shadowValuesChangedBlock)
        shadowValuesChangedBlock(static_cast<double>(_xSlider.value()),
                                 static_cast<double>(_ySlider.value()),
                                 static_cast<double>(_blurSlider.value()));
}

} // namespace pelmira
