#pragma once

#include "mask_editor/surface/OGLESMappedTexture.h"

#include <QImage>

namespace pelmira {

/// The cut-out as it is now: the surface's pixels at full size, in the premultiplied bitmap form.
/// Removed pixels are zero in all four bytes. Null if there is no surface or no memory for it. Not
/// while a job has the surface: half a fill would be in it.
QImage renderCutOut(OGLESMappedTexture* surface);

/// The surface's pixels as they are: straight, erased ones with their colour. Null as above.
QImage copyStraightPixels(OGLESMappedTexture* surface);

/// What a copy of the straight pixels becomes as a cut-out, in the same memory.
QImage cutOutFromStraightPixels(QImage pixels);

} // namespace pelmira
