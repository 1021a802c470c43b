#pragma once

#include "crop/ConstraintButton.h"
#include "crop/CropConstraint.h"

#include <QImage>
#include <QList>
#include <QObject>
#include <QSizeF>

#include <array>
#include <functional>

namespace pelmira {

/// The strip of ratios at the bottom of the crop tool: sixteen buttons in a row that scrolls.
/// Lengths are points from the strip's top left.
class TOCropToolbar final : public QObject {
    Q_OBJECT
    Q_PROPERTY(QList<QObject*> buttons READ buttonObjects CONSTANT)
    Q_PROPERTY(QSizeF contentSize READ contentSize NOTIFY contentSizeChanged)
public:
    /// The size of the image fills the row of the image's own ratio.
    explicit TOCropToolbar(QSizeF originalImageSize, QObject* parent = nullptr);

    QSizeF originalImageSize() const { return _originalImageSize; }
    const std::array<QSizeF, cropPresetCount>& sizes() const { return _sizes; }

    /// Called with the tag of the button pressed. Optional.
    std::function<void(int)> aspectRatioButtonTapped;

    Q_INVOKABLE void constraintButtonPressed(pelmira::ConstraintButton* button);

    /// A rounded frame of the row's ratio in a clear square of 40 points, at the sharpest screen's
    /// resolution, with the row's small icon in the middle if it has one.
    QImage imageForConstraint(int row) const;

    /// Places the buttons in a strip of the given height.
    void positionButtonsInScrollview(double stripHeight);
    QSizeF contentSize() const { return _contentSize; }

    ConstraintButton* button(int row) const { return _buttons[static_cast<std::size_t>(row)]; }
    QList<QObject*> buttonObjects() const;

Q_SIGNALS:
    void contentSizeChanged();

private:
    void initSizes();
    void initConstraintScrollView();
    QString titleForConstraint(int row) const;

    const QSizeF _originalImageSize;
    std::array<QSizeF, cropPresetCount> _sizes;
    std::array<ConstraintButton*, cropPresetCount> _buttons = {};
    QSizeF _contentSize;
};

} // namespace pelmira
