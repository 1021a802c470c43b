#include "platform/camera/plugin/VideoFrameImage.h"

#include "platform/camera/YuvImage.h"

#include <QByteArray>
#include <QTransform>
#include <QVideoFrameFormat>

#include <algorithm>
#include <array>
#include <optional>

namespace pelmira {
namespace {

std::optional<YuvLayout> layoutOf(QVideoFrameFormat::PixelFormat format)
{
    switch (format) {
    case QVideoFrameFormat::Format_YUYV:
        return YuvLayout::Yuyv;
    case QVideoFrameFormat::Format_UYVY:
        return YuvLayout::Uyvy;
    case QVideoFrameFormat::Format_NV12:
        return YuvLayout::Nv12;
    case QVideoFrameFormat::Format_NV21:
        return YuvLayout::Nv21;
    case QVideoFrameFormat::Format_YUV420P:
        return YuvLayout::I420;
    case QVideoFrameFormat::Format_YV12:
        return YuvLayout::Yv12;
    case QVideoFrameFormat::Format_YUV422P:
        return YuvLayout::I422;
    default:
        return std::nullopt;
    }
}

YuvMatrix matrixOf(const QVideoFrameFormat& format)
{
    if (format.colorSpace() == QVideoFrameFormat::ColorSpace_BT709)
        return YuvMatrix::Bt709;
    return format.colorRange() == QVideoFrameFormat::ColorRange_Full ? YuvMatrix::Bt601FullRange
                                                                     : YuvMatrix::Bt601;
}

/// Pixels of a frame that is mapped.
QImage pixelsOf(const QVideoFrame& frame)
{
    const QVideoFrameFormat::PixelFormat format = frame.pixelFormat();
    if (format == QVideoFrameFormat::Format_Jpeg)
        return QImage::fromData(frame.bits(0), frame.mappedBytes(0), "jpeg");
    if (const auto layout = layoutOf(format)) {
        std::array<YuvPlane, 3> planes;
        for (int i = 0; i < std::min(frame.planeCount(), 3); ++i)
            planes[static_cast<std::size_t>(i)] = {
                {frame.bits(i), static_cast<std::size_t>(frame.mappedBytes(i))},
                frame.bytesPerLine(i)};
        return imageFromYuv(*layout, matrixOf(frame.surfaceFormat()), frame.size(), planes);
    }
    const QImage::Format known = QVideoFrameFormat::imageFormatFromPixelFormat(format);
    if (known == QImage::Format_Invalid ||
        frame.mappedBytes(0) / std::max(frame.bytesPerLine(0), 1) < frame.height())
        return {};
    return QImage(frame.bits(0), frame.width(), frame.height(), frame.bytesPerLine(0), known)
        .convertToFormat(QImage::Format_RGB32)
        .copy();
}

} // namespace

QImage imageFromVideoFrame(QVideoFrame frame, QSize bounds)
{
    if (!frame.map(QVideoFrame::ReadOnly))
        return {};
    QImage image = pixelsOf(frame);
    frame.unmap();
    if (image.width() > bounds.width() || image.height() > bounds.height())
        image = image.scaled(bounds, Qt::KeepAspectRatio, Qt::SmoothTransformation);
    if (frame.surfaceFormat().scanLineDirection() == QVideoFrameFormat::BottomToTop)
        image = image.mirrored(false, true);
    if (frame.rotationAngle() != QVideoFrame::Rotation0)
        image = image.transformed(QTransform().rotate(frame.rotationAngle()));
    return frame.mirrored() ? image.mirrored(true, false) : image;
}

} // namespace pelmira
