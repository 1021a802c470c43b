#pragma once

#include "mask_editor/surface/ChangedTiles.h"
#include "mask_editor/surface/PixelStore.h"
#include "platform/gl/GLContext.h"
#include "platform/pixels/PixelSpan.h"

#include <QImage>
#include <QRegion>
#include <QSizeF>

#include <functional>
#include <memory>
#include <vector>

namespace pelmira {

/// The surface: the one pixel array in which a session keeps its photo and, as its alpha channel,
/// the mask. Colour is straight, not multiplied by alpha, so a removed pixel keeps its colour.
/// Rows run from the image's top; GL's row 0 is memory row 0.
///
/// The CPU may touch the pixels only between `lockTexture` and `unlockTexture`, both called on
/// the main thread; the work between may run on another. Whoever locks it for a job clears
/// `isReady` first and sets it again afterwards: one job at a time.
class OGLESMappedTexture {
public:
    static std::unique_ptr<OGLESMappedTexture>
    oGLESMappedTexture(std::shared_ptr<GLContext> context);

    /// Makes pixels and texture; the size, in pixels, is truncated. False, with a line in the
    /// log, if either can't be had.
    bool makeMappedTexture(QSizeF size);
    void bindTexture() const;

    bool lockTexture();
    /// False if GL can't be brought what was written: tried again before anything is drawn.
    bool unlockTexture();
    /// Does a few milliseconds' share of what `unlockTexture` has to do. True if there is more.
    bool unlockPart();

    /// While nobody sees the photo: gives up what only GL needs. All else goes on as it is; a draw
    /// gets it back, at the cost of the whole photo sent. Not while locked.
    void releaseTexture();
    /// The texture and its pixels are there by the next unlock. False if they are already.
    bool restoreTexture();
    /// There is something to be shown, if nobody works on it.
    bool hasTexture() const { return _store && _store->hasTexture(); }

    /// Fills the locked pixels from an upright image of their size. On any thread.
    static void copyImageIntoBuffer(const QImage& image, const PixelSpan& pixels);
    /// To and from width × height pixels with no padding. Both need the lock.
    void copyFlatPixelsIntoBuffer(const std::uint32_t* flat);
    void copyIntoFlatPixelsBuffer(std::uint32_t* flat) const;

    /// The only ways to change pixels. `change` gets the locked pixels and returns what it wrote;
    /// `draw` runs with GL calls that write at most `rectangle`, in pixels of the surface, and not
    /// while it is locked. Main thread only, as all the rest: a job that writes elsewhere, between
    /// lock and unlock, has what it wrote reported here.
    void changePixels(const std::function<QRegion(const PixelSpan&)>& change);
    void pixelsChanged(const QRegion& written);
    void drawPixels(const QRect& rectangle, const std::function<void()>& draw);

    /// Grows with every change, by whomever.
    std::uint64_t changeCount() const { return _changeCount; }
    /// Where anything has changed since the last call. For the one who keeps the levels.
    ChangedTiles takeChanges();
    /// Called on the main thread when a job has ended or something was drawn, within that call: the
    /// pixels may have changed, and nobody works on them.
    std::function<void()> changedBlock;
    /// Called when GL can't be brought what was written, and not again until it could: what is
    /// shown is older than the pixels.
    std::function<void()> outdatedBlock;

    bool isReady() const { return _isReady; }
    void setReady(bool isReady);
    std::uint32_t width() const { return _width; }
    std::uint32_t height() const { return _height; }
    QRect bounds() const;
    /// Set only while locked.
    const std::uint32_t* baseAddress() const { return _baseAddress; }
    /// The locked pixels; empty while unlocked.
    PixelSpan lockedPixels() const;
    GLuint texture() const { return _store ? _store->texture() : 0; }
    const std::shared_ptr<GLContext>& context() const { return _context; }

    /// The image's bitmap, premultiplied, rows tightly packed; empty if it can't be drawn.
    static std::vector<std::uint32_t> imageToBGRAData(const QImage& image);

private:
    explicit OGLESMappedTexture(std::shared_ptr<GLContext> context);
    void noteChange(const QRegion& pixels);

    bool _isReady = false;
    bool _isUnlockDue = false; ///< GL hasn't got what was written
    bool _isOutdated = false;  ///< and couldn't be brought it
    std::uint64_t _changeCount = 0;
    ChangedTiles _changes;
    std::uint32_t _width = 0;
    std::uint32_t _height = 0;
    std::uint32_t* _baseAddress = nullptr;
    std::unique_ptr<PixelStore> _store;
    std::shared_ptr<GLContext> _context;
};

} // namespace pelmira
