#include "mask_editor/screen/BrushControls.h"

#include "controls/StyleUtil.h"
#include "platform/text/LocalizedStrings.h"

namespace pelmira {
namespace {

constexpr double secondsPreviewed = 0.75;
constexpr double secondsClosing = 0.2;
constexpr double panelMargin = 20.0;  // points
constexpr double previewMargin = 8.0; // points

} // namespace

BrushControls::BrushControls(Brush& brush, EditorCanvas& canvas, OverlayRequests& overlays,
                             const ToolBars& bars, InterfaceButton& brushAdjustButton)
    : _brush(brush), _canvas(canvas), _overlays(overlays), _bars(bars),
      _brushAdjustButton(brushAdjustButton)
{
}

ZKLScrollDial& BrushControls::brushSizeScrollDial(ZKLScrollDialDelegate& delegate)
{
    if (!_brushSizeScrollDial) {
        _brushSizeScrollDial = std::make_unique<ZKLScrollDial>();
        _brushSizeScrollDial->setValue(_brush.unitBrushSize());
        _brushSizeScrollDial->setDelegate(&delegate);
        _brushSizeScrollDial->setTitle(localized("mainscreen.bottombar.size"));
    }
    return *_brushSizeScrollDial;
}

void BrushControls::handleBrushSizeValue(double value)
{
    _brush.setUnitBrushSize(value);
    restartBrushUpdateTimer();
}

void BrushControls::initBrushAdjustView()
{
    _panel.setCurrentBrushType(static_cast<BrushType>(_brush.brushType()));
    _panel.offsetSlider()->setValue(float(_brush.unitBrushOffset()));
    _panel.softnessSlider()->setValue(float(_brush.unitBrushSoft()));
    _panel.offsetChangedBlock = [this](double value) { handleBrushOffsetValue(value); };
    _panel.softnessChangedBlock = [this](double value) { handleBrushSoftnessValue(value); };
    _panel.brushTypeChangedBlock = [this](BrushType type) { handleBrushType(type); };
}

void BrushControls::handleBrushOffsetValue(double value)
{
    _brush.setUnitBrushOffset(value);
    restartBrushUpdateTimer();
}

void BrushControls::handleBrushSoftnessValue(double value)
{
    _brush.setUnitBrushSoft(value);
    restartBrushUpdateTimer();
}

void BrushControls::handleBrushType(BrushType type)
{
    _brush.setBrushType(static_cast<int>(type));
    _panel.setCurrentBrushType(type);
    restartBrushUpdateTimer();
}

void BrushControls::brushButtonPressed()
{
    if (_showBrushAdjustView || _closingTimer.isValid())
        hideBrushAdjustView();
    else
        doShowBrushAdjustView();
}

void BrushControls::doShowBrushAdjustView()
{
    _brushAdjustButton.setTintColor(StyleUtil::selectedTint());
    _brushAdjustButton.setSelected(true);
    _showBrushAdjustView = true;
    placePreview();
    Q_EMIT panelChanged();
}

bool BrushControls::hideBrushAdjustView()
{
    _brushAdjustButton.setTintColor(Qt::white);
    _brushAdjustButton.setSelected(false);
    if (!_showBrushAdjustView)
        return false;
    _showBrushAdjustView = false;
    _closingTimer = Timer::scheduled(secondsClosing, [this] { placePreview(); });
    Q_EMIT panelChanged();
    return true;
}

void BrushControls::layoutBrushAdjustView(QSizeF viewSize)
{
    _viewSize = viewSize;
    placePreview();
    Q_EMIT panelChanged();
}

QRectF BrushControls::brushAdjustFrame() const
{
    return {panelMargin, _viewSize.height() - _bars.bottomBarHeight() - panelMargin - _panelHeight,
            _viewSize.width() - 2 * panelMargin, _panelHeight};
}

void BrushControls::restartBrushUpdateTimer()
{
    _updatingBrushTimer = Timer::scheduled(secondsPreviewed, [this] { hideUpdatingBrush(); });
    placePreview();
    _canvas.setNeedsDisplay();
}

void BrushControls::hideUpdatingBrush()
{
    _updatingBrushTimer.invalidate();
    _overlays.brushPreview.reset();
    _canvas.setNeedsDisplay();
}

// In the middle, but under the top bar while the panel is there, which would hide it.
void BrushControls::placePreview()
{
    if (!_updatingBrushTimer.isValid())
        return;
    const QSizeF view = _canvas.viewSize();
    const bool panelIsInView = _showBrushAdjustView || _closingTimer.isValid();
    const double y = panelIsInView
                         ? _bars.topBarBottom() + previewMargin + _brush.maxBrushSize() * 0.25
                         : view.height() / 2;
    _overlays.brushPreview = QPointF(view.width() / 2, y);
    _canvas.setNeedsDisplay();
}

} // namespace pelmira
