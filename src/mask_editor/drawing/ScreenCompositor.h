#pragma once

#include "mask_editor/brush/Brush.h"
#include "mask_editor/drawing/BackgroundMode.h"
#include "mask_editor/drawing/OverlayRequests.h"
#include "mask_editor/shaders/DestinationReader.h"
#include "mask_editor/shaders/ShaderSet.h"
#include "mask_editor/surface/EditorCanvas.h"
#include "platform/gl/GLView.h"

namespace pelmira {

/// Draws a frame of the editor: the photo with its mask over the chosen background, then what
/// the tools asked to have drawn over it.
class ScreenCompositor final : public GLKViewDelegate {
public:
    ScreenCompositor(EditorCanvas& canvas, ShaderSet& shaders, DestinationReader& reader,
                     const Brush& brush, OverlayRequests& overlays);

    /// While another job has the surface, or GL has no texture of it, the view keeps the frame that
    /// it shows.
    void glkView(GLView& view, const QRectF& drawInRect) override;

    /// Drivers hold on to the texture that was drawn last until something else is drawn. To be
    /// called when the surface has given it up.
    void letGoOfTexture() const;

    BackgroundMode backgroundMode = BackgroundChecker;
    /// Shows what was removed in red, whatever the background.
    bool showsRedMask = false;

private:
    void drawPhoto(const QMatrix4x4& unitsMatrix) const;
    void drawBrush(QPointF position, bool isAdjusting);

    EditorCanvas& _canvas;
    ShaderSet& _shaders;
    DestinationReader& _reader;
    const Brush& _brush;
    OverlayRequests& _overlays;
};

} // namespace pelmira
