#pragma once

#include "platform/gl/GLContext.h"
#include "platform/pixels/PixelSpan.h"

#include <QRect>

namespace pelmira {

/// Moves rectangles of B, G, R, A pixels between memory and a GL texture, by whatever forms the
/// GPU takes: byte order and row stride are converted on the CPU where it knows neither.
/// Rectangles are in pixels from the first memory row, which is GL's row 0; they must lie inside.
class PixelTransfer {
public:
    explicit PixelTransfer(const GLCapabilities& capabilities) : _capabilities(capabilities) {}

    /// Gives the bound texture its storage, contents undefined. False if GL refuses.
    bool allocateTexture(int width, int height) const;
    /// Writes one rectangle of `pixels` into the same place of the bound texture. False if GL
    /// refuses, or there is no memory; what the texture then holds there is undefined.
    bool upload(const PixelSpan& pixels, const QRect& rectangle) const;
    /// Reads one rectangle of the bound framebuffer into the same place of `pixels`. False if GL
    /// refuses, or there is no memory; the pixels then hold what they held, or rubbish.
    bool readBack(const PixelSpan& pixels, const QRect& rectangle) const;

private:
    GLCapabilities _capabilities;
};

} // namespace pelmira
