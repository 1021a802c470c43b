#include "mask_editor/tools/StrokeEngine.h"

#include "mask_editor/surface/MaskTarget.h"

#include <QLineF>

#include <algorithm>
#include <cmath>

namespace pelmira {
namespace {

constexpr double stampsPerDiameter = 15.0;
// Keeps a segment finite whatever zoom and finger do.
constexpr double mostSteps = 20000.0;

bool isFinite(QPointF p)
{
    return std::isfinite(p.x()) && std::isfinite(p.y());
}

} // namespace

StrokeEngine::StrokeEngine(EditorCanvas& canvas, SurfaceJobs& jobs, ShaderSet& shaders,
                           DestinationReader& reader, Brush& brush)
    : _canvas(canvas), _jobs(jobs), _shaders(shaders), _reader(reader), _brush(brush)
{
}

void StrokeEngine::drawLineFromPoint(QPointF from, QPointF toPoint, double brushSize, bool isErase)
{
    if (!_canvas.isOpen())
        return;
    const QPointF start = _canvas.maskPosForScreenPos(from);
    const QPointF end = _canvas.maskPosForScreenPos(toPoint);
    const double steps = std::floor(QLineF(start, end).length() / (brushSize / stampsPerDiameter));
    _canvas.setNeedsDisplay();
    if (_brush.texture() == 0 || !isFinite(start) || !isFinite(end) || !(steps < mostSteps))
        return;
    // A segment shorter than the spacing is stamped at both its ends.
    const int n = std::max(static_cast<int>(steps), 1);
    const StampRow row{start, (end - start) / double(n), n + 1, _brush.brushSize(),
                       _canvas.fgImage.rotation};
    _jobs.whenReady([this, row, isErase] {
        draw(row, isErase ? _shaders.eraseProgram : _shaders.replaceProgram);
    });
}

void StrokeEngine::draw(const StampRow& row, const ShaderProgram& program)
{
    if (!_canvas.context()->makeCurrent())
        return;
    const MaskTarget target(_canvas);
    if (!program.use(_canvas.setupMatrixForBrush()))
        return;
    glActiveTexture(GL_TEXTURE0);
    glBindTexture(GL_TEXTURE_2D, _brush.texture());
    glUniform1i(program.texture, 0);
    _canvas.fgMappedTexture->drawPixels(surfaceRectangle(row.quad(0, row.count)),
                                        [&] { drawStamps(row, program); });
    _canvas.setNeedsDisplay();
}

void StrokeEngine::drawStamps(const StampRow& row, const ShaderProgram& program)
{
    const QPointF uvStep = textureStep(row.step, row.size, row.rotation);
    glUniform2f(program.stampStep, float(uvStep.x()), float(uvStep.y()));
    for (int i = 0; i < row.count; i += program.stampsPerDraw) {
        const int stamps = std::min(program.stampsPerDraw, row.count - i);
        const Quad quad = row.quad(i, stamps);
        glUniform1i(program.stampCount, stamps);
        setQuadAttributes(quad);
        _reader.draw(program, surfaceRectangle(quad));
    }
}

Quad StrokeEngine::StampRow::quad(int first, int stamps) const
{
    return brushVerticesForPos(start + step * first, size, rotation, step * (stamps - 1));
}

// From the mask's pixels, counted from the photo's centre, to whole pixels of the surface.
QRect StrokeEngine::surfaceRectangle(const Quad& quad) const
{
    const QSizeF half = _canvas.fgImage.imageRes / 2;
    const QRectF bounds(_canvas.fgMappedTexture->bounds());
    const QRectF touched = boundsOf(quad).translated(half.width(), half.height()) & bounds;
    return touched.isEmpty() ? QRect() : touched.toAlignedRect() & bounds.toRect();
}

} // namespace pelmira
