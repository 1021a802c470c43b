#pragma once

#include <QColor>
#include <QImage>
#include <QStringView>

#include <optional>

namespace pelmira {

/// An opaque colour from a hash mark and six hexadecimal digits; nothing for any other text.
std::optional<QColor> colorWithHexString(QStringView text);

/// The palette that the screens share.
class StyleUtil {
public:
    static QColor deleteRed();
    static QColor buttonBlue();
    /// What is chosen, against white for what isn't.
    static QColor selectedTint();
    static QColor sliderMinTrackColor();
    static QColor sliderMaxTrackColor();
    /// A white disc of 18 points in a clear square of 20, at the sharpest screen's resolution.
    static QImage sliderThumbImage();
};

} // namespace pelmira
