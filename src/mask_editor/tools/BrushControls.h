#pragma once

#include "controls/BrushPanelView.h"
#include "controls/ZKLScrollDialDelegate.h"
#include "platform/base/RunLoop.h"

#include <QObject>
#include <QRectF>

#include <memory>

namespace pelmira {

class InterfaceButton;
struct MaskEditorEngine;

/// What the user sets the brush with: the size dial and the panel with shape, offset and softness.
/// While a value changes, and for three quarters of a second after, the brush is previewed.
class BrushControls final : public QObject, public ZKLScrollDialDelegate {
    Q_OBJECT

public:
    /// Engine and button outlive this.
    BrushControls(MaskEditorEngine& engine, InterfaceButton& brushAdjustButton);
    ~BrushControls() override;

    /// The size dial, made at first use with the brush's present size.
    ZKLScrollDial& brushSizeScrollDial();
    void zklScrollDial(ZKLScrollDial& dial, double valueChanged) override;

    /// Shows in the panel what the brush is and listens to it.
    void initBrushAdjustView();
    void doShowBrushAdjustView();
    /// True if it did close the panel.
    bool hideBrushAdjustView();
    /// Opens or closes it.
    void brushButtonPressed();
    /// Places panel and preview in what the bars leave of the view, in points, for a panel so high.
    void layoutBrushAdjustView(const QRectF& betweenBars, double panelHeight);

    /// The panel while it is open, else nothing.
    BrushPanelView* brushAdjustView() { return _showBrushAdjustView ? &_panel : nullptr; }
    /// Where it stands open.
    QRectF brushAdjustFrame() const;

Q_SIGNALS:
    void panelChanged();

private:
    void handleBrushOffsetValue(double value);
    void handleBrushSoftnessValue(double value);
    void handleBrushType(BrushType type);
    void restartBrushUpdateTimer();
    void hideUpdatingBrush();
    void placePreview();

    MaskEditorEngine& _engine;
    InterfaceButton& _brushAdjustButton;
    BrushPanelView _panel;
    std::unique_ptr<ZKLScrollDial> _brushSizeScrollDial;
    bool _showBrushAdjustView = false;
    Timer _closingTimer; ///< the panel is in the view until its way out has ended
    Timer _updatingBrushTimer;
    QRectF _betweenBars;
    double _panelHeight = 0.0;
};

} // namespace pelmira
