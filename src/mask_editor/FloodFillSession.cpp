#include "mask_editor/FloodFillSession.h"

#include "mask_editor/AlphaPlane.h"
#include "mask_editor/ScanlineFill.h"
#include "platform/BitmapContext.h"

#include <bit>
#include <cmath>
#include <cstddef>
#include <cstring>
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
      _startColor(readColorFromBuffer(_imageData, startPoint)),
      _alphaChannelBackup(std::size_t{width} * height),
      _diffBufferBackup(std::size_t{width} * height)
{
    backupImageAlpha();
    createDiffBufferBackup();
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
    restoreImageAlpha();
    restoreDiffBuffer();
    const QRect givenBack = std::exchange(_lastFill, floodFillwithTolerance(tolerance));
    return QRegion(givenBack | _lastFill);
}

void FloodFillSession::alphaChangedElsewhere()
{
    _lastFill = wholeImage();
}

QImage FloodFillSession::imageFromImageData() const
{
    return createBGRABitmapContextWithSize(wholeImage().size(), _imageData.pixels).copy();
}

StoredColor FloodFillSession::readColorFromBuffer(const PixelSpan& buffer, QPointF point)
{
    const auto pixel = pixelAt(point, buffer.width, buffer.height);
    if (!pixel)
        return {};
    return std::bit_cast<StoredColor>(
        buffer.row(static_cast<std::uint32_t>(pixel->y()))[pixel->x()]);
}

std::optional<QPoint> FloodFillSession::startPixel() const
{
    return pixelAt(_startPoint, _imageData.width, _imageData.height);
}

QRect FloodFillSession::wholeImage() const
{
    return {0, 0, static_cast<int>(_imageData.width), static_cast<int>(_imageData.height)};
}

void FloodFillSession::backupImageAlpha()
{
    copyAlphaPlane(_imageData, _alphaChannelBackup.data());
}

void FloodFillSession::restoreImageAlpha()
{
    restoreAlphaPlane(_imageData, _alphaChannelBackup.data());
}

void FloodFillSession::createDiffBufferBackup()
{
    colorDistances(_imageData, _startColor, _diffBufferBackup.data());
}

void FloodFillSession::restoreDiffBuffer()
{
    _diffBuffer = _diffBufferBackup;
}

QRect FloodFillSession::floodFillwithTolerance(std::uint32_t tolerance)
{
    const auto start = startPixel();
    if (_startColor.a == 0 || !start)
        return {};
    return scanlineFill(_imageData, _diffBuffer.data(), *start, tolerance);
}

} // namespace pelmira
