#pragma once

#include "platform/camera/Camera.h"

namespace pelmira::test {

/// Does what the test says, when it says so.
class FakeCamera final : public Camera {
public:
    QList<CameraDevice> devices() const override { return plugged; }
    void start(const QByteArray& identifier) override { running = identifier; }
    void stop() override { running.clear(); }
    void capture() override { ++captures; }

    void plug(const QList<CameraDevice>& devices)
    {
        plugged = devices;
        Q_EMIT devicesChanged();
    }

    QList<CameraDevice> plugged;
    QByteArray running;
    int captures = 0;
};

} // namespace pelmira::test
