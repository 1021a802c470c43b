#pragma once

#include <QColor>
#include <QPointF>
#include <QSizeF>

namespace pelmira {

/// The shadow of a layer on screen. Offset and radius in points of the layer, with which they turn;
/// the radius is the standard deviation of the blur.
struct LayerShadowValues {
    QColor shadowColor; ///< no valid colour: no shadow
    QPointF shadowOffset;
    float shadowOpacity = 0.0F; ///< times the colour's own
    double shadowRadius = 0.0;

    bool operator==(const LayerShadowValues&) const = default;
};

/// The shadow that a drawing context gives to what is drawn. Offset and blur in pixels, unchanged
/// by the context's transform. The blur is twice the standard deviation, as in the canvas of the
/// HTML standard.
struct ContextShadow {
    QPointF offset;
    double blur = 0.0;
    QColor color;
};

/// What the user has set, in the sliders' units.
struct ShadowValues {
    static constexpr float shadowOpacity = 0.5F;

    QSizeF shadowOffset{0.0, 0.0};
    double shadowBlur = 0.0;
    QColor shadowColor = Qt::black;

    /// None for no offset and a blur too small to be seen.
    LayerShadowValues onScreen() const;
    /// With so many pixels to a point, for an object turned by `rotation` radians. Without any
    /// offset or blur there is no shadow: hasOutput.
    ContextShadow inOutput(double scale, double rotation) const;
    bool hasOutput() const;
};

} // namespace pelmira
