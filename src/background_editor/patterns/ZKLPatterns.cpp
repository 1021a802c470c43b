#include "background_editor/patterns/ZKLPatterns.h"

#include "background_editor/patterns/PatternMakers.h"

#include <QPainter>

#include <algorithm>
#include <cmath>

namespace pelmira {
namespace {

constexpr double largestTile = 4096.0; // pixels of a side
constexpr double thumbnailUnits = 256.0;

const std::vector<PatternMaker>& makers()
{
    static const std::vector<PatternMaker> all = [] {
        std::vector<PatternMaker> list;
        for (const auto& family : {dotPatterns(), stripePatterns(), geometricPatterns(),
                                   naturePatterns(), playfulPatterns()})
            list.insert(list.end(), family.begin(), family.end());
        return list;
    }();
    return all;
}

QStringList namesOf(const std::vector<PatternMaker>& list)
{
    QStringList names;
    for (const PatternMaker& maker : list)
        names.append(QString::fromLatin1(maker.name));
    return names;
}

/// Null without memory.
QImage painted(const PatternScene& scene, QSize pixels, QSizeF units)
{
    QImage image(pixels, QImage::Format_ARGB32_Premultiplied);
    if (image.isNull())
        return {};
    QPainter painter(&image);
    painter.scale(pixels.width() / units.width(), pixels.height() / units.height());
    scene.paint(painter, QRectF(QPointF(), units));
    return image;
}

} // namespace

ZKLPatterns::ZKLPatterns() : _patternNames(namesOf(makers()))
{
}

const ZKLPatterns& ZKLPatterns::shared()
{
    static const ZKLPatterns patterns;
    return patterns;
}

QImage ZKLPatterns::thumbnailForName(const QString& name) const
{
    const auto index = _patternNames.indexOf(name);
    if (index < 0)
        return {};
    return painted(makers()[static_cast<std::size_t>(index)].make(),
                   QSize(thumbnailSide, thumbnailSide), QSizeF(thumbnailUnits, thumbnailUnits));
}

std::optional<QImage> ZKLPatterns::imageForName(const QString& name, double scale) const
{
    const auto index = _patternNames.indexOf(name);
    if (index < 0)
        return std::nullopt;
    const PatternScene scene = makers()[static_cast<std::size_t>(index)].make();
    const double longest = std::max(scene.tile().width(), scene.tile().height());
    if (!(scale > 0.0) || !(longest * scale <= largestTile))
        return std::nullopt;
    // A tile of whole pixels: the pattern is stretched by what that takes.
    QImage image = painted(scene, scene.tileInPixels(scale), scene.tile());
    return image.isNull() ? std::nullopt : std::optional(std::move(image));
}

} // namespace pelmira
