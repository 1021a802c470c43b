#include "mask_editor/tools/StrokeEngine.h"

#include "mask_editor/shaders/StampQuad.h"

#include <QLineF>

#include <algorithm>
#include <cmath>

namespace pelmira {
namespace {

constexpr double strokeThreshold = 4.0; // points
constexpr auto youngStroke = std::chrono::milliseconds(600);
constexpr double stampsPerDiameter = 15.0;
// Keeps a segment finite whatever zoom and finger do.
constexpr double mostSteps = 20000.0;

bool isFinite(QPointF p)
{
    return std::isfinite(p.x()) && std::isfinite(p.y());
}

} // namespace

StrokeEngine::StrokeEngine(EditorCanvas& canvas, ShaderSet& shaders, DestinationReader& reader,
                           Brush& brush, UndoHistory& history, OverlayRequests& overlays)
    : _canvas(canvas), _shaders(shaders), _reader(reader), _brush(brush), _history(history),
      _overlays(overlays)
{
}

void StrokeEngine::handleBrushEvent(const TouchEvent& event, TouchPhase phase, bool isErase)
{
    if (!_canvas.isOpen())
        return;
    // The brush works above the finger, where the user can see it.
    const QPointF position = event.anyTouch().location - QPointF(0, _brush.brushOffset());
    _overlays.brushPosition = position;
    switch (phase) {
    case TouchBegan:
        _lastBrushPos = position;
        if (event.isSingle()) {
            _strokeStartPos = position;
            _isDrawingStarted = false;
            _interactionStartTime = std::chrono::steady_clock::now();
            _isDrawingCancelled = false;
            _overlays.drawBrush = true;
        } else {
            cancel();
            setShowTools(true);
        }
        _canvas.setNeedsDisplay();
        break;
    case TouchMoved:
        if (_isDrawingCancelled)
            return;
        if (!_isDrawingStarted && QLineF(_strokeStartPos, position).length() > strokeThreshold) {
            _isDrawingStarted = true;
            setShowTools(false);
            _history.saveUndoBuffer();
        }
        _overlays.drawBrush = true;
        if (_isDrawingStarted)
            drawLineFromPoint(_lastBrushPos, position, _brush.brushSize(), isErase);
        else
            _canvas.setNeedsDisplay();
        _lastBrushPos = position;
        break;
    case TouchEnded:
    case TouchCancelled:
        if (_isDrawingCancelled)
            return;
        _overlays.drawBrush = false;
        if (position != _lastBrushPos && _isDrawingStarted)
            drawLineFromPoint(_lastBrushPos, position, _brush.brushSize(), isErase);
        else
            _canvas.setNeedsDisplay();
        _isDrawingCancelled = true;
        setShowTools(true);
        break;
    }
}

void StrokeEngine::cancel()
{
    _isDrawingCancelled = true;
    _overlays.drawBrush = false;
}

void StrokeEngine::takeBackYoungStroke()
{
    const auto age = std::chrono::steady_clock::now() - _interactionStartTime;
    if (!_isDrawingStarted || _isDrawingCancelled || age >= youngStroke)
        return;
    _isDrawingCancelled = true;
    _history.undo();
}

void StrokeEngine::drawLineFromPoint(QPointF from, QPointF toPoint, double brushSize, bool isErase)
{
    if (!_canvas.isOpen() || !_canvas.context()->makeCurrent())
        return;
    const QPointF start = _canvas.maskPosForScreenPos(from);
    const QPointF end = _canvas.maskPosForScreenPos(toPoint);
    const double steps = std::floor(QLineF(start, end).length() / (brushSize / stampsPerDiameter));
    if (_brush.texture() == 0 || !isFinite(start) || !isFinite(end) || !(steps < mostSteps)) {
        _canvas.setNeedsDisplay();
        return;
    }
    // A segment shorter than the spacing is stamped at both its ends.
    const int n = std::max(static_cast<int>(steps), 1);
    const FramebufferBinding binding(_canvas.fgImage.frameBuffer);
    const QRect surface = _canvas.fgMappedTexture->bounds();
    glViewport(0, 0, surface.width(), surface.height());

    const ShaderProgram& program = isErase ? _shaders.eraseProgram : _shaders.replaceProgram;
    program.use(_canvas.setupMatrixForBrush());
    glActiveTexture(GL_TEXTURE0);
    glBindTexture(GL_TEXTURE_2D, _brush.texture());
    glUniform1i(program.texture, 0);
    drawStamps(start, (end - start) / double(n), n + 1, isErase);
    _canvas.setNeedsDisplay();
}

void StrokeEngine::drawStamps(QPointF start, QPointF step, int count, bool isErase)
{
    const ShaderProgram& program = isErase ? _shaders.eraseProgram : _shaders.replaceProgram;
    const double rotation = _canvas.fgImage.rotation;
    const double size = _brush.brushSize();
    const auto touchedBy = [&](const Quad& quad) { return surfaceRectangle(boundsOf(quad)); };
    const auto draw = [&](const Quad& quad) {
        setQuadAttributes(quad);
        _reader.draw(program, touchedBy(quad), drawStrip);
    };
    const auto drawAll = [&] {
        if (_reader.fetchesDirectly()) {
            for (int i = 0; i < count; ++i)
                draw(brushVerticesForPos(start + step * i, size, rotation));
            return;
        }
        const QPointF uvStep = textureStep(step, size, rotation);
        glUniform2f(program.stampStep, float(uvStep.x()), float(uvStep.y()));
        for (int i = 0; i < count; i += ShaderSet::stampsPerDraw) {
            const int stamps = std::min(ShaderSet::stampsPerDraw, count - i);
            glUniform1i(program.stampCount, stamps);
            draw(brushVerticesForPos(start + step * i, size, rotation, step * (stamps - 1)));
        }
    };
    const Quad whole = brushVerticesForPos(start, size, rotation, step * (count - 1));
    _canvas.fgMappedTexture->drawPixels(touchedBy(whole), drawAll);
}

// From the mask's pixels, counted from the photo's centre, to whole pixels of the surface.
QRect StrokeEngine::surfaceRectangle(const QRectF& mask) const
{
    const QSizeF half = _canvas.fgImage.imageRes / 2;
    const QRectF bounds(_canvas.fgMappedTexture->bounds());
    const QRectF touched = mask.translated(half.width(), half.height()) & bounds;
    return touched.isEmpty() ? QRect() : touched.toAlignedRect() & bounds.toRect();
}

} // namespace pelmira
