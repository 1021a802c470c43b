#include "EdgeScenes.h"

#include "Noise.h"

#include <QBuffer>
#include <QDir>
#include <QImageReader>
#include <QPainter>
#include <QPainterPath>

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>
#include <random>

namespace pelmira::bench {
namespace {

constexpr int side = 400;
constexpr int oversampling = 3;

using Random = std::mt19937;

double between(Random& random, double low, double high)
{
    return low + (high - low) * static_cast<double>(random()) / 4294967296.0;
}

QColor shade(const QColor& color, double factor)
{
    const auto part = [factor](int v) { return std::clamp(static_cast<int>(v * factor), 0, 255); };
    return QColor(part(color.red()), part(color.green()), part(color.blue()));
}

/// Paints at three times the size, in pixels of the result, and gives it a texture.
template <typename Paint>
Subject painted(const char* name, std::uint32_t seed, const Paint& paint)
{
    QImage large(side * oversampling, side * oversampling, QImage::Format_ARGB32_Premultiplied);
    large.fill(Qt::transparent);
    QPainter painter(&large);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(oversampling, oversampling);
    Random random(seed);
    paint(painter, random);
    painter.end();
    QImage image = large.scaled(side, side, Qt::IgnoreAspectRatio, Qt::SmoothTransformation)
                       .convertToFormat(QImage::Format_ARGB32);
    for (int y = 0; y < side; ++y) {
        auto* row = reinterpret_cast<QRgb*>(image.scanLine(y));
        for (int x = 0; x < side; ++x) {
            const double light = 0.75 + 0.5 * octaves(x / 23.0, y / 23.0, 4, seed);
            const QColor color = shade(QColor(row[x]), light);
            row[x] = (row[x] & 0xFF000000U) | (color.rgb() & 0xFFFFFF);
        }
    }
    return {QString::fromLatin1(name), image};
}

void shapes(QPainter& painter, Random& random)
{
    painter.setPen(Qt::NoPen);
    for (int i = 0; i < 5; ++i) {
        QPolygonF polygon;
        const QPointF center(90 + 110 * (i % 3), 110 + 150 * (i / 3) + 40 * (i % 2));
        const int corners = 3 + i;
        const double turn = between(random, 0, 6);
        for (int k = 0; k < corners * 2; ++k) {
            const double angle = turn + std::numbers::pi * k / corners;
            const double radius = k % 2 == 0 ? 68 : 30 + 6 * i;
            polygon << center + radius * QPointF(std::cos(angle), std::sin(angle));
        }
        painter.setBrush(QColor::fromHsv(static_cast<int>(between(random, 0, 359)), 170, 190));
        painter.drawPolygon(polygon);
    }
    painter.drawRect(QRectF(250.5, 260.5, 90, 70));
}

void leaves(QPainter& painter, Random& random)
{
    painter.setPen(QPen(QColor(90, 62, 40), 5));
    painter.drawLine(QPointF(200, 390), QPointF(205, 60));
    for (int i = 0; i < 46; ++i) {
        painter.save();
        painter.translate(202 + between(random, -3, 3), 70 + 6.4 * i);
        painter.rotate((i % 2 == 0 ? 1 : -1) * between(random, 20, 95) - 90);
        const double length = between(random, 50, 150);
        const double width = length * between(random, 0.12, 0.22);
        QPainterPath leaf;
        leaf.quadTo(length * 0.4, -width, length, 0);
        leaf.quadTo(length * 0.4, width, 0, 0);
        const QColor green(static_cast<int>(between(random, 30, 90)),
                           static_cast<int>(between(random, 80, 150)),
                           static_cast<int>(between(random, 20, 60)));
        painter.setPen(QPen(shade(green, 0.7), 1.2));
        painter.setBrush(green);
        painter.drawPath(leaf);
        painter.drawLine(QPointF(0, 0), QPointF(length, 0));
        painter.restore();
    }
}

void fur(QPainter& painter, Random& random)
{
    const QColor coat(126, 88, 58);
    painter.setPen(Qt::NoPen);
    painter.setBrush(coat);
    painter.drawEllipse(QPointF(200, 200), 122, 100);
    for (int i = 0; i < 2600; ++i) {
        const double angle = between(random, 0, 2 * std::numbers::pi);
        const QPointF out(std::cos(angle), std::sin(angle));
        const QPointF root(200 + 118 * out.x(), 200 + 96 * out.y());
        const double length = between(random, 6, 34);
        const QPointF bend(between(random, -9, 9), between(random, -2, 14));
        QPainterPath hair(root);
        hair.quadTo(root + out * length * 0.6, root + out * length + bend);
        painter.setBrush(Qt::NoBrush);
        painter.setPen(QPen(shade(coat, between(random, 0.6, 1.5)), between(random, 0.5, 1.5),
                            Qt::SolidLine, Qt::RoundCap));
        painter.drawPath(hair);
    }
}

void wires(QPainter& painter, Random& random)
{
    painter.setBrush(Qt::NoBrush);
    for (int i = 0; i < 16; ++i) {
        const double width = 1.0 + 0.3 * i;
        painter.setPen(QPen(QColor::fromHsv((i * 67) % 360, 60 + 6 * i, 70 + 5 * i), width));
        const double y = 30 + 22 * i;
        QPainterPath wire(QPointF(20, y));
        wire.cubicTo(140, y + between(random, -70, 70), 260, y + between(random, -70, 70), 380, y);
        painter.drawPath(wire);
    }
    painter.setPen(QPen(QColor(60, 60, 70), 7));
    painter.drawRect(QRectF(16, 16, 368, 368));
}

struct Rgb {
    double r;
    double g;
    double b;
};

/// Two colours by chance, mixed in patches of any size, with or without a fine texture.
Rgb anyBackgroundAt(int kind, double u, double v, int x, int y, std::uint32_t seed)
{
    Random random(seed * 977 + static_cast<std::uint32_t>(kind) * 131);
    const auto anyRgb = [&random] {
        const double grey = between(random, 15, 245);
        const auto part = [&] { return std::lerp(grey, between(random, 15, 245), 0.5); };
        const double r = part();
        const double g = part();
        return Rgb{r, g, part()};
    };
    const Rgb one = anyRgb();
    const Rgb other = anyRgb();
    const double amount = between(random, 0, 1) < 0.4 ? 0.1 : between(random, 0.1, 0.9);
    const double scale = std::exp(between(random, std::log(3.0), std::log(120.0)));
    const double fine = between(random, 0, 1) < 0.5 ? 0 : between(random, 0, 0.25);
    const double slope = between(random, -0.3, 0.3);
    const double mix = amount * octaves(x / scale, y / scale, 3, seed + 9);
    const double light = 1 + slope * (u - v) + fine * (octaves(x / 2.5, y / 2.5, 2, seed) - 0.4);
    return {std::lerp(one.r, other.r, mix) * light, std::lerp(one.g, other.g, mix) * light,
            std::lerp(one.b, other.b, mix) * light};
}

/// A wall with a shadow over it, a sky with clouds, a meadow out of focus.
Rgb backgroundAt(int kind, double u, double v, int x, int y, std::uint32_t seed)
{
    if (kind == 0) {
        const double light = 0.8 + 0.25 * u + 0.1 * octaves(u * 3, v * 3, 2, seed);
        const double hue = (seed % 7) / 7.0;
        return {(150 + 70 * hue) * light, 175 * light, (215 - 70 * hue) * light};
    }
    if (kind == 1) {
        const double cloud =
            std::max(0.0, octaves(u * 3 + seed % 5, v * 4, 4, seed + 1) - 0.4) * 1.6;
        return {std::lerp(85 + 70 * v, 236.0, cloud), std::lerp(140 + 50 * v, 238.0, cloud),
                std::lerp(215 + 15 * v, 243.0, cloud)};
    }
    if (kind >= backgrounds)
        return anyBackgroundAt(kind, u, v, x, y, seed);
    const double blur = octaves(u * 14, v * 14, 3, seed + 2);
    const double blade = octaves(x / 3.0, y / 7.0, 2, seed + 3);
    const double light = 0.6 + 0.55 * blur + 0.12 * blade;
    return {105 * light, 150 * light, 70 * light};
}

using Plane = std::vector<float>; // four floats a pixel

/// A Gaussian over planes of four floats a pixel; the rim is repeated.
void blur(Plane& plane, int width, int height, double sigma)
{
    if (sigma <= 0)
        return;
    const int reach = static_cast<int>(std::ceil(sigma * 3));
    std::vector<float> taps;
    for (int i = -reach; i <= reach; ++i)
        taps.push_back(static_cast<float>(std::exp(-i * i / (2 * sigma * sigma))));
    float sum = 0;
    for (const float tap : taps)
        sum += tap;
    Plane other(plane.size());
    const auto pass = [&](const Plane& from, Plane& to, int dx, int dy) {
        for (int y = 0; y < height; ++y)
            for (int x = 0; x < width; ++x)
                for (int c = 0; c < 4; ++c) {
                    float value = 0;
                    for (int i = -reach; i <= reach; ++i) {
                        const int sx = std::clamp(x + i * dx, 0, width - 1);
                        const int sy = std::clamp(y + i * dy, 0, height - 1);
                        value += taps[static_cast<std::size_t>(i + reach)] *
                                 from[static_cast<std::size_t>((sy * width + sx) * 4 + c)];
                    }
                    to[static_cast<std::size_t>((y * width + x) * 4 + c)] = value / sum;
                }
    };
    pass(plane, other, 1, 0);
    pass(other, plane, 0, 1);
}

QImage throughJpeg(const QImage& image, int quality)
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, "JPG", quality); // half the chroma, as cameras write it
    return QImage::fromData(bytes, "JPG").convertToFormat(QImage::Format_ARGB32);
}

} // namespace

std::vector<Subject> paintedSubjects(std::uint32_t seed)
{
    return {painted("shapes", seed + 1, shapes), painted("leaves", seed + 2, leaves),
            painted("fur", seed + 3, fur), painted("wires", seed + 4, wires)};
}

std::vector<Subject> subjectsInFolder(const QString& folder)
{
    std::vector<Subject> subjects;
    const QDir dir(folder);
    for (const QString& name : dir.entryList({QStringLiteral("*.png")}, QDir::Files, QDir::Name)) {
        const QImage image(dir.filePath(name));
        if (!image.isNull() && image.hasAlphaChannel())
            subjects.push_back({name.chopped(4), image.convertToFormat(QImage::Format_ARGB32)});
    }
    return subjects;
}

Photograph photograph(const Subject& subject, int background, const Camera& camera,
                      std::uint32_t seed)
{
    constexpr int room = 24; // around it, for the background to be seen
    const int width = subject.image.width() + 2 * room;
    const int height = subject.image.height() + 2 * room;
    const auto size = static_cast<std::size_t>(width * height * 4);
    Plane behind(size);
    Photograph result;
    result.truth.resize(size);
    for (int y = 0; y < height; ++y)
        for (int x = 0; x < width; ++x) {
            const Rgb color =
                backgroundAt(background, double(x) / width, double(y) / height, x, y, seed);
            const QPoint at(x - room, y - room);
            const QRgb pixel = subject.image.rect().contains(at) ? subject.image.pixel(at) : 0;
            const float alpha = static_cast<float>(qAlpha(pixel)) / 255.0F;
            const std::size_t i = static_cast<std::size_t>((y * width + x) * 4);
            const std::array<double, 3> back = {color.b, color.g, color.r};
            const std::array<int, 3> front = {qBlue(pixel), qGreen(pixel), qRed(pixel)};
            for (std::size_t c = 0; c < 3; ++c) {
                result.truth[i + c] = alpha * static_cast<float>(front[c]);
                behind[i + c] = (1 - alpha) * static_cast<float>(std::clamp(back[c], 0.0, 255.0));
            }
            result.truth[i + 3] = alpha * 255.0F;
        }
    blur(result.truth, width, height, camera.blur);
    blur(behind, width, height, camera.blur);
    QImage image(width, height, QImage::Format_RGB32);
    Random random(seed * 31 + static_cast<std::uint32_t>(background));
    std::normal_distribution<double> noise(0, camera.noise);
    for (int y = 0; y < height; ++y)
        for (int x = 0; x < width; ++x) {
            std::array<int, 3> byte{};
            for (std::size_t c = 0; c < 3; ++c) {
                const std::size_t i = static_cast<std::size_t>((y * width + x) * 4) + c;
                byte[c] = std::clamp(
                    static_cast<int>(std::lround(result.truth[i] + behind[i] + noise(random))), 0,
                    255);
            }
            image.setPixel(x, y, qRgb(byte[2], byte[1], byte[0]));
        }
    result.photo = throughJpeg(image, camera.jpeg);
    static constexpr std::array<const char*, backgrounds> names = {"wall", "sky", "meadow"};
    result.name =
        subject.name + QLatin1Char('/') +
        (background < backgrounds ? QLatin1String(names[static_cast<std::size_t>(background)])
                                  : QLatin1String("any"));
    return result;
}

} // namespace pelmira::bench
