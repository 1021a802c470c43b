#include "background_editor/patterns/PatternMakers.h"
#include "background_editor/patterns/PatternShapes.h"

#include <array>
#include <cmath>
#include <numbers>

namespace pelmira {
namespace {

constexpr double root2 = std::numbers::sqrt2;

PatternScene awning()
{
    PatternScene scene({96, 96}, rgb(0xFFF8F1), {2, 1});
    scene.fill(rectangle(0, 0, 48, 96), rgb(0xF3A7A7));
    scene.fill(rectangle(54, 0, 2.5, 96), rgb(0xF3A7A7));
    scene.fill(rectangle(87.5, 0, 2.5, 96), rgb(0xF3A7A7));
    return scene;
}

PatternScene breton()
{
    PatternScene scene({60, 60}, rgb(0xF6F1E4), {1, 3});
    scene.fill(rectangle(0, 20, 60, 20), rgb(0x22365C));
    return scene;
}

PatternScene deckchair()
{
    struct Stripe {
        double width;
        QRgb color;
    };
    const Stripe stripes[] = {{44, 0x1F4E5F}, {6, 0xF7EBD3}, {10, 0xF2B134}, {6, 0xF7EBD3},
                              {30, 0xE4572E}, {6, 0xF7EBD3}, {44, 0x76B7B2}, {6, 0xF7EBD3},
                              {30, 0xE4572E}, {6, 0xF7EBD3}, {10, 0xF2B134}, {6, 0xF7EBD3}};
    PatternScene scene({204, 204}, rgb(0xF7EBD3));
    double x = 0;
    for (const Stripe& stripe : stripes) {
        scene.fill(rectangle(x, 0, stripe.width, 204), rgb(stripe.color));
        x += stripe.width;
    }
    return scene;
}

PatternScene mustardDiagonal()
{
    constexpr double side = 84;
    PatternScene scene({side, side}, rgb(0xF3C24B));
    const auto band = [](double from, double width) {
        return polygon(
            {{from, 0}, {from + width, 0}, {from + width - side, side}, {from - side, side}});
    };
    scene.fill(band(0, 30), rgb(0xFFF4D6));
    scene.fill(band(52, 6), rgb(0xFFF4D6));
    return scene;
}

PatternScene gingham()
{
    constexpr double side = 72;
    PatternScene scene({side, side}, rgb(0xFDFCF7), {2, 2});
    QColor thread = rgb(0x6F9277);
    thread.setAlphaF(0.5F);
    scene.fill(rectangle(0, 0, side / 2, side), thread);
    scene.fill(rectangle(0, 0, side, side / 2), thread);
    return scene;
}

PatternScene tartan()
{
    constexpr double side = 208;
    struct Band {
        double from;
        double width;
        QRgb color;
        float opacity;
    };
    const Band bands[] = {{0, 64, 0x14302A, 0.62F},   {84, 10, 0xB33A3A, 0.85F},
                          {108, 28, 0x1B2A49, 0.62F}, {150, 10, 0xB33A3A, 0.85F},
                          {30, 4, 0xE9C46A, 0.75F},   {120, 4, 0xF1EDE0, 0.5F}};
    PatternScene scene({side, side}, rgb(0x2F5D50));
    for (const Band& band : bands) {
        QColor color = rgb(band.color);
        color.setAlphaF(band.opacity * 0.72F);
        scene.fill(rectangle(band.from, 0, band.width, side), color);
        scene.fill(rectangle(0, band.from, side, band.width), color);
    }
    return scene;
}

PatternScene graphPaper()
{
    PatternScene scene({80, 80}, rgb(0xFBFBF6), {5, 5});
    for (int i = 1; i < 5; ++i) {
        scene.fill(rectangle(16 * i - 0.5, 0, 1, 80), rgb(0xD3E2EE));
        scene.fill(rectangle(0, 16 * i - 0.5, 80, 1), rgb(0xD3E2EE));
    }
    scene.fill(rectangle(-0.9, 0, 1.8, 80), rgb(0x9DBCD8));
    scene.fill(rectangle(0, -0.9, 80, 1.8), rgb(0x9DBCD8));
    return scene;
}

/// Planks four times as long as wide, turned by 45 degrees. A pair of them, one each way, fills a
/// rectangle of root 2 times a plank's length by root 2 times its width.
PatternScene parquet()
{
    constexpr double width = 23;
    constexpr double length = 4 * width;
    constexpr int across = 2;
    constexpr int down = 8;
    PatternScene scene({across * length * root2, down * width * root2}, rgb(0x8A5F3C));
    const QRgb woods[] = {0xC9986A, 0xBD8A5B, 0xD6AB7E, 0xB47F50, 0xCFA274};
    Dice dice(3);
    constexpr double gap = 0.9;
    for (int column = 0; column < across; ++column) {
        for (int row = 0; row < down; ++row) {
            const QPointF corner(column * length * root2, row * width * root2);
            scene.fill(placed(rectangle(gap, gap, length - 2 * gap, width - 2 * gap), corner, 45),
                       rgb(dice.oneOf(std::to_array(woods))));
            scene.fill(
                placed(rectangle(gap, width + gap, width - 2 * gap, length - 2 * gap), corner, 45),
                rgb(dice.oneOf(std::to_array(woods))));
        }
    }
    return scene;
}

PatternScene chevron()
{
    constexpr double width = 80;
    constexpr double rise = 34;
    constexpr double step = 34;
    const QRgb colors[] = {0x1F7A7A, 0xF5EFE0, 0x8CC6B8, 0xF5EFE0};
    PatternScene scene({width, step * std::size(colors)}, rgb(colors[1]));
    double y = 0;
    for (const QRgb color : colors) {
        scene.fill(polygon({{0, y},
                            {width / 2, y + rise},
                            {width, y},
                            {width, y + step},
                            {width / 2, y + rise + step},
                            {0, y + step}}),
                   rgb(color));
        y += step;
    }
    return scene;
}

PatternScene basketWeave()
{
    constexpr double side = 96;
    PatternScene scene({side, side}, rgb(0x7B4B36));
    const auto bundle = [&scene](QPointF center, double turn) {
        for (int i = -1; i <= 1; ++i)
            scene.fill(placed(roundedRectangle({0, i * 15.0}, {45, 13}, 4.5), center, turn),
                       rgb(i == 0 ? 0xE3B587 : 0xD6A273));
    };
    bundle({24, 24}, 0);
    bundle({72, 24}, 90);
    bundle({24, 72}, 90);
    bundle({72, 72}, 0);
    return scene;
}

/// Checks whose edges sway.
PatternScene groovyChecks()
{
    constexpr double cell = 64;
    constexpr double side = 4 * cell;
    const auto swayed = [](double x, double y) {
        const double turn = 2 * std::numbers::pi / side;
        return QPointF(x + 13 * std::sin(turn * y), y + 13 * std::sin(turn * x));
    };
    PatternScene scene({side, side}, rgb(0xF8EFE2));
    constexpr int steps = 12;
    for (int row = 0; row < 4; ++row) {
        for (int column = row % 2; column < 4; column += 2) {
            const double x = column * cell;
            const double y = row * cell;
            std::vector<QPointF> outline;
            for (int i = 0; i < steps; ++i)
                outline.push_back(swayed(x + cell * i / steps, y));
            for (int i = 0; i < steps; ++i)
                outline.push_back(swayed(x + cell, y + cell * i / steps));
            for (int i = 0; i < steps; ++i)
                outline.push_back(swayed(x + cell - cell * i / steps, y + cell));
            for (int i = 0; i < steps; ++i)
                outline.push_back(swayed(x, y + cell - cell * i / steps));
            scene.fill(polygon(outline), rgb(0xB89AD1));
        }
    }
    return scene;
}

} // namespace

std::vector<PatternMaker> stripePatterns()
{
    return {{"awning", awning},
            {"breton", breton},
            {"deckchair", deckchair},
            {"mustard-diagonal", mustardDiagonal},
            {"gingham", gingham},
            {"tartan", tartan},
            {"graph-paper", graphPaper},
            {"parquet", parquet},
            {"chevron", chevron},
            {"basket-weave", basketWeave},
            {"groovy-checks", groovyChecks}};
}

} // namespace pelmira
