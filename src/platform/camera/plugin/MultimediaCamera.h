#pragma once

#include "platform/camera/CameraPlugin.h"

#include <QMediaDevices>

#include <memory>

class QCamera;
class QVideoFrame;

namespace pelmira {

/// The cameras that Qt Multimedia finds.
class MultimediaCamera final : public Camera {
    Q_OBJECT

public:
    explicit MultimediaCamera(CameraHost host);
    ~MultimediaCamera() override;

    QList<CameraDevice> devices() const override;
    void start(const QByteArray& identifier) override;
    void stop() override;
    void capture() override;

private:
    void fail(const QString& reason);
    void makeSession();
    void show(const QVideoFrame& videoFrame);
    void showConverted(QImage image, const QVideoFrame& videoFrame);
    void deliver(const QImage& picture);

    struct Session;

    const CameraHost _host;
    QMediaDevices _mediaDevices;
    std::unique_ptr<Session> _session; ///< made with the first start: it wants all its plugins
    std::unique_ptr<QCamera> _device;
    bool _isConverting = false;
};

} // namespace pelmira
