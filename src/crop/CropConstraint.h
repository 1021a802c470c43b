#pragma once

#include <QSizeF>

#include <array>

namespace pelmira {

/// The ratios that the strip offers; the number is a button's tag and the preset's value.
inline constexpr int cropPresetCount = 16;
inline constexpr int cropPresetFree = 0;
inline constexpr int cropPresetOriginal = 1;
inline constexpr int cropPresetSquare = 2;

struct CropConstraint {
    double width; ///< in the label and the icon; none for the first two rows
    double height;
    const char* icon;    ///< a small one inside the button's frame, or none
    const char* madeFor; ///< whom the icon stands for
    double ratioWidth;   ///< as applied
    double ratioHeight;
};

/// Row 7 is meant as it stands: it is labelled 4 x 3 and makes an upright box, as row 8 does.
inline constexpr std::array<CropConstraint, cropPresetCount> cropConstraints = {{
    {0, 0, nullptr, nullptr, 0, 0},
    {0, 0, nullptr, nullptr, 0, 0},
    {1, 1, "zkl-instagram-tiny", "Instagram", 1, 1},
    {4, 5, "zkl-instagram-tiny", "Instagram", 4, 5},
    {9, 16, "zkl-instagram-tiny", "Instagram", 9, 16},
    {4, 3, "zkl-facebook-tiny", "Facebook", 4, 3},
    {828, 315, "zkl-facebook-tiny", "Facebook", 828, 315},
    {4, 3, "zkl-twitter-tiny", "Twitter", 3, 4},
    {3, 4, nullptr, nullptr, 3, 4},
    {6, 4, nullptr, nullptr, 6, 4},
    {4, 6, nullptr, nullptr, 4, 6},
    {7, 5, nullptr, nullptr, 7, 5},
    {5, 7, "zkl-pinterest-tiny", "Pinterest", 5, 7},
    {10, 8, nullptr, nullptr, 10, 8},
    {8, 10, nullptr, nullptr, 8, 10},
    {16, 9, "zkl-youtube-tiny", "YouTube", 16, 9},
}};

/// The ratio that a preset gives to the crop surface; empty for the free box and for a number
/// beyond the table.
inline QSizeF ratioOfCropPreset(int preset, QSizeF imageSize)
{
    if (preset == cropPresetOriginal)
        return imageSize;
    if (preset <= cropPresetFree || preset >= cropPresetCount)
        return {0.0, 0.0};
    const CropConstraint& row = cropConstraints[static_cast<std::size_t>(preset)];
    return {row.ratioWidth, row.ratioHeight};
}

} // namespace pelmira
