#pragma once

#include "platform/gl/GLDrawable.h"
#include "platform/gl/GLView.h"

#include <QQuickItem>

#include <memory>

namespace pelmira {

/// A `GLView` in a Qt Quick scene: an item that shows a framebuffer which its delegate draws, on
/// request only, in a context of our own that shares its textures with the scene's.
class GLKView : public QQuickItem, public GLView {
    Q_OBJECT

public:
    explicit GLKView(QQuickItem* parent = nullptr);
    ~GLKView() override;

    /// In one share group with the window's scene. Nothing before that is drawn for the first time.
    static std::shared_ptr<GLContext> makeContext(QQuickWindow& window);

    std::shared_ptr<GLContext> makeContext() const override;
    void setContext(std::shared_ptr<GLContext> context) override;
    void setDelegate(GLKViewDelegate* delegate) override { _delegate = delegate; }

    QRectF bounds() const override { return boundingRect(); }
    double contentScaleFactor() const override;
    void setNeedsDisplay() override;

protected:
    void updatePolish() override;
    QSGNode* updatePaintNode(QSGNode* oldNode, UpdatePaintNodeData* data) override;
    void geometryChange(const QRectF& newGeometry, const QRectF& oldGeometry) override;
    void itemChange(ItemChange change, const ItemChangeData& data) override;

private:
    std::shared_ptr<GLContext> _context;
    std::unique_ptr<GLDrawable> _drawable;
    GLKViewDelegate* _delegate = nullptr;
    bool _needsDisplay = false;
};

} // namespace pelmira
