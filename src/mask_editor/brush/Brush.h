#pragma once

#include "mask_editor/brush/BrushPreferences.h"
#include "mask_editor/shaders/ShaderSet.h"
#include "mask_editor/surface/EditorCanvas.h"
#include "platform/gl/GLObjects.h"

namespace pelmira {

/// The brush: one square stamp texture, drawn anew only when its shape or softness changes, and
/// three numbers from 0 to 1 that become points and mask pixels at the moment of use. The brush
/// keeps its size on the screen at any zoom.
class Brush {
public:
    Brush(EditorCanvas& canvas, ShaderSet& shaders, UserDefaults& defaults);
    ~Brush();

    /// Makes the stamp's texture and draws it, unless that is done. Ends the process if it can't be
    /// drawn into.
    void initBrush();
    /// Draws the stamp anew.
    void updateBrush();

    double unitBrushSize() const { return _unitBrushSize; }
    double unitBrushSoft() const { return _unitBrushSoft; }
    double unitBrushOffset() const { return _unitBrushOffset; }
    int brushType() const { return _preferences.savedBrushType(); }

    /// Each keeps the value for the next launch too.
    void setUnitBrushSize(double value);
    void setUnitBrushSoft(double value);
    void setUnitBrushOffset(double value);
    void setBrushType(int type);

    double maxBrushSize() const;      ///< points
    double brushSizeInPoints() const; ///< points
    double brushSize() const;         ///< mask pixels at the present zoom
    double brushOffset() const;       ///< points by which the brush works above the finger

    /// The stamp is a regular polygon; a circle is one of a hundred sides.
    int currentBrushNumSides() const;
    float currentBrushAngle() const; ///< radians

    GLuint texture() const { return _texture.get(); }

private:
    EditorCanvas& _canvas;
    ShaderSet& _shaders;
    BrushPreferences _preferences;
    double _unitBrushSize;
    double _unitBrushSoft;
    double _unitBrushOffset;
    GLTexture _texture;
    GLFramebuffer _frameBuffer;
};

} // namespace pelmira
