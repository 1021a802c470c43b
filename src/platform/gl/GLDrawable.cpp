#include "platform/gl/GLDrawable.h"

#include <utility>

namespace pelmira {

GLDrawable::GLDrawable(std::shared_ptr<GLContext> context) : _context(std::move(context))
{
}

GLDrawable::~GLDrawable()
{
    if (_context->makeCurrent())
        return;
    _texture.forget();
    _framebuffer.forget();
}

bool GLDrawable::bind(QSize pixels)
{
    if (pixels.isEmpty() || !_context->makeCurrent())
        return false;
    if (pixels != _size) {
        // A new name rather than a resized texture: whoever shows the old one may still read it.
        _texture = GLTexture::generate();
        glBindTexture(GL_TEXTURE_2D, _texture.get());
        setLinearClampedSampling();
        glTexImage2D(GL_TEXTURE_2D, 0, GL_RGBA, pixels.width(), pixels.height(), 0, GL_RGBA,
                     GL_UNSIGNED_BYTE, nullptr);
        _framebuffer = GLFramebuffer::generate();
        glBindFramebuffer(GL_FRAMEBUFFER, _framebuffer.get());
        glFramebufferTexture2D(GL_FRAMEBUFFER, GL_COLOR_ATTACHMENT0, GL_TEXTURE_2D, _texture.get(),
                               0);
        _size = pixels;
    }
    glBindFramebuffer(GL_FRAMEBUFFER, _framebuffer.get());
    glViewport(0, 0, _size.width(), _size.height());
    return glCheckFramebufferStatus(GL_FRAMEBUFFER) == GL_FRAMEBUFFER_COMPLETE;
}

QImage GLDrawable::readPixels()
{
    QImage image(_size, QImage::Format_RGBA8888);
    if (image.isNull() || !_context->makeCurrent())
        return {};
    const FramebufferBinding binding(_framebuffer.get());
    glPixelStorei(GL_PACK_ALIGNMENT, 4);
    glReadPixels(0, 0, _size.width(), _size.height(), GL_RGBA, GL_UNSIGNED_BYTE, image.bits());
    return image.mirrored();
}

} // namespace pelmira
