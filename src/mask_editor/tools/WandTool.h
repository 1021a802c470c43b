#pragma once

#include "controls/ZKLScrollDialDelegate.h"
#include "mask_editor/tools/Tool.h"

#include <functional>
#include <memory>

namespace pelmira {

struct MaskEditorEngine;

/// The magic wand: a finger aims under a magnifier, lifting it fills there, and the dial then runs
/// the same fill again at other tolerances.
class WandTool final : public Tool, public ZKLScrollDialDelegate {
public:
    /// The engine outlives the tool.
    WandTool(MaskEditorEngine& engine, std::function<void(bool)> setShowTools);
    ~WandTool() override;

    void selected() override;
    ZKLScrollDial& dial() override;
    void zklScrollDial(ZKLScrollDial& dial, double valueChanged) override;

    void handleEvent(const TouchEvent& event, TouchPhase phase) override
    {
        handleWandEvent(event, phase);
    }
    void handleWandEvent(const TouchEvent& event, TouchPhase phase);
    bool paints() const override { return false; }

    /// Starts a fill if the screen point lies on the photo; while another runs, after it.
    void doWandAtPoint(QPointF point);
    /// From 0 to 255.
    static unsigned toleranceForDialValue(double value);

private:
    void aim(bool isAiming);

    MaskEditorEngine& _engine;
    std::function<void(bool)> _setShowTools;
    std::unique_ptr<ZKLScrollDial> _floodFillScrollDial;
    unsigned _tolerance;
    bool _wandCancelled = true;
};

} // namespace pelmira
