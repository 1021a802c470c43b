#include "mask_editor/shaders/ShaderSet.h"

#include "platform/base/Log.h"

#include <QByteArray>
#include <QFile>

#include <array>
#include <string>
#include <utility>

namespace pelmira {
namespace {

QString shaderFile(const QString& name, const char* extension)
{
    return QStringLiteral(":/shaders/%1.%2").arg(name, QLatin1String(extension));
}

// How many stamps one draw takes at most where the target has to be copied to be read.
constexpr int mostStampsPerDraw = 16;

QByteArray fragmentPreamble(const GLCapabilities& capabilities, int stampsPerDraw)
{
    QByteArray preamble;
    if (capabilities.framebufferFetch)
        preamble += "#extension GL_EXT_shader_framebuffer_fetch : require\n"
                    "#define FRAMEBUFFER_FETCH\n";
    if (capabilities.standardDerivatives)
        preamble += "#extension GL_OES_standard_derivatives : enable\n";
    preamble += "#define STAMPS_PER_DRAW " + QByteArray::number(stampsPerDraw) + "\n";
    return preamble;
}

} // namespace

ShaderSet::ShaderSet(std::shared_ptr<GLContext> context, Source source)
    : _context(std::move(context)), _source(std::move(source))
{
}

QByteArray ShaderSet::bundledFile(const QString& file)
{
    QFile source(file);
    return source.open(QIODevice::ReadOnly) ? source.readAll() : QByteArray();
}

ShaderSet::~ShaderSet()
{
    deleteOrForget(_context.get(), fgProgram.name, fgColorProgram.name, fgRedMaskProgram.name,
                   eraseProgram.name, replaceProgram.name, createBrushProgram.name,
                   maskInvertProgram.name, showBrushOffsetProgram.name, showBrushProgram.name,
                   wandZoomProgram.name);
}

bool ShaderSet::loadFgShaders()
{
    const QString shared = QStringLiteral("Shader");
    return loadProgramWithVertexShaderNamed(shared, QStringLiteral("CheckerScreenShader"),
                                            fgProgram) &&
           loadProgramWithVertexShaderNamed(shared, QStringLiteral("ColorScreenShader"),
                                            fgColorProgram) &&
           loadProgramWithVertexShaderNamed(shared, QStringLiteral("RedMaskShader"),
                                            fgRedMaskProgram);
}

bool ShaderSet::loadBrushShaders()
{
    return loadStampProgram(QStringLiteral("EraseShader"), eraseProgram) &&
           loadStampProgram(QStringLiteral("ReplaceShader"), replaceProgram) &&
           loadProgramWithVertexShaderNamed(
               QStringLiteral("Shader"), QStringLiteral("CreateBrushShader"), createBrushProgram);
}

// Sixteen stamps are more texture reads than some GPUs allow a shader.
bool ShaderSet::loadStampProgram(const QString& fragmentShaderName, ShaderProgram& program)
{
    const QString vertexName = QStringLiteral("Shader");
    return (!_context->capabilities().framebufferFetch &&
            loadProgramWithVertexShaderNamed(vertexName, fragmentShaderName, program, false,
                                             mostStampsPerDraw)) ||
           loadProgramWithVertexShaderNamed(vertexName, fragmentShaderName, program);
}

bool ShaderSet::loadMaskInvertShader()
{
    return loadProgramWithVertexShaderNamed(QStringLiteral("Shader"),
                                            QStringLiteral("MaskInvertShader"), maskInvertProgram);
}

bool ShaderSet::loadShowBrushShader()
{
    const QString shared = QStringLiteral("Shader");
    return loadProgramWithVertexShaderNamed(shared, QStringLiteral("ShowBrushOffsetShader"),
                                            showBrushOffsetProgram) &&
           loadProgramWithVertexShaderNamed(shared, QStringLiteral("ShowBrushShader"),
                                            showBrushProgram);
}

bool ShaderSet::loadWandZoomShader()
{
    return loadProgramWithVertexShaderNamed(
        QStringLiteral("WandZoomShader"), QStringLiteral("WandZoomShader"), wandZoomProgram, true);
}

bool ShaderSet::loadProgramWithVertexShaderNamed(const QString& vertexName,
                                                 const QString& fragmentShaderName,
                                                 ShaderProgram& programPtr, bool isTwoTexture,
                                                 int stampsPerDraw)
{
    programPtr = {};
    programPtr.stampsPerDraw = stampsPerDraw;
    programPtr.name = GLProgram::generate();
    const GLuint program = programPtr.name.get();
    GLShader vertex;
    if (!compileShader(vertex, GL_VERTEX_SHADER, shaderFile(vertexName, "vsh"), stampsPerDraw)) {
        logLine("Failed to compile vertex shader");
        return false;
    }
    GLShader fragment;
    if (!compileShader(fragment, GL_FRAGMENT_SHADER, shaderFile(fragmentShaderName, "fsh"),
                       stampsPerDraw)) {
        logLine("Failed to compile fragment shader: %s", qPrintable(fragmentShaderName));
        return false;
    }
    glAttachShader(program, vertex.get());
    glAttachShader(program, fragment.get());
    glBindAttribLocation(program, AttributePosition, "position");
    glBindAttribLocation(program, AttributeTexCoord, "texCoordIn");
    if (isTwoTexture)
        glBindAttribLocation(program, AttributeTexCoord2, "texCoord2In");
    if (!linkProgram(program)) {
        logLine("Failed to link program: %d", program);
        programPtr.name.reset();
        return false;
    }
    programPtr.isLinked = true;
    glDetachShader(program, vertex.get());
    glDetachShader(program, fragment.get());

    const std::array uniforms{
        std::pair{&programPtr.modelViewProjectionMatrix, "modelViewProjectionMatrix"},
        std::pair{&programPtr.texture, "texture"},
        std::pair{&programPtr.backgroundColor, "backgroundColor"},
        std::pair{&programPtr.borderSize, "borderSize"},
        std::pair{&programPtr.numSides, "numSides"},
        std::pair{&programPtr.angle, "angle"},
        std::pair{&programPtr.stampStep, "stampStep"},
        std::pair{&programPtr.stampCount, "stampCount"},
        std::pair{&programPtr.imageSize, "imageSize"},
        std::pair{&programPtr.destination, "destination"},
        std::pair{&programPtr.destinationArea, "destinationArea"},
    };
    for (const auto& [location, uniform] : uniforms)
        *location = glGetUniformLocation(program, uniform);
    return true;
}

bool ShaderSet::compileShader(GLShader& shader, GLenum type, const QString& file,
                              int stampsPerDraw) const
{
    const QByteArray text = _source(file);
    if (text.isEmpty()) {
        logLine("Failed to load vertex shader");
        return false;
    }
    const QByteArray source = type == GL_FRAGMENT_SHADER
                                  ? fragmentPreamble(_context->capabilities(), stampsPerDraw) +
                                        _source(QStringLiteral(":/shaders/Common.glsl")) + text
                                  : text;
    shader = GLShader(glCreateShader(type));
    const char* lines = source.constData();
    glShaderSource(shader.get(), 1, &lines, nullptr);
    glCompileShader(shader.get());
    GLint compiled = 0;
    glGetShaderiv(shader.get(), GL_COMPILE_STATUS, &compiled);
    if (compiled != 0)
        return true;
    std::array<char, 1024> message{};
    glGetShaderInfoLog(shader.get(), GLsizei(message.size()), nullptr, message.data());
    logLine("%s", message.data());
    shader.reset();
    return false;
}

bool ShaderSet::linkProgram(GLuint program)
{
    glLinkProgram(program);
    GLint linked = 0;
    glGetProgramiv(program, GL_LINK_STATUS, &linked);
    return linked != 0;
}

bool ShaderSet::validateProgram(GLuint program)
{
    glValidateProgram(program);
    std::array<char, 1024> message{};
    GLsizei length = 0;
    glGetProgramInfoLog(program, GLsizei(message.size()), &length, message.data());
    if (length > 0)
        logLine("Program validate log:\n%s", message.data());
    GLint valid = 0;
    glGetProgramiv(program, GL_VALIDATE_STATUS, &valid);
    return valid != 0;
}

} // namespace pelmira
