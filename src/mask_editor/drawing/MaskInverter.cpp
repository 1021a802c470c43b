#include "mask_editor/drawing/MaskInverter.h"

#include "mask_editor/surface/MaskTarget.h"

namespace pelmira {

void maskInvert(EditorCanvas& canvas, const ShaderSet& shaders, DestinationReader& reader)
{
    if (!canvas.isOpen() || !canvas.context()->makeCurrent())
        return;
    OGLESMappedTexture& surface = *canvas.fgMappedTexture;
    const QRect whole = surface.bounds();
    const float w = float(whole.width());
    const float h = float(whole.height());
    const Quad quad{{{0, 0, 0, 0, 1}, {0, h, 0, 0, 0}, {w, 0, 0, 1, 1}, {w, h, 0, 1, 0}}};
    QMatrix4x4 matrix;
    matrix.ortho(0, w, 0, h, -0.1F, 5.0F);

    const MaskTarget target(canvas);
    setQuadAttributes(quad);
    if (!shaders.maskInvertProgram.use(matrix))
        return;
    surface.drawPixels(whole, [&] { reader.draw(shaders.maskInvertProgram, whole); });
    canvas.setNeedsDisplay();
}

} // namespace pelmira
