#include "platform/gl/PixelTransfer.h"

#include "platform/gl/GLObjects.h"

#include <GLES2/gl2.h>
#include <GLES2/gl2ext.h>

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <memory>
#include <new>

namespace pelmira {
namespace {

// Of GL_NV_pack_subimage, which the common headers leave out.
constexpr GLenum packRowLengthNV = 0x0D02;

// B, G, R, A and R, G, B, A differ by the first and third byte; the swap is its own inverse.
void copyRow(const std::uint32_t* source, std::uint32_t* target, int width, bool swapRedAndBlue)
{
    if (!swapRedAndBlue) {
        std::memcpy(target, source, static_cast<std::size_t>(width) * 4);
        return;
    }
    for (int x = 0; x < width; ++x) {
        const std::uint32_t p = source[x];
        target[x] = (p & 0xFF00FF00U) | ((p >> 16) & 0xFFU) | ((p & 0xFFU) << 16);
    }
}

std::unique_ptr<std::uint32_t[]> packedPixels(const QRect& r)
{
    const std::size_t count = static_cast<std::size_t>(r.width()) * r.height();
    return std::unique_ptr<std::uint32_t[]>(new (std::nothrow) std::uint32_t[count]);
}

GLenum format(bool isBGRA)
{
    return isBGRA ? GL_BGRA_EXT : GL_RGBA;
}

} // namespace

bool PixelTransfer::allocateTexture(int width, int height) const
{
    if (width < 1 || height < 1 || std::max(width, height) > _capabilities.maxTextureSize)
        return false;
    discardGLErrors();
    const GLenum form = format(_capabilities.bgraTextures);
    glTexImage2D(GL_TEXTURE_2D, 0, static_cast<GLint>(form), width, height, 0, form,
                 GL_UNSIGNED_BYTE, nullptr);
    return glGetError() == GL_NO_ERROR;
}

bool PixelTransfer::upload(const PixelSpan& pixels, const QRect& r) const
{
    discardGLErrors();
    glPixelStorei(GL_UNPACK_ALIGNMENT, 4);
    const GLenum form = format(_capabilities.bgraTextures);
    const std::uint32_t* first = pixels.row(static_cast<std::uint32_t>(r.y())) + r.x();
    if (_capabilities.bgraTextures && _capabilities.unpackRowLength) {
        glPixelStorei(GL_UNPACK_ROW_LENGTH_EXT, static_cast<GLint>(pixels.bytesPerRow >> 2));
        glTexSubImage2D(GL_TEXTURE_2D, 0, r.x(), r.y(), r.width(), r.height(), form,
                        GL_UNSIGNED_BYTE, first);
        glPixelStorei(GL_UNPACK_ROW_LENGTH_EXT, 0);
        return glGetError() == GL_NO_ERROR;
    }
    const auto packed = packedPixels(r);
    if (!packed)
        return false;
    for (int y = 0; y < r.height(); ++y)
        copyRow(pixels.row(static_cast<std::uint32_t>(r.y() + y)) + r.x(),
                packed.get() + static_cast<std::size_t>(r.width()) * y, r.width(),
                !_capabilities.bgraTextures);
    glTexSubImage2D(GL_TEXTURE_2D, 0, r.x(), r.y(), r.width(), r.height(), form, GL_UNSIGNED_BYTE,
                    packed.get());
    return glGetError() == GL_NO_ERROR;
}

bool PixelTransfer::readBack(const PixelSpan& pixels, const QRect& r) const
{
    discardGLErrors();
    glPixelStorei(GL_PACK_ALIGNMENT, 4);
    const GLenum form = format(_capabilities.bgraReads);
    if (_capabilities.bgraReads && _capabilities.packRowLength) {
        glPixelStorei(packRowLengthNV, static_cast<GLint>(pixels.bytesPerRow >> 2));
        glReadPixels(r.x(), r.y(), r.width(), r.height(), form, GL_UNSIGNED_BYTE,
                     pixels.row(static_cast<std::uint32_t>(r.y())) + r.x());
        glPixelStorei(packRowLengthNV, 0);
        return glGetError() == GL_NO_ERROR;
    }
    const auto packed = packedPixels(r);
    if (!packed)
        return false;
    glReadPixels(r.x(), r.y(), r.width(), r.height(), form, GL_UNSIGNED_BYTE, packed.get());
    if (glGetError() != GL_NO_ERROR)
        return false;
    for (int y = 0; y < r.height(); ++y)
        copyRow(packed.get() + static_cast<std::size_t>(r.width()) * y,
                pixels.row(static_cast<std::uint32_t>(r.y() + y)) + r.x(), r.width(),
                !_capabilities.bgraReads);
    return true;
}

} // namespace pelmira
