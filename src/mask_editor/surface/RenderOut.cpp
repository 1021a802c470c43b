#include "mask_editor/surface/RenderOut.h"

#include "platform/pixels/BitmapContext.h"
#include "platform/pixels/PremultipliedAlpha.h"

#include <algorithm>
#include <functional>
#include <utility>

namespace pelmira {
namespace {

/// A new image of the surface's size, after `fill` got the surface's pixels and its own.
QImage filledFrom(OGLESMappedTexture* surface,
                  const std::function<void(const PixelSpan&, const PixelSpan&)>& fill)
{
    if (!surface || surface->bounds().isEmpty())
        return {};
    QImage image = createBGRABitmapContextWithSize(surface->bounds().size());
    if (image.isNull() || !surface->lockTexture())
        return {};
    fill(surface->lockedPixels(), imageSpan(image));
    surface->unlockTexture();
    return image;
}

/// What a copy of the straight pixels becomes as a cut-out, in the same memory.
QImage cutOutFromStraightPixels(QImage pixels)
{
    if (pixels.isNull())
        return {};
    const PixelSpan span = imageSpan(pixels);
    premultiply(span, span);
    pixels.reinterpretAsFormat(QImage::Format_ARGB32_Premultiplied);
    return pixels;
}

/// Called from any thread, it passes an image on in the main one, unless the owner has gone.
std::function<void(QImage)> whileAlive(const std::weak_ptr<void>& owner,
                                       std::function<void(QImage)> completion)
{
    return [owner, completion = std::move(completion)](QImage image) {
        mainQueue().async([owner, completion, image = std::move(image)] {
            // Held for the length of the call.
            if (const std::shared_ptr<void> alive = owner.lock(); alive && completion)
                completion(image);
        });
    };
}

} // namespace

QImage renderCutOut(OGLESMappedTexture* surface)
{
    return filledFrom(surface, premultiply);
}

QImage copyStraightPixels(OGLESMappedTexture* surface)
{
    QImage pixels = filledFrom(surface, [](const PixelSpan& from, const PixelSpan& to) {
        for (std::uint32_t y = 0; y < to.height; ++y)
            std::copy_n(from.row(y), to.width, to.row(y));
    });
    pixels.reinterpretAsFormat(QImage::Format_ARGB32);
    return pixels;
}

void renderCutOut(SurfaceJobs& jobs, std::function<void(QImage)> completion)
{
    jobs.whenReady([&jobs, give = whileAlive(jobs.owner, std::move(completion))] {
        give(renderCutOut(jobs.surface()));
    });
}

void renderCutOut(SurfaceJobs& jobs, std::function<bool(const PixelSpan&)> retouch,
                  std::function<void(QImage)> completion)
{
    jobs.whenReady([&jobs, retouch = std::move(retouch),
                    give = whileAlive(jobs.owner, std::move(completion))] {
        // Shared, so that the job changes these very pixels and no copy of them.
        const auto pixels = std::make_shared<QImage>(copyStraightPixels(jobs.surface()));
        globalQueue(QueuePriority::UserInitiated).async([pixels, retouch, give] {
            const bool isRetouched = !pixels->isNull() && retouch(imageSpan(*pixels));
            give(isRetouched ? cutOutFromStraightPixels(std::exchange(*pixels, QImage()))
                             : QImage());
        });
    });
}

} // namespace pelmira
