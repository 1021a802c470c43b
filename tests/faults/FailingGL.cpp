#include "faults/Countdown.h"
#include "faults/FailingCalls.h"

#include <EGL/egl.h>
#include <GLES2/gl2.h>

#include <algorithm>

namespace {

/// What a driver without memory leaves behind.
GLenum pendingError = GL_NO_ERROR;

bool fails(const char* what)
{
    if (!isCounted(FailingKind::GL) || !strikes(what))
        return false;
    pendingError = GL_OUT_OF_MEMORY;
    return true;
}

} // namespace

extern "C" {

void failing_gl_begin(int nth, bool andAllAfter)
{
    beginCounting(FailingKind::GL, nth, andAllAfter);
}

// The driver's own errors stay in their order: the oldest comes first in any case.
GLenum glGetError()
{
    static auto* const original = next(&glGetError, "glGetError");
    if (pendingError == GL_NO_ERROR)
        return original();
    const GLenum error = pendingError;
    pendingError = GL_NO_ERROR;
    return error;
}

EGLContext eglCreateContext(EGLDisplay display, EGLConfig config, EGLContext share,
                            const EGLint* attributes)
{
    static auto* const original = next(&eglCreateContext, "eglCreateContext");
    return fails("eglCreateContext") ? EGL_NO_CONTEXT
                                     : original(display, config, share, attributes);
}

#define GENERATE(NAME)                                                                             \
    void NAME(GLsizei count, GLuint* names)                                                        \
    {                                                                                              \
        static auto* const original = next(&NAME, #NAME);                                          \
        if (fails(#NAME))                                                                          \
            std::fill_n(names, count, 0U);                                                         \
        else                                                                                       \
            original(count, names);                                                                \
    }
GENERATE(glGenTextures)
GENERATE(glGenFramebuffers)

GLenum glCheckFramebufferStatus(GLenum target)
{
    static auto* const original = next(&glCheckFramebufferStatus, "glCheckFramebufferStatus");
    return fails("glCheckFramebufferStatus") ? GL_FRAMEBUFFER_UNSUPPORTED : original(target);
}

GLuint glCreateProgram()
{
    static auto* const original = next(&glCreateProgram, "glCreateProgram");
    return fails("glCreateProgram") ? 0 : original();
}

GLuint glCreateShader(GLenum type)
{
    static auto* const original = next(&glCreateShader, "glCreateShader");
    return fails("glCreateShader") ? 0 : original(type);
}

// What isn't compiled or linked says so when it is asked.
void glCompileShader(GLuint shader)
{
    static auto* const original = next(&glCompileShader, "glCompileShader");
    if (!fails("glCompileShader"))
        original(shader);
}

void glLinkProgram(GLuint program)
{
    static auto* const original = next(&glLinkProgram, "glLinkProgram");
    if (!fails("glLinkProgram"))
        original(program);
}

void glTexImage2D(GLenum target, GLint level, GLint form, GLsizei width, GLsizei height,
                  GLint border, GLenum format, GLenum type, const void* pixels)
{
    static auto* const original = next(&glTexImage2D, "glTexImage2D");
    if (!fails("glTexImage2D"))
        original(target, level, form, width, height, border, format, type, pixels);
}

void glTexSubImage2D(GLenum target, GLint level, GLint x, GLint y, GLsizei width, GLsizei height,
                     GLenum format, GLenum type, const void* pixels)
{
    static auto* const original = next(&glTexSubImage2D, "glTexSubImage2D");
    if (!fails("glTexSubImage2D"))
        original(target, level, x, y, width, height, format, type, pixels);
}

void glReadPixels(GLint x, GLint y, GLsizei width, GLsizei height, GLenum format, GLenum type,
                  void* pixels)
{
    static auto* const original = next(&glReadPixels, "glReadPixels");
    if (!fails("glReadPixels"))
        original(x, y, width, height, format, type, pixels);
}
}
