#pragma once

#include "background_editor/shadow/ShadowValues.h"

#include <QColor>
#include <QImage>
#include <QPointF>
#include <QSize>
#include <QSizeF>

#include <functional>
#include <memory>
#include <optional>
#include <variant>

namespace pelmira {

/// A picture that is put together: a background, and the cut-out on it. It is what the screen
/// shows, without the screen. Points are those of the canvas, from its upper left corner, y down.
struct Composition {
    /// A tiled pattern for an output whose pattern unit is enlarged by the scale; null for white.
    using PatternForScale = std::function<QImage(double scale)>;
    struct Nothing {};
    using Background = std::variant<Nothing, QColor, PatternForScale, QImage>;

    struct Object {
        QImage image; ///< at full resolution, premultiplied
        QPointF center;
        QSizeF size;         ///< points; the image is stretched to it
        double rotation = 0; ///< radians, clockwise
        bool isFlipped = false;
        double alpha = 1.0;
    };

    double aspectRatio = 1.0; ///< width over height
    double canvasWidth = 1.0; ///< points
    Background background;
    std::optional<Object> object;
    std::optional<ContextShadow> shadow; ///< of the object, in pixels of the output
};

/// In pixels: the longer side has 2048.
QSize outputSize(double aspectRatio);
/// Pixels of the output to a point of the canvas.
double outputScale(const Composition& composition);

/// Draws it, opaque. Safe from any thread. Null without memory for it.
QImage renderComposition(const Composition& composition);

} // namespace pelmira
