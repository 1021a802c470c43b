#include "background_editor/patterns/PatternMakers.h"
#include "background_editor/patterns/PatternShapes.h"

#include <array>
#include <cmath>
#include <numbers>

namespace pelmira {
namespace {

constexpr double root3 = std::numbers::sqrt3;

/// Rows of scales, each half a scale aside and over the row above. Copies of a shape can't lie over
/// each other in turns, so each scale is cut to what is seen of it.
template <typename Draw>
void drawScales(double radius, const Draw& draw)
{
    const double step = radius / 2;
    for (int row = 0; row < 2; ++row) {
        const QPointF center(row * radius, row * step);
        const QPainterPath seen = circle(center, radius)
                                      .subtracted(circle(center + QPointF(-radius, step), radius))
                                      .subtracted(circle(center + QPointF(radius, step), radius))
                                      .subtracted(circle(center + QPointF(0, 2 * step), radius));
        draw(center, seen);
    }
}

PatternScene seigaiha()
{
    constexpr double radius = 52;
    PatternScene scene({2 * radius, radius}, rgb(0xF4F1E6));
    drawScales(radius, [&scene](QPointF center, const QPainterPath& seen) {
        const QRgb rings[] = {0x1D3557, 0xF4F1E6, 0x1D3557, 0xF4F1E6, 0x457B9D};
        const double radii[] = {51, 42, 33, 24, 15};
        for (std::size_t i = 0; i < std::size(rings); ++i)
            scene.fill(seen.intersected(circle(center, radii[i])), rgb(rings[i]));
    });
    return scene;
}

PatternScene decoFans()
{
    constexpr double radius = 60;
    PatternScene scene({2 * radius, radius}, rgb(0x0F3D3A));
    drawScales(radius, [&scene](QPointF center, const QPainterPath& seen) {
        const QColor gold = rgb(0xD9B36A);
        const auto ring = [&](double outer, double width) {
            scene.fill(
                seen.intersected(circle(center, outer)).subtracted(circle(center, outer - width)),
                gold);
        };
        ring(radius, 2.6);
        ring(radius - 6, 1.2);
        QPainterPath rays;
        for (int i = 0; i <= 8; ++i) {
            const double turn = -162 + 18.0 * i;
            rays.addPath(
                placed(polygon({{17, -0.5}, {50, -1.1}, {50, 1.1}, {17, 0.5}}), center, turn));
        }
        scene.fill(seen.intersected(rays), gold);
        scene.fill(seen.intersected(circle(center, 13)), gold);
    });
    return scene;
}

PatternScene honeycomb()
{
    constexpr double radius = 26; // of a cell
    constexpr double width = root3 * radius;
    constexpr int columns = 6;
    constexpr int rows = 4;
    PatternScene scene({columns * width, rows * 1.5 * radius}, rgb(0xFFF6DD));
    const auto tones = std::to_array<QRgb>({0xFBE3A1, 0xF6CC66, 0xFDEDC4, 0xFBE3A1, 0xF0B23E});
    Dice dice(12);
    for (int row = 0; row < rows; ++row) {
        for (int column = 0; column < columns; ++column) {
            const QPointF center((column + 0.5 * (row % 2)) * width, row * 1.5 * radius);
            scene.fill(regularPolygon(center, radius - 2.4, 6, 90), rgb(dice.oneOf(tones)));
        }
    }
    return scene;
}

PatternScene tumblingBlocks()
{
    constexpr double edge = 46;
    constexpr double width = root3 * edge;
    PatternScene scene({width, 3 * edge}, rgb(0xE8DCC8));
    for (int row = 0; row < 2; ++row) {
        const QPointF c(row * width / 2, row * 1.5 * edge);
        const auto corner = [&](double turn) { return polar(c, edge, turn); };
        scene.fillWithoutSeam(polygon({c, corner(-30), corner(-90), corner(-150)}), rgb(0xF3E7D3));
        scene.fillWithoutSeam(polygon({c, corner(-150), corner(150), corner(90)}), rgb(0xC2694F));
        scene.fillWithoutSeam(polygon({c, corner(90), corner(30), corner(-30)}), rgb(0x2F4B5C));
    }
    return scene;
}

PatternScene triangles()
{
    constexpr double edge = 58;
    constexpr double height = edge * root3 / 2;
    constexpr int columns = 5;
    constexpr int rows = 6;
    PatternScene scene({columns * edge, rows * height}, rgb(0xF4E9E1));
    const auto tones =
        std::to_array<QRgb>({0x3D3A5C, 0x6B5B8C, 0xA987B5, 0xE0AFC0, 0xF4CFC0, 0xF7E4D4, 0xF2A07B});
    Dice dice(77);
    for (int row = 0; row < rows; ++row) {
        for (int column = 0; column < columns; ++column) {
            const QPointF p((column + 0.5 * (row % 2)) * edge, row * height);
            const QPointF right = p + QPointF(edge, 0);
            const QPointF below = p + QPointF(edge / 2, height);
            scene.fillWithoutSeam(polygon({p, right, below}), rgb(dice.oneOf(tones)));
            scene.fillWithoutSeam(polygon({right, below, below + QPointF(edge, 0)}),
                                  rgb(dice.oneOf(tones)));
        }
    }
    return scene;
}

/// Pointed arches back to back, one line over another.
PatternScene trellis()
{
    constexpr double w = 88;
    constexpr double h = 112;
    PatternScene scene({w, h}, rgb(0x7F9DB9));
    const auto ogee = [](QPointF c, double x, double y) {
        QPainterPath path(c + QPointF(0, -y));
        path.cubicTo(c + QPointF(0.06 * x, -0.62 * y), c + QPointF(x, -0.56 * y),
                     c + QPointF(x, 0));
        path.cubicTo(c + QPointF(x, 0.56 * y), c + QPointF(0.06 * x, 0.62 * y), c + QPointF(0, y));
        path.cubicTo(c + QPointF(-0.06 * x, 0.62 * y), c + QPointF(-x, 0.56 * y),
                     c + QPointF(-x, 0));
        path.cubicTo(c + QPointF(-x, -0.56 * y), c + QPointF(-0.06 * x, -0.62 * y),
                     c + QPointF(0, -y));
        path.closeSubpath();
        return path;
    };
    for (const QPointF center : {QPointF(w / 2, h / 2), QPointF(0, 0)}) {
        scene.stroke(ogee(center, w / 2, h / 2), rgb(0xF8F4EA), 5.2);
        scene.stroke(ogee(center, w / 2 - 13, h / 2 - 19), rgb(0xB9CCDD), 2.2);
    }
    return scene;
}

/// Circles that overlap by their radius; what two have in common is a petal.
PatternScene petals()
{
    constexpr double radius = 48;
    PatternScene scene({2 * radius, 2 * radius}, rgb(0xF8EDE0));
    const auto petal = [](QPointF a, QPointF b) {
        return circle(a, radius).intersected(circle(b, radius));
    };
    // Around the corner (0, 0) of four circles' centres stand four petals; two of each are new.
    const double s = radius;
    scene.fill(petal({0, 0}, {s, s}), rgb(0xC65D3B));
    scene.fill(petal({s, s}, {2 * s, 2 * s}), rgb(0xC65D3B));
    scene.fill(petal({2 * s, 0}, {s, s}), rgb(0xDD8A5F));
    scene.fill(petal({s, s}, {0, 2 * s}), rgb(0xDD8A5F));
    scene.fill(circle({s, 0}, 6), rgb(0x4F6D5E));
    scene.fill(circle({0, s}, 6), rgb(0x4F6D5E));
    return scene;
}

/// Squares with quarters and halves of discs, as a set of tiles for building.
PatternScene bauhaus()
{
    constexpr double cell = 64;
    constexpr int count = 6;
    const auto grounds =
        std::to_array<QRgb>({0xF3E9D7, 0xF3E9D7, 0x24476B, 0xE8B84A, 0xD8553A, 0xA9C3B6});
    const auto shapes =
        std::to_array<QRgb>({0xD8553A, 0x24476B, 0xE8B84A, 0xF3E9D7, 0x1D2B3A, 0xF3E9D7});
    PatternScene scene({count * cell, count * cell}, rgb(grounds[0]), {count, count});
    struct Piece {
        QPainterPath path;
        QRgb color;
    };
    std::vector<Piece> pieces;
    Dice dice(41);
    for (int row = 0; row < count; ++row) {
        for (int column = 0; column < count; ++column) {
            const QPainterPath square = rectangle(column * cell, row * cell, cell, cell);
            const std::size_t ground = dice.below(grounds.size());
            std::size_t shape = dice.below(shapes.size());
            while (shapes[shape] == grounds[ground])
                shape = (shape + 1) % shapes.size();
            const double turn = 90.0 * static_cast<double>(dice.below(4));
            scene.fill(square, rgb(grounds[ground]));
            const QPointF corner(-cell / 2, -cell / 2);
            QPainterPath piece;
            switch (dice.below(5)) {
            case 0:
            case 1:
                piece = circle(corner, cell);
                break;
            case 2:
                piece = circle({-cell / 2, 0}, cell / 2);
                break;
            case 3:
                piece = circle({}, cell * 0.32);
                break;
            default:
                piece = circle(corner, cell)
                            .subtracted(circle(corner, cell * 0.66))
                            .united(circle(corner, cell * 0.33));
            }
            const QPointF center((column + 0.5) * cell, (row + 0.5) * cell);
            pieces.push_back({placed(piece, center, turn).intersected(square), shapes[shape]});
        }
    }
    for (const Piece& piece : pieces)
        scene.fill(piece.path, rgb(piece.color));
    return scene;
}

} // namespace

std::vector<PatternMaker> geometricPatterns()
{
    return {{"seigaiha", seigaiha},   {"deco-fans", decoFans},
            {"honeycomb", honeycomb}, {"tumbling-blocks", tumblingBlocks},
            {"triangles", triangles}, {"trellis", trellis},
            {"petals", petals},       {"bauhaus", bauhaus}};
}

} // namespace pelmira
