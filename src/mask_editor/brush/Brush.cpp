#include "mask_editor/brush/Brush.h"

#include "controls/BrushType.h"
#include "platform/base/Log.h"

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <memory>
#include <new>

namespace pelmira {
namespace {

constexpr int stampSide = 256;        // pixels
constexpr double smallestBrush = 7.0; // points

/// Into its own first bytes, each pixel the mean of four; the side is the result's.
void halve(std::uint8_t* rgba, std::size_t side)
{
    const std::size_t below = 2 * side * 4;
    for (std::size_t y = 0; y < side; ++y)
        for (std::size_t x = 0; x < side; ++x)
            for (std::size_t i = 0; i < 4; ++i) {
                const std::uint8_t* const four = rgba + 2 * y * below + 2 * x * 4 + i;
                const int sum = four[0] + four[4] + four[below] + four[below + 4];
                rgba[(y * side + x) * 4 + i] = static_cast<std::uint8_t>((sum + 2) / 4);
            }
}

/// The levels of the bound texture below the first, which is the bound framebuffer. A software
/// renderer compiles glGenerateMipmap anew for each context: 70 ms, for what takes less than one.
void makeSmallerCopies()
{
    constexpr std::size_t bytes = std::size_t{stampSide} * stampSide * 4;
    const std::unique_ptr<std::uint8_t[]> rgba(new (std::nothrow) std::uint8_t[bytes]);
    if (!rgba) {
        glGenerateMipmap(GL_TEXTURE_2D);
        return;
    }
    glReadPixels(0, 0, stampSide, stampSide, GL_RGBA, GL_UNSIGNED_BYTE, rgba.get());
    GLint level = 1;
    for (GLsizei side = stampSide / 2; side >= 1; side /= 2) {
        halve(rgba.get(), static_cast<std::size_t>(side));
        glTexImage2D(GL_TEXTURE_2D, level++, GL_RGBA, side, side, 0, GL_RGBA, GL_UNSIGNED_BYTE,
                     rgba.get());
    }
}

double shorterSide(QSizeF size)
{
    return std::min(size.width(), size.height());
}

} // namespace

Brush::Brush(EditorCanvas& canvas, ShaderSet& shaders, UserDefaults& defaults)
    : _canvas(canvas), _shaders(shaders), _preferences(defaults),
      _unitBrushSize(_preferences.savedUnitBrushSize()),
      _unitBrushSoft(_preferences.savedUnitBrushSoft()),
      _unitBrushOffset(_preferences.savedUnitBrushOffset())
{
}

Brush::~Brush()
{
    deleteOrForget(_canvas.context().get(), _texture, _frameBuffer);
}

void Brush::initBrush()
{
    if (_texture || !_canvas.context()->makeCurrent())
        return;
    _frameBuffer = GLFramebuffer::generate();
    _texture = GLTexture::generate();
    const FramebufferBinding binding(_frameBuffer.get());
    glBindTexture(GL_TEXTURE_2D, _texture.get());
    setLinearClampedSampling();
    // A stamp is mostly drawn much smaller than it is; without the smaller copies its edge frays.
    glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_MIN_FILTER, GL_LINEAR_MIPMAP_NEAREST);
    glTexImage2D(GL_TEXTURE_2D, 0, GL_RGBA, stampSide, stampSide, 0, GL_RGBA, GL_UNSIGNED_BYTE,
                 nullptr);
    glFramebufferTexture2D(GL_FRAMEBUFFER, GL_COLOR_ATTACHMENT0, GL_TEXTURE_2D, _texture.get(), 0);
    const GLenum status = glCheckFramebufferStatus(GL_FRAMEBUFFER);
    if (status != GL_FRAMEBUFFER_COMPLETE) {
        logLine("Incomplete FBO for brush. Status: %02x", status);
        std::exit(1);
    }
    updateBrush();
}

void Brush::updateBrush()
{
    if (!_texture || !_canvas.context()->makeCurrent())
        return;
    constexpr float side = stampSide;
    static constexpr Quad quad{
        {{0, 0, 0, 0, 1}, {0, side, 0, 0, 0}, {side, 0, 0, 1, 1}, {side, side, 0, 1, 0}}};
    QMatrix4x4 matrix;
    matrix.ortho(0, side, 0, side, -0.1F, 5.0F);

    const FramebufferBinding binding(_frameBuffer.get());
    glViewport(0, 0, stampSide, stampSide);
    glClearColor(0, 0, 0, 0);
    glClear(GL_COLOR_BUFFER_BIT);
    setQuadAttributes(quad);
    const ShaderProgram& program = _shaders.createBrushProgram;
    if (!program.use(matrix))
        return;
    glUniform1f(program.borderSize, float(_unitBrushSoft / 3.0));
    glUniform1i(program.numSides, currentBrushNumSides());
    glUniform1f(program.angle, currentBrushAngle());
    drawStrip();
    glActiveTexture(GL_TEXTURE0);
    glBindTexture(GL_TEXTURE_2D, _texture.get());
    makeSmallerCopies();
}

void Brush::setUnitBrushSize(double value)
{
    _unitBrushSize = value;
    _preferences.saveUnitBrushSize(value);
}

void Brush::setUnitBrushSoft(double value)
{
    _unitBrushSoft = value;
    updateBrush();
    _preferences.saveUnitBrushSoft(value);
}

void Brush::setUnitBrushOffset(double value)
{
    _unitBrushOffset = value;
    _preferences.saveUnitBrushOffset(value);
}

void Brush::setBrushType(int type)
{
    _preferences.saveBrushType(type); // first: the stamp is drawn from what is saved
    updateBrush();
}

double Brush::maxBrushSize() const
{
    return shorterSide(_canvas.viewSize()) / 1.5;
}

double Brush::brushSizeInPoints() const
{
    return _unitBrushSize * (maxBrushSize() - smallestBrush) + smallestBrush;
}

double Brush::brushSize() const
{
    const FgImage& fg = _canvas.fgImage;
    const double pointsPerPixel =
        fg.size.width() * shorterSide(_canvas.viewSize()) / fg.imageRes.width();
    return brushSizeInPoints() / pointsPerPixel / fg.scale;
}

double Brush::brushOffset() const
{
    return _unitBrushOffset * (_canvas.viewSize().width() * 0.25);
}

int Brush::currentBrushNumSides() const
{
    switch (brushType()) {
    case static_cast<int>(BrushType::triangle):
        return 3;
    case static_cast<int>(BrushType::square):
        return 4;
    default:
        return 100;
    }
}

float Brush::currentBrushAngle() const
{
    return brushType() == static_cast<int>(BrushType::triangle) ? 1.5707964F : 0.0F;
}

} // namespace pelmira
