#include "platform/gl/GLContext.h"

#include "platform/gl/GLObjects.h"

#include <EGL/egl.h>
#include <EGL/eglext.h>
#include <GLES2/gl2.h>
#include <GLES2/gl2ext.h>

#include <QOffscreenSurface>
#include <QOpenGLContext>
#include <QSurfaceFormat>

#include <array>
#include <string_view>

namespace pelmira {
namespace {

bool hasExtension(std::string_view list, std::string_view name)
{
    for (std::size_t at = list.find(name); at != std::string_view::npos;
         at = list.find(name, at + 1)) {
        const std::size_t end = at + name.size();
        if ((at == 0 || list[at - 1] == ' ') && (end == list.size() || list[end] == ' '))
            return true;
    }
    return false;
}

// A GPU may take textures of a form and yet not draw into them, and know how to read a form back
// and yet not do so from each of them.
bool canDrawAndRead(GLenum format, GLenum readFormat)
{
    const GLTexture texture = GLTexture::generate();
    glBindTexture(GL_TEXTURE_2D, texture.get());
    glTexImage2D(GL_TEXTURE_2D, 0, static_cast<GLint>(format), 4, 4, 0, format, GL_UNSIGNED_BYTE,
                 nullptr);
    const GLFramebuffer framebuffer = GLFramebuffer::generate();
    const FramebufferBinding binding(framebuffer.get());
    glFramebufferTexture2D(GL_FRAMEBUFFER, GL_COLOR_ATTACHMENT0, GL_TEXTURE_2D, texture.get(), 0);
    const bool isDrawable = glCheckFramebufferStatus(GL_FRAMEBUFFER) == GL_FRAMEBUFFER_COMPLETE;
    std::array<GLubyte, 4> pixel{};
    if (isDrawable)
        glReadPixels(0, 0, 1, 1, readFormat, GL_UNSIGNED_BYTE, pixel.data());
    return glGetError() == GL_NO_ERROR && isDrawable;
}

class QtGLContext final : public GLContext {
public:
    ~QtGLContext() override { clearCurrent(); }

    bool open(QOpenGLContext& other, const Options& options)
    {
        QSurfaceFormat format;
        format.setRenderableType(QSurfaceFormat::OpenGLES);
        format.setVersion(2, 0);
        _context.setFormat(format);
        _context.setShareContext(&other);
        if (!_context.create() || !_context.isOpenGLES())
            return false;
        _surface.setFormat(_context.format());
        _surface.create();
        if (!makeCurrent())
            return false;
        readCapabilities(options);
        return true;
    }

    bool makeCurrent() override { return isCurrent() || _context.makeCurrent(&_surface); }
    bool isCurrent() const override { return QOpenGLContext::currentContext() == &_context; }
    void clearCurrent() override
    {
        if (isCurrent())
            _context.doneCurrent();
    }

private:
    QOffscreenSurface _surface;
    QOpenGLContext _context;
};

class SurfacelessGLContext final : public GLContext {
public:
    ~SurfacelessGLContext() override
    {
        clearCurrent();
        if (_context != EGL_NO_CONTEXT)
            eglDestroyContext(_display, _context);
    }

    bool open(const Options& options)
    {
        const auto getPlatformDisplay = reinterpret_cast<PFNEGLGETPLATFORMDISPLAYEXTPROC>(
            eglGetProcAddress("eglGetPlatformDisplayEXT"));
        if (!getPlatformDisplay)
            return false;
        // The display stays initialised: EGL gives every caller of the process the same one.
        _display = getPlatformDisplay(EGL_PLATFORM_SURFACELESS_MESA, EGL_DEFAULT_DISPLAY, nullptr);
        if (_display == EGL_NO_DISPLAY || !eglInitialize(_display, nullptr, nullptr) ||
            !eglBindAPI(EGL_OPENGL_ES_API))
            return false;
        const EGLint wanted[] = {EGL_RENDERABLE_TYPE, EGL_OPENGL_ES2_BIT, EGL_SURFACE_TYPE,
                                 EGL_PBUFFER_BIT, EGL_NONE};
        EGLConfig config = nullptr;
        EGLint count = 0;
        if (!eglChooseConfig(_display, wanted, &config, 1, &count) || count < 1)
            return false;
        const EGLint version[] = {EGL_CONTEXT_CLIENT_VERSION, 2, EGL_NONE};
        _context = eglCreateContext(_display, config, EGL_NO_CONTEXT, version);
        if (_context == EGL_NO_CONTEXT || !makeCurrent())
            return false;
        readCapabilities(options);
        return true;
    }

    bool makeCurrent() override
    {
        return isCurrent() || eglMakeCurrent(_display, EGL_NO_SURFACE, EGL_NO_SURFACE, _context);
    }
    bool isCurrent() const override
    {
        return _context != EGL_NO_CONTEXT && eglGetCurrentContext() == _context;
    }
    void clearCurrent() override
    {
        if (isCurrent())
            eglMakeCurrent(_display, EGL_NO_SURFACE, EGL_NO_SURFACE, EGL_NO_CONTEXT);
    }

private:
    EGLDisplay _display = EGL_NO_DISPLAY;
    EGLContext _context = EGL_NO_CONTEXT;
};

} // namespace

void GLContext::readCapabilities(const Options& options)
{
    const auto* text = reinterpret_cast<const char*>(glGetString(GL_EXTENSIONS));
    const std::string_view extensions = text ? text : "";
    _capabilities.framebufferFetch = options.allowFramebufferFetch &&
                                     hasExtension(extensions, "GL_EXT_shader_framebuffer_fetch");
    _capabilities.bgraTextures = options.allowBGRA &&
                                 hasExtension(extensions, "GL_EXT_texture_format_BGRA8888") &&
                                 canDrawAndRead(GL_BGRA_EXT, GL_RGBA);
    _capabilities.bgraReads =
        options.allowBGRA && hasExtension(extensions, "GL_EXT_read_format_bgra") &&
        canDrawAndRead(_capabilities.bgraTextures ? GL_BGRA_EXT : GL_RGBA, GL_BGRA_EXT);
    _capabilities.unpackRowLength =
        options.allowRowLengths && hasExtension(extensions, "GL_EXT_unpack_subimage");
    _capabilities.packRowLength =
        options.allowRowLengths && hasExtension(extensions, "GL_NV_pack_subimage");
    _capabilities.standardDerivatives = hasExtension(extensions, "GL_OES_standard_derivatives");
    glGetIntegerv(GL_MAX_TEXTURE_SIZE, &_capabilities.maxTextureSize);
}

std::shared_ptr<GLContext> GLContext::sharedWith(QOpenGLContext& other, Options options)
{
    auto context = std::make_shared<QtGLContext>();
    return context->open(other, options) ? context : nullptr;
}

std::shared_ptr<GLContext> GLContext::surfaceless(Options options)
{
    auto context = std::make_shared<SurfacelessGLContext>();
    return context->open(options) ? context : nullptr;
}

} // namespace pelmira
