#include "background_editor/patterns/PatternMakers.h"
#include "background_editor/patterns/PatternShapes.h"

#include <cmath>

namespace pelmira {
namespace {

PatternScene polkaCoral()
{
    PatternScene scene({104, 104}, rgb(0xEE6C59));
    for (const QPointF center : {QPointF(26, 26), QPointF(78, 78)})
        scene.fill(circle(center, 17), rgb(0xFFF3E4));
    return scene;
}

PatternScene pinDots()
{
    PatternScene scene({44, 44}, rgb(0x1E2A47));
    for (const QPointF center : {QPointF(11, 11), QPointF(33, 33)})
        scene.fill(circle(center, 3.4), rgb(0xF4EFE3));
    return scene;
}

PatternScene bubbles()
{
    constexpr double side = 288;
    PatternScene scene({side, side}, rgb(0xFBF6EC));
    const QRgb colors[] = {0xF2A65A, 0xE4576B, 0x2F7F86, 0xF7CF6B, 0x7CB6B0, 0x33415C};
    Dice dice(31);
    std::size_t index = 0;
    for (const QPointF center : scattered({side, side}, 60, dice)) {
        const double radius = 4.0 + 11.5 * std::pow(dice.between(0, 1), 1.6);
        scene.fill(circle(center, radius), rgb(colors[index++ % std::size(colors)]));
    }
    return scene;
}

PatternScene terrazzo()
{
    constexpr double side = 320;
    PatternScene scene({side, side}, rgb(0xF4EFE8));
    const QRgb colors[] = {0xC9705A, 0x3F5D5A, 0xE0B48A, 0x9FB3A8, 0x2E3440, 0xD9C9B8, 0xE39B86};
    Dice dice(8);
    std::size_t index = 0;
    for (const QPointF center : scattered({side, side}, 84, dice)) {
        const double size = index % 4 == 0 ? dice.between(13, 19) : dice.between(4.5, 10);
        const int corners = 4 + static_cast<int>(dice.below(3));
        const double turn = dice.between(0, fullTurn);
        const double flat = dice.between(0.55, 0.95);
        std::vector<QPointF> chip;
        for (int i = 0; i < corners; ++i) {
            const double angle = fullTurn * (i + dice.between(-0.24, 0.24)) / corners;
            const QPointF corner = polar({}, size * dice.between(0.8, 1.1), angle);
            chip.emplace_back(corner.x(), corner.y() * flat);
        }
        scene.fill(placed(polygon(chip), center, turn), rgb(colors[index++ % std::size(colors)]));
    }
    return scene;
}

PatternScene confetti()
{
    constexpr double side = 288;
    PatternScene scene({side, side}, rgb(0xFFFDF8));
    const QRgb colors[] = {0xFF6B6B, 0xFFC145, 0x21A0A0, 0x5B5F97, 0xFF9FB2, 0x8BC6A4};
    Dice dice(5);
    std::size_t index = 0;
    for (const QPointF center : scattered({side, side}, 74, dice)) {
        const QColor color = rgb(colors[index % std::size(colors)]);
        const double turn = dice.between(0, fullTurn);
        switch (index++ % 4) {
        case 0:
        case 1:
            scene.fill(placed(roundedRectangle({}, {19, 6.4}, 3.2), center, turn), color);
            break;
        case 2:
            scene.fill(circle(center, 4.6), color);
            break;
        default:
            scene.stroke(
                placed(smoothLine({{-10, 2}, {-4, -3.4}, {3, 3.4}, {10, -2}}), center, turn), color,
                3.4);
        }
    }
    return scene;
}

PatternScene drizzle()
{
    constexpr double side = 256;
    PatternScene scene({side, side}, rgb(0x20304F));
    const QRgb colors[] = {0xF6D6AD, 0xF28F79, 0x7FC8C2, 0xF5F1E6};
    Dice dice(19);
    std::size_t index = 0;
    for (const QPointF center : scattered({side, side}, 62, dice)) {
        const double length = dice.between(9, 17);
        scene.stroke(placed(polygon({{-length / 2, 0}, {length / 2, 0}}), center, -58), //
                     rgb(colors[index++ % std::size(colors)]), 4.4);
    }
    return scene;
}

PatternScene crosses()
{
    PatternScene scene({112, 112}, rgb(0xF6E4DE));
    const auto cross = [](QPointF center) {
        return rectangle(center.x() - 12, center.y() - 4, 24, 8)
            .united(rectangle(center.x() - 4, center.y() - 12, 8, 24));
    };
    scene.fill(cross({28, 28}), rgb(0xC4574A));
    scene.fill(cross({84, 84}), rgb(0x2F4858));
    return scene;
}

} // namespace

std::vector<PatternMaker> dotPatterns()
{
    return {{"polka-coral", polkaCoral}, {"pin-dots", pinDots},  {"bubbles", bubbles},
            {"terrazzo", terrazzo},      {"confetti", confetti}, {"drizzle", drizzle},
            {"crosses", crosses}};
}

} // namespace pelmira
