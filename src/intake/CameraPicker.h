#pragma once

#include "platform/base/RunLoop.h"
#include "platform/camera/Camera.h"
#include "platform/screen/Screen.h"

#include <QByteArray>
#include <QImage>
#include <QString>

#include <functional>
#include <memory>
#include <optional>

namespace pelmira {

/// Takes a photo. The camera runs only while the screen shows and the application is in the
/// foreground. The screen doesn't close itself: its owner does.
class CameraPicker final : public Screen {
    Q_OBJECT
    Q_PROPERTY(bool starting READ isStarting NOTIFY changed)
    Q_PROPERTY(bool taking READ isTaking NOTIFY changed)
    Q_PROPERTY(bool noneFound READ isNoneFound NOTIFY changed)
    Q_PROPERTY(bool failed READ isFailed NOTIFY changed)
    Q_PROPERTY(QString message READ message NOTIFY changed)
    Q_PROPERTY(bool canSwitch READ canSwitch NOTIFY changed)
    Q_PROPERTY(bool canShoot READ canShoot NOTIFY changed)
    Q_PROPERTY(bool mirrored READ isMirrored NOTIFY changed)
    Q_PROPERTY(QImage frame READ frame NOTIFY frameChanged)

public:
    enum class State {
        Starting,
        Live,
        Taking,
        NoneFound,
        Failed, ///< unplugged, in use by another program, not allowed
    };

    using CameraMaker = std::function<std::unique_ptr<Camera>()>;

    /// The camera is made when the screen first appears.
    explicit CameraPicker(CameraMaker makeCamera);
    ~CameraPicker() override;

    // For the owner.

    /// A photo, upright, in the bitmap form. One for each appearance of the screen.
    std::function<void(QImage)> didFinishPickingMedia;
    std::function<void()> didCancel;
    /// Asks for access before the camera is started, and answers whether it was granted. Without
    /// it the camera is started at once.
    std::function<void(std::function<void(bool)>)> requestAccessBlock;

    // For the layout.

    Q_INVOKABLE void shutterButtonTapped();
    Q_INVOKABLE void switchButtonTapped();
    Q_INVOKABLE void retryButtonTapped();
    Q_INVOKABLE void cancelButtonTapped();

    State state() const { return _state; }
    bool isStarting() const { return _state == State::Starting; }
    bool isTaking() const { return _state == State::Taking; }
    bool isNoneFound() const { return _state == State::NoneFound; }
    bool isFailed() const { return _state == State::Failed; }
    /// One line about what went wrong; mostly empty.
    QString message() const { return _message; }
    bool canSwitch() const;
    bool canShoot() const { return _state == State::Live; }
    /// Whoever looks at himself expects a mirror; the photo isn't mirrored.
    bool isMirrored() const { return _device.position != CameraPosition::Back; }
    QImage frame() const { return _frame; }

    QUrl layoutFile() const override;
    void viewDidAppear(bool animated) override;
    void viewWillDisappear(bool animated) override;
    void applicationDidEnterBackground() override;
    /// After being in the background; the screen also notices by itself.
    void applicationWillEnterForeground();

Q_SIGNALS:
    void changed();
    void frameChanged();

private:
    void makeCamera();
    void start();
    void startDevice();
    void stop();
    void setState(State state, const QString& messageKey = {});
    void setFrame(const QImage& frame);
    void devicesChanged();
    void frameArrived(const QImage& image);
    void pictureArrived(const QImage& image);
    void captureFailed();
    void fail(const QString& reason);

    CameraMaker _makeCamera;
    std::unique_ptr<Camera> _camera;
    QList<CameraDevice> _devices;
    CameraDevice _device; ///< the one in use, or last used
    State _state = State::Starting;
    QString _message;
    QImage _frame;
    Timer _patience; ///< for the first frame, for a picture, and of whoever reads the message
    bool _hasAppeared = false;
    bool _isInBackground = false;
    bool _hasDelivered = false; ///< the photo of this appearance
    int _starts = 0;            ///< an answer to an earlier one comes too late
};

} // namespace pelmira
