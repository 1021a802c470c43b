#pragma once

#include "background_editor/colors/ColorPickerLineView.h"
#include "background_editor/shadow/ShadowValues.h"
#include "controls/ZKLSlider.h"

#include <QColor>
#include <QObject>
#include <QString>

#include <functional>

namespace pelmira {

/// The panel of the shadow: sliders for its offset each way, from -1 to 1, and its blur, from 0 to
/// 1, and a strip of colours.
class BGEShadowView final : public QObject {
    Q_OBJECT
    Q_PROPERTY(pelmira::ColorPickerLineView* colorPickerLineView READ colorPickerLineView CONSTANT)
    Q_PROPERTY(pelmira::ZKLSlider* xSlider READ xSlider CONSTANT)
    Q_PROPERTY(pelmira::ZKLSlider* ySlider READ ySlider CONSTANT)
    Q_PROPERTY(pelmira::ZKLSlider* blurSlider READ blurSlider CONSTANT)
    Q_PROPERTY(QString blurLabel READ blurLabel CONSTANT)

public:
    explicit BGEShadowView(QObject* parent = nullptr);

    std::function<void(const QColor&)> shadowColorChangedBlock;
    /// All three at each change of one, in the sliders' units.
    std::function<void(double x, double y, double blur)> shadowValuesChangedBlock;

    ColorPickerLineView* colorPickerLineView() { return &_colorPickerLineView; }
    ZKLSlider* xSlider() { return &_xSlider; }
    ZKLSlider* ySlider() { return &_ySlider; }
    ZKLSlider* blurSlider() { return &_blurSlider; }
    QString blurLabel() const;

    /// As the panel opens. The strip of colours goes on showing what it showed last.
    void showValues(const ShadowValues& values);

private:
    void handleSlider() const;

    ColorPickerLineView _colorPickerLineView{1.0}; ///< black, as a shadow is
    ZKLSlider _xSlider;
    ZKLSlider _ySlider;
    ZKLSlider _blurSlider;
};

} // namespace pelmira
