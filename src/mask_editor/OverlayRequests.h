#pragma once

#include <QPointF>

namespace pelmira {

/// What the tools ask the next frame to draw over the photo. Drawing it clears the request.
struct OverlayRequests {
    bool drawWandZoom = false;
    QPointF brushPosition; ///< where the tool is, in screen points
};

} // namespace pelmira
