#pragma once

#include "mask_editor/brush/Brush.h"
#include "mask_editor/shaders/DestinationReader.h"
#include "mask_editor/shaders/ShaderSet.h"
#include "mask_editor/shaders/StampQuad.h"
#include "mask_editor/surface/EditorCanvas.h"
#include "mask_editor/surface/SurfaceJobs.h"

namespace pelmira {

/// Stamps the brush along a path into the mask: straight into the surface, a fifteenth of the
/// brush's size apart.
class StrokeEngine {
public:
    StrokeEngine(EditorCanvas& canvas, SurfaceJobs& jobs, ShaderSet& shaders,
                 DestinationReader& reader, Brush& brush);

    /// Stamps a segment between two screen points; the brush's size, in mask pixels, sets the
    /// spacing. One of the two brushes lowers alpha, the other raises it. Needs an open photo.
    /// While a job has the surface, the segment waits for it.
    void drawLineFromPoint(QPointF from, QPointF toPoint, double brushSize, bool isErase);

private:
    /// A row of stamps, in mask pixels, as the view and the brush were when the finger was there.
    struct StampRow {
        QPointF start;
        QPointF step;
        int count = 0;
        double size = 0.0;
        double rotation = 0.0;

        /// Some stamps of the row in one quad.
        Quad quad(int first, int stamps) const;
    };

    void draw(const StampRow& row, const ShaderProgram& program);
    void drawStamps(const StampRow& row, const ShaderProgram& program);
    QRect surfaceRectangle(const Quad& quad) const;

    EditorCanvas& _canvas;
    SurfaceJobs& _jobs;
    ShaderSet& _shaders;
    DestinationReader& _reader;
    Brush& _brush;
};

} // namespace pelmira
