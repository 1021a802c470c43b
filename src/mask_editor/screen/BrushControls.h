#pragma once

#include "controls/BrushPanelView.h"
#include "controls/ZKLScrollDial.h"
#include "mask_editor/brush/Brush.h"
#include "mask_editor/drawing/OverlayRequests.h"
#include "mask_editor/screen/ToolBars.h"
#include "mask_editor/surface/EditorCanvas.h"
#include "platform/base/RunLoop.h"

#include <QObject>
#include <QRectF>

#include <memory>

namespace pelmira {

/// What the user sets the brush with: the size dial and the panel with shape, offset and softness.
/// While a value changes, and for three quarters of a second after, the brush is previewed.
class BrushControls final : public QObject {
    Q_OBJECT

public:
    BrushControls(Brush& brush, EditorCanvas& canvas, OverlayRequests& overlays,
                  const ToolBars& bars, InterfaceButton& brushAdjustButton);

    /// The size dial, made at first use with the brush's present size.
    ZKLScrollDial& brushSizeScrollDial(ZKLScrollDialDelegate& delegate);
    bool owns(const ZKLScrollDial& dial) const { return &dial == _brushSizeScrollDial.get(); }
    void handleBrushSizeValue(double value);

    /// Shows in the panel what the brush is and listens to it.
    void initBrushAdjustView();
    void doShowBrushAdjustView();
    /// True if it did close the panel.
    bool hideBrushAdjustView();
    /// Opens or closes it.
    void brushButtonPressed();
    /// Places panel and preview for a view of this size, in points.
    void layoutBrushAdjustView(QSizeF viewSize);

    /// The panel while it is open, else nothing.
    BrushPanelView* brushAdjustView() { return _showBrushAdjustView ? &_panel : nullptr; }
    /// Where it stands open.
    QRectF brushAdjustFrame() const;
    void setPanelHeight(double height) { _panelHeight = height; }

Q_SIGNALS:
    void panelChanged();

private:
    void handleBrushOffsetValue(double value);
    void handleBrushSoftnessValue(double value);
    void handleBrushType(BrushType type);
    void restartBrushUpdateTimer();
    void hideUpdatingBrush();
    void placePreview();

    Brush& _brush;
    EditorCanvas& _canvas;
    OverlayRequests& _overlays;
    const ToolBars& _bars;
    InterfaceButton& _brushAdjustButton;
    BrushPanelView _panel;
    std::unique_ptr<ZKLScrollDial> _brushSizeScrollDial;
    bool _showBrushAdjustView = false;
    Timer _closingTimer; ///< the panel is in the view until its way out has ended
    Timer _updatingBrushTimer;
    double _panelHeight = 0.0;
    QSizeF _viewSize;
};

} // namespace pelmira
