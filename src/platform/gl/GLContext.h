#pragma once

#include <memory>

class QOpenGLContext;

namespace pelmira {

/// What the GPU at hand can do beyond bare OpenGL ES 2.0.
struct GLCapabilities {
    bool framebufferFetch = false; ///< GL_EXT_shader_framebuffer_fetch: a shader reads its target
    bool bgraTextures = false;     ///< GL_EXT_texture_format_BGRA8888, and it can be drawn into
    bool bgraReads = false;        ///< GL_EXT_read_format_bgra
    bool unpackRowLength = false;  ///< GL_EXT_unpack_subimage: uploads honour a row stride
    bool packRowLength = false;    ///< GL_NV_pack_subimage: read-backs honour a row stride
    bool standardDerivatives = false; ///< GL_OES_standard_derivatives
    int maxTextureSize = 0;           ///< pixels on a side
};

/// Features that a caller turns off although the GPU offers them, so that the path taken by
/// GPUs without them can be tested and compared.
struct GLContextOptions {
    bool allowFramebufferFetch = true;
    bool allowBGRA = true;
    bool allowRowLengths = true;
};

/// An OpenGL ES 2.0 context. One thread, the main thread, uses it.
class GLContext {
public:
    using Options = GLContextOptions;

    /// A context of our own, in one share group with the other. Nothing on failure.
    static std::shared_ptr<GLContext> sharedWith(QOpenGLContext& other, Options options = {});
    /// A bare EGL context without window or display. Nothing on failure.
    static std::shared_ptr<GLContext> surfaceless(Options options = {});

    GLContext(const GLContext&) = delete;
    GLContext& operator=(const GLContext&) = delete;
    virtual ~GLContext() = default;

    virtual bool makeCurrent() = 0;
    virtual bool isCurrent() const = 0;
    /// Leaves no context current on this thread.
    virtual void clearCurrent() = 0;

    const GLCapabilities& capabilities() const { return _capabilities; }

protected:
    GLContext() = default;
    /// Fills the capabilities; the context must be current.
    void readCapabilities(const Options& options);

private:
    GLCapabilities _capabilities;
};

} // namespace pelmira
