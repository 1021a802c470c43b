#include "platform/camera/plugin/MultimediaCamera.h"

#include "platform/camera/plugin/VideoFrameImage.h"

#include <QCamera>
#include <QCameraDevice>
#include <QImageCapture>
#include <QMediaCaptureSession>
#include <QPointer>
#include <QVideoFrame>
#include <QVideoSink>

#include <algorithm>
#include <memory>
#include <tuple>
#include <utility>

namespace pelmira {
namespace {

/// A viewfinder with fewer frames a second can't be aimed with.
constexpr float leastFrameRate = 15;
/// Enough for a laptop's screen, and quickly drawn.
constexpr QSize viewfinderBounds(1280, 1280); // pixels

/// The format with most pixels among those that come fast enough. The picture is one of the frames.
QCameraFormat bestFormat(const QCameraDevice& device)
{
    const QList<QCameraFormat> formats = device.videoFormats();
    const auto rank = [](const QCameraFormat& format) {
        const QSize size = format.resolution();
        return std::make_tuple(format.maxFrameRate() >= leastFrameRate,
                               qint64{size.width()} * size.height(),
                               format.pixelFormat() != QVideoFrameFormat::Format_Jpeg);
    };
    const auto best = std::max_element(
        formats.begin(), formats.end(),
        [&](const QCameraFormat& a, const QCameraFormat& b) { return rank(a) < rank(b); });
    return best == formats.end() ? QCameraFormat() : *best;
}

CameraPosition positionOf(const QCameraDevice& device)
{
    switch (device.position()) {
    case QCameraDevice::FrontFace:
        return CameraPosition::Front;
    case QCameraDevice::BackFace:
        return CameraPosition::Back;
    case QCameraDevice::UnspecifiedPosition:
        break;
    }
    return positionFromName(device.description());
}

} // namespace

struct MultimediaCamera::Session {
    QVideoSink sink;
    QImageCapture imageCapture;
    QMediaCaptureSession capture; // last: it lets go of the others first
};

MultimediaCamera::MultimediaCamera(CameraHost host) : _host(std::move(host))
{
    connect(&_mediaDevices, &QMediaDevices::videoInputsChanged, this, &Camera::devicesChanged);
}

MultimediaCamera::~MultimediaCamera()
{
    stop();
}

void MultimediaCamera::makeSession()
{
    _session = std::make_unique<Session>();
    _session->capture.setVideoSink(&_session->sink);
    _session->capture.setImageCapture(&_session->imageCapture);
    connect(&_session->sink, &QVideoSink::videoFrameChanged, this, &MultimediaCamera::show);
    connect(&_session->imageCapture, &QImageCapture::imageCaptured, this,
            [this](int, const QImage& picture) { deliver(picture); });
    connect(&_session->imageCapture, &QImageCapture::errorOccurred, this,
            [this] { Q_EMIT captureFailed(); });
}

QList<CameraDevice> MultimediaCamera::devices() const
{
    QList<CameraDevice> all;
    for (const QCameraDevice& each : QMediaDevices::videoInputs()) {
        const CameraDevice device{each.id(), each.description(), positionOf(each)};
        each.isDefault() ? all.prepend(device) : all.append(device);
    }
    return all;
}

void MultimediaCamera::start(const QByteArray& identifier)
{
    stop();
    const QList<QCameraDevice> inputs = QMediaDevices::videoInputs();
    const auto found = std::find_if(inputs.begin(), inputs.end(), [&](const QCameraDevice& each) {
        return each.id() == identifier;
    });
    if (found == inputs.end()) {
        fail(QStringLiteral("no such camera"));
        return;
    }
    _device = std::make_unique<QCamera>(*found);
    connect(_device.get(), &QCamera::errorOccurred, this,
            [this](QCamera::Error error, const QString& reason) {
                if (error != QCamera::NoError)
                    fail(reason);
            });
    if (const QCameraFormat format = bestFormat(*found); !format.isNull())
        _device->setCameraFormat(format);
    if (!_session)
        makeSession();
    _session->capture.setCamera(_device.get());
    _device->start();
}

void MultimediaCamera::stop()
{
    if (!_device)
        return;
    _device->disconnect(this);
    _device->stop();
    _session->capture.setCamera(nullptr);
    // It may be its own error that stops it.
    _device.release()->deleteLater();
}

void MultimediaCamera::capture()
{
    if (_device && _session->imageCapture.isReadyForCapture() &&
        _session->imageCapture.capture() >= 0)
        return;
    _host.mainQueue.async([self = QPointer(this)] {
        if (self)
            Q_EMIT self->captureFailed();
    });
}

void MultimediaCamera::fail(const QString& reason)
{
    _host.mainQueue.async([self = QPointer(this), reason] {
        if (self)
            Q_EMIT self->failed(reason);
    });
}

// One frame is converted at a time; what comes meanwhile is left out. The frame ends on this
// thread.
void MultimediaCamera::show(const QVideoFrame& videoFrame)
{
    if (!_device || _isConverting || !videoFrame.isValid())
        return;
    _isConverting = true;
    _host.background.async([&mainQueue = _host.mainQueue, self = QPointer(this),
                            device = QPointer(_device.get()),
                            held = std::make_shared<QVideoFrame>(videoFrame)]() mutable {
        const QImage image = imageFromVideoFrame(*held, viewfinderBounds);
        mainQueue.async([self, device, image, held = std::move(held)] {
            if (!self)
                return;
            self->_isConverting = false;
            if (device && device == self->_device.get())
                self->showConverted(image, *held);
        });
    });
}

void MultimediaCamera::showConverted(QImage image, const QVideoFrame& videoFrame)
{
    // Rare forms of pixels: Qt knows them all, but converts them on this thread only.
    if (image.isNull())
        image = videoFrame.toImage();
    if (!image.isNull())
        Q_EMIT frame(image);
}

void MultimediaCamera::deliver(const QImage& picture)
{
    _host.background.async([host = _host, self = QPointer(this), picture] {
        host.mainQueue.async([self, image = host.bitmapForm(picture)] {
            if (!self)
                return;
            if (image.isNull())
                Q_EMIT self->captureFailed();
            else
                Q_EMIT self->captured(image);
        });
    });
}

} // namespace pelmira
