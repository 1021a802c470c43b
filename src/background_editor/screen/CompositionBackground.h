#pragma once

#include "background_editor/composition/Composition.h"

#include <QColor>
#include <QImage>
#include <QString>

#include <array>
#include <functional>

namespace pelmira {

class BGEWorkAreaView;

/// The background of a composition: what it is, and the canvas that shows it. There is no field for
/// its kind: the photo comes before the pattern, and that before the colour. A pattern picked over
/// a photo is seen, and yet the photo is what is drawn in the end.
class CompositionBackground {
public:
    /// The work area outlives the background.
    explicit CompositionBackground(BGEWorkAreaView& workAreaView);

    /// -1 for none.
    int bgPatternIndex() const { return _bgPatternIndex; }
    const QImage& bgImage() const { return _bgImage; }

    /// The one way in which the image changes. The canvas takes its shape; without one it stays.
    void setBackgroundImage(const QImage& image);
    void setSolidBackground(const QColor& color);
    /// A pattern, or -1 for none; it is seen once its tile is shown. Nothing else of the background
    /// changes.
    void pickPattern(int index) { _bgPatternIndex = index; }
    /// The tile of a pattern that was picked, as the canvas is to show it. One that isn't the
    /// background any more is dropped.
    void showTile(int index, const QImage& tile);
    /// As whole levels, cut off; without numbers for anything but a colour.
    QString rgbLabelText() const;
    /// Black for anything but a colour.
    std::array<float, 3> currentBackgroundRgb() const;

    /// What is drawn into the output.
    Composition::Background
    drawn(const std::function<QImage(int index, double scale)>& pattern) const;

private:
    bool isColor() const;

    BGEWorkAreaView& _workAreaView;
    QImage _bgImage;
    int _bgPatternIndex = -1;
    QColor _bgColor = Qt::white;
};

} // namespace pelmira
