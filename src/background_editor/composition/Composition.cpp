#include "background_editor/composition/Composition.h"

#include "background_editor/composition/Resample.h"
#include "background_editor/shadow/ContextShadowDrawing.h"
#include "background_editor/shadow/ShadowResolution.h"
#include "platform/image/Image.h"

#include <QBrush>
#include <QColorSpace>
#include <QPainter>
#include <QRect>
#include <QRectF>

#include <algorithm>
#include <cmath>
#include <numbers>

namespace pelmira {
namespace {

constexpr int longestSide = 2048;
constexpr double scalePerPixel = 1.0 / 1024.0; // patterns are drawn for 1024 pixels

PixelSpan spanOf(QImage& image)
{
    return {reinterpret_cast<std::uint32_t*>(image.bits()), std::uint32_t(image.width()),
            std::uint32_t(image.height()), std::uint32_t(image.bytesPerLine())};
}

/// For reading only.
PixelSpan spanOf(const QImage& image)
{
    return {reinterpret_cast<std::uint32_t*>(const_cast<uchar*>(image.constBits())),
            std::uint32_t(image.width()), std::uint32_t(image.height()),
            std::uint32_t(image.bytesPerLine())};
}

/// The image covers the output, its middle seen.
bool cover(QImage& output, const QImage& picture)
{
    const QImage image = bitmapPixels(picture);
    if (image.isNull())
        return false;
    const double ratio = double(output.width()) / output.height();
    const double imageRatio = double(image.width()) / image.height();
    QSizeF size(output.width(), output.width() / imageRatio);
    if (ratio < imageRatio)
        size = {output.height() * imageRatio, double(output.height())};
    const ResampledAxis x{(output.width() - size.width()) * 0.5, size.width(), 0.0,
                          double(image.width())};
    const ResampledAxis y{(output.height() - size.height()) * 0.5, size.height(), 0.0,
                          double(image.height())};
    if (!resample(spanOf(image), spanOf(output), x, y, true))
        return false;
    // What is clear in a premultiplied picture is the black below it.
    for (int row = 0; row < output.height(); ++row) {
        auto* pixels = reinterpret_cast<QRgb*>(output.scanLine(row));
        std::for_each(pixels, pixels + output.width(), [](QRgb& pixel) { pixel |= 0xFF000000; });
    }
    return true;
}

bool drawBackground(QImage& output, const Composition::Background& background)
{
    if (const auto* picture = std::get_if<QImage>(&background))
        return cover(output, *picture);
    QBrush brush(Qt::black);
    if (const auto* color = std::get_if<QColor>(&background)) {
        brush = QBrush(*color);
    } else if (const auto* pattern = std::get_if<Composition::PatternForScale>(&background)) {
        const double side = std::max(output.width(), output.height());
        QImage tile = *pattern ? (*pattern)(side * scalePerPixel) : QImage();
        tile.setDevicePixelRatio(1.0);
        brush = tile.isNull() ? QBrush(Qt::white) : QBrush(tile);
    }
    QPainter(&output).fillRect(output.rect(), brush);
    return true;
}

/// Where the object lies in the output, in pixels.
struct Placement {
    QPointF center;
    QSizeF size;
    double cosine;
    double sine;

    QRectF boundingBox() const
    {
        const double w = std::abs(size.width() * cosine) + std::abs(size.height() * sine);
        const double h = std::abs(size.width() * sine) + std::abs(size.height() * cosine);
        return {center.x() - w * 0.5, center.y() - h * 0.5, w, h};
    }
    bool isUpright() const { return sine == 0.0 && cosine > 0; }
};

Placement placementOf(const Composition::Object& object, double pixelsPerPoint)
{
    return {object.center * pixelsPerPoint, object.size * pixelsPerPoint, std::cos(object.rotation),
            std::sin(object.rotation)};
}

/// The image at the size that it has in the output, if that is smaller; else the image itself.
QImage reduced(const QImage& image, QSizeF size)
{
    const QSize pixels(std::clamp(int(std::ceil(size.width())), 1, image.width()),
                       std::clamp(int(std::ceil(size.height())), 1, image.height()));
    if (pixels == image.size())
        return image;
    QImage result(pixels, QImage::Format_ARGB32_Premultiplied);
    const ResampledAxis x{0.0, double(pixels.width()), 0.0, double(image.width())};
    const ResampledAxis y{0.0, double(pixels.height()), 0.0, double(image.height())};
    if (result.isNull() || !resample(spanOf(image), spanOf(result), x, y, true))
        return {};
    return result;
}

/// The object alone, on a clear layer that lies at the origin in the output.
bool drawObject(QImage& layer, QPoint origin, const QImage& image, const Placement& place,
                bool isFlipped)
{
    const QPointF center = place.center - origin;
    if (place.isUpright()) {
        const ResampledAxis x{center.x() - place.size.width() * 0.5, place.size.width(), 0.0,
                              double(image.width()), isFlipped};
        const ResampledAxis y{center.y() - place.size.height() * 0.5, place.size.height(), 0.0,
                              double(image.height())};
        return resample(spanOf(image), spanOf(layer), x, y, false);
    }
    const QImage source = reduced(image, place.size);
    if (source.isNull())
        return false;
    // Back from the layer: to the centre, turned back, scaled and mirrored, to the source's corner.
    const double sx = source.width() / place.size.width() * (isFlipped ? -1.0 : 1.0);
    const double sy = source.height() / place.size.height();
    PixelMapping m{};
    m.ax = place.cosine * sx;
    m.bx = place.sine * sx;
    m.cx = source.width() * 0.5 - m.ax * center.x() - m.bx * center.y();
    m.ay = -place.sine * sy;
    m.by = place.cosine * sy;
    m.cy = source.height() * 0.5 - m.ay * center.x() - m.by * center.y();
    resampleTurned(spanOf(source), spanOf(layer), m);
    return true;
}

/// How far beyond the output an object still casts a shadow into it.
int reachBeyondOutput(const std::optional<ContextShadow>& shadow)
{
    if (!shadow)
        return 0;
    const double offset = std::max(std::abs(shadow->offset.x()), std::abs(shadow->offset.y()));
    return int(std::ceil(std::min(offset + shadowReach(shadow->blur * 0.5), double(longestSide)))) +
           1;
}

bool drawForeground(QImage& output, const Composition& composition)
{
    const Composition::Object& object = *composition.object;
    const QImage image = bitmapPixels(object.image);
    const Placement place = placementOf(object, outputScale(composition));
    if (image.isNull() || place.size.isEmpty())
        return !image.isNull();
    const int reach = reachBeyondOutput(composition.shadow);
    // A pixel around, into which the edge's softness runs.
    const QRect seen =
        place.boundingBox()
            .adjusted(-1.0, -1.0, 1.0, 1.0)
            .intersected(QRectF(output.rect().adjusted(-reach, -reach, reach, reach)))
            .toAlignedRect();
    if (seen.isEmpty())
        return true;
    QImage layer(seen.size(), QImage::Format_ARGB32_Premultiplied);
    if (layer.isNull() || !drawObject(layer, seen.topLeft(), image, place, object.isFlipped))
        return false;
    if (composition.shadow &&
        !drawContextShadow(output, layer, seen.topLeft(), *composition.shadow))
        return false;
    QPainter painter(&output);
    painter.setOpacity(object.alpha);
    painter.drawImage(seen.topLeft(), layer);
    return true;
}

} // namespace

QSize outputSize(double aspectRatio)
{
    // The shorter side of a ratio beyond all sense is still a pixel.
    const auto side = [](double length) { return std::max(1, int(std::ceil(length))); };
    return aspectRatio < 1.0 ? QSize(side(aspectRatio * longestSide), longestSide)
                             : QSize(longestSide, side(longestSide / aspectRatio));
}

double outputScale(const Composition& composition)
{
    return outputSize(composition.aspectRatio).width() / composition.canvasWidth;
}

QImage renderComposition(const Composition& composition)
{
    QImage output(outputSize(composition.aspectRatio), QImage::Format_RGB32);
    if (output.isNull() || !drawBackground(output, composition.background))
        return {};
    if (composition.object && !drawForeground(output, composition))
        return {};
    output.setColorSpace(QColorSpace::SRgb);
    return output;
}

} // namespace pelmira
