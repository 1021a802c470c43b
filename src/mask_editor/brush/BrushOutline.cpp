#include "mask_editor/brush/BrushOutline.h"

#include "mask_editor/shaders/StampQuad.h"

#include <algorithm>

namespace pelmira {
namespace {

constexpr double leastMarkedOffset = 0.1; // points
constexpr double largestMarker = 15.0;    // points

} // namespace

void renderBrushToScreenAtPos(QPointF position, bool isAdjustingBrush, const EditorCanvas& canvas,
                              const Brush& brush, const ShaderSet& shaders,
                              DestinationReader& reader)
{
    const QMatrix4x4 matrix = canvas.setupBrushMatrix();
    glActiveTexture(GL_TEXTURE0);
    glBindTexture(GL_TEXTURE_2D, brush.texture());
    const auto draw = [&](const ShaderProgram& program, QPointF at, double size) {
        const Quad quad = brushVerticesForPos(at, size, 0.0);
        if (!program.use(matrix))
            return;
        glUniform1i(program.texture, 0);
        glUniform1i(program.numSides, brush.currentBrushNumSides());
        glUniform1f(program.angle, brush.currentBrushAngle());
        setQuadAttributes(quad);
        reader.draw(program, canvas.framebufferRectangle(boundsOf(quad)));
    };
    draw(shaders.showBrushProgram, position, brush.brushSizeInPoints());
    if (isAdjustingBrush && brush.brushOffset() > leastMarkedOffset)
        draw(shaders.showBrushOffsetProgram, position + QPointF(0, brush.brushOffset()),
             std::min(brush.brushSizeInPoints(), largestMarker));
}

} // namespace pelmira
