#pragma once

#include "mask_editor/surface/SurfaceJobs.h"

#include <QImage>

#include <functional>

namespace pelmira {

/// The cut-out as it is now: the surface's pixels at full size, in the premultiplied bitmap form.
/// Removed pixels are zero in all four bytes. Null if there is no surface or no memory for it. Not
/// while a job has the surface: half a fill would be in it.
QImage renderCutOut(OGLESMappedTexture* surface);

/// The surface's pixels as they are: straight, erased ones with their colour. Null as above.
QImage copyStraightPixels(OGLESMappedTexture* surface);

/// Gives the cut-out as it is in the jobs' turn, read off the main thread, on the main thread at a
/// later turn of the run loop, unless the jobs' owner has gone by then.
void renderCutOut(SurfaceJobs& jobs, std::function<void(QImage)> completion);

/// The same, after a copy of the straight pixels, the photo's colours still under erased ones, was
/// changed off the main thread; null also where that failed.
void renderCutOut(SurfaceJobs& jobs, std::function<bool(const PixelSpan&)> retouch,
                  std::function<void(QImage)> completion);

} // namespace pelmira
