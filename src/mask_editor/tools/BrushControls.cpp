#include "mask_editor/tools/BrushControls.h"

#include "controls/InterfaceButton.h"
#include "controls/StyleUtil.h"
#include "controls/ZKLScrollDial.h"
#include "mask_editor/tools/MaskEditorEngine.h"
#include "platform/text/LocalizedStrings.h"

namespace pelmira {
namespace {

constexpr double secondsPreviewed = 0.75;
constexpr double secondsClosing = 0.2;
constexpr double panelMargin = 20.0;  // points
constexpr double previewMargin = 8.0; // points

} // namespace

BrushControls::BrushControls(MaskEditorEngine& engine, InterfaceButton& brushAdjustButton)
    : _engine(engine), _brushAdjustButton(brushAdjustButton)
{
}

BrushControls::~BrushControls() = default;

ZKLScrollDial& BrushControls::brushSizeScrollDial()
{
    if (!_brushSizeScrollDial) {
        _brushSizeScrollDial = std::make_unique<ZKLScrollDial>();
        _brushSizeScrollDial->setValue(_engine.brush.unitBrushSize());
        _brushSizeScrollDial->setDelegate(this);
        _brushSizeScrollDial->setTitle(localized("mainscreen.bottombar.size"));
    }
    return *_brushSizeScrollDial;
}

void BrushControls::zklScrollDial(ZKLScrollDial&, double valueChanged)
{
    _engine.brush.setUnitBrushSize(valueChanged);
    restartBrushUpdateTimer();
}

void BrushControls::initBrushAdjustView()
{
    _panel.setCurrentBrushType(static_cast<BrushType>(_engine.brush.brushType()));
    _panel.offsetSlider()->setValue(float(_engine.brush.unitBrushOffset()));
    _panel.softnessSlider()->setValue(float(_engine.brush.unitBrushSoft()));
    _panel.offsetChangedBlock = [this](double value) { handleBrushOffsetValue(value); };
    _panel.softnessChangedBlock = [this](double value) { handleBrushSoftnessValue(value); };
    _panel.brushTypeChangedBlock = [this](BrushType type) { handleBrushType(type); };
}

void BrushControls::handleBrushOffsetValue(double value)
{
    _engine.brush.setUnitBrushOffset(value);
    restartBrushUpdateTimer();
}

void BrushControls::handleBrushSoftnessValue(double value)
{
    _engine.brush.setUnitBrushSoft(value);
    restartBrushUpdateTimer();
}

void BrushControls::handleBrushType(BrushType type)
{
    _engine.brush.setBrushType(static_cast<int>(type));
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

void BrushControls::layoutBrushAdjustView(const QRectF& betweenBars, double panelHeight)
{
    _betweenBars = betweenBars;
    _panelHeight = panelHeight;
    placePreview();
    Q_EMIT panelChanged();
}

QRectF BrushControls::brushAdjustFrame() const
{
    return {panelMargin, _betweenBars.bottom() - panelMargin - _panelHeight,
            _betweenBars.width() - 2 * panelMargin, _panelHeight};
}

void BrushControls::restartBrushUpdateTimer()
{
    _updatingBrushTimer = Timer::scheduled(secondsPreviewed, [this] { hideUpdatingBrush(); });
    placePreview();
    _engine.canvas.setNeedsDisplay();
}

void BrushControls::hideUpdatingBrush()
{
    _updatingBrushTimer.invalidate();
    _engine.overlays.brushPreview.reset();
    _engine.canvas.setNeedsDisplay();
}

// In the middle, but under the top bar while the panel is there, which would hide it.
void BrushControls::placePreview()
{
    if (!_updatingBrushTimer.isValid())
        return;
    const QSizeF view = _engine.canvas.viewSize();
    const bool panelIsInView = _showBrushAdjustView || _closingTimer.isValid();
    const double y = panelIsInView
                         ? _betweenBars.top() + previewMargin + _engine.brush.maxBrushSize() * 0.25
                         : view.height() / 2;
    _engine.overlays.brushPreview = QPointF(view.width() / 2, y);
    _engine.canvas.setNeedsDisplay();
}

} // namespace pelmira
