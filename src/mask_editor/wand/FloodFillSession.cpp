#include "mask_editor/wand/FloodFillSession.h"

#include "mask_editor/wand/AlphaUpdate.h"
#include "platform/pixels/BitmapContext.h"

#include <QPoint>
#include <QSizeF>
#include <bit>
#include <cmath>
#include <cstddef>
#include <cstring>
#include <optional>
#include <utility>

namespace pelmira {
namespace {

/// The pixel that the point rounds to, halves away from zero; nothing outside the image.
std::optional<QPoint> pixelAt(QPointF point, std::uint32_t width, std::uint32_t height)
{
    const double x = std::round(point.x());
    const double y = std::round(point.y());
    if (!(x >= 0 && x < width && y >= 0 && y < height))
        return std::nullopt;
    return QPoint(static_cast<int>(x), static_cast<int>(y));
}

} // namespace

FloodFillSession::FloodFillSession(std::uint32_t* buffer, std::uint32_t width, std::uint32_t height,
                                   std::uint32_t bytesPerLine, QPointF startPoint)
    : _imageData{buffer, width, height, bytesPerLine}, _startPoint(startPoint),
      _startColor(readColorFromBuffer(_imageData, startPoint)), _snapshot(_imageData, _startColor),
      _flood(_snapshot), _fill(_snapshot.grid()), _lastFill(_snapshot.grid())
{
}

std::unique_ptr<FloodFillSession> FloodFillSession::initWithImage(const QImage& image,
                                                                  QPointF startPoint)
{
    QImage context = createBGRABitmapContextWithSize(image.size());
    if (context.isNull())
        return nullptr;
    const QImage converted = image.convertToFormat(context.format());
    if (converted.isNull())
        return nullptr;
    const auto width = static_cast<std::uint32_t>(context.width());
    const auto height = static_cast<std::uint32_t>(context.height());
    for (int y = 0; y < context.height(); ++y)
        std::memcpy(context.scanLine(y), converted.constScanLine(y), std::size_t{width} * 4);

    auto* pixels = reinterpret_cast<std::uint32_t*>(context.bits());
    auto session = std::make_unique<FloodFillSession>(pixels, width, height, width * 4, startPoint);
    session->_ownPixels = std::move(context);
    return session;
}

QRegion FloodFillSession::setTolerance(std::uint8_t tolerance, std::uint32_t* bufferPtr,
                                       std::uint32_t bytesPerLine)
{
    if (bufferPtr != _imageData.pixels || bytesPerLine != _imageData.bytesPerRow)
        alphaChangedElsewhere(); // other memory: nothing is known of what it holds
    _imageData.pixels = bufferPtr;
    _imageData.bytesPerRow = bytesPerLine;
    return setTolerance(tolerance);
}

QRegion FloodFillSession::setTolerance(std::uint8_t tolerance)
{
    floodFillwithTolerance(tolerance);
    const QRegion written = std::exchange(_isAlphaKnown, true)
                                ? updateAlpha(_imageData, _snapshot, _lastFill, _fill)
                                : rewriteAlpha(_imageData, _snapshot, _fill);
    std::swap(_fill, _lastFill);
    return written;
}

QImage FloodFillSession::imageFromImageData() const
{
    const QSizeF size(_imageData.width, _imageData.height);
    return createBGRABitmapContextWithSize(size, _imageData.pixels).copy();
}

StoredColor FloodFillSession::readColorFromBuffer(const PixelSpan& buffer, QPointF point)
{
    const auto pixel = pixelAt(point, buffer.width, buffer.height);
    if (!pixel)
        return {};
    return std::bit_cast<StoredColor>(
        buffer.row(static_cast<std::uint32_t>(pixel->y()))[pixel->x()]);
}

void FloodFillSession::floodFillwithTolerance(std::uint8_t tolerance)
{
    const auto start = pixelAt(_startPoint, _imageData.width, _imageData.height);
    if (_startColor.a != 0 && start)
        _flood.run(*start, tolerance, _fill);
    else
        _fill.clear();
}

} // namespace pelmira
