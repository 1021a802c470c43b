#include "intake/CameraPicker.h"

#include "platform/base/Log.h"
#include "platform/screen/LayoutUrl.h"
#include "platform/text/LocalizedStrings.h"

#include <QGuiApplication>
#include <QPointer>

#include <algorithm>
#include <utility>

namespace pelmira {
namespace {

// Seconds. A camera that sleeps takes two or three to wake.
constexpr double patienceForFrame = 8.0;
constexpr double patienceForPicture = 10.0;
constexpr double messageDuration = 5.0;

bool isAmong(const QList<CameraDevice>& devices, const CameraDevice& device)
{
    return std::any_of(devices.begin(), devices.end(), [&](const CameraDevice& each) {
        return each.identifier == device.identifier;
    });
}

/// The first that looks that way, if there is one.
std::optional<CameraDevice> firstAt(const QList<CameraDevice>& devices, CameraPosition position)
{
    const auto found =
        std::find_if(devices.begin(), devices.end(),
                     [position](const CameraDevice& each) { return each.position == position; });
    return found == devices.end() ? std::nullopt : std::optional(*found);
}

/// The other side's camera; where sides aren't known, the next one.
CameraDevice after(const CameraDevice& device, const QList<CameraDevice>& devices)
{
    if (device.position != CameraPosition::Unknown) {
        const auto other =
            device.position == CameraPosition::Front ? CameraPosition::Back : CameraPosition::Front;
        if (const auto found = firstAt(devices, other))
            return *found;
    }
    const auto here = std::find_if(devices.begin(), devices.end(), [&](const CameraDevice& each) {
        return each.identifier == device.identifier;
    });
    return here == devices.end() || here + 1 == devices.end() ? devices.first() : *(here + 1);
}

} // namespace

CameraPicker::CameraPicker(CameraMaker makeCamera) : _makeCamera(std::move(makeCamera))
{
    if (qGuiApp)
        connect(qGuiApp, &QGuiApplication::applicationStateChanged, this,
                [this](Qt::ApplicationState state) {
                    if (state == Qt::ApplicationActive)
                        applicationWillEnterForeground();
                });
}

CameraPicker::~CameraPicker() = default;

QUrl CameraPicker::layoutFile() const
{
    return layoutUrl("CameraScreen");
}

void CameraPicker::viewDidAppear(bool)
{
    _hasAppeared = true;
    _isInBackground = false;
    _hasDelivered = false;
    start();
}

void CameraPicker::viewWillDisappear(bool)
{
    _hasAppeared = false;
    stop();
}

void CameraPicker::applicationDidEnterBackground()
{
    _isInBackground = true;
    stop();
}

void CameraPicker::applicationWillEnterForeground()
{
    if (std::exchange(_isInBackground, false) && _hasAppeared)
        start();
}

void CameraPicker::shutterButtonTapped()
{
    if (_state != State::Live)
        return;
    setState(State::Taking);
    _patience = Timer::scheduled(patienceForPicture, [this] { captureFailed(); });
    _camera->capture();
}

void CameraPicker::switchButtonTapped()
{
    if (!canSwitch())
        return;
    _device = after(_device, _devices);
    startDevice();
}

void CameraPicker::retryButtonTapped()
{
    if (_state == State::Failed || _state == State::NoneFound)
        start();
}

void CameraPicker::cancelButtonTapped()
{
    stop();
    if (didCancel)
        didCancel();
}

bool CameraPicker::canSwitch() const
{
    return _devices.size() > 1 && _state != State::Taking && _state != State::NoneFound;
}

void CameraPicker::makeCamera()
{
    _camera = _makeCamera();
    connect(_camera.get(), &Camera::devicesChanged, this, &CameraPicker::devicesChanged);
    connect(_camera.get(), &Camera::frame, this, &CameraPicker::frameArrived);
    connect(_camera.get(), &Camera::captured, this, &CameraPicker::pictureArrived);
    connect(_camera.get(), &Camera::captureFailed, this, &CameraPicker::captureFailed);
    connect(_camera.get(), &Camera::failed, this, &CameraPicker::fail);
}

void CameraPicker::start()
{
    if (_isInBackground)
        return;
    if (!_camera)
        makeCamera();
    _devices = _camera->devices();
    if (_devices.isEmpty()) {
        setState(State::NoneFound, QStringLiteral("camera.error.none"));
        return;
    }
    if (!isAmong(_devices, _device))
        _device = firstAt(_devices, CameraPosition::Back).value_or(_devices.first());
    startDevice();
}

void CameraPicker::startDevice()
{
    stop();
    const int thisStart = ++_starts;
    const auto granted = [self = QPointer(this), thisStart](bool isGranted) {
        if (!self || self->_starts != thisStart)
            return;
        if (!isGranted) {
            self->setState(State::Failed, QStringLiteral("generic.access.camera"));
            return;
        }
        self->_patience = Timer::scheduled(
            patienceForFrame, [picker = self.data()] { picker->fail(QStringLiteral("no frame")); });
        self->_camera->start(self->_device.identifier);
    };
    if (requestAccessBlock)
        requestAccessBlock(granted);
    else
        granted(true);
}

void CameraPicker::stop()
{
    ++_starts;
    _patience.invalidate();
    if (_camera)
        _camera->stop();
    setFrame({});
    setState(State::Starting);
}

void CameraPicker::setState(State state, const QString& messageKey)
{
    _state = state;
    _message = messageKey.isEmpty() ? QString() : localized(messageKey);
    Q_EMIT changed();
}

void CameraPicker::setFrame(const QImage& frame)
{
    _frame = frame;
    Q_EMIT frameChanged();
}

void CameraPicker::devicesChanged()
{
    const QList<CameraDevice> before = std::exchange(_devices, _camera->devices());
    if (!_hasAppeared || _isInBackground)
        return;
    const bool isIdle = _state == State::NoneFound || _state == State::Failed;
    if (isIdle && _devices.size() > before.size()) {
        start();
    } else if (_devices.isEmpty()) {
        stop();
        setState(State::NoneFound, QStringLiteral("camera.error.none"));
    } else if (!isIdle && !isAmong(_devices, _device)) {
        stop();
        setState(State::Failed, QStringLiteral("camera.error.unplugged"));
    } else {
        Q_EMIT changed();
    }
}

void CameraPicker::frameArrived(const QImage& image)
{
    if (!_hasAppeared || (_state != State::Starting && _state != State::Live))
        return; // while it takes a picture, the last frame stands still
    setFrame(image);
    if (_state == State::Starting) {
        _patience.invalidate();
        setState(State::Live);
    }
}

void CameraPicker::pictureArrived(const QImage& image)
{
    if (_state != State::Taking || std::exchange(_hasDelivered, true))
        return;
    _patience.invalidate();
    if (didFinishPickingMedia)
        didFinishPickingMedia(image);
}

void CameraPicker::captureFailed()
{
    if (_state != State::Taking || _hasDelivered)
        return;
    setState(State::Live, QStringLiteral("camera.error.capture"));
    _patience = Timer::scheduled(messageDuration, [this] { setState(State::Live); });
}

void CameraPicker::fail(const QString& reason)
{
    if (!_hasAppeared || _isInBackground || _state == State::NoneFound || _hasDelivered)
        return;
    logLine("camera: %s", qPrintable(reason));
    stop();
    setState(State::Failed, QStringLiteral("camera.error.failed"));
}

} // namespace pelmira
