#include "background_editor/canvas/BGECanvasView.h"

#include "background_editor/canvas/RatioIcon.h"
#include "controls/StyleUtil.h"
#include "platform/text/LocalizedStrings.h"

#include <cmath>
#include <utility>

namespace pelmira {
namespace {

constexpr double gap = 4.0;
constexpr float closeEnough = 0.005F;
const QColor unselectedColor = QColor::fromRgb(112, 112, 112);

// Of the two sheets that differ only by blanks, and of the one that is a word.
QString nameOf(AspectRatio ratio)
{
    if (ratio == AspectRatio::RatioA4Landscape)
        return localized("backgroundeditscreen.ratio.a4landscape");
    if (ratio == AspectRatio::RatioScreen)
        return localized("backgroundeditscreen.ratio.screen");
    return rawValue(ratio).trimmed().toString();
}

constexpr std::array<AspectRatio, aspectRatioButtonCount> firstRatios()
{
    std::array<AspectRatio, aspectRatioButtonCount> ratios{};
    for (int i = 0; i < aspectRatioButtonCount; ++i)
        ratios[static_cast<std::size_t>(i)] = static_cast<AspectRatio>(i);
    return ratios;
}

} // namespace

const std::array<AspectRatio, aspectRatioButtonCount> BGECanvasView::ratios = firstRatios();

BGECanvasView::BGECanvasView(std::function<QSizeF()> screenBounds)
    : _screenBounds(std::move(screenBounds))
{
    for (int i = 0; i < aspectRatioButtonCount; ++i)
        _buttons.push_back(makeRatioButton(i));
    layoutRatioButtons();
    updateRatioHighlight(_aspectRatio);
}

StripButton* BGECanvasView::makeRatioButton(int index)
{
    const AspectRatio ratio = ratios[static_cast<std::size_t>(index)];
    auto* button = new StripButton(index, rawValue(ratio).toString(), nameOf(ratio), this);
    button->setTemplateImage(makeRatioIcon(ratio, _screenBounds()));
    return button;
}

void BGECanvasView::setAspectRatio(float aspectRatio)
{
    _aspectRatio = aspectRatio;
    updateRatioHighlight(aspectRatio);
}

void BGECanvasView::updateRatioHighlight(float aspectRatio)
{
    for (StripButton* button : _buttons) {
        const float value =
            ratioValue(ratios[static_cast<std::size_t>(button->tag())], _screenBounds());
        const bool isChosen = std::abs(value - aspectRatio) < closeEnough;
        button->setSelected(isChosen);
        button->setTintColor(isChosen ? StyleUtil::sliderMinTrackColor() : unselectedColor);
    }
}

void BGECanvasView::setStripHeight(double stripHeight)
{
    _stripHeight = stripHeight;
    layoutRatioButtons();
}

void BGECanvasView::layoutRatioButtons()
{
    double x = gap;
    for (StripButton* button : _buttons) {
        button->setFrame({x, 0.0, _stripHeight, _stripHeight});
        x += _stripHeight + gap;
    }
    _contentSize = {x, _stripHeight};
    Q_EMIT contentSizeChanged();
}

void BGECanvasView::handleAspectThumbButtonWithButton(StripButton* button)
{
    if (!button)
        return;
    const AspectRatio ratio = ratios.at(static_cast<std::size_t>(button->tag()));
    setAspectRatio(ratioValue(ratio, _screenBounds()));
    if (aspectRatioChangedBlock)
        aspectRatioChangedBlock(_aspectRatio);
}

} // namespace pelmira
