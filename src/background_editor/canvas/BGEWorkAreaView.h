#pragma once

#include "background_editor/canvas/CanvasImageView.h"
#include "background_editor/object/ObjectGestures.h"
#include "background_editor/object/StickerView.h"
#include "platform/touch/Touches.h"

#include <QObject>
#include <QRectF>
#include <QSizeF>

#include <memory>

namespace pelmira {

/// The stage of the composition: the canvas, as large as its ratio allows, in the middle; the
/// object over it; and in front of both, four strips that dim what lies beside the canvas. The
/// object doesn't belong to the canvas: it keeps its place in the work area when the canvas
/// changes. Points, y down, from the work area's upper left corner.
class BGEWorkAreaView final : public QObject, public TouchResponder {
    Q_OBJECT
    Q_PROPERTY(pelmira::CanvasImageView* bgImageView READ bgImageView CONSTANT)
    Q_PROPERTY(pelmira::StickerView* fgStickerView READ fgStickerView NOTIFY fgStickerViewChanged)
    Q_PROPERTY(QRectF topMaskFrame READ topMaskFrame NOTIFY layoutChanged)
    Q_PROPERTY(QRectF bottomMaskFrame READ bottomMaskFrame NOTIFY layoutChanged)
    Q_PROPERTY(QRectF leftMaskFrame READ leftMaskFrame NOTIFY layoutChanged)
    Q_PROPERTY(QRectF rightMaskFrame READ rightMaskFrame NOTIFY layoutChanged)
    Q_PROPERTY(bool animatesLayout READ animatesLayout NOTIFY animatesLayoutChanged)

public:
    BGEWorkAreaView();
    ~BGEWorkAreaView() override;

    QSizeF bounds() const { return _bounds; }
    void setBounds(QSizeF bounds);
    /// Width over height. A change is laid out by `layoutSubviews`.
    double bgAspectRatio = 4.0 / 3.0;
    /// With `animated` the canvas glides there on the screen; here it has arrived.
    void layoutSubviews(bool animated = false);

    CanvasImageView* bgImageView() { return &_bgImageView; }
    const CanvasImageView& bgImageView() const { return _bgImageView; }
    StickerView* fgStickerView() const { return _fgStickerView.get(); }
    void setFgStickerView(std::unique_ptr<StickerView> fgStickerView);

    QRectF topMaskFrame() const;
    QRectF bottomMaskFrame() const;
    QRectF leftMaskFrame() const;
    QRectF rightMaskFrame() const;
    bool animatesLayout() const { return _animatesLayout; }

    /// What of the object a touch reaches: those beside the canvas end on the masks.
    SelectableObjectView::Part hitTest(QPointF point) const;
    /// A Qt::CursorShape.
    Q_INVOKABLE int cursorForPoint(QPointF point) const;

    // Keys and other hands than fingers. They do nothing without an object.
    /// Moves it by points of the canvas, or by strides of ten.
    Q_INVOKABLE void step(int x, int y, bool strides);
    /// Larger by a twentieth each, or, below zero, smaller again.
    Q_INVOKABLE void zoomSteps(int steps);
    /// Clockwise, by five degrees each.
    Q_INVOKABLE void turnSteps(int steps);
    void scaleBy(double factor);
    Q_INVOKABLE void flip();
    /// False if nothing was selected.
    Q_INVOKABLE bool unselect();

    void touchesBegan(const TouchEvent& withEvent) override;
    void touchesMoved(const TouchEvent& withEvent) override;
    void touchesEnded(const TouchEvent& withEvent) override;
    void touchesCancelled(const TouchEvent& withEvent) override;
    void viewStepped(const ViewStep& step) override;

Q_SIGNALS:
    void animatesLayoutChanged(); ///< before the change that it speaks of
    void layoutChanged();
    void fgStickerViewChanged();

private:
    QSizeF _bounds;
    bool _animatesLayout = false;
    CanvasImageView _bgImageView;
    std::unique_ptr<StickerView> _fgStickerView;
    ObjectGestures _gestures;
};

} // namespace pelmira
