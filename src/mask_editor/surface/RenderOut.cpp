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

QImage cutOutFromStraightPixels(QImage pixels)
{
    if (pixels.isNull())
        return {};
    const PixelSpan span = imageSpan(pixels);
    premultiply(span, span);
    pixels.reinterpretAsFormat(QImage::Format_ARGB32_Premultiplied);
    return pixels;
}

} // namespace pelmira
