#pragma once

#include <QPointF>

#include <optional>

namespace pelmira {

/// What the tools ask the next frame to draw over the photo. Drawing it clears the request, but for
/// the preview, which stays as long as it is set.
struct OverlayRequests {
    bool drawBrush = false;
    bool drawWandZoom = false;
    QPointF brushPosition;               ///< where the tool is, in screen points
    std::optional<QPointF> brushPreview; ///< where to show a brush that is being adjusted
};

} // namespace pelmira
