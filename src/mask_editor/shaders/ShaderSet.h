#pragma once

#include "mask_editor/shaders/ShaderProgram.h"
#include "platform/gl/GLContext.h"

#include <QString>

#include <memory>

namespace pelmira {

/// The editor's programs, loaded from the bundled shader files. A program that fails to load
/// stays empty, with a line in the log; drawing with it shows nothing.
class ShaderSet {
public:
    explicit ShaderSet(std::shared_ptr<GLContext> context);
    /// Deletes the programs; needs no current context.
    ~ShaderSet();

    /// Each stops at its first failure.
    bool loadFgShaders();
    bool loadBrushShaders();
    bool loadMaskInvertShader();
    bool loadShowBrushShader();
    bool loadWandZoomShader();

    ShaderProgram fgProgram;
    ShaderProgram fgColorProgram;
    ShaderProgram fgRedMaskProgram;
    ShaderProgram eraseProgram;
    ShaderProgram replaceProgram;
    ShaderProgram createBrushProgram;
    ShaderProgram maskInvertProgram;
    ShaderProgram showBrushOffsetProgram;
    ShaderProgram showBrushProgram;
    ShaderProgram wandZoomProgram;

    /// How many stamps one draw can take where the target has to be copied to be read.
    static constexpr int stampsPerDraw = 16;

private:
    bool loadProgramWithVertexShaderNamed(const QString& vertexName,
                                          const QString& fragmentShaderName,
                                          ShaderProgram& programPtr, bool isTwoTexture = false);
    bool compileShader(GLShader& shader, GLenum type, const QString& file) const;
    static bool linkProgram(GLuint program);
    /// A development aid: logs what GL thinks of the program in its present state.
    static bool validateProgram(GLuint program);

    std::shared_ptr<GLContext> _context;
};

} // namespace pelmira
