#include "mask_editor/drawing/ScreenCompositor.h"

#include "controls/StyleUtil.h"
#include "mask_editor/brush/BrushOutline.h"
#include "mask_editor/drawing/WandMagnifier.h"
#include "mask_editor/surface/MaskTarget.h"

#include <QtMath>

namespace pelmira {
namespace {

Quad quadOfSize(QSizeF size)
{
    const float x = float(size.width() / 2);
    const float y = float(size.height() / 2);
    // v = 0 is memory row 0, the photo's top.
    return {{{-x, -y, 0, 0, 1}, {x, -y, 0, 1, 1}, {-x, y, 0, 0, 0}, {x, y, 0, 1, 0}}};
}

} // namespace

ScreenCompositor::ScreenCompositor(EditorCanvas& canvas, ShaderSet& shaders,
                                   DestinationReader& reader, const Brush& brush,
                                   OverlayRequests& overlays)
    : _canvas(canvas), _shaders(shaders), _reader(reader), _brush(brush), _overlays(overlays)
{
}

void ScreenCompositor::glkView(GLView&, const QRectF&)
{
    const QMatrix4x4 matrix = _canvas.setupMatrix();
    const QColor ground = StyleUtil::ground();
    glClearColor(ground.redF(), ground.greenF(), ground.blueF(), 1.0F);
    const bool isShowable = _canvas.readySurface() && _canvas.fgMappedTexture->hasTexture();
    if (!isShowable && _canvas.isOpen())
        return;
    glClear(GL_COLOR_BUFFER_BIT);
    if (!isShowable)
        return;

    drawPhoto(matrix);
    if (_overlays.drawBrush) {
        drawBrush(_overlays.brushPosition, false);
        _overlays.drawBrush = false;
    }
    if (_overlays.drawWandZoom) {
        renderWandZoomAtScreenPos(_overlays.brushPosition, _canvas, _shaders, _reader);
        _overlays.drawWandZoom = false;
    }
    if (_overlays.brushPreview)
        drawBrush(*_overlays.brushPreview, true);
}

void ScreenCompositor::letGoOfTexture() const
{
    if (!_canvas.context()->makeCurrent())
        return;
    const MaskTarget target(_canvas); // whose pixels are gone
    const Quad quad = quadOfSize({2, 2});
    setQuadAttributes(quad);
    glActiveTexture(GL_TEXTURE0);
    glBindTexture(GL_TEXTURE_2D, 0);
    if (_shaders.fgProgram.use({}))
        drawStrip();
    glFlush();
}

void ScreenCompositor::drawBrush(QPointF position, bool isAdjusting)
{
    renderBrushToScreenAtPos(position, isAdjusting, _canvas, _brush, _shaders, _reader);
}

void ScreenCompositor::drawPhoto(const QMatrix4x4& unitsMatrix) const
{
    const FgImage& fg = _canvas.fgImage;
    const Quad fgVertices = quadOfSize(fg.size);
    setQuadAttributes(fgVertices);

    const ShaderProgram& program = showsRedMask                          ? _shaders.fgRedMaskProgram
                                   : backgroundMode != BackgroundChecker ? _shaders.fgColorProgram
                                                                         : _shaders.fgProgram;
    QMatrix4x4 matrix = unitsMatrix;
    matrix.translate(float(fg.center.x()), float(fg.center.y()));
    matrix.rotate(float(qRadiansToDegrees(-fg.rotation)), 0, 0, 1);
    matrix.scale(float(fg.scale), float(fg.scale), 1);
    if (!program.use(matrix))
        return;
    const float c = backgroundMode == BackgroundWhite ? 1.0F : 0.0F;
    glUniform3f(program.backgroundColor, c, c, c); // of which the others have none
    glActiveTexture(GL_TEXTURE0);
    glBindTexture(GL_TEXTURE_2D, fg.texture);
    glUniform1i(program.texture, 0);
    glUniform2f(program.imageSize, float(fg.imageRes.width()), float(fg.imageRes.height()));
    drawStrip();
}

} // namespace pelmira
