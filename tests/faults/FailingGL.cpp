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

// Takes the place of the driver's function; what fails gives `FAILURE` and does nothing. What isn't
// compiled or linked says so when it is asked.
#define INSTEAD(RESULT, NAME, FAILURE, PARAMETERS, ARGUMENTS)                                      \
    RESULT NAME PARAMETERS                                                                         \
    {                                                                                              \
        static auto* const original = next(&NAME, #NAME);                                          \
        return fails(#NAME) ? FAILURE : original ARGUMENTS;                                        \
    }
INSTEAD(EGLContext, eglCreateContext, EGL_NO_CONTEXT,
        (EGLDisplay display, EGLConfig config, EGLContext share, const EGLint* attributes),
        (display, config, share, attributes))
INSTEAD(void, glGenTextures, (void)std::fill_n(names, count, 0U), (GLsizei count, GLuint* names),
        (count, names))
INSTEAD(void, glGenFramebuffers, (void)std::fill_n(names, count, 0U),
        (GLsizei count, GLuint* names), (count, names))
INSTEAD(GLenum, glCheckFramebufferStatus, GL_FRAMEBUFFER_UNSUPPORTED, (GLenum target), (target))
INSTEAD(GLuint, glCreateProgram, 0, (), ())
INSTEAD(GLuint, glCreateShader, 0, (GLenum type), (type))
INSTEAD(void, glCompileShader, (void)0, (GLuint shader), (shader))
INSTEAD(void, glLinkProgram, (void)0, (GLuint program), (program))
INSTEAD(void, glTexImage2D, (void)0,
        (GLenum target, GLint level, GLint form, GLsizei width, GLsizei height, GLint border,
         GLenum format, GLenum type, const void* pixels),
        (target, level, form, width, height, border, format, type, pixels))
INSTEAD(void, glTexSubImage2D, (void)0,
        (GLenum target, GLint level, GLint x, GLint y, GLsizei width, GLsizei height, GLenum format,
         GLenum type, const void* pixels),
        (target, level, x, y, width, height, format, type, pixels))
INSTEAD(void, glReadPixels, (void)0,
        (GLint x, GLint y, GLsizei width, GLsizei height, GLenum format, GLenum type, void* pixels),
        (x, y, width, height, format, type, pixels))
}
