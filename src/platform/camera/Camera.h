#pragma once

#include <QByteArray>
#include <QImage>
#include <QList>
#include <QObject>
#include <QString>

namespace pelmira {

enum class CameraPosition {
    Unknown,
    Front, ///< looks at the user
    Back,
};

struct CameraDevice {
    QByteArray identifier;
    QString name;
    CameraPosition position = CameraPosition::Unknown;
};

/// Few systems say where a camera looks; many name it so.
CameraPosition positionFromName(const QString& name);

/// The system's cameras, of which one runs at a time. Nothing waits: what comes of a call is told
/// by the signals, on the main thread, in its own time.
class Camera : public QObject {
    Q_OBJECT

public:
    /// Those that are plugged in, the preferred one first.
    virtual QList<CameraDevice> devices() const = 0;

    /// Lets frames come from the device, and none from any other.
    virtual void start(const QByteArray& identifier) = 0;
    virtual void stop() = 0;
    /// Takes a picture with the device that runs.
    virtual void capture() = 0;

Q_SIGNALS:
    void devicesChanged();
    /// What the camera sees, upright and small enough to be drawn at once. Frames for which there
    /// is no time are left out.
    void frame(const QImage& image);
    /// The picture in all its pixels, upright, in the bitmap form.
    void captured(const QImage& image);
    void captureFailed();
    /// It doesn't run, or runs no longer; the reason is for the log.
    void failed(const QString& reason);
};

} // namespace pelmira
