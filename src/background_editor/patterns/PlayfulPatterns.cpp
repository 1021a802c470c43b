#include "background_editor/patterns/PatternMakers.h"
#include "background_editor/patterns/PatternShapes.h"

#include <array>
#include <cmath>

namespace pelmira {
namespace {

PatternScene memphis()
{
    constexpr double side = 320;
    PatternScene scene({side, side}, rgb(0xBFE3D6));
    const QRgb colors[] = {0xF2545B, 0x19323C, 0xF7C548, 0xFFFFFF, 0x5A6ACF};
    Dice dice(37);
    std::size_t index = 0;
    for (const QPointF center : scattered({side, side}, 40, dice)) {
        const QColor color = rgb(colors[index % 5]);
        const double turn = dice.between(0, fullTurn);
        switch (index++ % 8) {
        case 0:
            scene.stroke(
                placed(smoothLine({{-25, 0}, {-15, -8}, {-5, 8}, {5, -8}, {15, 8}, {25, 0}}),
                       center, turn),
                color, 5);
            break;
        case 1:
            scene.fill(placed(regularPolygon({}, 14, 3), center, turn), color);
            break;
        case 2:
            scene.stroke(circle(center, 10), color, 4.4);
            break;
        case 3: {
            QPainterPath zigzag(QPointF(-22, 5));
            for (int i = 0; i < 5; ++i)
                zigzag.lineTo(-13.2 + 8.8 * i, i % 2 == 0 ? -5 : 5);
            scene.stroke(placed(zigzag, center, turn), color, 4);
            break;
        }
        case 4:
            scene.fill(circle(center, 7.5), color);
            break;
        case 5:
            for (int x = -1; x <= 1; ++x)
                for (int y = -1; y <= 1; ++y)
                    scene.fill(placed(circle({x * 8.0, y * 8.0}, 2), center, turn), color);
            break;
        case 6:
            scene.stroke(placed(polygon({{-9, 0}, {9, 0}}), center, turn), color, 4.6);
            scene.stroke(placed(polygon({{0, -9}, {0, 9}}), center, turn), color, 4.6);
            break;
        default: {
            const QPainterPath half = circle({}, 14).intersected(rectangle(-14, -14, 28, 14));
            scene.fill(placed(half, center, turn), color);
        }
        }
    }
    return scene;
}

QPainterPath heart(double size)
{
    QPainterPath path(QPointF(0, 0.9 * size));
    path.cubicTo(-0.55 * size, 0.5 * size, -1.15 * size, 0.02 * size, -size, -0.46 * size);
    path.cubicTo(-0.86 * size, -0.94 * size, -0.2 * size, -0.98 * size, 0, -0.42 * size);
    path.cubicTo(0.2 * size, -0.98 * size, 0.86 * size, -0.94 * size, size, -0.46 * size);
    path.cubicTo(1.15 * size, 0.02 * size, 0.55 * size, 0.5 * size, 0, 0.9 * size);
    return path;
}

PatternScene hearts()
{
    PatternScene scene({128, 128}, rgb(0xFBE3E4));
    scene.fill(placed(heart(17), {32, 32}, -10), rgb(0xD64562));
    scene.fill(placed(heart(17), {96, 96}, 10), rgb(0xD64562));
    scene.fill(placed(heart(9), {96, 32}, 12), rgb(0xF08FA0));
    scene.fill(placed(heart(9), {32, 96}, -12), rgb(0xF08FA0));
    return scene;
}

PatternScene rainbows()
{
    constexpr double w = 160;
    constexpr double h = 144;
    PatternScene scene({w, h}, rgb(0xF7EFE4));
    const auto arch = [&scene](QPointF base) {
        const QRgb colors[] = {0xB5543A, 0xDB8A63, 0xEDC18F, 0x93A58B};
        double radius = 40;
        for (const QRgb color : colors) {
            QPainterPath path(base + QPointF(-radius, 14));
            path.lineTo(base + QPointF(-radius, 0));
            path.arcTo(QRectF(base.x() - radius, base.y() - radius, 2 * radius, 2 * radius), 180,
                       -180);
            path.lineTo(base + QPointF(radius, 14));
            scene.stroke(path, rgb(color), 6.4);
            radius -= 10;
        }
    };
    arch({40, 46});
    arch({120, 118});
    for (const QPointF dot : {QPointF(120, 28), QPointF(40, 100)}) {
        scene.fill(circle(dot, 4), rgb(0xDB8A63));
        for (const double turn : {0.0, 60.0, 120.0, 180.0, 240.0, 300.0})
            scene.fill(circle(polar(dot, 12, turn), 2), rgb(0xEDC18F));
    }
    return scene;
}

/// Rows of painted marks, as on cloth dyed with earth.
PatternScene mudcloth()
{
    constexpr double w = 240;
    constexpr double h = 240;
    PatternScene scene({w, h}, rgb(0x2B2926));
    const QColor chalk = rgb(0xF1E9DA);
    constexpr double line = 3.6;
    for (int i = 0; i < 6; ++i) {
        const double x = 20 + 40.0 * i;
        scene.stroke(polygon({{x - 10, 20}, {x + 10, 40}}), chalk, line);
        scene.stroke(polygon({{x + 10, 20}, {x - 10, 40}}), chalk, line);
        QPainterPath arrow(QPointF(x - 13, 150));
        arrow.lineTo(x, 137);
        arrow.lineTo(x + 13, 150);
        scene.stroke(arrow, chalk, line);
        scene.stroke(arrow.translated(0, 13), chalk, line);
    }
    for (int i = 0; i < 12; ++i) {
        const double x = 10 + 20.0 * i;
        scene.fill(circle({x, 72}, 3.4), chalk);
        scene.fill(circle({x, 110}, 3.4), chalk);
        scene.stroke(polygon({{x, 192}, {x, 222}}), chalk, line);
    }
    for (int i = 0; i < 4; ++i)
        scene.stroke(polygon({{9 + 60.0 * i, 91}, {51 + 60.0 * i, 91}}), chalk, line);
    return scene;
}

/// Leaf shapes in two colours on thin stems, of the fifties.
PatternScene midCentury()
{
    constexpr double w = 192;
    constexpr double h = 224;
    PatternScene scene({w, h}, rgb(0xF2EBDD));
    const auto seed = [&scene](QPointF center, QRgb left, QRgb right) {
        QPainterPath shape(QPointF(0, -42));
        shape.cubicTo(30, -16, 30, 16, 0, 42);
        shape.cubicTo(-30, 16, -30, -16, 0, -42);
        scene.fill(placed(shape.intersected(rectangle(-40, -50, 40, 100)), center), rgb(left));
        scene.fill(placed(shape.intersected(rectangle(0, -50, 40, 100)), center), rgb(right));
        scene.stroke(placed(polygon({{0, -54}, {0, 54}}), center), rgb(0x2F3A3F), 1.8);
        for (int i = -2; i <= 2; ++i) {
            const double y = i * 13.0;
            const double reach = 15.0 - std::abs(i) * 4.0;
            scene.stroke(placed(smoothLine({{-reach, y - 5}, {0, y + 4}, {reach, y - 5}}), center),
                         rgb(0x2F3A3F), 1.3);
        }
    };
    seed({48, 56}, 0xE0A030, 0xC6802A);
    seed({144, 56}, 0x2F7F79, 0x1F5F5B);
    seed({0, 168}, 0xD2583D, 0xB04430);
    seed({96, 168}, 0x8FA58B, 0x6F866C);
    for (const QPointF star :
         {QPointF(96, 56), QPointF(0, 56), QPointF(48, 168), QPointF(144, 168)}) {
        for (int i = 0; i < 4; ++i) {
            const double reach = i % 2 == 0 ? 15 : 9.5;
            scene.stroke(placed(polygon({{-reach, 0}, {reach, 0}}), star, 90 + 45.0 * i),
                         rgb(0x2F3A3F), 1.5);
        }
        scene.fill(circle(star, 3.4), rgb(0xE0A030));
    }
    return scene;
}

} // namespace

std::vector<PatternMaker> playfulPatterns()
{
    return {{"memphis", memphis},
            {"hearts", hearts},
            {"rainbows", rainbows},
            {"mudcloth", mudcloth},
            {"mid-century", midCentury}};
}

} // namespace pelmira
