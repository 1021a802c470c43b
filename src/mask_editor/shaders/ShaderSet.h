#pragma once

#include "mask_editor/shaders/ShaderProgram.h"
#include "platform/gl/GLContext.h"

#include <QByteArray>
#include <QString>

#include <functional>
#include <memory>

namespace pelmira {

/// The editor's programs, loaded from the bundled shader files. A program that fails to load
/// stays empty, with a line in the log; drawing with it shows nothing.
class ShaderSet {
public:
    /// The text of a shader file; empty if there is none.
    using Source = std::function<QByteArray(const QString& file)>;

    explicit ShaderSet(std::shared_ptr<GLContext> context, Source source = &bundledFile);
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

private:
    static QByteArray bundledFile(const QString& file);
    bool loadStampProgram(const QString& fragmentShaderName, ShaderProgram& program);
    bool loadProgramWithVertexShaderNamed(const QString& vertexName,
                                          const QString& fragmentShaderName,
                                          ShaderProgram& programPtr, bool isTwoTexture = false,
                                          int stampsPerDraw = 1);
    bool compileShader(GLShader& shader, GLenum type, const QString& file, int stampsPerDraw) const;
    static bool linkProgram(GLuint program);
    /// A development aid: logs what GL thinks of the program in its present state.
    static bool validateProgram(GLuint program);

    std::shared_ptr<GLContext> _context;
    Source _source;
};

} // namespace pelmira
