#pragma once

#include "mask_editor/ColorDistance.h"
#include "platform/PixelSpan.h"

#include <QImage>
#include <QPoint>
#include <QPointF>
#include <QRect>
#include <QRegion>
#include <cstdint>
#include <memory>
#include <optional>
#include <vector>

namespace pelmira {

/// The magic wand's engine, bound to one pixel buffer and one start point. It remembers the
/// buffer's alpha and each pixel's distance from the start's colour as they were when it was made,
/// and re-runs the fill at any tolerance from that state. A fill writes 0 into the alpha byte of
/// every pixel that a 4-connected path of distances below the tolerance joins to the start; no
/// other byte of the image is ever changed. A start on alpha 0 fills nothing: it has no colour to
/// match. Three bytes a pixel on top of the image.
///
/// No thread and no lock of its own. For the whole of each call the caller keeps the buffer
/// locked and everybody else away from it. Whoever changes the buffer's alpha between two calls
/// says so by alphaChangedElsewhere(); that change is lost at the next tolerance.
class FloodFillSession {
public:
    /// The buffer stays the caller's. `startPoint` is in the buffer's pixels, from its top left,
    /// rounded to the nearest one; a point outside the image fills nothing.
    FloodFillSession(std::uint32_t* buffer, std::uint32_t width, std::uint32_t height,
                     std::uint32_t bytesPerLine, QPointF startPoint);
    /// A session on a private premultiplied copy; nothing if the copy can't be made.
    static std::unique_ptr<FloodFillSession> initWithImage(const QImage& image, QPointF startPoint);

    FloodFillSession(const FloodFillSession&) = delete;
    FloodFillSession& operator=(const FloodFillSession&) = delete;

    /// Puts the remembered alpha back and fills. Returns where alpha may differ from before the
    /// call, so that nothing else need be sent to the GPU. The first form takes the buffer's
    /// present address and stride, which may differ from one lock to the next.
    QRegion setTolerance(std::uint8_t tolerance, std::uint32_t* bufferPtr,
                         std::uint32_t bytesPerLine);
    QRegion setTolerance(std::uint8_t tolerance);

    /// The buffer's alpha is no longer what the last call left (an inversion, a stroke).
    void alphaChangedElsewhere();

    /// The present pixels, rows taken as width × 4 bytes apart: meant for initWithImage.
    QImage imageFromImageData() const;

    QPointF startPoint() const { return _startPoint; }
    /// Moves the start; the colour that is matched stays that of the first one.
    void setStartPoint(QPointF startPoint) { _startPoint = startPoint; }

private:
    static StoredColor readColorFromBuffer(const PixelSpan& buffer, QPointF point);

    std::optional<QPoint> startPixel() const;
    QRect wholeImage() const;
    void backupImageAlpha();
    void restoreImageAlpha();
    void createDiffBufferBackup();
    void restoreDiffBuffer();
    QRect floodFillwithTolerance(std::uint32_t tolerance);

    QImage _ownPixels; // of initWithImage only; _imageData then points into it
    PixelSpan _imageData;
    QPointF _startPoint;
    StoredColor _startColor;
    std::vector<std::uint8_t> _alphaChannelBackup;
    std::vector<std::uint8_t> _diffBufferBackup;
    std::vector<std::uint8_t> _diffBuffer; // a fill consumes it
    QRect _lastFill;
};

} // namespace pelmira
