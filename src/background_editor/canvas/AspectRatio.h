#pragma once

#include <QSizeF>
#include <QStringView>

#include <array>
#include <optional>

namespace pelmira {

/// The shapes of the canvas, in the order of the strip.
enum class AspectRatio {
    RatioSquare,
    RatioInsta4x5,
    RatioFacebook4x3,
    RatioFacebookCover,
    RatioTwitter2x1,
    RatioPintrest5x7,
    RatioYoutube16x9,
    RatioScreen,
    RatioLetterPortrait,
    RatioLetterLandscape,
    RatioA4Portrait,
    RatioA4Landscape,
    Ratio7x5,
    Ratio6x4,
    Ratio5x3,
    Ratio10x8,
    Ratio3x4,
    Ratio4x6,
    Ratio3x5,
    Ratio9x16,
    RatioCustom, ///< on no button
};

constexpr int aspectRatioButtonCount = static_cast<int>(AspectRatio::RatioCustom);

/// Also the button's title, so no two are equal.
QStringView rawValue(AspectRatio ratio);
/// Nothing for any other text.
std::optional<AspectRatio> aspectRatioWithRawValue(QStringView rawValue);
/// Width over height. The screen's bounds are in points; its ratio is never above 1.
float ratioValue(AspectRatio ratio, QSizeF screenBounds);
/// A pictogram in the middle of the ratio's icon; null if it has none.
const char* overlayImageName(AspectRatio ratio);

} // namespace pelmira
