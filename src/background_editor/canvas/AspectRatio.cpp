#include "background_editor/canvas/AspectRatio.h"

#include <algorithm>
#include <array>
#include <cstddef>

namespace pelmira {
namespace {

struct Row {
    QStringView rawValue;
    float value;
    const char* overlay = nullptr;
};

constexpr std::array<Row, aspectRatioButtonCount + 1> rows{{
    {u"1:1", 1.0F, "zkl-instagram-tiny"},
    {u"4:5", 0.8F, "zkl-instagram-tiny"},
    {u"4:3", 1.3333334F, "zkl-facebook-tiny"},
    {u"828x315", 2.6285715F, "zkl-facebook-tiny"},
    {u"2:1", 2.0F, "zkl-twitter-tiny"},
    {u"5:7", 0.71428573F, "zkl-pinterest-tiny"},
    {u"16:9", 1.7777778F, "zkl-youtube-tiny"},
    {u"SCREEN", 0.0F, "zkl-screen-tiny"}, // asked for each time
    {u"8.5x11", 0.77272725F},
    {u"11x8.5", 1.2941177F},
    {u"A4", 0.70711356F}, // of 1.4142, as the other way round
    {u" A4 ", 1.4142F},
    {u"7:5", 1.4F},
    {u"6:4", 1.5F},
    {u"5:3", 1.6666666F},
    {u"10:8", 1.25F},
    {u"3:4", 0.75F},
    {u"4:6", 0.6666667F},
    {u"3:5", 0.6F},
    {u"9:16", 0.5625F},
    {u"?:?", 0.0F},
}};

const Row& rowOf(AspectRatio ratio)
{
    return rows[static_cast<std::size_t>(ratio)];
}

} // namespace

QStringView rawValue(AspectRatio ratio)
{
    return rowOf(ratio).rawValue;
}

std::optional<AspectRatio> aspectRatioWithRawValue(QStringView rawValue)
{
    const auto row = std::find_if(rows.begin(), rows.end(),
                                  [=](const Row& each) { return each.rawValue == rawValue; });
    if (row == rows.end())
        return std::nullopt;
    return static_cast<AspectRatio>(row - rows.begin());
}

float ratioValue(AspectRatio ratio, QSizeF screenBounds)
{
    if (ratio != AspectRatio::RatioScreen)
        return rowOf(ratio).value;
    if (screenBounds.isEmpty()) // no screen is there to ask
        return 1.0F;
    const double width = screenBounds.width();
    const double height = screenBounds.height();
    return static_cast<float>(std::min(width, height) / std::max(width, height));
}

const char* overlayImageName(AspectRatio ratio)
{
    return rowOf(ratio).overlay;
}

} // namespace pelmira
