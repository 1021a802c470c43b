#include "platform/portal/CameraPortal.h"

#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDBusVariant>

#include <utility>

namespace pelmira {

CameraPortal::CameraPortal(QDBusConnection bus) : _bus(std::move(bus))
{
    readPresence();
}

void CameraPortal::readPresence()
{
    if (!_bus.isConnected())
        return;
    QDBusMessage call = QDBusMessage::createMethodCall(
        QStringLiteral("org.freedesktop.portal.Desktop"),
        QStringLiteral("/org/freedesktop/portal/desktop"),
        QStringLiteral("org.freedesktop.DBus.Properties"), QStringLiteral("Get"));
    call << QStringLiteral("org.freedesktop.portal.Camera") << QStringLiteral("IsCameraPresent");
    auto* watcher = new QDBusPendingCallWatcher(_bus.asyncCall(call), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, [this, watcher] {
        const QDBusPendingReply<QDBusVariant> reply = *watcher;
        watcher->deleteLater();
        if (!reply.isError() && _access == Access::Unavailable)
            _access = Access::NotAsked;
    });
}

void CameraPortal::requestAccess(Completion completion)
{
    _request = std::make_unique<PortalRequest>(
        _bus, QStringLiteral("Camera"), QStringLiteral("AccessCamera"), QVariantList(),
        QVariantMap(),
        [this, completion = std::move(completion)](PortalOutcome outcome, const QVariantMap&) {
            switch (outcome) {
            case PortalOutcome::Done:
                _access = Access::Granted;
                break;
            case PortalOutcome::Cancelled:
                _access = Access::Denied;
                break;
            case PortalOutcome::Unavailable:
                _access = Access::Unavailable;
                break;
            }
            completion(_access);
        });
}

} // namespace pelmira
