#pragma once

#include "platform/gl/GLContext.h"

#include <GLES2/gl2.h>

#include <utility>

namespace pelmira {

/// Owns one GL name. The context that made it, or one of its share group, must be current when
/// it is destroyed; `deleteOrForget` sees to that.
template <class Kind>
class GLName {
public:
    GLName() = default;
    explicit GLName(GLuint name) : _name(name) {}
    GLName(GLName&& other) noexcept : _name(std::exchange(other._name, 0)) {}
    GLName& operator=(GLName&& other) noexcept
    {
        if (this != &other) {
            reset();
            _name = std::exchange(other._name, 0);
        }
        return *this;
    }
    GLName(const GLName&) = delete;
    GLName& operator=(const GLName&) = delete;
    ~GLName() { reset(); }

    static GLName generate() { return GLName(Kind::generate()); }

    GLuint get() const { return _name; }
    explicit operator bool() const { return _name != 0; }

    void reset()
    {
        if (_name != 0)
            Kind::release(std::exchange(_name, 0));
    }
    void forget() { _name = 0; }

private:
    GLuint _name = 0;
};

struct GLTextureKind {
    static GLuint generate()
    {
        GLuint name = 0;
        glGenTextures(1, &name);
        return name;
    }
    static void release(GLuint name) { glDeleteTextures(1, &name); }
};

struct GLFramebufferKind {
    static GLuint generate()
    {
        GLuint name = 0;
        glGenFramebuffers(1, &name);
        return name;
    }
    static void release(GLuint name) { glDeleteFramebuffers(1, &name); }
};

struct GLProgramKind {
    static GLuint generate() { return glCreateProgram(); }
    static void release(GLuint name) { glDeleteProgram(name); }
};

struct GLShaderKind {
    static void release(GLuint name) { glDeleteShader(name); }
};

using GLTexture = GLName<GLTextureKind>;
using GLFramebuffer = GLName<GLFramebufferKind>;
using GLProgram = GLName<GLProgramKind>;
using GLShader = GLName<GLShaderKind>;

/// Deletes the names with their context current. Where it can't be made current any more, or never
/// was there, the names are gone with it and only forgotten.
template <class... Names>
void deleteOrForget(GLContext* context, Names&... names)
{
    if (context && context->makeCurrent())
        (names.reset(), ...);
    else
        (names.forget(), ...);
}

/// Binds another object for the length of a scope and then puts the earlier one back.
template <GLenum Target, GLenum Query, auto& Bind>
class ScopedBinding {
public:
    explicit ScopedBinding(GLuint name)
    {
        glGetIntegerv(Query, &_saved);
        Bind(Target, name);
    }
    ScopedBinding(const ScopedBinding&) = delete;
    ScopedBinding& operator=(const ScopedBinding&) = delete;
    ~ScopedBinding() { Bind(Target, static_cast<GLuint>(_saved)); }

private:
    GLint _saved = 0;
};

using FramebufferBinding = ScopedBinding<GL_FRAMEBUFFER, GL_FRAMEBUFFER_BINDING, glBindFramebuffer>;
using TextureBinding = ScopedBinding<GL_TEXTURE_2D, GL_TEXTURE_BINDING_2D, glBindTexture>;

/// So that the next error is that of the next call. A context that is lost never runs out of them.
inline void discardGLErrors()
{
    for (int i = 0; i < 8 && glGetError() != GL_NO_ERROR; ++i) {
    }
}

/// Gives the bound 2D texture linear filters and clamped edges.
inline void setLinearClampedSampling()
{
    glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_MIN_FILTER, GL_LINEAR);
    glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_MAG_FILTER, GL_LINEAR);
    glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_WRAP_S, GL_CLAMP_TO_EDGE);
    glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_WRAP_T, GL_CLAMP_TO_EDGE);
}

} // namespace pelmira
