#include "mask_editor/surface/RenderOut.h"

#include "platform/pixels/BitmapContext.h"
#include "platform/pixels/PremultipliedAlpha.h"

namespace pelmira {

QImage renderCutOut(OGLESMappedTexture* surface)
{
    if (!surface || surface->bounds().isEmpty())
        return {};
    QImage cutOut = createBGRABitmapContextWithSize(surface->bounds().size());
    if (cutOut.isNull() || !surface->lockTexture())
        return {};
    premultiply(surface->lockedPixels(),
                {reinterpret_cast<std::uint32_t*>(cutOut.bits()), surface->width(),
                 surface->height(), static_cast<std::uint32_t>(cutOut.bytesPerLine())});
    surface->unlockTexture();
    return cutOut;
}

} // namespace pelmira
