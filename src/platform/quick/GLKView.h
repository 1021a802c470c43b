#pragma once

#include "platform/gl/GLDrawable.h"
#include "platform/gl/GLView.h"
#include "platform/touch/Touches.h"

#include <QQuickItem>

#include <memory>
#include <optional>

namespace pelmira {

/// A `GLView` in a Qt Quick scene: an item that shows a framebuffer which its delegate draws, on
/// request only, in a context of our own that shares its textures with the scene's. Touches on it
/// go to its responder; the left mouse button is one finger. A touchpad's gestures, the wheel (with
/// Ctrl it zooms, with Alt it turns) and a drag with the middle button or the space bar step the
/// view.
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
    void wheelEvent(QWheelEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void keyReleaseEvent(QKeyEvent* event) override;
    bool event(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QPointF lastLocationOf(const Touch& touch) const;
    void takeMoves(const QTouchEvent& event);
    void step(const ViewStep& step);
    void sendMouse(QMouseEvent* event, TouchPhase phase);
    void send(const TouchEvent& event, TouchPhase phase);
    void cancelTouches();

    std::shared_ptr<GLContext> _context;
    std::unique_ptr<GLDrawable> _drawable;
    GLKViewDelegate* _delegate = nullptr;
    TouchResponder* _responder = nullptr;
    bool _needsDisplay = false;
    TouchEvent _present; ///< what is down now
    bool _spaceIsHeld = false;
    std::optional<QPointF> _dragged; ///< where a drag of the view has got to
};

} // namespace pelmira
