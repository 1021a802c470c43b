#include "mask_editor/tools/WandTool.h"

#include "controls/ZKLScrollDial.h"
#include "mask_editor/tools/MaskEditorEngine.h"
#include "platform/text/LocalizedStrings.h"

#include <algorithm>
#include <utility>

namespace pelmira {
namespace {

constexpr double firstDialValue = 0.2;

} // namespace

WandTool::WandTool(MaskEditorEngine& engine, std::function<void(bool)> setShowTools)
    : _engine(engine), _setShowTools(std::move(setShowTools)),
      _tolerance(toleranceForDialValue(firstDialValue))
{
}

WandTool::~WandTool() = default;

unsigned WandTool::toleranceForDialValue(double value)
{
    // A dial's value comes from where its strip stands: 0.2 may come back a hair's breadth short.
    constexpr double rounding = 1e-6;
    return static_cast<unsigned>(std::clamp(value, 0.0, 1.0) * 255.0 + rounding);
}

void WandTool::selected()
{
    _engine.wand.endFloodFillSession();
}

ZKLScrollDial& WandTool::dial()
{
    if (!_floodFillScrollDial) {
        _floodFillScrollDial = std::make_unique<ZKLScrollDial>();
        _floodFillScrollDial->setValue(firstDialValue);
        _floodFillScrollDial->setDelegate(this);
        _floodFillScrollDial->setTitle(localized("mainscreen.bottombar.tolerance"));
    }
    return *_floodFillScrollDial;
}

void WandTool::zklScrollDial(ZKLScrollDial&, double valueChanged)
{
    _tolerance = toleranceForDialValue(valueChanged);
    _engine.wand.updateFloodFillTolerance(_tolerance);
}

void WandTool::handleWandEvent(const TouchEvent& event, TouchPhase phase)
{
    if (!_engine.canvas.isOpen())
        return;
    const QPointF position = event.anyTouch().location;
    _engine.overlays.brushPosition = position;
    switch (phase) {
    case TouchBegan:
        aim(event.isSingle()); // a second finger means the view, not the wand
        break;
    case TouchMoved:
        if (!_wandCancelled)
            _engine.overlays.drawWandZoom = true;
        break;
    case TouchEnded:
        if (!_wandCancelled) {
            // One level here and one more in doWandAtPoint, with the same contents: a tap beside
            // the photo leaves one level, a tap on it two.
            _engine.jobs.whenReady([this] { _engine.history.saveUndoBuffer(); });
            doWandAtPoint(position);
            aim(false);
        }
        break;
    case TouchCancelled:
        aim(false);
        break;
    }
    _engine.canvas.setNeedsDisplay();
}

void WandTool::aim(bool isAiming)
{
    _engine.overlays.drawWandZoom = isAiming;
    _wandCancelled = !isAiming;
    _setShowTools(!isAiming);
}

void WandTool::doWandAtPoint(QPointF point)
{
    const QPointF m = _engine.canvas.maskPosWithLowerLeftZeroOriginForScreenPos(point);
    const QSizeF size = _engine.canvas.fgImage.imageRes;
    if (!(m.x() >= 0 && m.y() >= 0 && m.x() < size.width() && m.y() < size.height()))
        return;
    _engine.jobs.whenReady([this, m] {
        _engine.history.saveUndoBuffer();
        _engine.wand.floodFillPoint(m, _tolerance);
    });
}

} // namespace pelmira
