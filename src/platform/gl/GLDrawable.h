#pragma once

#include "platform/gl/GLContext.h"
#include "platform/gl/GLObjects.h"

#include <QImage>
#include <QSize>

#include <memory>

namespace pelmira {

/// The framebuffer behind a `GLView`: one colour texture and no depth. Its contents stay from
/// frame to frame, in the middle of a new size too, with nothing around them.
class GLDrawable {
public:
    explicit GLDrawable(std::shared_ptr<GLContext> context);
    ~GLDrawable();
    GLDrawable(const GLDrawable&) = delete;
    GLDrawable& operator=(const GLDrawable&) = delete;

    /// Makes the context current, binds the framebuffer, remade if the size in pixels is new,
    /// and sets the viewport. False if there is nothing to draw into.
    bool bind(QSize pixels);

    GLuint texture() const { return _texture.get(); }
    QSize size() const { return _size; }
    /// The contents as shown, top row first.
    QImage readPixels();

private:
    void resize(QSize pixels);

    std::shared_ptr<GLContext> _context;
    GLTexture _texture;
    GLFramebuffer _framebuffer;
    QSize _size;
};

} // namespace pelmira
