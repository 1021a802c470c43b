#include "mask_editor/surface/RenderOut.h"

#include "platform/pixels/BitmapContext.h"
#include "platform/pixels/PremultipliedAlpha.h"

namespace pelmira {

QImage renderCutOut(OGLESMappedTexture* surface)
{
    if (!surface || surface->bounds().isEmpty())
        return {};
    QImage cutOut = createBGRABitmapContextWithSize(surface->bounds().size());
    // A fill may be at work: the lock only brings over what the GPU has drawn. If one holds it,
    // the pixels are there already and its own unlock must find the lock standing.
    const bool isHeld = surface->baseAddress() != nullptr;
    if (cutOut.isNull() || (!isHeld && !surface->lockTexture()))
        return {};
    premultiply(surface->lockedPixels(),
                {reinterpret_cast<std::uint32_t*>(cutOut.bits()), surface->width(),
                 surface->height(), static_cast<std::uint32_t>(cutOut.bytesPerLine())});
    if (!isHeld)
        surface->unlockTexture();
    return cutOut;
}

} // namespace pelmira
