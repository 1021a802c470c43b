#include "mask_editor/surface/EditorCanvas.h"

#include "platform/base/Log.h"

#include <cmath>
#include <cstdlib>
#include <utility>

namespace pelmira {
namespace {

constexpr float nearPlane = -0.1F;
constexpr float farPlane = 5.0F;
// The opening view leaves a margin of a fifth round the photo.
constexpr double openingFill = 0.8;

QMatrix4x4 orthographic(double left, double right, double bottom, double top)
{
    QMatrix4x4 matrix;
    matrix.ortho(float(left), float(right), float(bottom), float(top), nearPlane, farPlane);
    return matrix;
}

} // namespace

EditorCanvas::EditorCanvas(GLView& view, std::shared_ptr<GLContext> context)
    : _view(&view), _context(std::move(context))
{
}

EditorCanvas::~EditorCanvas()
{
    deleteOrForget(_context.get(), _frameBuffer);
}

void EditorCanvas::detachView()
{
    if (GLView* const view = std::exchange(_view, nullptr))
        view->setDelegate(nullptr);
}

void EditorCanvas::initialiseWithSize(QSize pixels)
{
    if (!_context || !_context->makeCurrent())
        return;
    fgImage = FgImage{};
    fgImage.originalAspectRatio = double(pixels.width()) / pixels.height();
    fgImage.imageRes = pixels;
    _frameBuffer = GLFramebuffer::generate();
    fgImage.frameBuffer = _frameBuffer.get();

    fgMappedTexture = OGLESMappedTexture::oGLESMappedTexture(_context);
    fgMappedTexture->setReady(fgMappedTexture->makeMappedTexture(pixels));
    fgImage.texture = fgMappedTexture->texture();
    fgMappedTexture->bindTexture();
    setLinearClampedSampling();

    GLenum status = 0;
    {
        const FramebufferBinding binding(fgImage.frameBuffer);
        glFramebufferTexture2D(GL_FRAMEBUFFER, GL_COLOR_ATTACHMENT0, GL_TEXTURE_2D, fgImage.texture,
                               0);
        status = glCheckFramebufferStatus(GL_FRAMEBUFFER);
    }
    setupFgVerticesForSize(_screenSizeInUnits);
    if (status != GL_FRAMEBUFFER_COMPLETE) {
        logLine("Incomplete FBO. Status: %02x", status);
        std::exit(1);
    }
    setNeedsDisplay();
}

void EditorCanvas::setupFgVerticesForSize(QSizeF size)
{
    const double height = size.width() / fgImage.originalAspectRatio;
    const QSizeF fitted = height > size.height()
                              ? QSizeF(size.height() * fgImage.originalAspectRatio, size.height())
                              : QSizeF(size.width(), height);
    fgImage.size = fitted * openingFill;
}

QMatrix4x4 EditorCanvas::setupMatrix()
{
    const QSizeF points = viewSize();
    _screenSizeInUnits = points.width() > points.height()
                             ? QSizeF(points.width() / points.height(), 1.0)
                             : QSizeF(1.0, points.height() / points.width());
    const double x = _screenSizeInUnits.width() / 2;
    const double y = _screenSizeInUnits.height() / 2;
    return orthographic(-x, x, -y, y);
}

QMatrix4x4 EditorCanvas::setupBrushMatrix() const
{
    const QSizeF points = viewSize();
    return orthographic(0, points.width(), points.height(), 0);
}

QMatrix4x4 EditorCanvas::setupWandBrushMatrix() const
{
    const QSizeF points = viewSize();
    return orthographic(0, points.width(), 0, points.height());
}

QMatrix4x4 EditorCanvas::setupMatrixForBrush() const
{
    const double x = fgImage.imageRes.width() / 2;
    const double y = fgImage.imageRes.height() / 2;
    return orthographic(-x, x, -y, y);
}

QPointF EditorCanvas::maskPosForScreenPos(QPointF screen) const
{
    if (!isOpen())
        return {0, 0};
    const QSizeF points = viewSize();
    const double x =
        (screen.x() / points.width() - 0.5) * _screenSizeInUnits.width() - fgImage.center.x();
    // The centre counts upward and this point downward.
    const double y =
        (screen.y() / points.height() - 0.5) * _screenSizeInUnits.height() + fgImage.center.y();
    const double cosine = std::cos(-fgImage.rotation);
    const double sine = std::sin(-fgImage.rotation);
    const QSizeF half = fgImage.size * fgImage.scale * 0.5;
    return {(x * cosine - y * sine) / half.width() * (fgImage.imageRes.width() * 0.5),
            (x * sine + y * cosine) / half.height() * (fgImage.imageRes.height() * 0.5)};
}

QPointF EditorCanvas::maskPosWithLowerLeftZeroOriginForScreenPos(QPointF screen) const
{
    return maskPosForScreenPos(screen) +
           QPointF(fgImage.imageRes.width() * 0.5, fgImage.imageRes.height() * 0.5);
}

double EditorCanvas::unitsPerPoint() const
{
    return _screenSizeInUnits.width() / viewSize().width();
}

QRect EditorCanvas::framebufferRectangle(const QRectF& points) const
{
    const double scale = contentScaleFactor();
    const QSize framebuffer = (viewSize() * scale).toSize();
    const QRectF pixels(points.x() * scale, framebuffer.height() - points.bottom() * scale,
                        points.width() * scale, points.height() * scale);
    const QRectF visible = pixels & QRectF(QPointF(), framebuffer);
    return visible.isEmpty() ? QRect() : visible.toAlignedRect();
}

OGLESMappedTexture* EditorCanvas::readySurface() const
{
    return fgMappedTexture && fgMappedTexture->isReady() ? fgMappedTexture.get() : nullptr;
}

} // namespace pelmira
