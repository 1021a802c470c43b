#include "mask_editor/surface/RenderOut.h"

#include "platform/base/RunInBackground.h"
#include "platform/pixels/BitmapContext.h"
#include "platform/pixels/PremultipliedAlpha.h"

#include <algorithm>
#include <utility>

namespace pelmira {
namespace {

/// A new image after `fill` got the pixels and its own.
template <class Fill>
QImage filledFrom(const PixelSpan& pixels, const Fill& fill)
{
    QImage image = createBGRABitmapContextWithSize(QSizeF(pixels.width, pixels.height));
    if (!image.isNull())
        fill(pixels, imageSpan(image));
    return image;
}

QImage cutOut(const PixelSpan& pixels)
{
    return filledFrom(pixels, premultiply);
}

QImage straightCopy(const PixelSpan& pixels)
{
    QImage copy = filledFrom(pixels, [](const PixelSpan& from, const PixelSpan& to) {
        for (std::uint32_t y = 0; y < to.height; ++y)
            std::copy_n(from.row(y), to.width, to.row(y));
    });
    copy.reinterpretAsFormat(QImage::Format_ARGB32);
    return copy;
}

/// What a copy of the straight pixels becomes as a cut-out, in the same memory.
QImage cutOutFromStraightPixels(QImage pixels)
{
    const PixelSpan span = imageSpan(pixels);
    premultiply(span, span);
    pixels.reinterpretAsFormat(QImage::Format_ARGB32_Premultiplied);
    return pixels;
}

QImage readLocked(OGLESMappedTexture* surface, QImage (*read)(const PixelSpan&))
{
    if (!surface || surface->bounds().isEmpty() || !surface->lockTexture())
        return {};
    QImage image = read(surface->lockedPixels());
    surface->unlockTexture();
    return image;
}

/// Reads the surface in a job of its own. `then` gets the image on the main thread at a later turn
/// of the run loop, as long as the jobs' owner is there.
void readInTurn(SurfaceJobs& jobs, QImage (*read)(const PixelSpan&),
                std::function<void(QImage)> then)
{
    jobs.whenReady([&jobs, read, then = std::move(then)] {
        const auto image = std::make_shared<QImage>();
        const bool isStarted = jobs.start(
            [image, read](const PixelSpan& pixels) {
                *image = read(pixels);
                return QRegion();
            },
            [image, then] { then(std::exchange(*image, QImage())); });
        if (!isStarted)
            mainQueue().async([owner = jobs.owner, then] {
                if (const std::shared_ptr<void> alive = owner.lock())
                    then(QImage());
            });
    });
}

} // namespace

QImage renderCutOut(OGLESMappedTexture* surface)
{
    return readLocked(surface, cutOut);
}

QImage copyStraightPixels(OGLESMappedTexture* surface)
{
    return readLocked(surface, straightCopy);
}

void renderCutOut(SurfaceJobs& jobs, std::function<void(QImage)> completion)
{
    readInTurn(jobs, cutOut, std::move(completion));
}

void renderCutOut(SurfaceJobs& jobs, std::function<bool(const PixelSpan&)> retouch,
                  std::function<void(QImage)> completion)
{
    // The surface is free again before the retouch, which may take a while.
    readInTurn(jobs, straightCopy,
               [owner = jobs.owner, retouch = std::move(retouch),
                completion = std::move(completion)](QImage pixels) {
                   runInBackground(
                       [pixels = std::move(pixels), retouch]() mutable {
                           return !pixels.isNull() && retouch(imageSpan(pixels))
                                      ? cutOutFromStraightPixels(std::exchange(pixels, QImage()))
                                      : QImage();
                       },
                       [owner, completion](QImage image) {
                           // Held for the length of the call.
                           if (const std::shared_ptr<void> alive = owner.lock())
                               completion(std::move(image));
                       });
               });
}

} // namespace pelmira
