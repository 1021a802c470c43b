#include "mask_editor/tools/StrokeEngine.h"

#include "mask_editor/shaders/StampQuad.h"
#include "mask_editor/surface/MaskTarget.h"

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

StrokeEngine::StrokeEngine(EditorCanvas& canvas, SurfaceJobs& jobs, ShaderSet& shaders,
                           DestinationReader& reader, Brush& brush, UndoHistory& history,
                           OverlayRequests& overlays)
    : _canvas(canvas), _jobs(jobs), _shaders(shaders), _reader(reader), _brush(brush),
      _history(history), _overlays(overlays)
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
            _interactionStartTime = now();
            _isDrawingCancelled = false;
            _overlays.drawBrush = true;
        } else {
            end();
        }
        _canvas.setNeedsDisplay();
        break;
    case TouchMoved:
        if (_isDrawingCancelled)
            return;
        if (!_isDrawingStarted && QLineF(_strokeStartPos, position).length() > strokeThreshold) {
            _isDrawingStarted = true;
            setShowTools(false);
            _jobs.whenReady([this] { _hasLevel = _history.saveUndoBuffer(); });
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

void StrokeEngine::showBrushAt(std::optional<QPointF> finger)
{
    if (!_canvas.isOpen())
        return;
    if (finger)
        _overlays.brushPosition = *finger - QPointF(0, _brush.brushOffset());
    _overlays.drawBrush = finger.has_value();
    _canvas.setNeedsDisplay();
}

void StrokeEngine::cancel()
{
    _isDrawingCancelled = true;
    _overlays.drawBrush = false;
}

void StrokeEngine::end()
{
    cancel();
    setShowTools(true);
}

void StrokeEngine::takeBackYoungStroke()
{
    const auto age = now() - _interactionStartTime;
    if (!_isDrawingStarted || _isDrawingCancelled || age >= youngStroke)
        return;
    _isDrawingCancelled = true;
    // Without a level of its own, undo would take back what was there before.
    _jobs.whenReady([this] {
        if (_hasLevel)
            _history.undo();
    });
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
    const Segment segment{
        start,  (end - start) / double(n), n + 1, _brush.brushSize(), _canvas.fgImage.rotation,
        isErase};
    _jobs.whenReady([this, segment] { draw(segment); });
}

void StrokeEngine::draw(const Segment& segment)
{
    if (!_canvas.context()->makeCurrent())
        return;
    const ShaderProgram& program =
        segment.isErase ? _shaders.eraseProgram : _shaders.replaceProgram;
    const MaskTarget target(_canvas);
    if (!program.use(_canvas.setupMatrixForBrush()))
        return;
    glActiveTexture(GL_TEXTURE0);
    glBindTexture(GL_TEXTURE_2D, _brush.texture());
    glUniform1i(program.texture, 0);
    drawStamps(segment, program);
    _canvas.setNeedsDisplay();
}

void StrokeEngine::drawStamps(const Segment& segment, const ShaderProgram& program)
{
    // Some stamps of the row in one quad.
    const auto quadOf = [&segment](int first, int stamps) {
        return brushVerticesForPos(segment.start + segment.step * first, segment.size,
                                   segment.rotation, segment.step * (stamps - 1));
    };
    const auto touchedBy = [this](const Quad& quad) { return surfaceRectangle(boundsOf(quad)); };
    const auto drawAll = [&] {
        const QPointF uvStep = textureStep(segment.step, segment.size, segment.rotation);
        glUniform2f(program.stampStep, float(uvStep.x()), float(uvStep.y()));
        for (int i = 0; i < segment.count; i += program.stampsPerDraw) {
            const int stamps = std::min(program.stampsPerDraw, segment.count - i);
            const Quad quad = quadOf(i, stamps);
            glUniform1i(program.stampCount, stamps);
            setQuadAttributes(quad);
            _reader.draw(program, touchedBy(quad), drawStrip);
        }
    };
    _canvas.fgMappedTexture->drawPixels(touchedBy(quadOf(0, segment.count)), drawAll);
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
