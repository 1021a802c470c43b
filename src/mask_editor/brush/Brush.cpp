#include "mask_editor/brush/Brush.h"

#include "controls/BrushType.h"
#include "platform/base/Log.h"
#include "platform/pixels/SmallerCopies.h"

#include <algorithm>
#include <cstdlib>
#include <vector>

namespace pelmira {
namespace {

constexpr int stampSide = 256;        // pixels
constexpr double smallestBrush = 7.0; // points

/// The levels of the bound texture below the first, which is the bound framebuffer: a stamp is
/// mostly drawn much smaller than it is, and without them its edge frays. A software renderer
/// compiles glGenerateMipmap anew for each context: 70 ms, for what takes less than one.
void makeSmallerCopies()
{
    QImage stamp(stampSide, stampSide, QImage::Format_RGBA8888_Premultiplied);
    stamp.fill(0); // what can't be read stamps nothing
    if (!stamp.isNull())
        glReadPixels(0, 0, stampSide, stampSide, GL_RGBA, GL_UNSIGNED_BYTE, stamp.bits());
    const std::vector<QImage> copies = smallerCopies(stamp);
    if (copies.empty())
        glGenerateMipmap(GL_TEXTURE_2D);
    discardGLErrors();
    GLint level = 0;
    for (const QImage& copy : copies)
        glTexImage2D(GL_TEXTURE_2D, ++level, GL_RGBA, copy.width(), copy.height(), 0, GL_RGBA,
                     GL_UNSIGNED_BYTE, copy.constBits());
    // A texture without one of its levels is opaque throughout; its edge had better fray.
    const bool hasAll = glGetError() == GL_NO_ERROR;
    glTexParameteri(GL_TEXTURE_2D, GL_TEXTURE_MIN_FILTER,
                    hasAll ? GL_LINEAR_MIPMAP_NEAREST : GL_LINEAR);
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
    // Without it the stamp stays empty, but whole: GL takes one without its smaller copies for
    // opaque.
    if (program.use(matrix)) {
        glUniform1f(program.borderSize, float(_unitBrushSoft / 3.0));
        glUniform1i(program.numSides, currentBrushNumSides());
        glUniform1f(program.angle, currentBrushAngle());
        drawStrip();
    }
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
