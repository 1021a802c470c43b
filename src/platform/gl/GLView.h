#pragma once

#include "platform/gl/GLContext.h"

#include <QRectF>

#include <memory>

namespace pelmira {

class GLView;

/// Draws the contents of a `GLView` when it asks.
class GLKViewDelegate {
public:
    virtual ~GLKViewDelegate() = default;
    /// The view's framebuffer is bound, its viewport covers it and its earlier contents stand.
    virtual void glkView(GLView& view, const QRectF& drawInRect) = 0;
};

/// A rectangle of the screen that shows a framebuffer, drawn on request only. In points, y down.
class GLView {
public:
    virtual ~GLView() = default;

    /// A context whose frames it can show. Nothing on failure.
    virtual std::shared_ptr<GLContext> makeContext() const = 0;
    /// The context that draws it; nothing draws before both are set. The delegate is not owned.
    virtual void setContext(std::shared_ptr<GLContext> context) = 0;
    virtual void setDelegate(GLKViewDelegate* delegate) = 0;

    virtual QRectF bounds() const = 0;
    /// Pixels of the framebuffer for each point.
    virtual double contentScaleFactor() const = 0;
    /// Asks for one frame; several requests before it make one.
    virtual void setNeedsDisplay() = 0;
};

} // namespace pelmira
