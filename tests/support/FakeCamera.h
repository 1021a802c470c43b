#pragma once

#include "platform/camera/Camera.h"

#include <QImage>
#include <QLinearGradient>
#include <QPainter>

#include <algorithm>

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

    /// Something to look at: a ball on a table, lit from the left.
    static QImage scene(QSize size)
    {
        QImage image(size, QImage::Format_RGB32);
        QPainter painter(&image);
        painter.setRenderHint(QPainter::Antialiasing);
        const double h = size.height();
        QLinearGradient wall(0, 0, size.width(), 0);
        wall.setColorAt(0, QColor(0xd9, 0xc7, 0xa8));
        wall.setColorAt(1, QColor(0x6f, 0x7f, 0x92));
        painter.fillRect(image.rect(), wall);
        painter.fillRect(QRectF(0, h * 0.7, size.width(), h * 0.3), QColor(0x6b, 0x4a, 0x35));
        QRectF ball(0, 0, h * 0.5, h * 0.5);
        ball.moveCenter({size.width() * 0.4, h * 0.55});
        painter.setPen(Qt::NoPen);
        painter.setBrush(QColor(0xd8, 0x4b, 0x3a));
        painter.drawEllipse(ball);
        return image;
    }

    QList<CameraDevice> plugged;
    QByteArray running;
    int captures = 0;
};

} // namespace pelmira::test
