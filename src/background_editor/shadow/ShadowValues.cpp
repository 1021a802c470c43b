#include "background_editor/shadow/ShadowValues.h"

#include <QTransform>

namespace pelmira {
namespace {

constexpr double pointsOfOffset = 20.0; // of a slider's unit
constexpr double pointsOfBlur = 15.0;
constexpr double leastBlurSeen = 0.01;

} // namespace

LayerShadowValues ShadowValues::onScreen() const
{
    const QPointF offset(shadowOffset.width(), shadowOffset.height());
    const bool isInPlace = shadowOffset.width() == 0.0 && shadowOffset.height() == 0.0;
    if (isInPlace && shadowBlur < leastBlurSeen)
        return {};
    return {shadowColor, offset * pointsOfOffset, shadowOpacity, shadowBlur * pointsOfBlur};
}

bool ShadowValues::hasOutput() const
{
    return shadowOffset.width() != 0.0 || shadowOffset.height() != 0.0 || shadowBlur != 0.0;
}

ContextShadow ShadowValues::inOutput(double scale, double rotation) const
{
    const QPointF offset(shadowOffset.width(), shadowOffset.height());
    QTransform turn;
    turn.rotateRadians(rotation);
    QColor color = shadowColor;
    color.setAlphaF(shadowOpacity);
    // A context's blur is twice its deviation, so this looks as the layer's radius does.
    return {turn.map(offset * pointsOfOffset * scale), 2.0 * (scale * (shadowBlur * pointsOfBlur)),
            color};
}

} // namespace pelmira
