#pragma once

#include "background_editor/canvas/AspectRatio.h"
#include "controls/StripButton.h"

#include <QList>
#include <QObject>
#include <QSizeF>

#include <array>
#include <functional>
#include <vector>

namespace pelmira {

/// The panel with a row of ratios. A press reports the ratio; the work area isn't known here.
class BGECanvasView final : public QObject {
    Q_OBJECT
    Q_PROPERTY(QList<QObject*> buttons READ buttonObjects CONSTANT)
    Q_PROPERTY(QSizeF contentSize READ contentSize NOTIFY contentSizeChanged)
    Q_PROPERTY(double stripHeight READ stripHeight WRITE setStripHeight NOTIFY contentSizeChanged)

public:
    /// Asked each time: the window may stand on another screen by then.
    explicit BGECanvasView(std::function<QSizeF()> screenBounds);

    static const std::array<AspectRatio, aspectRatioButtonCount> ratios;

    /// The chosen ratio; buttons light up whose ratio lies close to it.
    float aspectRatio() const { return _aspectRatio; }
    void setAspectRatio(float aspectRatio);
    std::function<void(float)> aspectRatioChangedBlock;

    Q_INVOKABLE void handleAspectThumbButtonWithButton(pelmira::StripButton* button);

    /// The row's height in points; buttons are as wide as they are high.
    double stripHeight() const { return _stripHeight; }
    void setStripHeight(double stripHeight);
    QSizeF contentSize() const { return _contentSize; }
    const std::vector<StripButton*>& buttons() const { return _buttons; }
    QList<QObject*> buttonObjects() const { return {_buttons.begin(), _buttons.end()}; }

Q_SIGNALS:
    void contentSizeChanged();

private:
    StripButton* makeRatioButton(int index);
    void layoutRatioButtons();
    void updateRatioHighlight(float aspectRatio);

    const std::function<QSizeF()> _screenBounds;
    std::vector<StripButton*> _buttons; ///< children
    float _aspectRatio = 1.0F;
    double _stripHeight = 0.0;
    QSizeF _contentSize;
};

} // namespace pelmira
