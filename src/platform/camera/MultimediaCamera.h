#pragma once

#include "platform/camera/Camera.h"

#include <QImageCapture>
#include <QMediaCaptureSession>
#include <QMediaDevices>
#include <QVideoSink>

#include <memory>

class QCamera;
class QVideoFrame;

namespace pelmira {

/// The cameras that Qt Multimedia finds.
class MultimediaCamera final : public Camera {
    Q_OBJECT

public:
    MultimediaCamera();
    ~MultimediaCamera() override;

    QList<CameraDevice> devices() const override;
    void start(const QByteArray& identifier) override;
    void stop() override;
    void capture() override;

private:
    void fail(const QString& reason);
    void show(const QVideoFrame& videoFrame);
    void deliver(const QImage& picture);

    QMediaDevices _mediaDevices;
    QVideoSink _sink;
    QImageCapture _imageCapture;
    QMediaCaptureSession _session;
    std::unique_ptr<QCamera> _device;
    bool _isConverting = false;
};

} // namespace pelmira
