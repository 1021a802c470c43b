#pragma once

#include "background_editor/colors/ColorPickerLineView.h"
#include "background_editor/colors/ColorPickerView.h"

#include <QObject>

#include <functional>

namespace pelmira {

/// The panel of solid colours: two pickers that report to one block and know nothing of each other.
class BGEColorView final : public QObject {
    Q_OBJECT
    Q_PROPERTY(pelmira::ColorPickerLineView* colorPickerLineView READ colorPickerLineView CONSTANT)
    Q_PROPERTY(pelmira::ColorPickerView* colorPickerView READ colorPickerView CONSTANT)

public:
    BGEColorView()
    {
        const auto report = [this](const QColor& color) {
            if (colorChangedBlock)
                colorChangedBlock(color);
        };
        _colorPickerLineView.colorChangedBlock = report;
        _colorPickerView.colorChangedBlock = report;
    }

    std::function<void(const QColor&)> colorChangedBlock;

    ColorPickerLineView* colorPickerLineView() { return &_colorPickerLineView; }
    ColorPickerView* colorPickerView() { return &_colorPickerView; }

private:
    ColorPickerLineView _colorPickerLineView;
    ColorPickerView _colorPickerView;
};

} // namespace pelmira
