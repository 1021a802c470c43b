#pragma once

#include "mask_editor/wand/TileBits.h"
#include "mask_editor/wand/WandSnapshot.h"
#include "platform/pixels/PixelSpan.h"

#include <QRegion>

namespace pelmira {

/// Turns the pixels' alpha from one fill into another: 0 where filled, the snapshot's elsewhere.
/// Touches only what differs, in pieces of one cache line, as long as the pixels hold what the
/// fill before has left. Returns the tiles that were written, in some tens of rectangles.
QRegion updateAlpha(const PixelSpan& pixels, const WandSnapshot& snapshot, const TileBits& before,
                    const TileBits& now);

/// The same for pixels that nothing is known of: writes every alpha.
QRegion rewriteAlpha(const PixelSpan& pixels, const WandSnapshot& snapshot, const TileBits& now);

} // namespace pelmira
