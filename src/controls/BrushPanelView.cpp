#include "controls/BrushPanelView.h"

#include "controls/StyleUtil.h"
#include "platform/text/LocalizedStrings.h"

#include <cmath>
#include <numbers>

namespace pelmira {

namespace {

bool namesAShape(int tag)
{
    return tag >= static_cast<int>(BrushType::circle) && tag <= static_cast<int>(BrushType::square);
}

} // namespace

// A damped harmonic oscillator, x'' + 2 d x' + (2 d)^2 x = 0, whose decay d brings it to a
// thousandth.
double BrushPanelView::travelAfter(double seconds)
{
    if (seconds >= openingSeconds)
        return 1.0;
    constexpr double startSpeed = 3.0;
    const double decay = std::log(1000.0) / openingSeconds;
    const double frequency = decay * std::numbers::sqrt3;
    return 1.0 - std::exp(-decay * seconds) *
                     (std::cos(frequency * seconds) +
                      (decay - startSpeed) / frequency * std::sin(frequency * seconds));
}

BrushPanelView::BrushPanelView(QObject* parent)
    : QObject(parent), _offsetLabel(localized("mainscreen.bottombar.offset")),
      _softnessLabel(localized("mainscreen.bottombar.softness"))
{
    _circleButton.setTag(static_cast<int>(BrushType::circle));
    _triangleButton.setTag(static_cast<int>(BrushType::triangle));
    _squareButton.setTag(static_cast<int>(BrushType::square));
    connect(&_offsetSlider, &ZKLSlider::moved, this,
            [this] { handleOffsetChanged(_offsetSlider); });
    connect(&_softnessSlider, &ZKLSlider::moved, this,
            [this] { handleSoftnessChanged(_softnessSlider); });
}

void BrushPanelView::setCurrentBrushType(BrushType type)
{
    _currentBrushType = type;
    for (InterfaceButton* button : {&_circleButton, &_triangleButton, &_squareButton}) {
        if (!namesAShape(button->tag()))
            continue;
        const bool current = button->tag() == static_cast<int>(type);
        button->setTintColor(current ? StyleUtil::selectedTint() : QColor(Qt::white));
        button->setSelected(current);
    }
}

void BrushPanelView::handleOffsetChanged(const ZKLSlider& slider) const
{
    if (offsetChangedBlock)
        offsetChangedBlock(slider.value());
}

void BrushPanelView::handleSoftnessChanged(const ZKLSlider& slider) const
{
    if (softnessChangedBlock)
        softnessChangedBlock(slider.value());
}

void BrushPanelView::handleBrushShapeButton(InterfaceButton* button) const
{
    if (button && namesAShape(button->tag()) && brushTypeChangedBlock)
        brushTypeChangedBlock(static_cast<BrushType>(button->tag()));
}

} // namespace pelmira
