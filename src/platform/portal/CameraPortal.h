#pragma once

#include "platform/portal/PortalRequest.h"
#include "platform/portal/SessionBus.h"

#include <QObject>

#include <functional>
#include <memory>

namespace pelmira {

/// Whether a program in a sandbox may use the camera (org.freedesktop.portal.Camera).
class CameraPortal final : public QObject {
    Q_OBJECT

public:
    enum class Access {
        Unavailable, ///< no portal, or none that knows cameras
        NotAsked,    ///< also while there is no camera
        Denied,
        Granted,
    };
    using Completion = std::function<void(Access)>;

    /// Asks at once, without the user, whether there is a portal.
    explicit CameraPortal(QDBusConnection bus = sessionBus());

    /// What is known so far. The portal tells no answer that was given in an earlier run: until
    /// access is requested once, it isn't asked for.
    Access access() const { return _access; }

    /// Asks the user, unless an earlier answer was kept. A second request takes the place of the
    /// first, whose completion isn't called any more.
    void requestAccess(Completion completion);

private:
    void readPresence();

    QDBusConnection _bus;
    Access _access = Access::Unavailable;
    std::unique_ptr<PortalRequest> _request;
};

} // namespace pelmira
