#pragma once

#include "mask_editor/surface/FgImage.h"
#include "mask_editor/surface/OGLESMappedTexture.h"
#include "platform/gl/GLObjects.h"
#include "platform/gl/GLView.h"

#include <QMatrix4x4>
#include <QSize>

#include <memory>

namespace pelmira {

/// What every tool of the editor works on: the view, the photo's place in it, and the surface.
///
/// Coordinate spaces:
///   screen            points from the view's top left, y down (touches)
///   units             from the screen's centre, y up; one unit is the shorter screen side
///   mask              pixels from the photo's centre, y down the photo (stamps)
///   mask from corner  pixels from the photo's first row and column (the wand)
///
/// GL's upward y runs down the photo, because memory row 0 is the photo's top and GL's row 0. So
/// the mask space goes through a y-up matrix unchanged, and nothing is flipped anywhere.
class EditorCanvas {
public:
    EditorCanvas(GLView& view, std::shared_ptr<GLContext> context);
    ~EditorCanvas();

    /// Opens a photo of so many pixels: makes the surface, which is to be filled, and fits the
    /// photo into the screen. Ends the process if the surface can't be drawn into.
    void initialiseWithSize(QSize pixels);
    /// Fits the photo at four fifths of the limiting side of a screen of `size` units.
    void setupFgVerticesForSize(QSizeF size);
    bool isOpen() const { return fgImage.texture != 0; }

    /// The projection of units; also takes note of the screen's size in units.
    QMatrix4x4 setupMatrix();
    /// The projection of screen points, y down.
    QMatrix4x4 setupBrushMatrix() const;
    /// The projection of points with y up.
    QMatrix4x4 setupWandBrushMatrix() const;
    /// The projection of mask pixels, for drawing into the surface.
    QMatrix4x4 setupMatrixForBrush() const;

    QPointF maskPosForScreenPos(QPointF screen) const;
    QPointF maskPosWithLowerLeftZeroOriginForScreenPos(QPointF screen) const;
    /// Units for each screen point, on both axes.
    double unitsPerPoint() const;

    /// The view's size in points and its pixels for each point.
    QSizeF viewSize() const { return _view ? _view->bounds().size() : QSizeF(1, 1); }
    double contentScaleFactor() const { return _view ? _view->contentScaleFactor() : 1.0; }
    /// The pixels of the view's framebuffer, y up, that a rectangle of screen points touches.
    QRect framebufferRectangle(const QRectF& points) const;
    void setNeedsDisplay() const
    {
        if (_view)
            _view->setNeedsDisplay();
    }
    /// The view is about to go; what is still under way finishes unseen.
    void detachView();
    const std::shared_ptr<GLContext>& context() const { return _context; }
    /// The surface if nobody works on it, else nothing.
    OGLESMappedTexture* readySurface() const;
    /// Somebody works on the surface.
    bool isBusy() const { return fgMappedTexture && !fgMappedTexture->isReady(); }

    FgImage fgImage;
    std::unique_ptr<OGLESMappedTexture> fgMappedTexture;

private:
    GLView* _view;
    std::shared_ptr<GLContext> _context;
    GLFramebuffer _frameBuffer;
    QSizeF _screenSizeInUnits;
};

} // namespace pelmira
