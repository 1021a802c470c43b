#pragma once

#include "background_editor/shadow/ShadowValues.h"

#include <QImage>
#include <QPoint>

namespace pelmira {

/// Draws the shadow of what a layer shows, which is itself drawn after it, onto a picture. The
/// layer stands at `layerOrigin` and may reach beyond the picture; what stands there casts a shadow
/// too. Both are in the bitmap form or opaque. False without memory; nothing is drawn then. Safe
/// from any thread.
bool drawContextShadow(QImage& onto, const QImage& layer, QPoint layerOrigin,
                       const ContextShadow& shadow);

} // namespace pelmira
