#pragma once

#include <QImage>
#include <QString>
#include <QStringList>

#include <optional>

namespace pelmira {

/// The library of ready-made patterns. They are drawn when they are asked for, at the size in which
/// they are shown, so that they are sharp at any. Safe from any thread.
class ZKLPatterns {
public:
    static const ZKLPatterns& shared();

    /// Each stands for the same pattern for good.
    const QStringList& patternNames() const { return _patternNames; }
    /// A square piece of the pattern, a quarter as wide as a canvas; opaque, in the bitmap form.
    /// Null for an unknown name. Takes some milliseconds.
    QImage thumbnailForName(const QString& name) const;
    /// One tile, seamless, opaque, in the bitmap form. Scale 1 is for a canvas of 1024 pixels on
    /// its longer side. Nothing for an unknown name, or where a tile would have no or too many
    /// pixels.
    std::optional<QImage> imageForName(const QString& name, double scale) const;

    /// The scale for a canvas with this longer side.
    static double scaleForSide(double longerSide) { return longerSide * 0.0009765625; }

    static constexpr int thumbnailSide = 240; ///< pixels

private:
    ZKLPatterns();

    const QStringList _patternNames;
};

} // namespace pelmira
