#pragma once

#include "controls/BrushType.h"
#include "controls/InterfaceButton.h"
#include "controls/ZKLSlider.h"

#include <QObject>
#include <QString>

#include <functional>

namespace pelmira {

/// The floating panel that picks the brush's shape and sets its offset and softness. It reports to
/// its owner and keeps no brush state but the shape that it shows: a pressed shape is shown as
/// selected only once the owner answers with setCurrentBrushType.
class BrushPanelView : public QObject {
    Q_OBJECT
    Q_PROPERTY(QString offsetLabel READ offsetLabel CONSTANT)
    Q_PROPERTY(QString softnessLabel READ softnessLabel CONSTANT)
    Q_PROPERTY(double cornerRadius READ cornerRadius CONSTANT)
    Q_PROPERTY(pelmira::ZKLSlider* offsetSlider READ offsetSlider CONSTANT)
    Q_PROPERTY(pelmira::ZKLSlider* softnessSlider READ softnessSlider CONSTANT)
    Q_PROPERTY(pelmira::InterfaceButton* circleButton READ circleButton CONSTANT)
    Q_PROPERTY(pelmira::InterfaceButton* triangleButton READ triangleButton CONSTANT)
    Q_PROPERTY(pelmira::InterfaceButton* squareButton READ squareButton CONSTANT)
public:
    explicit BrushPanelView(QObject* parent = nullptr);

    BrushType currentBrushType() const { return _currentBrushType; }
    /// Shows the shape as selected. Any value is kept; one beyond the shapes selects none.
    void setCurrentBrushType(BrushType type);

    /// Called when the user moves a slider, and on a press of a shape's button. All optional.
    std::function<void(double)> offsetChangedBlock;
    std::function<void(double)> softnessChangedBlock;
    std::function<void(BrushType)> brushTypeChangedBlock;

    void handleOffsetChanged(const ZKLSlider& slider) const;
    void handleSoftnessChanged(const ZKLSlider& slider) const;
    /// The shape is the button's tag; a button with a tag beyond the shapes does nothing.
    Q_INVOKABLE void handleBrushShapeButton(pelmira::InterfaceButton* button) const;

    /// The captions of the sliders.
    QString offsetLabel() const { return _offsetLabel; }
    QString softnessLabel() const { return _softnessLabel; }
    /// How far the panel has come on its way in, so many seconds after the start: 0 below the
    /// window, 1 in place. A spring of half the critical damping that leaves its start at three
    /// times the way a second; it swings a little beyond and rests after `openingSeconds`.
    Q_INVOKABLE static double travelAfter(double seconds);
    static constexpr double openingSeconds = 0.3;
    /// In points.
    double cornerRadius() const { return 10.0; }
    ZKLSlider* offsetSlider() { return &_offsetSlider; }
    ZKLSlider* softnessSlider() { return &_softnessSlider; }
    InterfaceButton* circleButton() { return &_circleButton; }
    InterfaceButton* triangleButton() { return &_triangleButton; }
    InterfaceButton* squareButton() { return &_squareButton; }

private:
    QString _offsetLabel;
    QString _softnessLabel;
    ZKLSlider _offsetSlider;
    ZKLSlider _softnessSlider;
    InterfaceButton _circleButton;
    InterfaceButton _triangleButton;
    InterfaceButton _squareButton;
    BrushType _currentBrushType = BrushType::circle;
};

} // namespace pelmira
