#include "platform/gl/GLDrawable.h"

#include <utility>

namespace pelmira {

GLDrawable::GLDrawable(std::shared_ptr<GLContext> context) : _context(std::move(context))
{
}

GLDrawable::~GLDrawable()
{
    deleteOrForget(_context.get(), _texture, _framebuffer);
}

bool GLDrawable::bind(QSize pixels)
{
    if (pixels.isEmpty() || !_context->makeCurrent())
        return false;
    if (pixels != _size)
        resize(pixels);
    glBindFramebuffer(GL_FRAMEBUFFER, _framebuffer.get());
    glViewport(0, 0, _size.width(), _size.height());
    return glCheckFramebufferStatus(GL_FRAMEBUFFER) == GL_FRAMEBUFFER_COMPLETE;
}

void GLDrawable::resize(QSize pixels)
{
    // A new name rather than a resized texture: whoever shows the old one may still read it.
    GLTexture texture = GLTexture::generate();
    glBindTexture(GL_TEXTURE_2D, texture.get());
    setLinearClampedSampling();
    glTexImage2D(GL_TEXTURE_2D, 0, GL_RGBA, pixels.width(), pixels.height(), 0, GL_RGBA,
                 GL_UNSIGNED_BYTE, nullptr);
    GLFramebuffer framebuffer = GLFramebuffer::generate();
    glBindFramebuffer(GL_FRAMEBUFFER, framebuffer.get());
    glFramebufferTexture2D(GL_FRAMEBUFFER, GL_COLOR_ATTACHMENT0, GL_TEXTURE_2D, texture.get(), 0);
    glClearColor(0, 0, 0, 0);
    glClear(GL_COLOR_BUFFER_BIT);
    if (_framebuffer) {
        const QSize kept = pixels.boundedTo(_size);
        const QSize to = (pixels - kept) / 2;
        const QSize from = (_size - kept) / 2;
        glBindFramebuffer(GL_FRAMEBUFFER, _framebuffer.get());
        glCopyTexSubImage2D(GL_TEXTURE_2D, 0, to.width(), to.height(), from.width(), from.height(),
                            kept.width(), kept.height());
    }
    _texture = std::move(texture);
    _framebuffer = std::move(framebuffer);
    _size = pixels;
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
