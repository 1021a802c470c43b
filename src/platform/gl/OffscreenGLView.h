#pragma once

#include "platform/gl/GLDrawable.h"
#include "platform/gl/GLView.h"

namespace pelmira {

/// A `GLView` without a window, for engine tests and benchmarks: its frames are drawn by
/// `displayIfNeeded` and can be read.
class OffscreenGLView final : public GLView {
public:
    OffscreenGLView(QSizeF size, double contentScaleFactor)
        : _bounds(QPointF(0, 0), size), _contentScaleFactor(contentScaleFactor)
    {
    }

    std::shared_ptr<GLContext> makeContext() const override { return GLContext::surfaceless(); }
    void setContext(std::shared_ptr<GLContext> context) override
    {
        _drawable = context ? std::make_unique<GLDrawable>(std::move(context)) : nullptr;
    }
    void setDelegate(GLKViewDelegate* delegate) override { _delegate = delegate; }
    QRectF bounds() const override { return _bounds; }
    double contentScaleFactor() const override { return _contentScaleFactor; }
    void setNeedsDisplay() override { _needsDisplay = true; }

    void resize(QSizeF size) { _bounds.setSize(size); }
    bool needsDisplay() const { return _needsDisplay; }

    /// Draws the frame that was asked for; true if there was one.
    bool displayIfNeeded()
    {
        if (!_needsDisplay || !_delegate || !_drawable)
            return false;
        _needsDisplay = false;
        if (!_drawable->bind((_bounds.size() * _contentScaleFactor).toSize()))
            return false;
        _delegate->glkView(*this, _bounds);
        return true;
    }
    QImage readPixels() { return _drawable->readPixels(); }

private:
    QRectF _bounds;
    double _contentScaleFactor;
    std::unique_ptr<GLDrawable> _drawable;
    GLKViewDelegate* _delegate = nullptr;
    bool _needsDisplay = false;
};

} // namespace pelmira
