#pragma once

#include <QColor>
#include <QImage>
#include <QObject>
#include <QStringView>

#include <optional>

namespace pelmira {

/// An opaque colour from a hash mark and six hexadecimal digits; nothing for any other text.
std::optional<QColor> colorWithHexString(QStringView text);

/// The palette that the screens share; the layout files have it under this name too.
class StyleUtil : public QObject {
    Q_OBJECT
    Q_PROPERTY(QColor ground READ ground CONSTANT)
    Q_PROPERTY(QColor deleteRed READ deleteRed CONSTANT)
    Q_PROPERTY(QColor buttonBlue READ buttonBlue CONSTANT)
    Q_PROPERTY(QColor selectedTint READ selectedTint CONSTANT)
    Q_PROPERTY(QColor sliderMinTrackColor READ sliderMinTrackColor CONSTANT)
    Q_PROPERTY(QColor sliderMaxTrackColor READ sliderMaxTrackColor CONSTANT)

public:
    using QObject::QObject;

    /// Behind every screen, and in the window before the first one.
    static QColor ground();
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
