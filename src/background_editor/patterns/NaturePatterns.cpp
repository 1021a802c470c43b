#include "background_editor/patterns/PatternContours.h"
#include "background_editor/patterns/PatternMakers.h"
#include "background_editor/patterns/PatternShapes.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>

namespace pelmira {
namespace {

PatternScene forestLeaves()
{
    constexpr double side = 320;
    PatternScene scene({side, side}, rgb(0x16362F));
    const QRgb light[] = {0x5E9C76, 0x3F7F63, 0x8DB580, 0x2F6B57, 0xC7D59F};
    const QRgb dark[] = {0x4C8664, 0x326B53, 0x749E6A, 0x245746, 0xADBE86};
    Dice dice(14);
    std::size_t index = 0;
    for (const QPointF center : scattered({side, side}, 34, dice)) {
        const double length = dice.between(44, 66);
        const QPointF shift(-length / 2, 0);
        const QPainterPath blade = leaf(length, length * 0.34).translated(shift);
        const QPainterPath half = blade.intersected(rectangle(-length, 0, 2 * length, length));
        const double turn = dice.between(0, fullTurn);
        scene.fill(placed(blade, center, turn), rgb(light[index % 5]));
        scene.fill(placed(half, center, turn), rgb(dark[index % 5]));
        scene.stroke(placed(polygon({{-length * 0.62, 0}, {length * 0.34, 0}}), center, turn),
                     rgb(0x16362F), 1.5);
        ++index;
    }
    return scene;
}

/// Stems that sway upwards, with round leaves in pairs.
PatternScene eucalyptus()
{
    constexpr double width = 224;
    constexpr double height = 320;
    PatternScene scene({width, height}, rgb(0xF6EEE6));
    const auto greens = std::to_array<QRgb>({0x8FA89A, 0x7B9788, 0xA9BDAE, 0x6A8878});
    Dice dice(6);
    const auto sway = [](double x, double y) {
        return QPointF(x + 13 * std::sin(2 * std::numbers::pi * y / height), y);
    };
    for (int stem = 0; stem < 2; ++stem) {
        const double x = width * (0.25 + 0.5 * stem);
        const double start = stem * 20.0;
        std::vector<QPointF> line;
        for (int i = 0; i <= 16; ++i)
            line.push_back(sway(x, height * i / 16));
        scene.stroke(smoothLine(line), rgb(0x6A7F72), 2.2);
        for (int i = 0; i < 8; ++i) {
            const QPointF node = sway(x, start + i * height / 8);
            for (const int to : {-1, 1}) {
                const double size = dice.between(17, 22);
                const double turn = to > 0 ? -28 : 180 + 28;
                const QPointF center = polar(node, size * 1.12, turn);
                scene.fill(
                    placed(ellipse({}, size, size * 0.78), center, turn),
                    rgb(greens[(static_cast<std::size_t>(i) + (to > 0 ? 1 : 0) + dice.below(3)) %
                               4]));
                scene.stroke(polygon({node, polar(node, size * 1.35, turn)}), rgb(0x6A7F72), 1.1);
            }
        }
    }
    return scene;
}

PatternScene ginkgo()
{
    constexpr double side = 304;
    PatternScene scene({side, side}, rgb(0x2E2A47));
    const auto golds = std::to_array<QRgb>({0xE8B44F, 0xF1CD7E, 0xD3963A, 0xF3DDA6});
    QPainterPath blade(QPointF(0, 0));
    blade.cubicTo(-9, -9, -25, -17, -31, -20);
    blade.cubicTo(-28, -33, -15, -38, -2, -34);
    blade.lineTo(0, -23);
    blade.lineTo(2, -34);
    blade.cubicTo(15, -38, 28, -33, 31, -20);
    blade.cubicTo(25, -17, 9, -9, 0, 0);
    Dice dice(27);
    std::size_t index = 0;
    for (const QPointF center : scattered({side, side}, 26, dice)) {
        const double turn = dice.between(0, fullTurn);
        const double size = dice.between(0.72, 1.08);
        const auto put = [&](const QPainterPath& path) {
            return placed(path.translated(0, 10), center, turn, size);
        };
        const QColor gold = rgb(golds[index++ % golds.size()]);
        scene.stroke(put(smoothLine({{0, -3}, {1, 12}, {6, 25}})), gold, 2.4 * size);
        scene.fill(put(blade), gold);
        for (const double vein : {-52.0, -31.0, -12.0, 12.0, 31.0, 52.0})
            scene.stroke(put(polygon({polar({}, 12, vein - 90), polar({}, 25, vein - 90)})),
                         rgb(0x2E2A47), 0.8);
    }
    return scene;
}

PatternScene daisies()
{
    constexpr double side = 288;
    PatternScene scene({side, side}, rgb(0x8EBBD9));
    Dice dice(23);
    std::size_t index = 0;
    for (const QPointF center : scattered({side, side}, 22, dice)) {
        const double size = index++ % 3 == 0 ? dice.between(27, 31) : dice.between(16, 22);
        const double turn = dice.between(0, fullTurn);
        constexpr int petalCount = 11;
        for (int i = 0; i < petalCount; ++i)
            scene.fill(placed(ellipse({size * 0.6, 0}, size * 0.42, size * 0.135), center,
                              turn + fullTurn * i / petalCount),
                       rgb(0xFFFDF6));
        scene.fill(circle(center, size * 0.27), rgb(0xF4B63F));
        scene.fill(circle(center + QPointF(-size * 0.05, -size * 0.06), size * 0.15),
                   rgb(0xF9CF6F));
    }
    return scene;
}

PatternScene poppies()
{
    constexpr double side = 304;
    PatternScene scene({side, side}, rgb(0xF7E6D5));
    Dice dice(71);
    std::size_t index = 0;
    for (const QPointF center : scattered({side, side}, 24, dice)) {
        const double turn = dice.between(0, fullTurn);
        if (index++ % 2 == 0) {
            const double size = dice.between(21, 28);
            const QRgb reds[] = {0xD9483B, 0xE8745B, 0xC93A3F};
            const QColor red = rgb(reds[index / 2 % 3]);
            for (int i = 0; i < 5; ++i)
                scene.fill(placed(ellipse({size * 0.48, 0}, size * 0.52, size * 0.46), center,
                                  turn + 72 * i),
                           red);
            scene.fill(circle(center, size * 0.24), rgb(0x2C2A33));
            for (int i = 0; i < 8; ++i)
                scene.fill(circle(polar(center, size * 0.4, turn + 45 * i), 1.5), rgb(0x2C2A33));
        } else {
            scene.stroke(placed(smoothLine({{-20, 6}, {-4, -1}, {18, -4}}), center, turn),
                         rgb(0x5D7A5E), 2.0);
            for (const auto& [x, y, at] :
                 {std::tuple(-8.0, 1.0, -60.0), {2.0, -2.0, 48.0}, {9.0, -3.0, -52.0}})
                scene.fill(placed(placed(leaf(15, 6), {x, y}, at), center, turn), rgb(0x5D7A5E));
            scene.fill(placed(circle({19, -4}, 4.2), center, turn), rgb(0xE9A23B));
        }
    }
    return scene;
}

PatternScene lemons()
{
    constexpr double side = 288;
    PatternScene scene({side, side}, rgb(0x2C6E73));
    const auto lemon = [] {
        QPainterPath path(QPointF(-30, 0));
        path.cubicTo(-25, -3, -22, -20, 0, -20);
        path.cubicTo(20, -20, 23, -6, 31, -1.5);
        path.cubicTo(33, 0, 32, 2, 31, 2.5);
        path.cubicTo(22, 7, 18, 20, 0, 20);
        path.cubicTo(-20, 20, -25, 4, -30, 0);
        return path;
    }();
    const auto slice = [&scene](QPointF center, double turn) {
        scene.fill(circle(center, 24), rgb(0xF7CB45));
        scene.fill(circle(center, 20.5), rgb(0xFFF6D8));
        for (int i = 0; i < 8; ++i) {
            QPainterPath wedge(QPointF(3.2, 0));
            wedge.cubicTo(8, -2.6, 13, -6.6, 16.6, -5.4);
            wedge.cubicTo(18.6, -3, 18.6, 3, 16.6, 5.4);
            wedge.cubicTo(13, 6.6, 8, 2.6, 3.2, 0);
            scene.fill(placed(wedge, center, turn + 45 * i), rgb(0xF9D65C));
        }
    };
    Dice dice(2);
    std::size_t index = 0;
    for (const QPointF center : scattered({side, side}, 17, dice)) {
        const double turn = dice.between(0, fullTurn);
        switch (index++ % 3) {
        case 0:
            scene.fill(placed(leaf(34, 15), polar(center, 24, turn + 180), turn + 205),
                       rgb(0x7FB069));
            scene.fill(placed(lemon, center, turn), rgb(0xF7CB45));
            scene.stroke(placed(smoothLine({{-14, -12}, {-4, -15.5}, {7, -15}}), center, turn),
                         rgb(0xFFE795), 3.2);
            break;
        case 1:
            slice(center, turn);
            break;
        default:
            scene.fill(placed(leaf(36, 16), center, turn), rgb(0x7FB069));
            scene.fill(placed(leaf(30, 14), center, turn + 130), rgb(0x5C9A6B));
        }
    }
    return scene;
}

/// The stones of a shore: the cells of points, rounded.
PatternScene pebbles()
{
    constexpr double side = 320;
    PatternScene scene({side, side}, rgb(0xFBF4EA));
    const auto tones =
        std::to_array<QRgb>({0xD8C3AE, 0xC2A68F, 0xE6D5C3, 0xA98F7C, 0xCFB7A4, 0xDDB79F});
    Dice dice(50);
    for (const std::vector<QPointF>& cell :
         cellsAround(scattered({side, side}, 58, dice), {side, side}))
        scene.fill(roundedCell(cell, 3.2), rgb(dice.oneOf(tones)));
    return scene;
}

/// The lines of a map of hills.
PatternScene contourLines()
{
    constexpr double side = 400;
    PatternScene scene({side, side}, rgb(0xF3F1EA));
    const auto height = [](QPointF p) {
        const double x = 2 * std::numbers::pi * p.x() / side;
        const double y = 2 * std::numbers::pi * p.y() / side;
        return std::sin(x + 1.3 * std::sin(y)) + std::cos(2 * y - 1.1 * std::cos(x)) * 0.8 +
               0.45 * std::sin(3 * x + 2 * y + 0.7) + 0.3 * std::cos(2 * x - 3 * y + 2.1);
    };
    const HeightGrid heights(height, side, 32);
    int index = 0;
    for (double level = -2.1; level < 2.3; level += 0.3, ++index)
        for (const QPainterPath& line : contours(heights, level))
            scene.stroke(line, rgb(index % 4 == 0 ? 0x3E6B68 : 0x8FB0AA),
                         index % 4 == 0 ? 2.0 : 1.1);
    return scene;
}

/// Bands of water in the colours of an evening.
PatternScene eveningWaves()
{
    constexpr double width = 160;
    constexpr double band = 38;
    const QRgb colors[] = {0x2D3561, 0x5C4B7D, 0xA8577E, 0xE0687A, 0xF49D78,
                           0xF9CE8E, 0xF49D78, 0xE0687A, 0xA8577E, 0x5C4B7D};
    PatternScene scene({width, band * std::size(colors)}, rgb(colors[0]));
    for (std::size_t row = 0; row < std::size(colors); ++row) {
        const double y = static_cast<double>(row) * band;
        const auto edge = [](double x, double base) {
            return QPointF(x, base + 13 * std::sin(2 * std::numbers::pi * x / width));
        };
        std::vector<QPointF> outline;
        for (double x = 0; x <= width; x += 4)
            outline.push_back(edge(x, y));
        for (double x = width; x >= 0; x -= 4)
            outline.push_back(edge(x, y + band));
        scene.fill(polygon(outline), rgb(colors[row]));
    }
    return scene;
}

PatternScene clouds()
{
    constexpr double width = 288;
    constexpr double height = 208;
    PatternScene scene({width, height}, rgb(0xA9D3E8));
    const auto cloud = [](double size) {
        QPainterPath path =
            roundedRectangle({0, 0.26 * size}, {1.9 * size, 0.52 * size}, 0.26 * size);
        path = path.united(circle({-0.36 * size, 0}, 0.38 * size));
        path = path.united(circle({0.22 * size, -0.14 * size}, 0.5 * size));
        return path.united(circle({0.62 * size, 0.12 * size}, 0.3 * size));
    };
    for (const auto& [x, y, size] : {std::tuple(64.0, 58.0, 42.0),
                                     {208.0, 50.0, 26.0},
                                     {216.0, 150.0, 44.0},
                                     {72.0, 164.0, 28.0}}) {
        scene.fill(cloud(size).translated(x + size * 0.1, y + size * 0.14), rgb(0x8FC1DC));
        scene.fill(cloud(size).translated(x, y), rgb(0xFFFFFF));
    }
    return scene;
}

PatternScene starryNight()
{
    constexpr double side = 288;
    PatternScene scene({side, side}, rgb(0x17203F));
    const auto star = [](double size) {
        QPainterPath path(QPointF(0, -size));
        path.quadTo(size * 0.1, -size * 0.1, size * 0.72, 0);
        path.quadTo(size * 0.1, size * 0.1, 0, size);
        path.quadTo(-size * 0.1, size * 0.1, -size * 0.72, 0);
        path.quadTo(-size * 0.1, -size * 0.1, 0, -size);
        return path;
    };
    Dice dice(90);
    std::size_t index = 0;
    for (const QPointF center : scattered({side, side}, 58, dice)) {
        switch (index++ % 6) {
        case 0:
            scene.fill(placed(star(dice.between(11, 17)), center), rgb(0xF3CF7A));
            break;
        case 1:
        case 2:
            scene.fill(placed(star(dice.between(5, 8)), center), rgb(0xF7E7BE));
            break;
        default:
            scene.fill(circle(center, dice.between(1.1, 2.0)), rgb(0x8D9BC9));
        }
    }
    return scene;
}

} // namespace

std::vector<PatternMaker> naturePatterns()
{
    return {{"forest-leaves", forestLeaves},
            {"eucalyptus", eucalyptus},
            {"ginkgo", ginkgo},
            {"daisies", daisies},
            {"poppies", poppies},
            {"lemons", lemons},
            {"pebbles", pebbles},
            {"contour-lines", contourLines},
            {"evening-waves", eveningWaves},
            {"clouds", clouds},
            {"starry-night", starryNight}};
}

} // namespace pelmira
