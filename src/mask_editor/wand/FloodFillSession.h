#pragma once

#include "mask_editor/wand/ColorDistance.h"
#include "mask_editor/wand/TileBits.h"
#include "mask_editor/wand/TileFlood.h"
#include "mask_editor/wand/WandSnapshot.h"
#include "platform/pixels/PixelSpan.h"

#include <QImage>
#include <QPointF>
#include <QRegion>
#include <cstdint>
#include <memory>

namespace pelmira {

/// The magic wand's engine, bound to one pixel buffer and one start point. It remembers the
/// buffer's alpha and each pixel's distance from the start's colour as they were when it was made,
/// and gives the fill at any tolerance from that state, whatever came between. A fill writes 0
/// into the alpha byte of every pixel that a 4-connected path of distances below the tolerance
/// joins to the start; no other byte of the image is ever changed. A start on alpha 0 fills
/// nothing: it has no colour to match.
///
/// Made in one pass over the image. A tolerance then computes the fill as a set of bits, and
/// touches only the pixels where it differs from the fill before. docs/WAND.md tells how. About
/// 2.4 bytes a pixel on top of the image (1.4 for one whose alpha is 0 or 255 in whole tiles).
///
/// No thread and no lock of its own. For the whole of each call, construction included, the
/// caller keeps the buffer locked and everybody else away from it; between calls the buffer isn't
/// looked at. Whoever changes the buffer's alpha between two calls says so by
/// alphaChangedElsewhere(); that change is lost at the next tolerance.
class FloodFillSession {
public:
    /// The buffer stays the caller's. `startPoint` is in the buffer's pixels, from its top left,
    /// rounded to the nearest one; a point outside the image fills nothing. Throws std::bad_alloc.
    FloodFillSession(std::uint32_t* buffer, std::uint32_t width, std::uint32_t height,
                     std::uint32_t bytesPerLine, QPointF startPoint);
    /// A session on a private premultiplied copy; nothing if the copy can't be made.
    static std::unique_ptr<FloodFillSession> initWithImage(const QImage& image, QPointF startPoint);

    FloodFillSession(const FloodFillSession&) = delete;
    FloodFillSession& operator=(const FloodFillSession&) = delete;

    /// Makes the buffer's alpha that of the fill at this tolerance. Returns where it was written,
    /// in at most some tens of rectangles, so that nothing else need be sent to the GPU. The first
    /// form takes the buffer's present address and stride, which may differ from one lock to the
    /// next; other memory than last time is rewritten whole.
    QRegion setTolerance(std::uint8_t tolerance, std::uint32_t* bufferPtr,
                         std::uint32_t bytesPerLine);
    QRegion setTolerance(std::uint8_t tolerance);

    /// The buffer's alpha is no longer what the last call left (an inversion, a stroke).
    void alphaChangedElsewhere() { _isAlphaKnown = false; }

    /// The present pixels, rows taken as width × 4 bytes apart: meant for initWithImage.
    QImage imageFromImageData() const;

    QPointF startPoint() const { return _startPoint; }
    /// Moves the start; the colour that is matched stays that of the first one.
    void setStartPoint(QPointF startPoint) { _startPoint = startPoint; }

private:
    static StoredColor readColorFromBuffer(const PixelSpan& buffer, QPointF point);

    void floodFillwithTolerance(std::uint8_t tolerance);

    QImage _ownPixels; // of initWithImage only; _imageData then points into it
    PixelSpan _imageData;
    QPointF _startPoint;
    StoredColor _startColor;
    WandSnapshot _snapshot;
    TileFlood _flood;
    TileBits _fill;
    TileBits _lastFill; // what the buffer's alpha shows
    bool _isAlphaKnown = true;
};

} // namespace pelmira
