#include "platform/quick/MipmapTexture.h"

#include <GLES2/gl2.h>
#include <GLES2/gl2ext.h>

#include <QOpenGLContext>
#include <QOpenGLFunctions>
#include <QQuickWindow>
#include <QSGRendererInterface>
#include <qsgtexture_platform.h>

namespace pelmira {
namespace {

bool takesLevelsOf(QSize size)
{
    const auto isPowerOfTwo = [](int length) { return (length & (length - 1)) == 0; };
    return (isPowerOfTwo(size.width()) && isPowerOfTwo(size.height())) ||
           QOpenGLContext::currentContext()->functions()->hasOpenGLFeature(
               QOpenGLFunctions::NPOTTextures);
}

/// Of the bound texture. False if GL refuses, or there is no memory.
bool sendLevel(int level, const QImage& image)
{
    const bool isBGRA = QOpenGLContext::currentContext()->hasExtension(
        QByteArrayLiteral("GL_EXT_texture_format_BGRA8888"));
    const GLenum form = isBGRA ? GL_BGRA_EXT : GL_RGBA;
    const QImage pixels = image.convertToFormat(isBGRA ? QImage::Format_ARGB32_Premultiplied
                                                       : QImage::Format_RGBA8888_Premultiplied);
    if (pixels.isNull())
        return false;
    discardGLErrors();
    glPixelStorei(GL_UNPACK_ALIGNMENT, 4);
    glTexImage2D(GL_TEXTURE_2D, level, static_cast<GLint>(form), pixels.width(), pixels.height(), 0,
                 form, GL_UNSIGNED_BYTE, pixels.constBits());
    return glGetError() == GL_NO_ERROR;
}

} // namespace

std::unique_ptr<MipmapTexture> MipmapTexture::make(QQuickWindow& window, const QImage& image)
{
    if (window.rendererInterface()->graphicsApi() != QSGRendererInterface::OpenGL ||
        !QOpenGLContext::currentContext() || !takesLevelsOf(image.size()))
        return nullptr;
    std::unique_ptr<MipmapTexture> texture(new MipmapTexture(GLTexture::generate()));
    const TextureBinding binding(texture->_name.get());
    setLinearClampedSampling();
    // Or the driver takes memory for this level alone, and moves it when the others come.
    glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_MIN_FILTER, GL_LINEAR_MIPMAP_LINEAR);
    if (!sendLevel(0, image))
        return nullptr;
    texture->_shown.reset(QNativeInterface::QSGOpenGLTexture::fromNative(
        texture->_name.get(), &window, image.size(),
        image.hasAlphaChannel() ? QQuickWindow::TextureHasAlphaChannel
                                : QQuickWindow::CreateTextureOptions()));
    return texture;
}

MipmapTexture::~MipmapTexture()
{
    if (!QOpenGLContext::currentContext())
        _name.forget(); // gone with it
}

bool MipmapTexture::addSmallerCopies(const std::vector<QImage>& copies)
{
    const TextureBinding binding(_name.get());
    int level = 0;
    for (const QImage& copy : copies)
        if (!sendLevel(++level, copy))
            return false;
    _hasSmallerCopies = true;
    return true;
}

} // namespace pelmira
