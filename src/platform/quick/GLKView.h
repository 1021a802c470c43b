#pragma once

#include "platform/GLDrawable.h"
#include "platform/GLView.h"
#include "platform/Touches.h"

#include <QQuickItem>

#include <memory>
#include <optional>

namespace pelmira {

/// A `GLView` in a Qt Quick scene: an item that shows a framebuffer which its delegate draws, on
/// request only, in a context of our own that shares its textures with the scene's. Touches on it
/// go to its responder; the left mouse button is one finger.
class GLKView : public QQuickItem, public GLView {
    Q_OBJECT

public:
    explicit GLKView(QQuickItem* parent = nullptr);
    ~GLKView() override;

    void setContext(std::shared_ptr<GLContext> context) override;
    void setDelegate(GLKViewDelegate* delegate) override { _delegate = delegate; }
    /// Not owned; it outlives the view or is set back to nothing.
    void setResponder(TouchResponder* responder) { _responder = responder; }

    QRectF bounds() const override { return boundingRect(); }
    double contentScaleFactor() const override;
    void setNeedsDisplay() override;

protected:
    void updatePolish() override;
    QSGNode* updatePaintNode(QSGNode* oldNode, UpdatePaintNodeData* data) override;
    void geometryChange(const QRectF& newGeometry, const QRectF& oldGeometry) override;
    void itemChange(ItemChange change, const ItemChangeData& data) override;
    void touchEvent(QTouchEvent* event) override;
    void touchUngrabEvent() override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseUngrabEvent() override;

private:
    void sendMouse(QMouseEvent* event, TouchPhase phase);
    void send(const TouchEvent& event, TouchPhase phase);
    void cancelTouches();

    std::shared_ptr<GLContext> _context;
    std::unique_ptr<GLDrawable> _drawable;
    GLKViewDelegate* _delegate = nullptr;
    TouchResponder* _responder = nullptr;
    bool _needsDisplay = false;
    TouchEvent _present; ///< what is down now
};

} // namespace pelmira
